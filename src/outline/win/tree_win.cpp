// The rows of an adopted control for the tree operations, and the lookups
// the tree exports share.
#include "outline/win/tree_ops.h"

#include "frame/win/host.h"
#include "outline/win/lbx_procs.h"

namespace zk::lbx {

void WinTreeRows::Reset() { SendMessageW(window_, IsCombo() ? CB_RESETCONTENT : LB_RESETCONTENT, 0, 0); }

void WinTreeRows::Reserve(int32_t count) {
    if (count > 0) {
        SendMessageW(window_, IsCombo() ? CB_INITSTORAGE : LB_INITSTORAGE, static_cast<WPARAM>(count), 0);
    }
}

bool WinTreeRows::IsSelected(int32_t row) {
    if (IsMultiSelect()) {
        return HostListIsSelected(window_, row) > 0;
    }
    return HostListGetSelection(window_) == row;
}

void WinTreeRows::Reselect(int32_t row) {
    if (IsMultiSelect()) {
        HostListSetMultiSelection(window_, row, 1);
    } else {
        HostListSetSelection(window_, row);
    }
}

int32_t WinTreeRows::FocusCaret() {
    if (IsCombo() || GetFocus() != window_) {
        return -1;
    }
    return static_cast<int32_t>(SendMessageW(window_, LB_GETCARETINDEX, 0, 0));
}

bool OpenRows(HWND window, LbxChild *child, LbxKind *kind) {
    if (!LbxGetChildCopy(window, child)) {
        return false;
    }
    *kind = ControlKind(window);
    return *kind != LbxKind::None;
}

LbxNode *NodeOf(std::intptr_t handle) noexcept {
    auto *node = reinterpret_cast<LbxNode *>(handle);
    return LbxIsNode(node) && LbxIsItem(node->item) ? node : nullptr;
}

int32_t NodeRow(const LbxNode *node) {
    HWND window = node ? static_cast<HWND>(node->window) : nullptr;
    if (!window || !IsWindow(window)) {
        return -1;
    }
    const LbxKind kind = ControlKind(window);
    if (kind == LbxKind::None) {
        return -1;
    }
    return LbxItemIndex(window, kind == LbxKind::Combo, node);
}

int32_t ShowOutlineWindow(HWND window, int32_t limit) {
    LbxChild child{};
    LbxKind kind{};
    if (!OpenRows(window, &child, &kind)) {
        return 0;
    }
    LbxNode *root = LbxRootOf(window);
    if (!root) {
        return 0;
    }
    WinTreeRows rows(window, child, kind == LbxKind::Combo);
    return LbxShowOutline(rows, root, limit);
}

} // namespace zk::lbx
