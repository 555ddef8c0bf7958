// The order of a stable sort, found apart from where the elements are kept,
// so that a host array can be rewritten in one pass afterwards.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

namespace zk::text {

// Sorts items stably by a bottom-up merge sort. precedes(later, earlier)
// says whether an item that came later in the input must stand before one
// that came earlier; ties answer false and keep their input order. The
// result is the order of an insertion sort that moves an item up past a
// later one whenever precedes says so, found with at most
// n * ceil(log2 n) calls. The items themselves move, so that a merge reads
// its runs front to back.
template <class T, class Precedes>
void StableMergeSort(std::vector<T> &items, Precedes precedes) {
    const std::size_t count = items.size();
    std::vector<T> spare(count);
    for (std::size_t width = 1; width < count; width *= 2) {
        for (std::size_t low = 0; low < count; low += 2 * width) {
            const std::size_t middle = std::min(low + width, count);
            const std::size_t high = std::min(low + 2 * width, count);
            // Every item of the right run came later in the input than every
            // item of the left run, which is what makes the merge stable.
            // Runs already in order (sorted input) cost one call.
            if (middle == high || !precedes(items[middle], items[middle - 1])) {
                std::copy(items.begin() + low, items.begin() + high, spare.begin() + low);
                continue;
            }
            std::size_t left = low, right = middle, out = low;
            while (left < middle && right < high)
                spare[out++] = precedes(items[right], items[left]) ? items[right++] : items[left++];
            out = std::copy(items.begin() + left, items.begin() + middle, spare.begin() + out) - spare.begin();
            std::copy(items.begin() + right, items.begin() + high, spare.begin() + out);
        }
        items.swap(spare);
    }
}

// Whether the element at input position `later` must stand before the one
// at `earlier`.
using Precedes = std::function<bool(uint32_t later, uint32_t earlier)>;

// The stable order of `count` elements: entry p is the input position of
// the element that belongs at position p.
std::vector<uint32_t> StableOrder(uint32_t count, const Precedes &precedes);

} // namespace zk::text
