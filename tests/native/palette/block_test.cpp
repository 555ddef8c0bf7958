// The palette's property block: its byte image written by hand from the
// format, what a reader of version 0 keeps, and copies that never share.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "block_bytes.h"
#include "palette/core/palette_block.h"

namespace {

using Bytes = std::vector<uint8_t>;
using zk::pal::SPaletteColor;
using zk::pal::SPaletteMenu;
using zk::pal::SPropPalette;

void Put(Bytes &b, std::initializer_list<int> bytes) {
    for (int v : bytes)
        b.push_back(static_cast<uint8_t>(v));
}
void Ascii(Bytes &b, const char *text) {
    for (const char *c = text; *c; ++c)
        b.push_back(static_cast<uint8_t>(*c));
}
void Wide(Bytes &b, const char *text) {
    Put(b, {0xFF, 0xFE, 0xFF, static_cast<int>(std::char_traits<char>::length(text))});
    for (const char *c = text; *c; ++c)
        Put(b, {*c, 0});
}

// Two colours and two menu entries: the class of the entries takes index 4,
// after the colours' class (1) and their two objects (2, 3).
Bytes Golden() {
    Bytes b;
    Put(b, {2, 0, 0xFF, 0xFF, 1, 0, 13, 0});
    Ascii(b, "SPaletteColor");
    Put(b, {1, 0, 0, 0, 0xFF, 0, 0, 0});
    Put(b, {0x01, 0x80, 1, 0, 0, 0, 0x56, 0x34, 0x12, 0});
    Put(b, {2, 0, 0xFF, 0xFF, 1, 0, 12, 0});
    Ascii(b, "SPaletteMenu");
    Put(b, {1, 0, 0, 0});
    Wide(b, "Red");
    Put(b, {7, 0});
    Put(b, {0x04, 0x80, 1, 0, 0, 0});
    Wide(b, "Blue");
    Put(b, {9, 0});
    Put(b, {1, 0, 0, 0, /* flags */ 1, 0, 1, 1, /* maximum */ 12, 0, 0, 0});
    return b;
}

SPropPalette GoldenBlock() {
    SPropPalette block;
    block.mainColors.RemoveAll();
    block.mainColors.Add(std::make_unique<SPaletteColor>(0x0000FF));
    block.mainColors.Add(std::make_unique<SPaletteColor>(0x123456));
    block.menus.Add(std::make_unique<SPaletteMenu>(u"Red", 7));
    block.menus.Add(std::make_unique<SPaletteMenu>(u"Blue", 9));
    block.autoSize = 1;
    block.keepSelection = 1;
    block.recentMax = 12;
    return block;
}

TEST(PaletteBlock, WritesTheArraysWithSharedClassIndicesThenTheFlagsAndReadsThemBack) {
    SPropPalette block = GoldenBlock();
    EXPECT_EQ(zkt::StoredBytes(block), Golden());
    bool complete = false;
    const SPropPalette back = zkt::ReadBlock<SPropPalette>(Golden(), &complete);
    EXPECT_TRUE(complete);
    ASSERT_EQ(back.menus.size(), 2u);
    EXPECT_EQ(back.menus.at(1)->text, u"Blue");
    EXPECT_EQ(back.menus.at(1)->id, 9);
    EXPECT_EQ(zkt::StoredBytes(const_cast<SPropPalette &>(back)), Golden());
}

TEST(PaletteBlock, TheDefaultBlockHoldsTheEightColoursInOrder) {
    SPropPalette block;
    const Bytes image = zkt::StoredBytes(block);
    ASSERT_EQ(image.size(), 2u + 6 + 13 + 8 + 7 * 10 + 2 + 4 + 4 + 4);
    const uint32_t expected[] = {0x0000FF, 0x00FF00, 0xFF0000, 0x00FFFF, 0xFF00FF, 0xFFFF00, 0x000000, 0xFFFFFF};
    const SPropPalette back = zkt::ReadBlock<SPropPalette>(image);
    ASSERT_EQ(back.mainColors.size(), 8u);
    for (size_t i = 0; i < 8; ++i)
        EXPECT_EQ(back.mainColors.at(i)->colour, expected[i]) << i;
    EXPECT_EQ(Bytes(image.end() - 12, image.end()), (Bytes{1, 0, 0, 0, 0, 0, 1, 0, 8, 0, 0, 0}));
}

// A reader starts from the reset state: nothing of the eight defaults, and
// with version 0 the flags and maximum as reset.
TEST(PaletteBlock, VersionZeroKeepsTheResetFlagsAndNoDefaultColours) {
    Bytes b;
    Put(b, {0, 0, 1, 0});
    Put(b, {0xFF, 0xFF, 1, 0, 12, 0});
    Ascii(b, "SPaletteMenu");
    Put(b, {0, 0, 0, 0}); // an entry of version 0: its fields stay
    Put(b, {0, 0, 0, 0, /* not read */ 1, 1, 0, 1, 3, 0, 0, 0});
    bool complete = false;
    const SPropPalette block = zkt::ReadBlock<SPropPalette>(b, &complete);
    EXPECT_TRUE(complete) << "the rest is not part of a version 0 block";
    EXPECT_EQ(block.mainColors.size(), 0u);
    ASSERT_EQ(block.menus.size(), 1u);
    EXPECT_EQ(block.menus.at(0)->text, u"");
    EXPECT_EQ(block.menus.at(0)->id, 0);
    EXPECT_EQ(block.autoSize, 0);
    EXPECT_EQ(block.enableRecent, 1);
    EXPECT_EQ(block.recentMax, 8);
}

TEST(PaletteBlock, NullElementsStayNullAndShortBlocksAreNotComplete) {
    Bytes b;
    Put(b, {2, 0, 0, 0, 0xFF, 0xFF, 1, 0, 13, 0});
    Ascii(b, "SPaletteColor");
    Put(b, {1, 0, 0, 0, 1, 2, 3, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 8, 0, 0, 0});
    const SPropPalette block = zkt::ReadBlock<SPropPalette>(b);
    ASSERT_EQ(block.mainColors.size(), 2u);
    EXPECT_EQ(block.mainColors.at(0), nullptr);
    EXPECT_EQ(block.mainColors.at(1)->colour, 0x030201u);
    for (size_t cut : {size_t{0}, size_t{1}, b.size() - 1}) {
        bool complete = true;
        zkt::ReadBlock<SPropPalette>(Bytes(b.begin(), b.begin() + static_cast<long>(cut)), &complete);
        EXPECT_FALSE(complete) << cut;
    }
}

TEST(PaletteBlock, AssignmentCopiesEveryElementIntoANewObject) {
    SPropPalette source = GoldenBlock();
    source.mainColors.Add(nullptr);
    SPropPalette copy;
    copy.menus.Add(std::make_unique<SPaletteMenu>(u"gone", 1));
    copy = source;
    ASSERT_EQ(copy.mainColors.size(), 3u);
    ASSERT_EQ(copy.menus.size(), 2u) << "the destination was reset first";
    EXPECT_NE(copy.mainColors.at(0), source.mainColors.at(0));
    EXPECT_EQ(copy.mainColors.at(2), nullptr);
    copy.mainColors.at(0)->colour = 1;
    copy.menus.at(0)->text = u"changed";
    EXPECT_EQ(source.mainColors.at(0)->colour, 0x0000FFu);
    EXPECT_EQ(source.menus.at(0)->text, u"Red");
    EXPECT_EQ(copy.recentMax, 12);
    const SPropPalette constructed(source);
    EXPECT_NE(constructed.menus.at(1), source.menus.at(1));
    EXPECT_EQ(constructed.menus.at(1)->id, 9);
}

} // namespace
