// Searching, listing into host arrays and freeing, by item handle.
#include <cstdint>

#include "frame/win/guard.h"
#include "outline/win/tree_ops.h"

namespace {

// A handle as a host number: the whole address, also above 32 bits.
bool PutHandle(HostArray array, int32_t index, const LbxNode *node) {
    HostNumber number{};
    const auto word = static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(node));
    if (word <= UINT32_MAX) {
        HostNumberFromULong(static_cast<uint32_t>(word), &number);
    } else {
        HostNumberFromDouble(static_cast<double>(word), &number);
    }
    return HostArraySetNumber(array, &number, index) != 0;
}

template <class Next>
int32_t Enumerate(ZelItemHandle handle, HostArray array, Next &&next) {
    return zk::Quietly(
        [&]() -> int32_t {
            LbxNode *node = LbxNodeOf(handle);
            if (!node) {
                return 0;
            }
            int32_t count = 0;
            for (LbxNode *n = next(node, nullptr); n; n = next(node, n)) {
                if (!PutHandle(array, count, n)) {
                    return 0;
                }
                ++count;
            }
            HostArraySetBounds(array, 0, count - 1);
            return count;
        },
        [] { return int32_t{0}; });
}

} // namespace

extern "C" {

int32_t ZKAPI ZelListEnumChildren(ZelItemHandle item, HostArray handles) {
    return Enumerate(item, handles,
                     [](LbxNode *node, LbxNode *current) { return current ? current->next : node->firstChild; });
}

int32_t ZKAPI ZelListEnumDescendents(ZelItemHandle item, HostArray handles) {
    return Enumerate(item, handles,
                     [](LbxNode *node, LbxNode *current) { return LbxNextBelow(node, current ? current : node); });
}

ZelItemHandle ZKAPI ZelListFindItemValue(ZelItemHandle item, int32_t value) {
    return zk::Quietly([&] { return LbxHandleOf(LbxFindValue(LbxNodeOf(item), value)); },
                       [] { return ZelItemHandle{0}; });
}

int32_t ZKAPI ZelListFreeChild(ZelItemHandle item) {
    return zk::Quietly(
        [&] {
            LbxNode *node = LbxNodeOf(item);
            return node && LbxFreeChild(node) ? 1 : 0;
        },
        [] { return 0; });
}

int32_t ZKAPI ZelListFreeDescendents(ZelItemHandle item) {
    return zk::Quietly(
        [&] {
            LbxNode *node = LbxNodeOf(item);
            return node && LbxFreeDescendents(node) ? 1 : 0;
        },
        [] { return 0; });
}

} // extern "C"
