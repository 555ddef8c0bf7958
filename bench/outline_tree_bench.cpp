// The cost of an outline against a plain owner-drawn list of the same rows.
//
// 100,000 nodes loaded with ZelListLoadChild in three levels (100 top nodes,
// 9 children each, 110 grandchildren under each child) and shown with one
// ZelListShowOutline, against 100,000 rows inserted by LB_ADDSTRING of a data
// word into a list box with LBS_OWNERDRAWFIXED and no strings, whose parent
// answers WM_MEASUREITEM with a fixed height. Bound 2, printed only: under
// Wine the plain list's own time varies from run to run more than the bound
// allows, and an adopted list box is always one of variable height, which
// Wine fills far more slowly than a fixed one: the same plain rows in a list
// box with LBS_OWNERDRAWVARIABLE are timed too, and the ratio against them
// is printed beside the other.
// The program fails only when a list does not hold the rows it should.
// Best of a few rounds; the two cases alternate so that a slow spell of a
// busy machine falls on both alike.
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <functional>

#include "bench_lists.h"
#include "zklib.h"

namespace {

constexpr int kTop = 100, kChildren = 9, kGrandchildren = 110;
constexpr int kNodes = kTop + kTop * kChildren + kTop * kChildren * kGrandchildren;
static_assert(kNodes == 100'000);

void AddPlain(HWND list) {
    SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    for (int i = 0; i < kNodes; ++i) {
        SendMessageW(list, LB_ADDSTRING, 0, static_cast<LPARAM>(i + 1));
    }
    SendMessageW(list, WM_SETREDRAW, TRUE, 0);
}

double showTime = 0; // of the last LoadAndShow

// False when a load failed.
bool LoadAndShow(HWND list) {
    const ZelItemHandle root = ZelListGetRoot(list);
    wchar_t text[32];
    int value = 0;
    for (int t = 0; t < kTop; ++t) {
        wsprintfW(text, L"Top %d", t);
        const ZelItemHandle top = ZelListLoadChild(list, root, 0, 0, text, ++value, 0);
        for (int c = 0; top && c < kChildren; ++c) {
            wsprintfW(text, L"Child %d.%d", t, c);
            const ZelItemHandle child = ZelListLoadChild(list, top, 0, 0, text, ++value, 0);
            for (int g = 0; child && g < kGrandchildren; ++g) {
                wsprintfW(text, L"Leaf %d.%d.%d", t, c, g);
                if (!ZelListLoadChild(list, child, 0, 0, text, ++value, 0)) {
                    return false;
                }
            }
            if (!child) {
                return false;
            }
        }
        if (!top) {
            return false;
        }
    }
    const double start = Seconds();
    const bool shown = ZelListShowOutline(list, LBX_ShowEverything) == 1;
    showTime = Seconds() - start;
    return shown;
}

// The rows are all there, in depth-first order: the last row is the last leaf.
bool Check(const char *what, HWND list, bool tree) {
    const LRESULT count = SendMessageW(list, LB_GETCOUNT, 0, 0);
    bool ok = count == kNodes;
    if (ok && tree) {
        const ZelItemHandle last = ZelListGetItemHandle(list, kNodes - 1);
        ok = ZelListGetLevel(last) == 2 && ZelListGetItemValue(last) == kNodes &&
             ZelListGetLevel(ZelListGetItemHandle(list, kChildren * (kGrandchildren + 1) + 1)) == 0;
    }
    if (!ok) {
        std::printf("  %s: %ld rows, expected %d in outline order\n", what, static_cast<long>(count), kNodes);
    }
    return ok;
}

} // namespace

int main() {
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    const double start = Seconds();
    HWND form = MakeBenchForm();
    constexpr int kRounds = 2;
    bool ok = true;
    double plain = 1e30, tree = 1e30, show = 1e30, variable = 1e30;
    std::printf("%d nodes loaded in three levels and shown, against %d plain owner-drawn rows\n", kNodes, kNodes);
    for (int round = 0; round < kRounds && ok; ++round) {
        HWND a = MakeBenchList(form, 1, LBS_OWNERDRAWFIXED);
        HWND b = MakeBenchList(form, 2, LBS_OWNERDRAWVARIABLE);
        ZelListSetStyle(b, LBX_StyleOutline, nullptr);
        plain = std::min(plain, TimeOf([&] { AddPlain(a); }));
        {
            HWND v = MakeBenchList(form, 3, LBS_OWNERDRAWVARIABLE);
            variable = std::min(variable, TimeOf([&] { AddPlain(v); }));
            ok = Check("variable", v, false) && ok;
            DestroyWindow(v);
        }
        bool loaded = false;
        tree = std::min(tree, TimeOf([&] { loaded = LoadAndShow(b); }));
        show = std::min(show, showTime);
        if (!loaded) {
            std::printf("  a load or the show failed\n");
        }
        ok = loaded && Check("plain", a, false) && Check("outline", b, true) && ok;
        DestroyWindow(a);
        DestroyWindow(b);
    }
    DestroyWindow(form);
    std::printf("  plain %8.3f s  outline %8.3f s (%.1f us a node), of which the show %.3f s\n", plain, tree,
                tree / kNodes * 1e6, show);
    std::printf("  the same plain rows in a list box of variable height, the adopted lists' style %.3f s\n",
                variable);
    const double ratio = tree / plain;
    std::printf("ratio %-44s %6.2f (bound 2)%s\n", "outline load and show / plain fixed rows", ratio,
                ratio <= 2.0 ? "" : "  over the bound");
    const double sameStyle = tree / variable;
    std::printf("ratio %-44s %6.2f (bound 2)%s\n", "outline load and show / plain rows, same style", sameStyle,
                sameStyle <= 2.0 ? "" : "  over the bound");
    std::printf("total %.1f s\n", Seconds() - start);
    return ok ? 0 : 1;
}
