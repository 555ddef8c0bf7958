// The item model's exports: style and flags of a row, the root and the
// handle of a row.
#include "frame/win/guard.h"
#include "outline/core/lbx_tree.h"
#include "outline/win/lbx_procs.h"
#include "outline/win/win_rows.h"

using namespace zk::lbx;

namespace {

int32_t SetFlags(HWND window, int32_t row, uint32_t mask, int32_t set) {
    LbxChild child{};
    if (!LbxGetChildCopy(window, &child)) {
        return -1;
    }
    const bool combo = ControlKind(window) == LbxKind::Combo;
    WinRows rows(window, child, combo);
    LbxItem *item = LbxItemOf(rows.Data(row));
    if (!item) {
        return -1;
    }
    const bool multi = LbxIsMultiSelect(window, combo);
    if (mask & LBX_ItemHidden) {
        if (!RemoveRowKeepItem(window, row)) {
            return -1;
        }
    }
    if (mask & LBX_ItemDeleted) {
        if (item->node) {
            LbxDeleteChild(rows, row);
        } else {
            HostListDelete(window, row);
        }
    }
    // A deleted row took its item with it: nothing is left to mark.
    const bool alive = LbxIsItem(item);
    if (set) {
        if (mask & LBX_ItemSelected) {
            if (multi) {
                SendMessageW(window, LB_SETSEL, TRUE, row);
            } else {
                SendMessageW(window, combo ? CB_SETCURSEL : LB_SETCURSEL, static_cast<WPARAM>(row), 0);
            }
        }
        if ((mask & LBX_ItemExpanded) && alive) {
            LbxExpand(rows, row, LbxRootOf(window));
        }
        if (LbxIsItem(item)) {
            item->flags |= mask;
        }
    } else {
        if (mask & LBX_ItemSelected) {
            if (multi) {
                SendMessageW(window, LB_SETSEL, FALSE, row);
            } else {
                SendMessageW(window, combo ? CB_SETCURSEL : LB_SETCURSEL, static_cast<WPARAM>(-1), 0);
            }
        }
        if (alive) {
            item->flags &= ~mask;
        }
    }
    if (mask & 0xFF000000u) {
        RedrawRow(window, combo, row, RDW_INVALIDATE);
    }
    return -1; // the same on success: callers must not read it as failure
}

} // namespace

extern "C" {

uint32_t ZKAPI ZelListGetStyle(HWND window) {
    return zk::Guarded(L"ZelListGetStyle()", 52, uint32_t{0}, [&] {
        LbxChild child{};
        return LbxGetChildCopy(window, &child) ? child.style : 0u;
    });
}

int32_t ZKAPI ZelListGetFlags(HWND window, int32_t row) {
    return zk::Guarded(L"ZelListGetFlags()", 52, int32_t{-1}, [&] {
        LbxChild child{};
        if (!LbxGetChildCopy(window, &child)) {
            return -1;
        }
        LbxItem *item = LbxItemOf(LbxBaseRow(child, window, ControlKind(window) == LbxKind::Combo, row));
        return item ? static_cast<int32_t>(item->flags) : -1;
    });
}

int32_t ZKAPI ZelListSetFlags(HWND window, int32_t row, uint32_t mask, int32_t set) {
    return zk::Guarded(L"ZelListSetFlags()", 52, int32_t{-1}, [&] { return SetFlags(window, row, mask, set); });
}

ZelItemHandle ZKAPI ZelListGetRoot(HWND window) {
    return zk::Quietly([&] { return reinterpret_cast<ZelItemHandle>(LbxGetRoot(window)); },
                       [] { return ZelItemHandle{0}; });
}

ZelItemHandle ZKAPI ZelListGetItemHandle(HWND window, int32_t row) {
    return zk::Quietly(
        [&]() -> ZelItemHandle {
            LbxChild child{};
            if (!LbxGetChildCopy(window, &child)) {
                return 0;
            }
            if (row == LBX_RootRow) {
                return reinterpret_cast<ZelItemHandle>(LbxGetRoot(window));
            }
            LbxItem *item = LbxItemOf(LbxBaseRow(child, window, ControlKind(window) == LbxKind::Combo, row));
            return item ? reinterpret_cast<ZelItemHandle>(item->node) : 0;
        },
        [] { return ZelItemHandle{0}; });
}

} // extern "C"
