#include "text/core/array_order.h"

#include <numeric>

namespace zk::text {

std::vector<uint32_t> StableOrder(uint32_t count, const Precedes &precedes) {
    std::vector<uint32_t> order(count);
    std::iota(order.begin(), order.end(), 0u);
    StableMergeSort(order, [&](uint32_t later, uint32_t earlier) { return precedes(later, earlier); });
    return order;
}

} // namespace zk::text
