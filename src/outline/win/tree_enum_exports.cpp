// Searching, listing into host arrays and freeing, by item handle.
#include "frame/win/guard.h"
#include "outline/win/lbx_exports.h"
#include "outline/win/tree_ops.h"

using namespace zk::lbx;

namespace {

int32_t Enumerate(ZelItemHandle handle, HostArray array, NextNode next) {
    return zk::Quietly([&] { return EnumerateInto(handle, array, next); }, [] { return int32_t{0}; });
}

} // namespace

extern "C" {

int32_t ZKAPI ZelListEnumChildren(ZelItemHandle item, HostArray handles) {
    return Enumerate(item, handles,
                     [](LbxNode *node, LbxNode *current) { return current ? current->next : node->firstChild; });
}

int32_t ZKAPI ZelListEnumDescendents(ZelItemHandle item, HostArray handles) {
    return Enumerate(item, handles,
                     [](LbxNode *node, LbxNode *current) { return NextBelow(node, current ? current : node); });
}

ZelItemHandle ZKAPI ZelListFindItemValue(ZelItemHandle item, int32_t value) {
    return zk::Quietly([&] { return LbxHandleOf(LbxFindValue(NodeOf(item), value)); }, [] { return ZelItemHandle{0}; });
}

int32_t ZKAPI ZelListFreeChild(ZelItemHandle item) {
    return zk::Quietly(
        [&] {
            LbxNode *node = NodeOf(item);
            return node && LbxFreeChild(node) ? 1 : 0;
        },
        [] { return 0; });
}

int32_t ZKAPI ZelListFreeDescendents(ZelItemHandle item) {
    return zk::Quietly(
        [&] {
            LbxNode *node = NodeOf(item);
            return node && LbxFreeDescendents(node) ? 1 : 0;
        },
        [] { return 0; });
}

} // extern "C"
