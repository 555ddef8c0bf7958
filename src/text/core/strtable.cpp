#include "text/core/strtable.h"

#include "text/core/substitute.h"

namespace zk::text {

int32_t TableSizeCode(int32_t size) {
    if (size < 0)
        return size;
    return size >= kTableFileLimit ? -30 : 0;
}

std::size_t MakeTableBlock(char16_t *chars, std::size_t length) {
    // Each CR LF becomes one NUL, so the write position never passes the
    // read position and the text can be rewritten where it stands.
    std::size_t out = 0;
    for (std::size_t in = 0; in < length; ++in) {
        if (chars[in] == u'\r' && in + 1 < length && chars[in + 1] == u'\n') {
            chars[out++] = 0;
            ++in;
        } else {
            chars[out++] = chars[in];
        }
    }
    // A last line without its line end still counts. An empty text has no
    // line at all: its block is the end mark alone.
    if (out > 0 && chars[out - 1] != 0)
        chars[out++] = 0;
    chars[out++] = kTableEndMark;
    return out;
}

std::u16string TableBlock(std::u16string_view text) {
    std::u16string block(TableBlockChars(text.size()), u'\0');
    text.copy(block.data(), text.size());
    block.resize(MakeTableBlock(block.data(), text.size()));
    return block;
}

std::optional<std::u16string_view> TableFind(std::u16string_view block, std::u16string_view key) {
    std::u16string pattern;
    pattern.reserve(key.size() + 2);
    pattern += u'{';
    pattern += key;
    pattern += u'}';
    const OccurrenceFinder finder(pattern);
    std::size_t at = 0;
    while (at < block.size() && block[at] != kTableEndMark) {
        const std::size_t end = block.find(u'\0', at);
        if (end == std::u16string_view::npos)
            return std::nullopt;
        const std::u16string_view entry = block.substr(at, end - at);
        const std::size_t found = finder.Next(entry, 0);
        if (found != std::u16string_view::npos)
            return entry.substr(found + pattern.size());
        at = end + 1;
    }
    return std::nullopt;
}

} // namespace zk::text
