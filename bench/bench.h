// What every benchmark shares: the clock, medians, the two run sizes and
// the report.
//
// A benchmark runs in one of two ways. Under `./zk test` (no argument) it
// works at small sizes and checks its results: it fails only when a result
// is wrong (a copy that differs, a count that is off, a round trip that
// changes), never on a time. Under `./zk bench` (argument --full) it works
// at the sizes its figures are defined for and prints each figure with its
// bound as a line "@figure|program|name|value|<=|bound" that the command
// gathers into one table; whether a figure is within its bound decides the
// command's exit code, never the program's.
#pragma once

#include <windows.h>

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

namespace bench {

// Seconds from the performance counter.
inline double Seconds() {
    static const LARGE_INTEGER frequency = [] {
        LARGE_INTEGER f;
        QueryPerformanceFrequency(&f);
        return f;
    }();
    LARGE_INTEGER now;
    QueryPerformanceCounter(&now);
    return static_cast<double>(now.QuadPart) / static_cast<double>(frequency.QuadPart);
}

inline double TimeOf(const std::function<void()> &work) {
    const double start = Seconds();
    work();
    return Seconds() - start;
}

inline double Median(std::vector<double> values) {
    if (values.empty())
        return 0;
    std::sort(values.begin(), values.end());
    const size_t middle = values.size() / 2;
    return values.size() % 2 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

inline double Best(const std::vector<double> &values) {
    return values.empty() ? 0 : *std::min_element(values.begin(), values.end());
}

// The time of a piece of work at two sizes: the medians of `rounds`
// samples each, taken in turn so that a slow spell of a busy machine falls
// on both alike. A sample of the small size is the mean of `repeat` runs,
// so that it spans tens of milliseconds where one run takes a few.
struct Growth {
    double small = 0, large = 0;
    double Ratio() const { return large / std::max(small, 1e-9); }
};

inline Growth MeasureGrowth(int rounds, int repeat, const std::function<double()> &small,
                            const std::function<double()> &large) {
    std::vector<double> smallTimes, largeTimes;
    for (int round = 0; round < rounds; ++round) {
        double sum = 0;
        for (int i = 0; i < repeat; ++i)
            sum += small();
        smallTimes.push_back(sum / repeat);
        largeTimes.push_back(large());
    }
    return {Median(smallTimes), Median(largeTimes)};
}

// Paints a window `count` times by the route of an application's repaint
// (invalidate, update); the seconds it took.
inline double PaintTimes(HWND window, int count) {
    const double start = Seconds();
    for (int i = 0; i < count; ++i) {
        InvalidateRect(window, nullptr, FALSE);
        UpdateWindow(window);
    }
    return Seconds() - start;
}

// The window procedure of a baseline window: no erasing, and a paint that
// fills the client area in the window colour before paint(dc) draws.
template <class Paint>
LRESULT PlainPaint(HWND window, UINT message, WPARAM wParam, LPARAM lParam, Paint &&paint) {
    if (message == WM_ERASEBKGND)
        return 1;
    if (message != WM_PAINT)
        return DefWindowProcW(window, message, wParam, lParam);
    PAINTSTRUCT ps{};
    HDC dc = BeginPaint(window, &ps);
    RECT client{};
    GetClientRect(window, &client);
    FillRect(dc, &client, GetSysColorBrush(COLOR_WINDOW));
    paint(dc);
    EndPaint(window, &ps);
    return 0;
}

// A visible top-level window of width x height for a paint benchmark, and
// the class `plainClass` of its baseline window, painted by `plainProc`
// under the class style `plainStyle`.
inline HWND MakeForm(const wchar_t *formClass, const wchar_t *plainClass, WNDPROC plainProc, UINT plainStyle, int width,
                     int height) {
    WNDCLASSW wc{};
    wc.lpfnWndProc = DefWindowProcW;
    wc.hInstance = GetModuleHandleW(nullptr);
    wc.lpszClassName = formClass;
    RegisterClassW(&wc);
    WNDCLASSW plain{};
    plain.style = plainStyle;
    plain.lpfnWndProc = plainProc;
    plain.hInstance = wc.hInstance;
    plain.lpszClassName = plainClass;
    RegisterClassW(&plain);
    return CreateWindowW(formClass, L"bench", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, width, height, nullptr, nullptr,
                         wc.hInstance, nullptr);
}

// Which side of its bound a figure must lie on.
enum class Want { AtMost, AtLeast };

class Run {
public:
    Run(const char *program, int argc, char **argv) : program_(program) {
        std::setvbuf(stdout, nullptr, _IONBF, 0);
        for (int i = 1; i < argc; ++i)
            full_ = full_ || std::strcmp(argv[i], "--full") == 0;
        start_ = Seconds();
        std::printf("%s (%s sizes)\n", program_, full_ ? "full" : "quick, results only");
    }

    bool Full() const { return full_; }
    // The size of the run: small under ./zk test, the figure's own under ./zk bench.
    template <class T>
    T Size(T quick, T full) const {
        return full_ ? full : quick;
    }

    // A figure and its bound. Printed in either run; gathered by ./zk bench.
    void Figure(const char *name, double value, Want want, double bound) {
        const bool within = want == Want::AtMost ? value <= bound : value >= bound;
        std::printf("  %-52s %8.2f  (bound %s %.2f)%s\n", name, value, want == Want::AtMost ? "<=" : ">=", bound,
                    full_ ? (within ? "" : "  MISSED") : "  (small sizes: not the figure)");
        if (full_)
            std::printf("@figure|%s|%s|%.3f|%s|%.2f\n", program_, name, value,
                        want == Want::AtMost ? "<=" : ">=", bound);
    }
    // A figure told for context, with no bound of its own.
    void Note(const char *name, double value) {
        std::printf("  %-52s %8.2f\n", name, value);
        if (full_)
            std::printf("@figure|%s|%s|%.3f|-|0\n", program_, name, value);
    }

    // A wrong result: the program fails.
    void Wrong(const char *format, ...) {
        va_list args;
        va_start(args, format);
        char text[512];
        std::vsnprintf(text, sizeof text, format, args);
        va_end(args);
        std::printf("WRONG: %s\n", text);
        wrong_ = true;
    }
    // Checks a condition that a correct library always meets.
    bool Check(bool condition, const char *what) {
        if (!condition)
            Wrong("%s", what);
        return condition;
    }
    bool Ok() const { return !wrong_; }

    int Finish() const {
        std::printf("%s: %s in %.1f s\n", program_, wrong_ ? "WRONG RESULTS" : "results right", Seconds() - start_);
        return wrong_ ? 1 : 0;
    }

private:
    const char *program_;
    bool full_ = false;
    bool wrong_ = false;
    double start_ = 0;
};

} // namespace bench
