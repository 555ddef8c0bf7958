#include "text/core/substitute.h"

#include <cstdint>

namespace zk::text {

OccurrenceFinder::OccurrenceFinder(std::u16string_view pattern) : pattern_(pattern) {
    border_.assign(pattern.size(), 0);
    uint32_t k = 0;
    for (std::size_t i = 1; i < pattern.size(); ++i) {
        while (k > 0 && pattern[i] != pattern[k])
            k = border_[k - 1];
        if (pattern[i] == pattern[k])
            ++k;
        border_[i] = k;
    }
}

std::size_t OccurrenceFinder::Next(std::u16string_view text, std::size_t from) const {
    const std::size_t m = pattern_.size();
    if (m == 0 || from > text.size() || text.size() - from < m)
        return std::u16string_view::npos;
    // The matcher starts afresh at `from`: a match found before it may not
    // lend its characters to the next one.
    std::size_t k = 0;
    for (std::size_t i = from; i < text.size(); ++i) {
        // Between partial matches, skip straight to the next candidate start.
        if (k == 0) {
            const std::size_t at = text.find(pattern_[0], i);
            if (at == std::u16string_view::npos || text.size() - at < m)
                return std::u16string_view::npos;
            i = at;
        }
        while (k > 0 && text[i] != pattern_[k])
            k = border_[k - 1];
        if (text[i] == pattern_[k])
            ++k;
        if (k == m)
            return i + 1 - m;
    }
    return std::u16string_view::npos;
}

std::size_t CountOccurrences(std::u16string_view text, std::u16string_view search) {
    const OccurrenceFinder finder(search);
    std::size_t count = 0;
    for (std::size_t at = finder.Next(text, 0); at != std::u16string_view::npos;
         at = finder.Next(text, at + search.size()))
        ++count;
    return count;
}

std::u16string Substitute(std::u16string_view text, std::u16string_view search, std::u16string_view replacement) {
    const OccurrenceFinder finder(search);
    std::u16string out;
    out.reserve(text.size());
    std::size_t copied = 0;
    for (std::size_t at = finder.Next(text, 0); at != std::u16string_view::npos; at = finder.Next(text, copied)) {
        out.append(text.substr(copied, at - copied));
        out.append(replacement);
        copied = at + search.size();
    }
    out.append(text.substr(copied));
    return out;
}

} // namespace zk::text
