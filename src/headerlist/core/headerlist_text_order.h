// The order of the header list's texts: the C runtime's case-insensitive
// comparison in the C locale, where A to Z fold to a to z and every other
// unit compares by its value. Header-only, so that a benchmark compares with
// exactly the order the sort uses.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace zk::hdr {

constexpr char16_t FoldCase(char16_t c) { return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c + 32) : c; }

// Negative, zero or positive, as the first text sorts before, with or after the second.
inline int CompareNoCase(std::u16string_view a, std::u16string_view b) {
    const size_t n = a.size() < b.size() ? a.size() : b.size();
    for (size_t i = 0; i < n; ++i) {
        const char16_t x = FoldCase(a[i]), y = FoldCase(b[i]);
        if (x != y)
            return x < y ? -1 : 1;
    }
    return a.size() == b.size() ? 0 : (a.size() < b.size() ? -1 : 1);
}

inline int CompareCase(std::u16string_view a, std::u16string_view b) {
    return a.compare(b) < 0 ? -1 : a.compare(b) > 0;
}

} // namespace zk::hdr
