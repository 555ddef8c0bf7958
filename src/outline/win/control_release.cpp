// The end of an adopted control. Its rows are deleted by the platform after
// WM_DESTROY, each through WM_DELETEITEM at the parent, and by then the
// parent may have gone already (a form destroys its own window first). So
// the items are freed here, once, and each row's data word is cleared
// through the base procedure: the late delete notifications find no item.
#include "frame/win/propcache.h"
#include "outline/core/lbx_tree.h"
#include "outline/win/lbx_procs.h"
#include "outline/win/pic.h"

namespace zk::lbx {

namespace {

void FreeRows(const LbxChild &child, HWND window, bool combo) {
    const UINT setData = combo ? CB_SETITEMDATA : LB_SETITEMDATA;
    const int32_t count = static_cast<int32_t>(CallBase(child, window, combo ? CB_GETCOUNT : LB_GETCOUNT, 0, 0));
    for (int32_t row = 0; row < count; ++row) {
        LbxItem *item = LbxItemOf(LbxBaseRow(child, window, combo, row));
        if (!item) {
            continue;
        }
        CallBase(child, window, setData, static_cast<WPARAM>(row), 0);
        if (!item->node) {
            delete item; // items of a tree go with their nodes below
        }
    }
}

} // namespace

void ReleaseControl(HWND window, const LbxChild &child, bool combo) {
    FreeRows(child, window, combo);
    if (LbxNode *root = LbxRootOf(window)) {
        LbxFreeTree(root);
    }
    zk::PropRemove(window, kLbxRootProp);
    if (combo && child.bkBrush) {
        DeleteObject(static_cast<HBRUSH>(child.bkBrush));
    }
    if (child.tabStops) {
        LocalFree(static_cast<HLOCAL>(child.tabStops));
    }
    // The window object stays until the window goes, passing what comes
    // after this to the base procedure.
    LocalFree(ChildHandle(window));
    zk::PropRemove(window, kLbxChildProp);
    LbxPicFreeAll(window);
    LbxFontFreeAll(window);
}

} // namespace zk::lbx
