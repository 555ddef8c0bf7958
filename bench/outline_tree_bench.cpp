// The cost of an outline against a plain owner-drawn list of the same rows.
//
// 100,000 nodes loaded with ZelListLoadChild in three levels (100 top nodes,
// 9 children each, 110 grandchildren under each child) and shown with one
// ZelListShowOutline, against 100,000 rows inserted by LB_ADDSTRING of a data
// word into a list box with LBS_OWNERDRAWFIXED and no strings, whose parent
// answers WM_MEASUREITEM with a fixed height. An adopted list box is always
// one of variable height, which Wine fills far more slowly than a fixed one
// (its row store grows with the square of the rows), so the bound of 2
// holds against the same plain rows in a list box with LBS_OWNERDRAWVARIABLE,
// and the ratio against fixed rows is told beside it.
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

using namespace bench;

constexpr int kChildren = 9, kGrandchildren = 110;

struct Shape {
    int top;
    int Nodes() const { return top + top * kChildren + top * kChildren * kGrandchildren; }
};

void AddPlain(HWND list, int rows) {
    SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    for (int i = 0; i < rows; ++i) {
        SendMessageW(list, LB_ADDSTRING, 0, static_cast<LPARAM>(i + 1));
    }
    SendMessageW(list, WM_SETREDRAW, TRUE, 0);
}

// False when a load failed; `show` gets the time of the show alone.
bool LoadAndShow(HWND list, const Shape &shape, double &show) {
    const ZelItemHandle root = ZelListGetRoot(list);
    wchar_t text[32];
    int value = 0;
    for (int t = 0; t < shape.top; ++t) {
        wsprintfW(text, L"Top %d", t);
        const ZelItemHandle top = ZelListLoadChild(list, root, 0, 0, text, ++value, 0);
        if (!top)
            return false;
        for (int c = 0; c < kChildren; ++c) {
            wsprintfW(text, L"Child %d.%d", t, c);
            const ZelItemHandle child = ZelListLoadChild(list, top, 0, 0, text, ++value, 0);
            if (!child)
                return false;
            for (int g = 0; g < kGrandchildren; ++g) {
                wsprintfW(text, L"Leaf %d.%d.%d", t, c, g);
                if (!ZelListLoadChild(list, child, 0, 0, text, ++value, 0))
                    return false;
            }
        }
    }
    bool shown = false;
    show = TimeOf([&] { shown = ZelListShowOutline(list, LBX_ShowEverything) == 1; });
    return shown;
}

// The rows are all there, in depth-first order: the last row is the last leaf.
void Check(Run &run, const char *what, HWND list, const Shape &shape, bool tree) {
    const int nodes = shape.Nodes();
    const LRESULT count = SendMessageW(list, LB_GETCOUNT, 0, 0);
    bool ok = count == nodes;
    if (ok && tree) {
        const ZelItemHandle last = ZelListGetItemHandle(list, nodes - 1);
        ok = ZelListGetLevel(last) == 2 && ZelListGetItemValue(last) == nodes &&
             ZelListGetLevel(ZelListGetItemHandle(list, kChildren * (kGrandchildren + 1) + 1)) == 0;
    }
    if (!ok)
        run.Wrong("%s: %ld rows, expected %d in outline order", what, static_cast<long>(count), nodes);
}

} // namespace

int main(int argc, char **argv) {
    Run run("bench_outline_tree", argc, argv);
    const Shape shape{run.Size(10, 100)};
    const int nodes = shape.Nodes(), rounds = run.Size(1, 2);
    HWND form = MakeBenchForm();
    double plain = 1e30, tree = 1e30, show = 1e30, variable = 1e30;
    std::printf("  %d nodes loaded in three levels and shown, against %d plain owner-drawn rows\n", nodes, nodes);
    for (int round = 0; round < rounds && run.Ok(); ++round) {
        HWND a = MakeBenchList(form, 1, LBS_OWNERDRAWFIXED);
        HWND b = MakeBenchList(form, 2, LBS_OWNERDRAWVARIABLE);
        ZelListSetStyle(b, LBX_StyleOutline, nullptr);
        plain = std::min(plain, TimeOf([&] { AddPlain(a, nodes); }));
        {
            HWND v = MakeBenchList(form, 3, LBS_OWNERDRAWVARIABLE);
            variable = std::min(variable, TimeOf([&] { AddPlain(v, nodes); }));
            Check(run, "variable", v, shape, false);
            DestroyWindow(v);
        }
        bool loaded = false;
        double shownIn = 0;
        tree = std::min(tree, TimeOf([&] { loaded = LoadAndShow(b, shape, shownIn); }));
        show = std::min(show, shownIn);
        if (run.Check(loaded, "a load or the show failed")) {
            Check(run, "plain", a, shape, false);
            Check(run, "outline", b, shape, true);
        }
        DestroyWindow(a);
        DestroyWindow(b);
    }
    DestroyWindow(form);
    std::printf("  plain fixed %8.3f s, plain variable %8.3f s, outline %8.3f s (%.1f us a node, the show %.3f s)\n",
                plain, variable, tree, tree / nodes * 1e6, show);
    run.Figure("outline load and show / plain rows, same style", tree / variable, Want::AtMost, 2);
    run.Note("outline load and show / plain fixed rows", tree / plain);
    return run.Finish();
}
