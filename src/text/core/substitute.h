// Replacing every occurrence of a search text, in one left-to-right pass.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace zk::text {

// Finds the non-overlapping occurrences of a pattern from the left, with
// case, in time linear in text and pattern (Knuth-Morris-Pratt).
class OccurrenceFinder {
public:
    explicit OccurrenceFinder(std::u16string_view pattern);
    // The first occurrence at or after `from`, or npos. An empty pattern
    // has none.
    std::size_t Next(std::u16string_view text, std::size_t from) const;

private:
    std::u16string_view pattern_;
    std::vector<uint32_t> border_; // longest proper border of each prefix
};

// Occurrences of search that do not overlap, counted from the left.
std::size_t CountOccurrences(std::u16string_view text, std::u16string_view search);

// The text with every such occurrence replaced. Its length is
// (replacement - search) * count + text characters.
std::u16string Substitute(std::u16string_view text, std::u16string_view search, std::u16string_view replacement);

} // namespace zk::text
