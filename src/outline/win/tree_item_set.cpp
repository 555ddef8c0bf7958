// Changing an item's fields by its handle, with the row repainted or
// re-measured where the node has one.
#include <string>

#include "frame/win/guard.h"
#include "outline/win/pic.h"
#include "outline/win/tree_ops.h"

namespace zk::lbx {

namespace {

HWND WindowOf(const LbxNode *node) {
    HWND window = static_cast<HWND>(node->window);
    return window && IsWindow(window) ? window : nullptr;
}

bool IsCombo(HWND window) { return ControlKind(window) == LbxKind::Combo; }

void RepaintRow(const LbxNode *node) {
    HWND window = WindowOf(node);
    const int32_t row = window ? NodeRow(node) : -1;
    if (row >= 0) {
        RedrawRow(window, IsCombo(window), row, RDW_INVALIDATE);
    }
}

// A new font or picture: the row's height asked of the parent again.
void Remeasure(const LbxNode *node) {
    HWND window = WindowOf(node);
    const int32_t row = window ? NodeRow(node) : -1;
    if (row < 0) {
        return;
    }
    const bool combo = IsCombo(window);
    UINT height = 0;
    if (MeasureRow(window, combo, row, reinterpret_cast<std::uintptr_t>(node->item), &height)) {
        SendMessageW(window, combo ? CB_SETITEMHEIGHT : LB_SETITEMHEIGHT, static_cast<WPARAM>(row),
                     static_cast<LPARAM>(height));
    }
    RedrawRow(window, combo, row, RDW_INVALIDATE);
}

} // namespace

int32_t SetItemTextNode(LbxNode *node, const wchar_t *text) {
    HWND window = WindowOf(node);
    LbxChild child{};
    const uint32_t style = window && LbxGetChildCopy(window, &child) ? child.style : 0;
    const std::wstring given = text ? text : L"";
    node->item->text.assign({LbxU16(given.c_str()), given.size()});
    LbxNormalizeText(style, node->item->text, LbxPlatformCase());
    RepaintRow(node);
    return 1;
}

int32_t SetItemColorNode(LbxNode *node, COLORREF color) {
    node->item->color = color;
    RepaintRow(node);
    return 1;
}

int32_t SetItemFontNode(LbxNode *node, HFONT font) {
    node->item->font = font;
    Remeasure(node);
    return 1;
}

int32_t SetItemPictureNode(LbxNode *node, PIC *normal, PIC *selected) {
    HWND window = WindowOf(node);
    LbxChild child{};
    if (!window || !LbxGetChildCopy(window, &child)) {
        return 0;
    }
    node->item->picNormal = normal;
    node->item->picSelected = selected;
    Remeasure(node);
    return 1;
}

} // namespace zk::lbx
