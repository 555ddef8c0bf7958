// The binary outline stream against byte vectors written out by hand.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "byte_writer.h"
#include "outline/core/ofile_stream.h"

using namespace zk::lbx;

using namespace zk::lbx::ofile;
using Bytes = std::vector<uint8_t>;

namespace {

// An outline stream of the default header (indent 5) and items whose
// picture stands for both states.
struct Spell : zkt::ByteWriterOf<Spell> {
    Spell &header(uint32_t pics, uint32_t fonts, uint32_t items) {
        return u16(0x8759).u32(0).u32(5).u32(0).u32(pics).u32(fonts).u32(items);
    }
    Spell &item(int32_t level, std::u16string_view text, int32_t pic = -1, int32_t font = -1) {
        u32(level).u32(pic).u32(pic).u32(font).u32(0).u32(0).u32(0);
        return wide(text);
    }
};

// A list with one picture, one font, the root and one child.
// clang-format off
const Bytes kGolden = {
    0x59, 0x87, 0x11, 0x00, 0x02, 0x00, 0x08, 0x00, 0x00, 0x00, 0x03, 0x00, 0x00, 0x00, // magic style indent top
    0x01, 0x00, 0x00, 0x00, 0x01, 0x00, 0x00, 0x00, 0x02, 0x00, 0x00, 0x00,             // counts
    0x01, 0x82, 0xFF, 0xFE, 0xFF, 0x06, 'Z', 0, 'K', 0, '.', 0, 'd', 0, 'l', 0, 'l', 0, // OBPIC at 26
    0xFF, 0xFE, 0xFF, 0x04, 'p', 0, 'l', 0, 'u', 0, 's', 0,
    0x08, 0x00, 0x08, 0x00, 0xFF, 0xFE, 0xFF, 0x05, 'A', 0, 'r', 0, 'i', 0, 'a', 0, 'l', 0, // OBFONT
    // the root: level -1, nothing, expanded parent, value 7, empty text
    0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF,
    0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0xC0, 0x07, 0x00, 0x00, 0x00, 0xFF, 0xFE, 0xFF, 0x00,
    // "A": level 0, picture 0 normal, none selected, font 0, red, an application bit
    0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0xFF, 0xFF, 0xFF, 0xFF, 0x00, 0x00, 0x00, 0x00,
    0xFF, 0x00, 0x00, 0x00, 0x01, 0x00, 0x08, 0x00, 0x2A, 0x00, 0x00, 0x00, 0xFF, 0xFE, 0xFF, 0x01, 'A', 0,
};
// clang-format on

OBLOB GoldenBlob() {
    OBLOB blob;
    blob.style = 0x00020011;
    blob.indent = 8;
    blob.topIndex = 3;
    blob.pics.push_back({0x8201, u"ZK.dll", u"plus"});
    blob.fonts.push_back({8, 8, u"Arial"});
    blob.items.push_back({-1, -1, -1, -1, 0, 0xC0000000u, 7, u""});
    blob.items.push_back({0, 0, -1, 0, 0xFF, 0x00080001u, 42, u"A"});
    return blob;
}

ReadStatus Read(const Bytes &bytes, OBLOB &blob, std::vector<int32_t> &parents) {
    return OutlineRead(bytes.data(), bytes.size(), blob, parents);
}

TEST(OutlineStream, WritesTheGoldenBytesAndReadsThemBack) {
    EXPECT_EQ(OutlineWrite(GoldenBlob()), kGolden);
    OBLOB blob;
    std::vector<int32_t> parents;
    ASSERT_EQ(Read(kGolden, blob, parents), ReadStatus::ok);
    EXPECT_EQ(blob, GoldenBlob());
    EXPECT_EQ(parents, (std::vector<int32_t>{kIsRoot, kUnderRoot}));
    OBLOB empty;
    empty.indent = 5;
    empty.items.push_back({-1, -1, -1, -1, 0, 0, 0, u""});
    EXPECT_EQ(OutlineWrite(empty), Spell{}.header(0, 0, 1).item(-1, u"").b);
}

TEST(OutlineStream, OlderStreamsWithSingleByteStringsAreWidened) {
    Spell s;
    s.header(1, 1, 1);
    s.u16(0x0401).narrow("C:\\A.BMP").narrow("");
    s.u16(10).u16(2).narrow("Courier");
    s.u32(0).u32(0).u32(0).u32(0).u32(0x00FF00).u32(0).u32(9);
    s.u8(0xFF).u16(300); // a single-byte string of the u16 length form
    std::string long300(299, 'z');
    long300 += '\xE9';
    for (char c : long300)
        s.u8(static_cast<uint8_t>(c));
    OBLOB blob;
    std::vector<int32_t> parents;
    ASSERT_EQ(Read(s.b, blob, parents), ReadStatus::ok);
    EXPECT_EQ(blob.pics[0], (OBPIC{0x0401, u"C:\\A.BMP", u""}));
    EXPECT_EQ(blob.fonts[0], (OBFONT{10, 2, u"Courier"}));
    ASSERT_EQ(blob.items.size(), 1u);
    EXPECT_EQ(blob.items[0].text.size(), 300u);
    EXPECT_EQ(blob.items[0].text.back(), u'\u00E9');
    EXPECT_EQ(blob.items[0].value, 9);
    // A system code page of the caller's choosing widens them.
    auto upper = [](std::string_view b) { return std::u16string(b.size(), u'Q'); };
    ASSERT_EQ(OutlineRead(s.b.data(), s.b.size(), blob, parents, upper), ReadStatus::ok);
    EXPECT_EQ(blob.fonts[0].faceName, u"QQQQQQQ");
}

TEST(OutlineStream, EveryTruncationFailsAndLeavesTheResultAlone) {
    const OBLOB before = GoldenBlob();
    for (size_t n = 0; n < kGolden.size(); ++n) {
        OBLOB blob = before;
        std::vector<int32_t> parents{123};
        const ReadStatus status = OutlineRead(kGolden.data(), n, blob, parents);
        EXPECT_EQ(status, ReadStatus::corrupt) << n;
        EXPECT_EQ(blob, before) << n;
        EXPECT_EQ(parents, std::vector<int32_t>{123}) << n;
    }
    OBLOB blob;
    std::vector<int32_t> parents;
    EXPECT_EQ(OutlineRead(nullptr, 40, blob, parents), ReadStatus::corrupt);
}

TEST(OutlineStream, BadHeadersAreRefused) {
    OBLOB blob;
    std::vector<int32_t> parents;
    Bytes wrongMagic = kGolden;
    wrongMagic[0] = 0x58;
    EXPECT_EQ(Read(wrongMagic, blob, parents), ReadStatus::badMagic);
    EXPECT_EQ(Read(Spell{}.u16(0x8759).u32(0).u32(0).u32(0).u32(0xFFFFFFFF).u32(0).u32(0).b, blob, parents),
              ReadStatus::corrupt);
    // Counts that the bytes left cannot hold: refused before any allocation.
    EXPECT_EQ(Read(Spell{}.header(0, 0, 0x7FFFFFFF).b, blob, parents), ReadStatus::corrupt);
    EXPECT_EQ(Read(Spell{}.header(0x10000000, 0, 0).u16(0).narrow("").narrow("").b, blob, parents),
              ReadStatus::corrupt);
    // A wide tag twice is no string.
    EXPECT_EQ(
        Read(Spell{}.header(0, 1, 0).u16(8).u16(0).u8(0xFF).u16(0xFFFE).u8(0xFF).u16(0xFFFE).u8(0).b, blob, parents),
        ReadStatus::corrupt);
    // No items at all is a stream all the same; bytes after the records are left unread.
    ASSERT_EQ(Read(Spell{}.header(0, 0, 0).u32(0xDEADBEEF).b, blob, parents), ReadStatus::ok);
    EXPECT_TRUE(blob.items.empty());
    EXPECT_EQ(blob.indent, 5u);
}

std::vector<OBITEM> Levels(std::initializer_list<int32_t> levels) {
    std::vector<OBITEM> items;
    for (int32_t l : levels)
        items.push_back({l, -1, -1, -1, 0, 0, 0, u""});
    return items;
}

TEST(OutlineStream, ParentsFollowTheTableOfLevels) {
    std::vector<int32_t> parents;
    ASSERT_TRUE(OutlineParents(Levels({-1, 0, 1, 2, 1, 0, 1, 2, 2}), parents));
    EXPECT_EQ(parents, (std::vector<int32_t>{kIsRoot, kUnderRoot, 1, 2, 1, kUnderRoot, 5, 6, 6}));
    // Without a root record the first record loads under the root, whatever its level.
    struct Case {
        std::vector<OBITEM> items;
        std::vector<int32_t> parents;
    };
    const Case cases[] = {
        {Levels({0, 1, 0}), {kUnderRoot, 0, kUnderRoot}},
        {Levels({1}), {kUnderRoot}},
        {Levels({-1, 1}), {kIsRoot, kUnderRoot}},
        // More than one level deeper: under the record before.
        {Levels({0, 2}), {kUnderRoot, 0}},
        {Levels({0, 1, 3, 3}), {kUnderRoot, 0, 1, 1}},
        // Back up to a level set earlier: its entry stands until a record goes
        // deeper to it again, so the second 1 joins the first subtree's 0.
        {Levels({0, 1, 2, 0, 2, 1}), {kUnderRoot, 0, 1, kUnderRoot, 3, 0}},
    };
    for (const Case &c : cases) {
        ASSERT_TRUE(OutlineParents(c.items, parents));
        EXPECT_EQ(parents, c.parents);
    }
    std::vector<OBITEM> deep = Levels({-1});
    for (int32_t l = 0; l <= kMaxLevel; ++l)
        deep.push_back(Levels({l})[0]);
    ASSERT_TRUE(OutlineParents(deep, parents));
    EXPECT_EQ(parents.back(), static_cast<int32_t>(deep.size()) - 2);
    // Levels outside the table, or a level no record went down to, refuse the whole stream.
    deep.push_back(Levels({kMaxLevel + 1})[0]);
    for (auto levels :
         {deep, Levels({0, 2, 1}), Levels({0, -1}), Levels({-1, -1}), Levels({-2}), Levels({0, 0x7FFFFFFF})}) {
        parents = {5};
        EXPECT_FALSE(OutlineParents(levels, parents));
        EXPECT_EQ(parents, std::vector<int32_t>{5});
        OBLOB blob;
        blob.items = levels;
        const Bytes bytes = OutlineWrite(blob);
        OBLOB read;
        EXPECT_EQ(OutlineRead(bytes.data(), bytes.size(), read, parents), ReadStatus::badLevels);
        EXPECT_TRUE(read.items.empty());
    }
}

} // namespace
