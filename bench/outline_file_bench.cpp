// Saving and loading outlines grows linearly with the nodes.
//
// An outline of 10,000 and one of 100,000 nodes (three levels, two shared
// pictures, a font on every seventh node) is saved with ZelListSaveOutline
// and loaded into a fresh adopted list with ZelListLoadOutline. The load
// ends by showing the outline, which inserts one row per node, and a
// variable-height list box of the platform grows its row store at a cost
// that rises faster than the rows (the same in any list; bench_outline_tree
// measures it): the load is timed up to its first row, which a watcher
// below the engine sees. Bound 12 on the ratio of the two sizes' save plus
// load: ten times the nodes may cost a little more than ten times the time,
// never a walk over all rows per node. Each sample of the small outline is
// the sum of five cycles, so that it spans tens of milliseconds; the figure
// is the ratio of the medians of five samples each. The program fails only
// when a loaded outline does not hold every node, or does not save to the
// bytes a second load gives back.
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "bench_lists.h"
#include "zkhostctl.h"
#include "zklib.h"

namespace {

using namespace bench;

constexpr double kBound = 12.0;
constexpr int kSmallCycles = 5;

HWND MakeList(HWND form, int id) {
    // No font of its own: a font set by WM_SETFONT is saved again on every
    // cycle, and the round trip would not come back the same.
    HWND list = CreateWindowW(L"ListBox", L"", kBenchListStyle | LBS_OWNERDRAWVARIABLE, 0, 0, 200, 300, form,
                              reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleW(nullptr), nullptr);
    ZelListSetStyle(list, LBX_StyleOutline, nullptr);
    return list;
}

// The list box's own procedure, watched from below the engine: the first
// row the load inserts ends its own work.
WNDPROC listBoxProc = nullptr;
double firstRow = 0;

LRESULT CALLBACK WatchedListProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if ((message == LB_INSERTSTRING || message == LB_ADDSTRING) && firstRow == 0)
        firstRow = Seconds();
    return CallWindowProcW(listBoxProc, window, message, wParam, lParam);
}

HWND MakeWatchedList(HWND form, int id) {
    HWND list = CreateWindowW(L"ListBox", L"", kBenchListStyle | LBS_OWNERDRAWVARIABLE, 0, 0, 200, 300, form,
                              reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleW(nullptr), nullptr);
    listBoxProc =
        reinterpret_cast<WNDPROC>(SetWindowLongPtrW(list, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(WatchedListProc)));
    ZelListSetStyle(list, LBX_StyleOutline, nullptr);
    return list;
}

// The tree alone: saving walks nodes, not rows.
void Build(HWND list, int nodes, ZelPicHandle plus, ZelPicHandle minus, HFONT font) {
    const ZelItemHandle root = ZelListGetRoot(list);
    ZelItemHandle top = 0, mid = 0;
    for (int i = 0; i < nodes; ++i) {
        const std::wstring text = L"node " + std::to_wstring(i);
        ZelItemHandle node;
        if (i % 100 == 0) {
            node = top = mid = ZelListLoadChild(list, root, plus, minus, text.c_str(), i, 0);
        } else if (i % 10 == 0) {
            node = mid = ZelListLoadChild(list, top, plus, minus, text.c_str(), i, 0);
        } else {
            node = ZelListLoadChild(list, mid, minus, 0, text.c_str(), i, 0);
        }
        if (i % 7 == 0)
            ZelListSetItemFont(node, font);
        ZelListSetItemColor(node, static_cast<COLORREF>(i & 0xFFFFFF));
    }
}

std::vector<uint8_t> Take(HostStr handle) {
    int32_t size = 0;
    const auto *bytes = reinterpret_cast<const uint8_t *>(HostStrLock(handle, &size));
    std::vector<uint8_t> out;
    if (bytes && size > 0)
        out.assign(bytes, bytes + size - 1);
    ZkHostStrRelease(handle);
    return out;
}

// One save of the source and one load into a fresh list, timed up to the
// load's first row; the rows are counted after.
double Cycle(Run &run, HWND form, HWND source, int nodes) {
    HWND target = MakeWatchedList(form, 9);
    HostStr saved = 0;
    firstRow = 0;
    const double start = Seconds();
    const int32_t status = ZelListSaveOutline(source, &saved);
    const ZelItemHandle root = status == 0 ? ZelListLoadOutline(target, saved) : 0;
    const double took = (firstRow ? firstRow : Seconds()) - start;
    if (saved)
        ZkHostStrRelease(saved);
    const LRESULT rows = SendMessageW(target, LB_GETCOUNT, 0, 0);
    if (!root || rows != nodes)
        run.Wrong("%d nodes: save %d, load %s, %ld rows", nodes, status, root ? "ok" : "failed",
                  static_cast<long>(rows));
    DestroyWindow(target);
    return took;
}

// The outline saves to bytes that load and save back unchanged.
bool Stable(HWND form, HWND source) {
    HWND a = MakeList(form, 11), b = MakeList(form, 12);
    HostStr first = 0, second = 0, third = 0;
    bool same = ZelListSaveOutline(source, &first) == 0 && ZelListLoadOutline(a, first) != 0 &&
                ZelListSaveOutline(a, &second) == 0;
    const std::vector<uint8_t> bytes = same ? Take(second) : std::vector<uint8_t>{};
    if (first)
        ZkHostStrRelease(first);
    HostStr carrier = 0;
    HostStrAlloc(&carrier, static_cast<int32_t>(bytes.size() + 1));
    int32_t size = 0;
    auto *buffer = reinterpret_cast<uint8_t *>(HostStrLock(carrier, &size));
    std::copy(bytes.begin(), bytes.end(), buffer);
    buffer[bytes.size()] = 0;
    same = same && ZelListLoadOutline(b, carrier) != 0 && ZelListSaveOutline(b, &third) == 0 && Take(third) == bytes;
    ZkHostStrRelease(carrier);
    DestroyWindow(a);
    DestroyWindow(b);
    return same;
}

} // namespace

int main(int argc, char **argv) {
    Run run("bench_outline_file", argc, argv);
    const int smallNodes = run.Size(1'000, 10'000), largeNodes = smallNodes * 10;
    const int rounds = run.Size(1, 5);
    HWND form = MakeBenchForm();
    const ZelPicHandle plus = ZelPicLoad(0x8201, L"ZKLIB.dll", L"plusdk");
    const ZelPicHandle minus = ZelPicLoad(0x8201, L"ZKLIB.dll", L"minusdk");
    const HFONT font = ZelFontLoad(L"Tahoma", 10, FONT_Bold);
    HWND small = MakeList(form, 1), large = MakeList(form, 2);
    Build(small, smallNodes, plus, minus, font);
    Build(large, largeNodes, plus, minus, font);
    const Growth growth = MeasureGrowth(
        rounds, kSmallCycles, [&] { return Cycle(run, form, small, smallNodes); },
        [&] { return Cycle(run, form, large, largeNodes); });
    run.Check(Stable(form, small) && Stable(form, large), "the round trip does not come back the same");
    if (run.Ok()) {
        std::printf("  save + load up to the rows: %d nodes %.4f s, %d nodes %.4f s (medians of %d)\n", smallNodes,
                    growth.small, largeNodes, growth.large, rounds);
        run.Figure("outline save + load, 10x the nodes", growth.Ratio(), Want::AtMost, kBound);
    }
    DestroyWindow(form);
    return run.Finish();
}
