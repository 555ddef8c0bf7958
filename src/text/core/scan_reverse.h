// Searching a text backwards for another, without regard to case.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace zk::text {

// The platform's character steps and caseless compare (CharPrevW and
// _wcsnicmp there).
class ReverseScanner {
public:
    virtual ~ReverseScanner() = default;
    // The position of the character before `position` (> 0) in text.
    virtual std::size_t Previous(std::u16string_view text, std::size_t position) = 0;
    // Whether the first `count` characters of a and b match without regard to case.
    virtual bool EqualNoCase(const char16_t *a, const char16_t *b, std::size_t count) = 0;
};

// The last position at or before `start` where search matches, or -1.
// start -1 stands for the last character; a start below -1 or past the last
// character gives -1. An empty search matches at the start position.
int32_t ScanReverse(std::u16string_view text, int32_t start, std::u16string_view search, ReverseScanner &scanner);

} // namespace zk::text
