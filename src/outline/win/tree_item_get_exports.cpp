// Reading an item's fields and links by its handle. Every handle is looked
// up in the table of live nodes first.
#include "frame/win/guard.h"
#include "outline/win/pic.h"
#include "outline/win/tree_ops.h"

using namespace zk::lbx;

extern "C" {

ZelItemHandle ZKAPI ZelListGetParent(ZelItemHandle item) {
    return OnNode(item, ZelItemHandle{0}, [](LbxNode &n) { return LbxHandleOf(n.parent); });
}

ZelItemHandle ZKAPI ZelListGetNextSibling(ZelItemHandle item) {
    return OnNode(item, ZelItemHandle{0}, [](LbxNode &n) { return LbxHandleOf(n.next); });
}

ZelItemHandle ZKAPI ZelListGetPrevSibling(ZelItemHandle item) {
    return OnNode(item, ZelItemHandle{0}, [](LbxNode &n) { return LbxHandleOf(n.prev); });
}

int32_t ZKAPI ZelListGetLevel(ZelItemHandle item) {
    return OnNode(item, int32_t{-1}, [](LbxNode &n) { return n.level; });
}

int32_t ZKAPI ZelListGetItemColor(ZelItemHandle item) {
    return OnNode(item, int32_t{-1}, [](LbxNode &n) { return static_cast<int32_t>(n.item->color); });
}

INT_PTR ZKAPI ZelListGetItemFont(ZelItemHandle item) {
    return OnNode(item, INT_PTR{-1}, [](LbxNode &n) { return reinterpret_cast<INT_PTR>(n.item->font); });
}

uint32_t ZKAPI ZelListGetItemFlags(ZelItemHandle item) {
    return OnNode(item, uint32_t{0}, [](LbxNode &n) { return n.item->flags; });
}

int32_t ZKAPI ZelListGetItemValue(ZelItemHandle item) {
    return OnNode(item, int32_t{0}, [](LbxNode &n) { return n.item->value; });
}

HostStr ZKAPI ZelListGetItemText(ZelItemHandle item) {
    return zk::StringResult([&]() -> HostStr {
        LbxNode *node = NodeOf(item);
        if (!node) {
            return ZelStrEmpty();
        }
        const std::u16string_view text = node->item->text.view();
        return zk::StrFromChars(reinterpret_cast<const wchar_t *>(text.data()), text.size());
    });
}

int32_t ZKAPI ZelListGetItemData(ZelItemHandle item, HostStr *text, int32_t *value, uint32_t *flags) {
    return OnNode(item, int32_t{0}, [&](LbxNode &n) {
        if (text) {
            const std::u16string_view chars = n.item->text.view();
            zk::StrAllocRetry(text, static_cast<int32_t>(2 * chars.size() + 2));
            zk::StrWrite(*text, reinterpret_cast<const wchar_t *>(chars.data()), chars.size());
        }
        if (value) {
            *value = n.item->value;
        }
        if (flags) {
            *flags = n.item->flags;
        }
        return 1;
    });
}

int32_t ZKAPI ZelListGetItemPicture(ZelItemHandle item, ZelPicHandle *normal, ZelPicHandle *selected) {
    return OnNode(item, int32_t{0}, [&](LbxNode &n) {
        if (normal) {
            *normal = PicToHandle(n.item->picNormal);
        }
        if (selected) {
            *selected = PicToHandle(n.item->picSelected);
        }
        return 1;
    });
}

int32_t ZKAPI ZelListGetItemIndex(ZelItemHandle item) {
    return OnNode(item, int32_t{-1}, [](LbxNode &n) { return NodeRow(&n); });
}

} // extern "C"
