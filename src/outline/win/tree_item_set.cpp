// Changing an item's fields by its handle, with the row repainted or
// re-measured where the node has one.
#include <string>

#include "frame/win/guard.h"
#include "outline/win/pic.h"
#include "outline/win/tree_ops.h"

namespace {

HWND WindowOf(const LbxNode *node) {
    HWND window = static_cast<HWND>(node->window);
    return window && IsWindow(window) ? window : nullptr;
}

bool IsCombo(HWND window) { return LbxControlKind(window) == LbxKind::Combo; }

void RepaintRow(const LbxNode *node) {
    HWND window = WindowOf(node);
    const int32_t row = window ? LbxNodeRow(node) : -1;
    if (row >= 0) {
        LbxRedrawRow(window, IsCombo(window), row, RDW_INVALIDATE);
    }
}

// A new font or picture: the row's height asked of the parent again.
void Remeasure(const LbxNode *node) {
    HWND window = WindowOf(node);
    const int32_t row = window ? LbxNodeRow(node) : -1;
    if (row < 0) {
        return;
    }
    const bool combo = IsCombo(window);
    UINT height = 0;
    if (LbxMeasureRow(window, combo, row, reinterpret_cast<std::uintptr_t>(node->item), &height)) {
        SendMessageW(window, combo ? CB_SETITEMHEIGHT : LB_SETITEMHEIGHT, static_cast<WPARAM>(row),
                     static_cast<LPARAM>(height));
    }
    LbxRedrawRow(window, combo, row, RDW_INVALIDATE);
}

template <class R, class Body>
R OnNode(ZelItemHandle handle, R failure, Body &&body) {
    return zk::Quietly(
        [&]() -> R {
            LbxNode *node = LbxNodeOf(handle);
            return node ? body(node) : failure;
        },
        [failure] { return failure; });
}

} // namespace

int32_t LbxSetItemTextNode(LbxNode *node, const wchar_t *text) {
    HWND window = WindowOf(node);
    LbxChild child{};
    const uint32_t style = window && LbxGetChildCopy(window, &child) ? child.style : 0;
    const std::wstring given = text ? text : L"";
    node->item->text.assign({LbxU16(given.c_str()), given.size()});
    LbxNormalizeText(style, node->item->text, LbxPlatformCase());
    RepaintRow(node);
    return 1;
}

int32_t LbxSetItemColorNode(LbxNode *node, COLORREF color) {
    node->item->color = color;
    RepaintRow(node);
    return 1;
}

int32_t LbxSetItemFontNode(LbxNode *node, HFONT font) {
    node->item->font = font;
    Remeasure(node);
    return 1;
}

int32_t LbxSetItemPictureNode(LbxNode *node, PIC *normal, PIC *selected) {
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

extern "C" {

int32_t ZKAPI ZelListSetItemColor(ZelItemHandle item, COLORREF color) {
    return OnNode(item, int32_t{0}, [&](LbxNode *n) { return LbxSetItemColorNode(n, color); });
}

int32_t ZKAPI ZelListSetItemFont(ZelItemHandle item, HFONT font) {
    return OnNode(item, int32_t{0}, [&](LbxNode *n) { return LbxSetItemFontNode(n, font); });
}

int32_t ZKAPI ZelListSetItemPicture(ZelItemHandle item, ZelPicHandle normal, ZelPicHandle selected) {
    return OnNode(item, int32_t{0}, [&](LbxNode *n) {
        PIC *normalPic = zk::PicFromHandle(normal);
        PIC *selectedPic = zk::PicFromHandle(selected);
        if ((normal && !normalPic) || (selected && !selectedPic)) {
            return 0;
        }
        return LbxSetItemPictureNode(n, normalPic, selectedPic);
    });
}

ZelItemHandle ZKAPI ZelListSetItemText(ZelItemHandle item, const wchar_t *text) {
    return OnNode(item, ZelItemHandle{0},
                  [&](LbxNode *n) { return LbxSetItemTextNode(n, text) ? LbxHandleOf(n) : ZelItemHandle{0}; });
}

int32_t ZKAPI ZelListSetItemValue(ZelItemHandle item, int32_t value) {
    return OnNode(item, int32_t{0}, [&](LbxNode *n) {
        n->item->value = value;
        return 1;
    });
}

int32_t ZKAPI ZelListSetItemFlags(ZelItemHandle item, uint32_t mask, int32_t set) {
    return OnNode(item, int32_t{0}, [&](LbxNode *n) { return LbxSetItemFlagsNode(n, mask, set); });
}

ZelItemHandle ZKAPI ZelListSetItemData(HWND window, ZelItemHandle item, const wchar_t *text, int32_t value,
                                       uint32_t flags) {
    return zk::Quietly(
        [&]() -> ZelItemHandle {
            LbxChild child{};
            LbxNode *node = LbxNodeOf(item);
            if (!LbxGetChildCopy(window, &child) || !node) {
                return 0;
            }
            node->item->value = value;
            // The whole word is the caller's, tree bits included.
            node->item->flags = flags;
            return ZelListSetItemText(item, text);
        },
        [] { return ZelItemHandle{0}; });
}

} // extern "C"
