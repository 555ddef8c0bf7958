// The small controls against the platform's plainest way to the same
// result, in the same run:
//   - a splitter drop that resizes both children (the release 20 pixels
//     from the press, and the form repainted; the press is not timed),
//     against two bare SetWindowPos calls that give the two children the
//     same rectangles, and the same repaint;
//   - ZelWinSetMeter on a visible meter, against PBM_SETPOS and
//     UpdateWindow on the platform's progress bar of the same size.
// Medians of several rounds, the two sides alternating. The program fails
// only when a child, the bar or a meter ends up other than it should.
#include <windows.h>

#include <commctrl.h>

#include <cstdio>
#include <vector>

#include "bench.h"
#include "zklib.h"

namespace {

using namespace bench;

constexpr int kFormWidth = 400, kFormHeight = 300, kBarX = 100;
constexpr int kMeterWidth = 200, kMeterHeight = 20;
uint8_t runTime[8] = {0, 0, 0, 0, 1, 0, 0, 0}; // the host's run-time bit, bit 0 of byte 4

HWND MakeForm(const wchar_t *title) {
    WNDCLASSW wc{};
    wc.lpfnWndProc = DefWindowProcW;
    wc.hInstance = GetModuleHandleW(nullptr);
    wc.hbrBackground = GetSysColorBrush(COLOR_WINDOW);
    wc.lpszClassName = L"ZkControlsBenchForm";
    RegisterClassW(&wc);
    RECT frame{0, 0, kFormWidth, kFormHeight};
    AdjustWindowRect(&frame, WS_OVERLAPPEDWINDOW, FALSE);
    return CreateWindowW(wc.lpszClassName, title, WS_OVERLAPPEDWINDOW | WS_VISIBLE, 20, 20, frame.right - frame.left,
                         frame.bottom - frame.top, nullptr, nullptr, wc.hInstance, nullptr);
}

HWND Pane(HWND form, int id, int x, int width, bool gray) {
    return CreateWindowW(L"Static", L"", WS_CHILD | WS_VISIBLE | (gray ? SS_GRAYRECT : SS_WHITERECT), x, 0, width,
                         kFormHeight, form, reinterpret_cast<HMENU>(INT_PTR{id}), GetModuleHandleW(nullptr), nullptr);
}

RECT InParent(HWND window) {
    RECT r{};
    GetWindowRect(window, &r);
    MapWindowPoints(nullptr, GetParent(window), reinterpret_cast<POINT *>(&r), 2);
    return r;
}

void Repaint(HWND form) { RedrawWindow(form, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN); }

void Pump() {
    MSG m;
    for (int i = 0; i < 10000 && PeekMessageW(&m, nullptr, 0, 0, PM_REMOVE); ++i)
        DispatchMessageW(&m);
}

// Drops that move the bar right and back by 20 pixels in turn: the left
// child is 100 or 120 wide, the right one takes the rest.
struct Splitter {
    HWND form = nullptr, bar = nullptr, left = nullptr, right = nullptr;

    bool Make() {
        form = MakeForm(L"splitter");
        left = Pane(form, 1, 0, kBarX, false);
        right = Pane(form, 2, kBarX + 6, kFormWidth - kBarX - 6, true);
        bar = CreateWindowW(L"ZK:cSplitter:10", L"", WS_CHILD | WS_VISIBLE, kBarX, 0, 6, kFormHeight, form, nullptr,
                            GetModuleHandleW(nullptr), runTime);
        MSG m{};
        if (!bar || !PeekMessageW(&m, bar, ZKM_ControlCreate, ZKM_ControlCreate, PM_REMOVE))
            return false;
        const auto control = static_cast<ZelSplitControl>(m.lParam);
        ZelSplitSetChild(control, 1, left);
        ZelSplitSetChild(control, 2, right);
        Pump();
        Repaint(form);
        return true;
    }
    // The time of the drops alone.
    double Drops(int count) {
        double time = 0;
        for (int i = 0; i < count; ++i) {
            const int to = i % 2 == 0 ? 23 : -17; // pressed 3 pixels in: 20 right, then back
            SendMessageW(bar, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 50));
            time += TimeOf([&] {
                SendMessageW(bar, WM_LBUTTONUP, 0, MAKELPARAM(static_cast<WORD>(static_cast<short>(to)), 50));
                Repaint(form);
            });
        }
        return time;
    }
    void Bare(int count) {
        for (int i = 0; i < count; ++i) {
            const int edge = i % 2 == 0 ? kBarX + 20 : kBarX;
            SetWindowPos(left, nullptr, 0, 0, edge, kFormHeight, SWP_NOZORDER);
            SetWindowPos(right, nullptr, edge + 6, 0, kFormWidth - edge - 6, kFormHeight, SWP_NOZORDER);
            Repaint(form);
        }
    }
    bool AtStart() const {
        const RECT l = InParent(left), r = InParent(right), b = InParent(bar);
        return l.right == kBarX && r.left == kBarX + 6 && r.right == kFormWidth && b.left == kBarX &&
               b.right == kBarX + 6 && IsWindowVisible(left) && IsWindowVisible(right);
    }
};

