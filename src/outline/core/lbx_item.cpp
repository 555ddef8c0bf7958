// Life of items and nodes, and the item test that guards every data word.
#include "outline/core/lbx.h"

#include "frame/core/livehandles.h"

namespace zk::lbx {

LbxItem::LbxItem() : self(this) { zk::LiveAdd(zk::LiveKind::OutlineItem, this); }

LbxItem::~LbxItem() {
    zk::LiveRemove(zk::LiveKind::OutlineItem, this);
    self = nullptr;
    magic[0] = 0;
}

LbxNode::LbxNode() { zk::LiveAdd(zk::LiveKind::OutlineNode, this); }

LbxNode::~LbxNode() { zk::LiveRemove(zk::LiveKind::OutlineNode, this); }

bool LbxIsItem(const void *pointer) noexcept {
    const auto word = reinterpret_cast<std::uintptr_t>(pointer);
    if (word == 0 || word == ~std::uintptr_t{0} || !zk::IsLive(zk::LiveKind::OutlineItem, pointer)) {
        return false;
    }
    const auto *item = static_cast<const LbxItem *>(pointer);
    return item->magic[0] == u'L' && item->magic[1] == u'B' && item->magic[2] == u'X' && item->magic[3] == 0 &&
           item->self == item;
}

bool LbxIsNode(const void *pointer) noexcept { return pointer && zk::IsLive(zk::LiveKind::OutlineNode, pointer); }

} // namespace zk::lbx
