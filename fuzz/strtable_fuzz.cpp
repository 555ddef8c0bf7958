// String table blocks from any bytes, and look-ups in them. Each input is a
// key length byte, the key, and the file's bytes read one character per
// byte (so line ends, NULs, braces and the end mark are common). The block
// must keep its shape, and a look-up must give what a plain line-by-line
// search gives, also in blocks cut short anywhere.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "text/core/strtable.h"

namespace {

using zk::text::kTableEndMark;

void check(bool condition) {
    if (!condition)
        __builtin_trap();
}

std::u16string Widen(const uint8_t *data, size_t size) {
    std::u16string text(size, u'\0');
    for (size_t i = 0; i < size; ++i)
        text[i] = data[i] >= 0xF0 ? char16_t(0x1A) : char16_t(data[i]); // the end mark often too
    return text;
}

// The look-up done the plain way: lines one by one, std::find for the pattern.
std::optional<std::u16string> PlainFind(const std::u16string &block, const std::u16string &key) {
    const std::u16string pattern = u"{" + key + u"}";
    size_t at = 0;
    while (at < block.size() && block[at] != kTableEndMark) {
        const size_t end = block.find(u'\0', at);
        if (end == std::u16string::npos)
            return std::nullopt;
        const std::u16string line = block.substr(at, end - at);
        const size_t found = line.find(pattern);
        if (found != std::u16string::npos)
            return line.substr(found + pattern.size());
        at = end + 1;
    }
    return std::nullopt;
}

std::optional<std::u16string> Find(const std::u16string &block, const std::u16string &key) {
    // An exact heap copy, so that a read past the block is caught.
    auto copy = std::make_unique<char16_t[]>(block.size());
    block.copy(copy.get(), block.size());
    const auto value = zk::text::TableFind({copy.get(), block.size()}, key);
    return value ? std::optional<std::u16string>(std::u16string(*value)) : std::nullopt;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    if (size == 0)
        return 0;
    const size_t keyLength = std::min<size_t>(data[0] % 8, size - 1);
    const std::u16string key = Widen(data + 1, keyLength);
    const std::u16string text = Widen(data + 1 + keyLength, size - 1 - keyLength);

    const std::u16string block = zk::text::TableBlock(text);
    check(block.size() <= zk::text::TableBlockChars(text.size()));
    check(!block.empty() && block.back() == kTableEndMark);
    check(text.empty() ? block.size() == 1 : block[block.size() - 2] == u'\0');
    // Every character of the text stands in the block but for the LF of
    // each CR LF pair, whose CR became the terminator; a last line without
    // its line end (or NUL) gets one.
    size_t pairs = 0;
    for (size_t i = 0; i + 1 < text.size(); ++i)
        if (text[i] == u'\r' && text[i + 1] == u'\n')
            ++pairs, ++i;
    const bool ended = text.empty() || text.back() == u'\0' || text.ends_with(u"\r\n");
    check(block.size() == text.size() - pairs + (ended ? 0 : 1) + 1);

    check(Find(block, key) == PlainFind(block, key));
    // The same block cut short at a point the input chooses.
    const size_t cut = block.size() * data[0] / 256;
    const std::u16string shortened = block.substr(0, cut);
    check(Find(shortened, key) == PlainFind(shortened, key));
    return 0;
}
