// String table blocks: lines, terminators, the end mark, and the look-up.
#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>

#include "text/core/strtable.h"

namespace {

using namespace std::string_literals;
using zk::text::kTableEndMark;
using zk::text::TableBlock;
using zk::text::TableFind;

const std::u16string kEnd(1, kTableEndMark);

TEST(TableBlock, LinesEndInNulAndTheBlockInTheMark) {
    const struct {
        std::u16string text, block;
    } cases[] = {
        {u"{a}1\r\n{b}2\r\n", u"{a}1\0{b}2\0"s},
        {u"\r\n\r\nx\r\n", u"\0\0x\0"s},
        {u"{a}1\r\n{b}2", u"{a}1\0{b}2\0"s}, // the last line needs no line end
        {u"a\rb\nc", u"a\rb\nc\0"s},         // lone CR and LF are text
        {u"\r\r\n\n", u"\r\0\n\0"s},         // only the CR right before the LF pairs with it
        {u"\r", u"\r\0"s},
        {u"", u""},
        {u"a\0"s, u"a\0"s}, // a text ending in NUL gets no second one
    };
    for (const auto &c : cases)
        EXPECT_EQ(c.block + kEnd, TableBlock(c.text)) << c.text.size();
}

TEST(TableSizeCode, LimitsAndPassedCodes) {
    EXPECT_EQ(0, zk::text::TableSizeCode(65533));
    EXPECT_EQ(-30, zk::text::TableSizeCode(65534));
    EXPECT_EQ(-30, zk::text::TableSizeCode(INT32_MAX));
    EXPECT_EQ(-2, zk::text::TableSizeCode(-2));
    EXPECT_EQ(-87, zk::text::TableSizeCode(-87));
}

std::u16string Find(const std::u16string &text, std::u16string_view key) {
    const std::u16string block = TableBlock(text);
    const auto value = TableFind(block, key);
    return value ? std::u16string(*value) : u"<none>";
}

TEST(TableFind, ValueIsTheRestOfTheFirstLineWithTheKey) {
    const std::u16string mark(1, kTableEndMark);
    const struct {
        std::u16string text, key, value;
    } cases[] = {
        {u"{one}first\r\n{two}second\r\n{one}again\r\n", u"one", u"first"},
        {u"{one}first\r\n{two}second\r\n", u"two", u"second"},
        {u"{one}first\r\n", u"three", u"<none>"},
        // The key may stand anywhere in the line.
        {u"lead {k} tail", u"k", u" tail"},
        {u"value{k}\r\nnext", u"k", u""},
        {u"{k}{k}x", u"k", u"{k}x"},
        {u"{Key}v", u"key", u"<none>"}, // case counts
        {u"{k}a\rb\nc\r\n{m}x", u"k", u"a\rb\nc"},
        {u"{k\r\n}v", u"k", u"<none>"}, // a key split by a line end is no key
        {u"{}v", u"", u"v"},
        {u"{a}b}v", u"a}b", u"v"},
        // The end mark stops the search at the start of a line only.
        {u"x\r\n" + mark + u"{k}v", u"k", u"<none>"},
        {u"x" + mark + u"{k}v", u"k", u"v"},
        {u"", u"k", u"<none>"},
    };
    for (const auto &c : cases)
        EXPECT_EQ(c.value, Find(c.text, c.key)) << c.text.size();
}

// The block lies in a heap buffer of exactly its size, so a read past it is
// caught by the sanitizer.
std::optional<std::u16string> FindIn(const std::u16string &chars, std::u16string_view key) {
    auto buffer = std::make_unique<char16_t[]>(chars.size());
    chars.copy(buffer.get(), chars.size());
    const auto value = TableFind({buffer.get(), chars.size()}, key);
    return value ? std::optional<std::u16string>(*value) : std::nullopt;
}

TEST(TableFind, ABlockWithoutEndStaysInsideItsSize) {
    EXPECT_EQ(std::nullopt, FindIn(u"{k}unterminated", u"k"));
    EXPECT_EQ(u"1", FindIn(u"{j}1\0{k}unterminated"s, u"j"));
    EXPECT_EQ(std::nullopt, FindIn(u"{j}1\0{k}unterminated"s, u"k"));
    EXPECT_EQ(std::nullopt, FindIn(u"", u"k"));
}

} // namespace
