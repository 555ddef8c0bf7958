// String table blocks: lines, terminators, the end mark, and the look-up.
#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>

#include "text/strtable.h"

namespace {

using namespace std::string_literals;
using zk::text::kTableEndMark;
using zk::text::TableBlock;
using zk::text::TableFind;

const std::u16string kEnd(1, kTableEndMark);

TEST(TableBlock, CrLfEndsEachLine) {
    EXPECT_EQ(u"{a}1\0{b}2\0"s + kEnd, TableBlock(u"{a}1\r\n{b}2\r\n"));
    EXPECT_EQ(u"\0\0x\0"s + kEnd, TableBlock(u"\r\n\r\nx\r\n"));
}

TEST(TableBlock, LastLineWithoutLineEndIsKept) {
    EXPECT_EQ(u"{a}1\0{b}2\0"s + kEnd, TableBlock(u"{a}1\r\n{b}2"));
    EXPECT_EQ(u"x\0"s + kEnd, TableBlock(u"x"));
}

TEST(TableBlock, LoneCrAndLfAreText) {
    EXPECT_EQ(u"a\rb\nc\0"s + kEnd, TableBlock(u"a\rb\nc"));
    EXPECT_EQ(u"\n\r\0"s + kEnd, TableBlock(u"\n\r"));
    // Only the CR directly before the LF pairs with it.
    EXPECT_EQ(u"\r\0\n\0"s + kEnd, TableBlock(u"\r\r\n\n"));
    EXPECT_EQ(u"\r\0"s + kEnd, TableBlock(u"\r"));
}

TEST(TableBlock, EmptyTextIsTheEndMarkAlone) {
    EXPECT_EQ(kEnd, TableBlock(u""));
}

TEST(TableBlock, ATextEndingInNulGetsNoSecondOne) {
    EXPECT_EQ(u"a\0"s + kEnd, TableBlock(u"a\0"s));
}

TEST(TableSizeCode, LimitsAndPassedCodes) {
    EXPECT_EQ(0, zk::text::TableSizeCode(0));
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
    const std::u16string text = u"{one}first\r\n{two}second\r\n{one}again\r\n";
    EXPECT_EQ(u"first", Find(text, u"one"));
    EXPECT_EQ(u"second", Find(text, u"two"));
    EXPECT_EQ(u"<none>", Find(text, u"three"));
}

TEST(TableFind, KeyMayStandAnywhereInTheLine) {
    EXPECT_EQ(u" tail", Find(u"lead {k} tail", u"k"));
    EXPECT_EQ(u"", Find(u"value{k}\r\nnext", u"k"));
    EXPECT_EQ(u"{k}x", Find(u"{k}{k}x", u"k"));
}

TEST(TableFind, CaseCounts) {
    EXPECT_EQ(u"<none>", Find(u"{Key}v", u"key"));
    EXPECT_EQ(u"v", Find(u"{Key}v", u"Key"));
}

TEST(TableFind, LoneLineBreaksStayInTheValue) {
    EXPECT_EQ(u"a\rb\nc", Find(u"{k}a\rb\nc\r\n{m}x", u"k"));
    // A key split by a line end is no key.
    EXPECT_EQ(u"<none>", Find(u"{k\r\n}v", u"k"));
}

TEST(TableFind, EmptyKeyAndBraces) {
    EXPECT_EQ(u"v", Find(u"{}v", u""));
    EXPECT_EQ(u"v", Find(u"{a}b}v", u"a}b"));
}

TEST(TableFind, TheEndMarkStopsAtTheStartOfALineOnly) {
    const std::u16string mark(1, kTableEndMark);
    EXPECT_EQ(u"<none>", Find(u"x\r\n" + mark + u"{k}v", u"k"));
    EXPECT_EQ(u"v", Find(u"x" + mark + u"{k}v", u"k"));
    EXPECT_EQ(u"<none>", Find(u"", u"k"));
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
