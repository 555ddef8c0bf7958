// Finding and reading the outline records of a window.
#include "frame/win/propcache.h"
#include "outline/win/lbx_win.h"

#include <iterator>
#include <new>

#include "frame/core/livehandles.h"
#include "frame/win/host.h"
#include "outline/core/lbx_tree.h"

namespace zk::lbx {

LbxKind ControlKind(HWND window) {
    switch (HostWinType(window)) {
    case HOST_WT_LISTBOX:
        return LbxKind::List;
    case HOST_WT_COMBOBOX:
        return LbxKind::Combo;
    default:
        break;
    }
    wchar_t name[31] = {};
    if (!GetClassNameW(window, name, static_cast<int>(std::size(name)))) {
        return LbxKind::None;
    }
    for (const wchar_t *list : {L"listbox", L"QXListBox30", L"CBCtrlListBox"}) {
        if (lstrcmpiW(name, list) == 0) {
            return LbxKind::List;
        }
    }
    for (const wchar_t *combo : {L"combobox", L"QXComboBox30", L"CBCtrlComboBox"}) {
        if (lstrcmpiW(name, combo) == 0) {
            return LbxKind::Combo;
        }
    }
    return LbxKind::None;
}

bool LbxGetChildCopy(HWND window, LbxChild *out) {
    if (!IsWindow(window)) {
        return false;
    }
    HLOCAL handle = ChildHandle(window);
    return handle && zk::LocalCopy(handle, out) && (out->style & LBX_StyleOwnerDraw);
}

HLOCAL LbxFindParent(HWND list) {
    HWND parent = GetParent(list);
    if (!parent) {
        return nullptr;
    }
    if (HLOCAL record = LbxParentHandle(parent)) {
        return record;
    }
    if (HostWinType(parent) != HOST_WT_FRAMECHILD || HostWinClass(parent) != HOST_WC_FRAMECHILD) {
        return nullptr;
    }
    HWND outer = GetParent(parent);
    for (HWND w = outer ? GetWindow(outer, GW_CHILD) : nullptr; w; w = GetWindow(w, GW_HWNDNEXT)) {
        if (HLOCAL record = LbxParentHandle(w)) {
            return record;
        }
    }
    return nullptr;
}

bool ParentFlags(HLOCAL parent, uint16_t set, uint16_t clear) {
    return zk::LocalWith<LbxParent>(
        parent, [&](LbxParent &p) { p.parentFlags = static_cast<uint16_t>((p.parentFlags | set) & ~clear); });
}

std::uintptr_t LbxBaseRow(const LbxChild &child, HWND window, bool combo, int32_t row) {
    return static_cast<std::uintptr_t>(
        CallBase(child, window, combo ? CB_GETITEMDATA : LB_GETITEMDATA, static_cast<WPARAM>(row), 0));
}

LbxNode *LbxRootOf(HWND window) {
    void *root = zk::PropGet(window, kLbxRootProp);
    return LbxIsNode(root) ? static_cast<LbxNode *>(root) : nullptr;
}

LbxNode *LbxGetRoot(HWND window) {
    if (LbxNode *root = LbxRootOf(window)) {
        return root;
    }
    LbxNode *root = LbxNewRoot(window);
    if (!root) {
        return nullptr;
    }
    if (!zk::PropSet(window, kLbxRootProp, root)) {
        LbxFreeTree(root);
        return nullptr;
    }
    return root;
}

bool RemoveRowKeepItem(HWND list, int32_t row) {
    HLOCAL parent = LbxFindParent(list);
    if (!parent || !ParentFlags(parent, LBX_ParentKeepItems, 0)) {
        return false;
    }
    HostListDelete(list, row);
    ParentFlags(parent, 0, LBX_ParentKeepItems);
    return true;
}

namespace {

class PlatformCase final : public LbxCaseRules {
public:
    void Upper(char16_t *text, std::size_t count) override {
        CharUpperBuffW(reinterpret_cast<wchar_t *>(text), static_cast<DWORD>(count));
    }
    void Lower(char16_t *text, std::size_t count) override {
        CharLowerBuffW(reinterpret_cast<wchar_t *>(text), static_cast<DWORD>(count));
    }
    bool IsLower(char16_t c) override { return IsCharLowerW(static_cast<wchar_t>(c)) != 0; }
    int CompareNoCase(const char16_t *a, const char16_t *b) override { return lstrcmpiW(LbxW(a), LbxW(b)); }
};

} // namespace

LbxCaseRules &LbxPlatformCase() {
    static PlatformCase rules;
    return rules;
}

void RedrawRow(HWND window, bool combo, int32_t row, UINT flags) {
    RECT rect{};
    if (!combo &&
        SendMessageW(window, LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&rect)) != LB_ERR) {
        RedrawWindow(window, &rect, nullptr, flags);
    } else {
        RedrawWindow(window, nullptr, nullptr, flags);
    }
}

bool MeasureRow(HWND window, bool combo, int32_t row, std::uintptr_t data, UINT *height) {
    MEASUREITEMSTRUCT request{};
    request.CtlType = combo ? ODT_COMBOBOX : ODT_LISTBOX;
    request.CtlID = static_cast<UINT>(GetDlgCtrlID(window));
    request.itemID = static_cast<UINT>(row);
    request.itemData = data;
    if (!SendMessageW(GetParent(window), WM_MEASUREITEM, request.CtlID, reinterpret_cast<LPARAM>(&request))) {
        return false;
    }
    *height = request.itemHeight;
    return true;
}

} // namespace zk::lbx
