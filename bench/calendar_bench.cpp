// The cost of one full paint of the calendar (42 cells, 100 marked dates,
// 20 special rules, caption, weekday band and buttons, off screen and one
// copy) against a window of the same size whose paint only fills its
// client area and draws 42 texts. Both are painted through the same route
// (invalidate, update) the same number of times; best of several rounds,
// the two alternating. The ratio is printed beside its bound of 2; the
// program fails only when the calendar does not paint what it should.
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <string>

#include "bench.h"
#include "zkhostctl.h"
#include "zklib.h"

namespace {

using namespace bench;

constexpr int kWidth = 280, kHeight = 210;
constexpr COLORREF kMarkColour = RGB(200, 30, 40);

// The baseline: a fill and the 42 days, in the calendar's cell places.
void PlainDays(HDC dc) {
    const HGDIOBJ old = SelectObject(dc, GetStockObject(DEFAULT_GUI_FONT));
    const int cw = kWidth / 7 - 1, ch = kHeight / 8 - 1;
    for (int cell = 0; cell < 42; ++cell) {
        RECT r{(cell % 7) * (cw + 1), 2 * (ch + 1) + (cell / 7) * (ch + 1), 0, 0};
        r.right = r.left + cw;
        r.bottom = r.top + ch;
        const std::wstring day = std::to_wstring(cell % 31 + 1);
        DrawTextW(dc, day.c_str(), static_cast<int>(day.size()), &r, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    }
    SelectObject(dc, old);
}

LRESULT CALLBACK PlainProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return PlainPaint(window, message, wParam, lParam, &PlainDays);
}

HostDateTime Date(int year, int month, int day) {
    HostDateTime d{};
    HostDateConstruct(&d, year, month, day, 0, 0, 0);
    return d;
}

// 100 marks (every day of the month on display, and 69 days of the year
// before, which the host rolls over from January on) and 20 rules of every kind.
bool Populate(ZelCalControl c) {
    ZelCalSetStyle(c, CALS_MultipleSelection | CALS_ShowSpecial, 1);
    int marked = 0;
    for (int i = 0; i < 100; ++i)
        marked += ZelCalMarkDate(c, i < 31 ? Date(2024, 3, i + 1) : Date(2023, 1, i - 30), 1);
    int rules = 0;
    for (int i = 0; i < 20; ++i) {
        const int type = 1 + i % 6;
        rules += ZelCalSpecialDate(c, type, Date(2024, 1 + i % 12, 1 + i), 1 + i % 7, 1 + i % 4, RGB(0, 0, 160),
                                   RGB(220, 230, 255), 1);
    }
    // The focus date was marked as the calendar was made.
    return marked == 99 && rules == 20;
}

} // namespace

int main(int argc, char **argv) {
    Run run("bench_calendar", argc, argv);
    const int paints = run.Size(20, 200), rounds = run.Size(1, 7);
    const HostDateTime today = Date(2024, 3, 15);
    ZkHostSetClock(&today);
    HWND form = MakeForm(L"ZkCalendarBenchForm", L"ZkCalendarBenchPlain", &PlainProc, 0, 2 * kWidth + 40, kHeight + 60);
    HWND calendar = CreateWindowExW(0, L"ZK:cCalendar:10", L"", WS_CHILD | WS_VISIBLE, 10, 10, kWidth, kHeight, form,
                                    reinterpret_cast<HMENU>(INT_PTR{1}), GetModuleHandleW(nullptr), nullptr);
    HWND plain = CreateWindowW(L"ZkCalendarBenchPlain", L"", WS_CHILD | WS_VISIBLE, kWidth + 20, 10, kWidth, kHeight,
                               form, nullptr, GetModuleHandleW(nullptr), nullptr);
    MSG m{};
    ZelCalControl control = 0;
    if (calendar && PeekMessageW(&m, calendar, ZKM_ControlCreate, ZKM_ControlCreate, PM_REMOVE))
        control = static_cast<ZelCalControl>(m.lParam);
    if (run.Check(control != 0, "no calendar control announced") &&
        run.Check(Populate(control), "marks or rules not taken")) {
        ZelCalSetColor(control, CALR_MarkBack, kMarkColour);
        while (PeekMessageW(&m, nullptr, 0, 0, PM_REMOVE))
            DispatchMessageW(&m);
        std::vector<double> times, plainTimes;
        for (int round = 0; round < rounds; ++round) {
            times.push_back(PaintTimes(calendar, paints));
            plainTimes.push_back(PaintTimes(plain, paints));
        }
        // What the paints drew: a marked day of the month on display.
        HDC dc = GetDC(form);
        HDC mem = CreateCompatibleDC(dc);
        HBITMAP bitmap = CreateCompatibleBitmap(dc, kWidth, kHeight);
        const HGDIOBJ old = SelectObject(mem, bitmap);
        SendMessageW(calendar, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(mem), PRF_CLIENT);
        int markPixels = 0;
        for (int y = 0; y < kHeight; ++y)
            for (int x = 0; x < kWidth; ++x)
                markPixels += GetPixel(mem, x, y) == kMarkColour;
        SelectObject(mem, old);
        DeleteObject(bitmap);
        DeleteDC(mem);
        ReleaseDC(form, dc);
        run.Check(markPixels >= 28 * 100, "the marked days of March are not painted in their role");
        std::printf("  calendar paint %.1f us, plain paint %.1f us (medians of %d rounds of %d)\n",
                    Median(times) / paints * 1e6, Median(plainTimes) / paints * 1e6, rounds, paints);
        run.Figure("calendar paint / fill and 42 texts", Median(times) / Median(plainTimes), Want::AtMost, 2);
    }
    DestroyWindow(form);
    ZkHostSetClock(nullptr);
    return run.Finish();
}
