// The cost of adopted rows against plain owner-drawn rows, and the linear
// growth of the re-measure that a font change starts.
//
// 1. 100,000 rows by ZelListAddColor into an adopted list box, against
//    100,000 rows by LB_ADDSTRING of a data word into a list box of the same
//    style whose parent answers WM_MEASUREITEM with a fixed height. Bound 2.
// 2. WM_SETFONT on adopted lists of 10,000 and 100,000 rows: every row is
//    measured again. Bound 12 on the ratio of the engine's measuring of all
//    rows, which ends where it sets the first height: then the list box
//    takes each height, and a variable-height list box finds a row's
//    rectangle by adding the heights above it, so that part grows with the
//    square of the rows, whoever sets them. The whole time is told too.
//    Measuring 10,000 rows takes under 20 ms, so a sample of the small list
//    is the sum of four font changes; the figure is the ratio of the
//    medians of five samples each.
// The cases alternate so that a slow spell of a busy machine falls on both
// alike. The program fails only when a list does not hold its rows.
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

#include "bench_lists.h"
#include "zklib.h"

namespace {

using namespace bench;

constexpr int kPlainId = 1;
constexpr int kAdoptedId = 2;
constexpr int kTimedId = 10; // adopted after the bench watches them

HWND MakeList(HWND form, int id) {
    HWND list = MakeBenchList(form, id);
    if (id == kAdoptedId) {
        ZelListSetStyle(list, LBX_StyleOwnerDraw, nullptr);
    }
    return list;
}

void Check(Run &run, const char *what, HWND list, int expected) {
    const LRESULT count = SendMessageW(list, LB_GETCOUNT, 0, 0);
    if (count != expected)
        run.Wrong("%s: %ld rows, expected %d", what, static_cast<long>(count), expected);
}

void AddPlain(HWND list, int rows) {
    for (int i = 0; i < rows; ++i) {
        SendMessageW(list, LB_ADDSTRING, 0, static_cast<LPARAM>(i + 1));
    }
}

void AddAdopted(HWND list, int rows) {
    for (int i = 0; i < rows; ++i) {
        ZelListAddColor(list, L"An outline row", 0x000080);
    }
}

// The list box's own procedure, watched from below the engine: the first
// height the engine sets after a font change ends its measuring of all rows.
// What follows is the list box finding each row's place, which under Wine
// grows with the square of the rows whoever sets the heights.
WNDPROC listBoxProc = nullptr;
double firstHeightSet = 0;

LRESULT CALLBACK TimedListProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == LB_SETITEMHEIGHT && firstHeightSet == 0) {
        firstHeightSet = Seconds();
    }
    return CallWindowProcW(listBoxProc, window, message, wParam, lParam);
}

// An adopted list whose base procedure is the watcher.
HWND MakeTimedList(HWND form, int id) {
    HWND list = MakeList(form, id);
    listBoxProc =
        reinterpret_cast<WNDPROC>(SetWindowLongPtrW(list, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(TimedListProc)));
    ZelListSetStyle(list, LBX_StyleOwnerDraw, nullptr);
    return list;
}

struct Remeasure {
    double whole = 0;
    double engine = 0;
};

// `times` font changes in a row, their times summed.
Remeasure TimeSetFont(HWND list, HFONT const (&fonts)[2], int times, int first) {
    Remeasure sum;
    for (int i = 0; i < times; ++i) {
        firstHeightSet = 0;
        const double begin = Seconds();
        // Rows keep the font of their first measure; the control's font
        // changes, and every row is measured with it again.
        SendMessageW(list, WM_SETFONT, reinterpret_cast<WPARAM>(fonts[(first + i) % 2]), 0);
        const double end = Seconds();
        sum.whole += end - begin;
        sum.engine += (firstHeightSet ? firstHeightSet : end) - begin;
    }
    return sum;
}

} // namespace

int main(int argc, char **argv) {
    Run run("bench_outline", argc, argv);
    HWND form = MakeBenchForm();
    const int rows = run.Size(5'000, 100'000), fewRows = rows / 10;
    const int addRounds = run.Size(1, 2), fontRounds = run.Size(1, 5);
    constexpr int kSmallTimes = 4;

    std::printf("  %d rows added to a plain owner-drawn list and to an adopted one\n", rows);
    double plain = 1e30, adopted = 1e30;
    for (int round = 0; round < addRounds; ++round) {
        HWND a = MakeList(form, kPlainId);
        HWND b = MakeList(form, kAdoptedId);
        // Rows are loaded with painting off, as a host fills a list.
        SendMessageW(a, WM_SETREDRAW, FALSE, 0);
        SendMessageW(b, WM_SETREDRAW, FALSE, 0);
        plain = std::min(plain, TimeOf([&] { AddPlain(a, rows); }));
        adopted = std::min(adopted, TimeOf([&] { AddAdopted(b, rows); }));
        Check(run, "plain", a, rows);
        Check(run, "adopted", b, rows);
        DestroyWindow(a);
        DestroyWindow(b);
    }
    std::printf("  plain %8.3f s  adopted %8.3f s (%.1f us a row)\n", plain, adopted, adopted / rows * 1e6);

    std::printf("  WM_SETFONT on adopted lists of %d and %d rows\n", fewRows, rows);
    HFONT fonts[2] = {CreateFontW(-13, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, L"Tahoma"),
                      CreateFontW(-17, 0, 0, 0, FW_BOLD, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, L"Tahoma")};
    HWND few = MakeTimedList(form, kTimedId);
    HWND many = MakeTimedList(form, kTimedId + 1);
    for (HWND list : {few, many}) {
        SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    }
    AddAdopted(few, fewRows);
    AddAdopted(many, rows);
    for (HWND list : {few, many}) {
        SendMessageW(list, WM_SETREDRAW, TRUE, 0);
    }
    std::vector<double> smallEngine, largeEngine, smallWhole, largeWhole;
    for (int round = 0; round < fontRounds; ++round) {
        const Remeasure small = TimeSetFont(few, fonts, kSmallTimes, 0);
        const Remeasure large = TimeSetFont(many, fonts, 1, round);
        smallEngine.push_back(small.engine / kSmallTimes);
        smallWhole.push_back(small.whole / kSmallTimes);
        largeEngine.push_back(large.engine);
        largeWhole.push_back(large.whole);
    }
    Check(run, "few", few, fewRows);
    Check(run, "many", many, rows);
    std::printf("  whole WM_SETFONT: %d rows %8.3f s  %d rows %8.3f s\n", fewRows, Median(smallWhole), rows,
                Median(largeWhole));
    std::printf("  the engine's measuring: %d rows %8.3f s  %d rows %8.3f s\n", fewRows, Median(smallEngine), rows,
                Median(largeEngine));
    DestroyWindow(few);
    DestroyWindow(many);
    DestroyWindow(form);
    DeleteObject(fonts[0]);
    DeleteObject(fonts[1]);

    run.Figure("adopted rows / plain owner-drawn rows", adopted / plain, Want::AtMost, 2);
    run.Figure("WM_SETFONT re-measure, 10x the rows (engine)",
               Median(largeEngine) / std::max(Median(smallEngine), 1e-6), Want::AtMost, 12);
    return run.Finish();
}
