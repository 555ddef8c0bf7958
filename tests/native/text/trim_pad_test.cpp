#include <gtest/gtest.h>

#include "fakes.h"
#include "text/core/pad.h"
#include "text/core/padb.h"
#include "text/core/trim.h"

using namespace zk::text;
using zktest::FakeDbcs;

namespace {

bool Space(char16_t c) { return c == u' ' || c == u'\t' || c == u'\n' || c == 0x3000; }

TEST(Trim, EndsOnly) {
    EXPECT_EQ(TrimLeft(u"  a b  ", Space), u"a b  ");
    EXPECT_EQ(TrimRight(u"a  b  c ", Space), u"a  b  c"); // only the last run of spaces ends it
    EXPECT_EQ(Trim(u"\t\n a  b \x3000", Space), u"a  b");
    for (auto f : {TrimLeft, TrimRight, Trim}) {
        EXPECT_TRUE(f(u"   \t", Space).empty());
        EXPECT_TRUE(f(u"", Space).empty());
    }
}

TEST(Pad, ExtendsOrCuts) {
    EXPECT_EQ(Pad(u"abc", 5), u"abc  ");
    EXPECT_EQ(Pad(u"abcdef", 3), u"abc");
    EXPECT_EQ(Pad(u"", 2), u"  ");
}

struct PadBCase {
    std::u16string text;
    std::size_t width;
    std::u16string expected;
    std::size_t bytes;
};

TEST(PadBytes, WidthCountsDoubleBytes) {
    const std::u16string a = u"\x3042"; // two bytes
    const PadBCase cases[] = {
        {u"abc", 5, u"abc  ", 12},         // (3 + 2) * 2 + 2
        {u"abc", 3, u"abc", 8},            // byte length equals width: unchanged
        {u"abcdef", 3, u"abc", 8},         // cut, m = 4: 2m
        {a + u"b", 4, a + u"b ", 8},       // 3 bytes padded by one space
        {u"x" + a + u"y", 3, u"x" + a, 6}, // cut after the whole character
        {u"x" + a + u"y", 2, u"x ", 4},    // cut inside it: a space in its place, 2m
        {a + a, 3, a + u" ", 4},
        {a, 1, u" ", 2}, // nothing whole fits
    };
    for (const PadBCase &c : cases) {
        FakeDbcs dbcs;
        const auto r = PadBytes(c.text, c.width, dbcs);
        ASSERT_TRUE(r.has_value());
        EXPECT_EQ(r->text, c.expected) << c.width;
        EXPECT_EQ(r->allocBytes, c.bytes) << c.width;
        EXPECT_EQ(dbcs.ByteLength(r->text), c.width);
        EXPECT_EQ(dbcs.live, 0);
    }
}

TEST(PadBytes, NoByteBlockGivesNothing) {
    FakeDbcs dbcs;
    dbcs.failAlloc = true;
    EXPECT_FALSE(PadBytes(u"abcdef", 2, dbcs).has_value());
    // The short path needs no block.
    EXPECT_TRUE(PadBytes(u"ab", 2, dbcs).has_value());
}

} // namespace
