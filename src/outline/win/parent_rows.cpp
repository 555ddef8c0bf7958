// WM_DELETEITEM and WM_COMPAREITEM at the parent of adopted lists.
#include "outline/core/lbx_tree.h"
#include "outline/win/host_optional.h"
#include "outline/win/lbx_procs.h"
#include "outline/win/parent_parts.h"

namespace zk::lbx {

bool ParentDelete(HWND parent, const LbxParent &record, const DELETEITEMSTRUCT *request) {
    if (!request) {
        return false;
    }
    HWND control = ControlInHandFor(parent, static_cast<int>(request->CtlID));
    if (!control) {
        control = GetDlgItem(parent, static_cast<int>(request->CtlID));
    }
    if (!control) {
        control = LbxHostDlgItem(parent, static_cast<int>(request->CtlID));
    }
    if (!control || !(GetWindowLongW(control, GWL_STYLE) & (LBS_OWNERDRAWFIXED | LBS_OWNERDRAWVARIABLE))) {
        return false;
    }
    // The host's lookup can find the control under another owner: that
    // owner's record tells whether rows are being kept.
    uint16_t flags = record.parentFlags;
    HWND owner = GetParent(control);
    if (owner != parent) {
        LbxParent other{};
        flags = zk::LocalCopy(LbxParentHandle(owner), &other) ? other.parentFlags : 0;
    }
    if (flags & LBX_ParentKeepItems) {
        return true;
    }
    LbxItem *item = LbxItemOf(request->itemData);
    if (!item) {
        return false;
    }
    if (LbxNode *node = item->node) {
        LbxFreeDescendents(node);
        LbxFreeChild(node);
    } else {
        delete item;
    }
    return true;
}

namespace {

// A data word read as a string; one that cannot be read as text compares as empty.
const wchar_t *AsText(ULONG_PTR data) {
    const auto *text = reinterpret_cast<const wchar_t *>(data);
    return !text || IsBadStringPtrW(text, static_cast<UINT_PTR>(-1)) ? L"" : text;
}

} // namespace

bool ParentCompare(const COMPAREITEMSTRUCT *request, LRESULT *result) {
    if (!request || !ChildHandle(request->hwndItem)) {
        return false;
    }
    if (request->itemID1 == static_cast<UINT>(-1)) {
        *result = 1;
    } else if (request->itemData1 == request->itemData2) {
        *result = 0;
    } else if (LbxItem *a = LbxItemOf(request->itemData1), *b = LbxItemOf(request->itemData2); a && b) {
        *result = lstrcmpiW(LbxW(a->text.c_str()), LbxW(b->text.c_str()));
    } else {
        *result = lstrcmpW(AsText(request->itemData1), AsText(request->itemData2));
    }
    return true;
}

} // namespace zk::lbx