struct Meters {
    HWND form = nullptr, meter = nullptr, progress = nullptr;

    bool Make() {
        LoadLibraryW(L"comctl32.dll"); // registers the progress bar's class
        form = MakeForm(L"meters");
        meter = CreateWindowW(L"ZK:cMeter:10", L"", WS_CHILD | WS_VISIBLE, 10, 10, kMeterWidth, kMeterHeight, form,
                              nullptr, GetModuleHandleW(nullptr), runTime);
        progress = CreateWindowW(PROGRESS_CLASSW, L"", WS_CHILD | WS_VISIBLE, 10, 50, kMeterWidth, kMeterHeight, form,
                                 nullptr, GetModuleHandleW(nullptr), nullptr);
        Pump();
        Repaint(form);
        return meter && progress;
    }
    void SetMeter(int count) {
        for (int i = 0; i < count; ++i)
            ZelWinSetMeter(meter, static_cast<uint32_t>(i % 101));
    }
    void SetProgress(int count) {
        for (int i = 0; i < count; ++i) {
            SendMessageW(progress, PBM_SETPOS, static_cast<WPARAM>(i % 101), 0);
            UpdateWindow(progress);
        }
    }
};

} // namespace

int main(int argc, char **argv) {
    Run run("bench_controls", argc, argv);
    const int rounds = run.Size(3, 5);

    Splitter s;
    if (!run.Check(s.Make(), "the splitter form could not be made"))
        return run.Finish();
    const int drops = run.Size(40, 400);
    std::vector<double> dropTimes, bareTimes;
    for (int round = 0; round < rounds; ++round) {
        dropTimes.push_back(s.Drops(drops));
        run.Check(s.AtStart(), "after an even number of drops the bar and its children are back");
        bareTimes.push_back(TimeOf([&] { s.Bare(drops); }));
    }
    s.Drops(1);
    const RECT moved = InParent(s.left);
    run.Check(moved.right == kBarX + 20 && InParent(s.right).left == kBarX + 26, "a drop moves both children");
    run.Figure("splitter drop / two SetWindowPos", Median(dropTimes) / Median(bareTimes), Want::AtMost, 1.2);
    DestroyWindow(s.form);

    Meters m;
    if (!run.Check(m.Make(), "the meters could not be made"))
        return run.Finish();
    // 100,000 updates a side in all, in rounds of a fifth.
    const int updates = run.Size(400, 100000 / rounds);
    std::vector<double> meterTimes, progressTimes;
    for (int round = 0; round < rounds; ++round) {
        meterTimes.push_back(TimeOf([&] { m.SetMeter(updates); }));
        progressTimes.push_back(TimeOf([&] { m.SetProgress(updates); }));
    }
    run.Check(GetWindowWord(m.meter, 0) == (updates - 1) % 101, "the meter holds the last value");
    run.Check(ZelWinSetMeter(m.meter, 101) == -87 && GetWindowWord(m.meter, 0) == (updates - 1) % 101,
              "a value above 100 is refused");
    run.Note("ZelWinSetMeter updates per second", updates / Median(meterTimes));
    run.Note("PBM_SETPOS + UpdateWindow per second", updates / Median(progressTimes));
    run.Figure("ZelWinSetMeter / PBM_SETPOS + UpdateWindow", Median(meterTimes) / Median(progressTimes), Want::AtMost,
               1.2);
    DestroyWindow(m.form);
    return run.Finish();
}
