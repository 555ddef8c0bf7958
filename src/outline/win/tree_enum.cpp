// Listing the nodes below an item handle into a host array.
#include <cstdint>

#include "frame/win/guard.h"
#include "outline/win/lbx_exports.h"
#include "outline/win/tree_ops.h"

namespace zk::lbx {

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

} // namespace

int32_t EnumerateInto(ZelItemHandle handle, HostArray array, NextNode next) {
    LbxNode *node = NodeOf(handle);
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
}

} // namespace zk::lbx
