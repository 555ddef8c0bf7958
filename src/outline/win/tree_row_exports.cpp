// The tree exports on rows: expand, collapse, delete, demote, promote,
// move, show, and the process-wide redraw switch.
#include "frame/win/guard.h"
#include "outline/win/lbx_exports.h"
#include "outline/win/pic.h"
#include "outline/win/tree_ops.h"

using namespace zk::lbx;

namespace {

// An export on the rows of an adopted control: `failure` when the window is
// not adopted or anything is thrown.
template <class Body>
int32_t OnRows(HWND window, int32_t failure, Body &&body) {
    return zk::Quietly(
        [&]() -> int32_t {
            LbxChild child{};
            LbxKind kind{};
            if (!OpenRows(window, &child, &kind)) {
                return failure;
            }
            WinTreeRows rows(window, child, kind == LbxKind::Combo);
            return body(rows);
        },
        [failure] { return failure; });
}

} // namespace

extern "C" {

int32_t ZKAPI ZelListExpand(HWND window, int32_t row) {
    return OnRows(window, 0, [&](WinTreeRows &rows) {
        LbxNode *root = row == LBX_RootRow ? LbxRootOf(window) : nullptr;
        return LbxExpand(rows, row, root);
    });
}

int32_t ZKAPI ZelListExpandDescendents(HWND window, int32_t row) {
    return OnRows(window, 0, [&](WinTreeRows &rows) { return LbxExpandDescendents(rows, row); });
}

int32_t ZKAPI ZelListCollapse(HWND window, int32_t row) {
    return OnRows(window, 0, [&](WinTreeRows &rows) { return LbxCollapse(rows, row); });
}

int32_t ZKAPI ZelListDeleteChild(HWND window, int32_t row) {
    return OnRows(window, -1, [&](WinTreeRows &rows) { return LbxDeleteChild(rows, row); });
}

int32_t ZKAPI ZelListDeleteDescendents(HWND window, int32_t row) {
    return OnRows(window, -1, [&](WinTreeRows &rows) { return LbxDeleteDescendents(rows, row); });
}

int32_t ZKAPI ZelListDemote(HWND window, int32_t row, ZelPicHandle normal, ZelPicHandle selected) {
    return OnRows(window, 0, [&](WinTreeRows &rows) {
        PIC *n = nullptr, *s = nullptr;
        return PicturesOf(normal, selected, &n, &s) ? LbxDemote(rows, row, n, s) : 0;
    });
}

int32_t ZKAPI ZelListPromote(HWND window, int32_t row, ZelPicHandle normal, ZelPicHandle selected) {
    return OnRows(window, 0, [&](WinTreeRows &rows) {
        PIC *n = nullptr, *s = nullptr;
        return PicturesOf(normal, selected, &n, &s) ? LbxPromote(rows, row, n, s) : 0;
    });
}

int32_t ZKAPI ZelListMoveUp(HWND window, int32_t row) {
    return OnRows(window, 0, [&](WinTreeRows &rows) { return LbxMove(rows, row, false); });
}

int32_t ZKAPI ZelListMoveDown(HWND window, int32_t row) {
    return OnRows(window, 0, [&](WinTreeRows &rows) { return LbxMove(rows, row, true); });
}

int32_t ZKAPI ZelListSetOutlineRedraw(HWND window, int32_t redraw) {
    return OnRows(window, 0, [&](WinTreeRows &) {
        LbxOutlineRedraw = redraw != 0;
        if (!LbxOutlineRedraw) {
            HostWinSetRedraw(window, 0);
        } else {
            SendMessageW(window, WM_SETREDRAW, TRUE, 0);
            RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        }
        return 1;
    });
}

int32_t ZKAPI ZelListShowOutline(HWND window, int32_t level) {
    return zk::Quietly([&] { return ShowOutlineWindow(window, level); }, [] { return int32_t{0}; });
}

int32_t ZKAPI ZelListGetVisibleRange(HWND window, int32_t *first, int32_t *last) {
    return zk::Quietly([&] { return LbxVisibleRange(window, first, last); },
                       [] { return int32_t{ZEL_INVALID_PARAMETER}; });
}

} // extern "C"
