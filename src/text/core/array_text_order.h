// The order of a stable sort of texts, found with as few comparisons as the
// ties allow: every distinct text is compared, not every element.
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

namespace zk::text {

// Compares two texts: below 0, 0 or above 0 as a is less, equal or greater.
// Texts of the same characters must compare equal.
using TextCompare = std::function<int(std::u16string_view a, std::u16string_view b)>;

// The stable order of the texts: entry p is the input position of the text
// that belongs at position p. Ascending puts a text after a later one that
// compares less, descending after a later one that compares greater; ties
// keep their input order either way. The same order as the insertion sort
// that moves an element up past a later key while compare(element, key)
// says so, for a compare that orders consistently. The texts are grouped
// by their characters first, so that only distinct texts are compared.
std::vector<uint32_t> StableTextOrder(const std::vector<std::u16string_view> &texts, bool descending,
                                      const TextCompare &compare);

// Positions 0..n-1 ordered by rank, and by position within a rank (a
// counting sort). rankOf[p] must be below `ranks`.
std::vector<uint32_t> OrderByRank(const std::vector<uint32_t> &rankOf, uint32_t ranks);

} // namespace zk::text
