// Changing an item's fields by its handle.
#include "frame/win/guard.h"
#include "outline/win/lbx_exports.h"
#include "outline/win/pic.h"
#include "outline/win/tree_ops.h"

using namespace zk::lbx;

extern "C" {

int32_t ZKAPI ZelListSetItemColor(ZelItemHandle item, COLORREF color) {
    return OnNode(item, int32_t{0}, [&](LbxNode &n) { return SetItemColorNode(&n, color); });
}

int32_t ZKAPI ZelListSetItemFont(ZelItemHandle item, HFONT font) {
    return OnNode(item, int32_t{0}, [&](LbxNode &n) { return SetItemFontNode(&n, font); });
}

int32_t ZKAPI ZelListSetItemPicture(ZelItemHandle item, ZelPicHandle normal, ZelPicHandle selected) {
    return OnNode(item, int32_t{0}, [&](LbxNode &n) {
        PIC *normalPic = nullptr, *selectedPic = nullptr;
        return PicturesOf(normal, selected, &normalPic, &selectedPic) ? SetItemPictureNode(&n, normalPic, selectedPic)
                                                                      : 0;
    });
}

ZelItemHandle ZKAPI ZelListSetItemText(ZelItemHandle item, const wchar_t *text) {
    return OnNode(item, ZelItemHandle{0},
                  [&](LbxNode &n) { return SetItemTextNode(&n, text) ? LbxHandleOf(&n) : ZelItemHandle{0}; });
}

int32_t ZKAPI ZelListSetItemValue(ZelItemHandle item, int32_t value) {
    return OnNode(item, int32_t{0}, [&](LbxNode &n) {
        n.item->value = value;
        return 1;
    });
}

int32_t ZKAPI ZelListSetItemFlags(ZelItemHandle item, uint32_t mask, int32_t set) {
    return OnNode(item, int32_t{0}, [&](LbxNode &n) { return SetItemFlagsNode(&n, mask, set); });
}

ZelItemHandle ZKAPI ZelListSetItemData(HWND window, ZelItemHandle item, const wchar_t *text, int32_t value,
                                       uint32_t flags) {
    return zk::Quietly(
        [&]() -> ZelItemHandle {
            LbxChild child{};
            LbxNode *node = NodeOf(item);
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
