// Saving and loading outlines grows linearly with the nodes.
//
// An outline of 10,000 and one of 100,000 nodes (three levels, two shared
// pictures, a font on every seventh node) is saved with ZelListSaveOutline
// and loaded into a second list with ZelListLoadOutline, which also shows it.
// Showing inserts one row per node, and a variable-height list box of the
// platform grows its own row store at a cost that rises faster than the rows
// (the same in any list); that step is timed alone (ZelListShowOutline on
// the loaded list) and the bound applies to the rest. Bound 12 on the ratio
// of the two sizes' times: ten times the nodes may cost a little more than
// ten times the time, never a walk over all rows per node. A busy machine
// can push one ratio past the bound: the program fails only beyond half as
// much again, or when the loaded outline does not hold every node or does
// not save to the bytes a second load gives back. Best of a few rounds; the
// sizes alternate. All three ratios are printed.
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "bench_lists.h"
#include "zkhostctl.h"
#include "zklib.h"

namespace {

constexpr double kBound = 12.0;
constexpr double kFailAt = kBound * 1.5;

HWND MakeList(HWND form, int id) {
    // No font of its own: a font set by WM_SETFONT is saved again on every
    // cycle, and the round trip would not come back the same.
    HWND list = CreateWindowW(L"ListBox", L"", kBenchListStyle | LBS_OWNERDRAWVARIABLE, 0, 0, 200, 300, form,
                              reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleW(nullptr), nullptr);
    ZelListSetStyle(list, LBX_StyleOutline, nullptr);
    return list;
}

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
    ZelListShowOutline(list, 32766);
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

struct Case {
    int nodes;
    HWND source;
    HWND target;
    double best = 1e30;    // save and load
    double bestNet = 1e30; // the same less the rows' own insertion
    double bestShow = 1e30;
    bool ok = true;
};

// One save of the source and one load into the target, timed together;
// then the showing step of the load alone, which a net figure leaves out.
void Round(Case &c) {
    HostStr saved = 0;
    const double start = Seconds();
    const int32_t status = ZelListSaveOutline(c.source, &saved);
    const ZelItemHandle root = status == 0 ? ZelListLoadOutline(c.target, saved) : 0;
    const double took = Seconds() - start;
    if (saved)
        ZkHostStrRelease(saved);
    const LRESULT rows = SendMessageW(c.target, LB_GETCOUNT, 0, 0);
    if (!root || rows != c.nodes) {
        std::printf("  %d nodes: save %d, load %s, %ld rows\n", c.nodes, status, root ? "ok" : "failed",
                    static_cast<long>(rows));
        c.ok = false;
    }
    // The rows go first (every node is deeper than level -1), so that the
    // timed show inserts into an empty list as the load's own show does.
    ZelListShowOutline(c.target, -1);
    const double showStart = Seconds();
    ZelListShowOutline(c.target, 32767);
    const double show = Seconds() - showStart;
    c.best = std::min(c.best, took);
    c.bestShow = std::min(c.bestShow, show);
    c.bestNet = std::min(c.bestNet, took - show);
}

// The loaded outline saves to bytes that load and save back unchanged.
bool Stable(Case &c) {
    HostStr first = 0;
    if (ZelListSaveOutline(c.target, &first) != 0)
        return false;
    const std::vector<uint8_t> bytes = Take(first);
    HostStr carrier = 0;
    HostStrAlloc(&carrier, static_cast<int32_t>(bytes.size() + 1));
    int32_t size = 0;
    auto *buffer = reinterpret_cast<uint8_t *>(HostStrLock(carrier, &size));
    std::copy(bytes.begin(), bytes.end(), buffer);
    buffer[bytes.size()] = 0;
    const bool loaded = ZelListLoadOutline(c.source, carrier) != 0;
    ZkHostStrRelease(carrier);
    HostStr second = 0;
    return loaded && ZelListSaveOutline(c.source, &second) == 0 && Take(second) == bytes;
}

} // namespace

int main() {
    HWND form = MakeBenchForm();
    const ZelPicHandle plus = ZelPicLoad(0x8201, L"ZKLIB.dll", L"plusdk");
    const ZelPicHandle minus = ZelPicLoad(0x8201, L"ZKLIB.dll", L"minusdk");
    const HFONT font = ZelFontLoad(L"Tahoma", 10, FONT_Bold);
    Case small{10000, MakeList(form, 1), MakeList(form, 2)};
    Case large{100000, MakeList(form, 3), MakeList(form, 4)};
    Build(small.source, small.nodes, plus, minus, font);
    Build(large.source, large.nodes, plus, minus, font);
    for (int round = 0; round < 3; ++round) {
        Round(small);
        if (round < 2)
            Round(large);
    }
    const bool stable = Stable(small) && Stable(large);
    const double ratio = large.best / small.best;
    const double net = large.bestNet / small.bestNet;
    std::printf("outline files: save + load of 10,000 nodes %.3f s, of 100,000 nodes %.3f s: t(100k)/t(10k) = %.2f\n",
                small.best, large.best, ratio);
    std::printf("  of which the rows' insertion (ZelListShowOutline alone) %.3f s and %.3f s: %.2f\n", small.bestShow,
                large.bestShow, large.bestShow / small.bestShow);
    std::printf("  save + load less the rows: %.3f s and %.3f s: t(100k)/t(10k) = %.2f (bound %.0f)%s\n",
                small.bestNet, large.bestNet, net, kBound, stable ? "" : "; round trip unstable");
    DestroyWindow(form);
    return small.ok && large.ok && stable && net <= kFailAt ? 0 : 1;
}
