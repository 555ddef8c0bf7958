// WM_COMMAND at the parent: the first focus of a list or combo box, the
// selection kept or dropped with the focus, the combo's edit after a
// selection. Selection moves are posted so that they run after the
// notification has ended.
#include "frame/win/host.h"
#include "outline/win/lbx_procs.h"
#include "outline/win/parent_parts.h"

namespace zk::lbx {

namespace {

// A row's data word: past the subclass for an adopted control, else as the list answers.
std::uintptr_t RowData(HWND control, const LbxChild *child, bool combo, int32_t row) {
    if (child) {
        return LbxBaseRow(*child, control, combo, row);
    }
    return static_cast<std::uintptr_t>(
        SendMessageW(control, combo ? CB_GETITEMDATA : LB_GETITEMDATA, static_cast<WPARAM>(row), 0));
}

bool ComboCommand(HWND parent, HLOCAL parentRecord, UINT code, HWND control, LRESULT *result) {
    LbxChild child{};
    const bool adopted = LbxGetChildCopy(control, &child);
    switch (code) {
    case CBN_SETFOCUS: {
        LbxParent record{};
        zk::LocalCopy(parentRecord, &record);
        if (record.parentFlags & LBX_ParentFocusKnown) {
            return false;
        }
        PostMessageW(parent, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), 1);
        ParentFlags(parentRecord, LBX_ParentFocusKnown, 0);
        *result = 1;
        return true;
    }
    case CBN_SELCHANGE:
        if (!adopted || !child.editWindow) {
            return false;
        }
        if (!(child.style & LBX_StyleNoEditCopy)) {
            LbxSyncComboEdit(control, static_cast<int32_t>(SendMessageW(control, CB_GETCURSEL, 0, 0)),
                             static_cast<HWND>(child.editWindow), LbxBaseProc(child));
        }
        SendMessageW(control, HostMsgSelect, 0, 0);
        *result = 1;
        return true;
    case CBN_CLOSEUP:
        if (SendMessageW(control, CB_GETEXTENDEDUI, 0, 0)) {
            PostMessageW(control, ZKM_LbxSelectDone, 0, 0);
        }
        return false;
    default:
        return false;
    }
}

void ListSetFocus(HLOCAL parentRecord, HWND control, const LbxChild *child) {
    LbxParent record{};
    zk::LocalCopy(parentRecord, &record);
    const uint32_t style = child ? child->style : 0;
    if (record.parentFlags & LBX_ParentFocusKnown) {
        if (style & LBX_StyleDropSelection) {
            SendMessageW(control, LB_SETCURSEL, static_cast<WPARAM>(SendMessageW(control, LB_GETCARETINDEX, 0, 0)), 0);
        }
        return;
    }
    const bool multi = LbxIsMultiSelect(control, false);
    if (!multi) {
        const LRESULT selection = SendMessageW(control, LB_GETCURSEL, 0, 0);
        if (selection != LB_ERR) {
            LbxItem *item = LbxItemOf(RowData(control, child, false, static_cast<int32_t>(selection)));
            if (!item) {
                return; // a foreign row: forwarded at once
            }
            item->flags |= LBX_ItemFocusMark;
            ParentFlags(parentRecord, LBX_ParentFocusKnown, 0);
            return;
        }
    }
    WPARAM caret = 0;
    if (multi) {
        const LRESULT at = SendMessageW(control, LB_GETCARETINDEX, 0, 0);
        caret = at >= 0 ? static_cast<WPARAM>(at) : 0;
    }
    PostMessageW(control, LB_SETCARETINDEX, caret, 0);
    ParentFlags(parentRecord, LBX_ParentFocusKnown, 0);
}

void ListKillFocus(HWND control, const LbxChild *child) {
    const uint32_t style = child ? child->style : 0;
    if (style & LBX_StyleDropSelection) {
        PostMessageW(control, LB_SETCURSEL, static_cast<WPARAM>(-1), 0);
    }
    const LRESULT selection = SendMessageW(control, LB_GETCURSEL, 0, 0);
    if (selection == LB_ERR) {
        return;
    }
    LbxItem *item = LbxItemOf(RowData(control, child, false, static_cast<int32_t>(selection)));
    if (!item) {
        return;
    }
    RECT rect{};
    const bool haveRect = SendMessageW(control, LB_GETITEMRECT, static_cast<WPARAM>(selection),
                                       reinterpret_cast<LPARAM>(&rect)) != LB_ERR;
    if (style & LBX_StyleShowInactive) {
        item->flags |= LBX_ItemInactive;
        InvalidateRect(control, haveRect ? &rect : nullptr, TRUE);
    }
    if (item->flags & LBX_ItemFocusMark) {
        item->flags &= ~LBX_ItemFocusMark;
        InvalidateRect(control, haveRect ? &rect : nullptr, TRUE);
    }
}

} // namespace

bool ParentCommand(HWND parent, UINT code, HWND control, LRESULT *result) {
    if (!control) {
        return false;
    }
    HLOCAL parentRecord = LbxParentHandle(parent);
    if (HostWinType(control) == HOST_WT_COMBOBOX) {
        return ComboCommand(parent, parentRecord, code, control, result);
    }
    LbxChild child{};
    const LbxChild *adopted = LbxGetChildCopy(control, &child) ? &child : nullptr;
    if (code == LBN_SETFOCUS) {
        ListSetFocus(parentRecord, control, adopted);
    } else if (code == LBN_KILLFOCUS) {
        ListKillFocus(control, adopted);
    }
    return false;
}

HBRUSH ComboEditColor(HWND combo, HDC dc) {
    LbxChild child{};
    if (!combo || !zk::LocalCopy(ChildHandle(combo), &child)) {
        return nullptr;
    }
    const LRESULT selection = CallBase(child, combo, CB_GETCURSEL, 0, 0);
    if (selection == CB_ERR) {
        return nullptr;
    }
    LbxItem *item = LbxItemOf(LbxBaseRow(child, combo, true, static_cast<int32_t>(selection)));
    if (!item) {
        return nullptr;
    }
    SetTextColor(dc, item->color);
    SetBkColor(dc, child.bkColor);
    return static_cast<HBRUSH>(child.bkBrush);
}

int LbxSyncComboEdit(HWND combo, int32_t row, HWND edit, WNDPROC base) {
    auto clearEdit = [&] {
        SendMessageW(edit, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L""));
        HostFieldSetEditFlag(combo, 1);
    };
    if (row == -1) {
        clearEdit();
        return 0;
    }
    LbxItem *item = LbxItemOf(
        static_cast<std::uintptr_t>(CallWindowProcW(base, combo, CB_GETITEMDATA, static_cast<WPARAM>(row), 0)));
    if (!item) {
        return 0;
    }
    if (item->flags & LBX_ItemDisabled) {
        clearEdit();
        CallWindowProcW(base, combo, CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
        return 0;
    }
    if (SendMessageW(combo, CB_GETLBTEXTLEN, static_cast<WPARAM>(row), 0) == CB_ERR) {
        return 0;
    }
    item->textByRef = 1;
    const void *field = nullptr;
    SendMessageW(combo, CB_GETLBTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&field));
    item->textByRef = 0; // a query that did not come through the subclass leaves it set otherwise
    const wchar_t *text = field ? LbxW(LbxTextAtField(field)) : L"";
    SendMessageW(edit, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text));
    HostFieldSetEditFlag(combo, 1);
    return 1;
}

} // namespace zk::lbx
