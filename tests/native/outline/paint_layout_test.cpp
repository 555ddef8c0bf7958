// Where a row's text, picture and frames go, and what colours a state shows.
#include <gtest/gtest.h>

#include "outline/core/paint_layout.h"

using namespace zk::lbx;

using namespace zk::lbx::paint;

namespace {

RowInput Row(uint32_t style = 0) {
    RowInput in;
    in.row = {0, 20, 200, 36};
    in.style = style;
    in.indent = 8;
    in.ave = 7;
    in.tmHeight = 13;
    in.textW = 50;
    return in;
}

RowInput TreeRow(int32_t level, uint32_t style = 0) {
    RowInput in = Row(style);
    in.hasNode = true;
    in.level = level;
    return in;
}

RowInput WithPicture(RowInput in, int32_t w = 16, int32_t h = 16) {
    in.hasPicture = true;
    in.picW = w;
    in.picH = h;
    return in;
}

auto Fields(const LbxRect &r) { return std::tuple(r.left, r.top, r.right, r.bottom); }

TEST(PaintGeometry, LineAndBoxSums) {
    // indent 8, average width 7: half 3, step 24.
    const RowLayout l = LayoutRow(TreeRow(2));
    EXPECT_EQ(std::tuple(l.half, l.step, l.indentPx), std::tuple(3, 24, 48));
    EXPECT_EQ(LbxLineX(l.step, 2, 0), 38); // the box of level 2 centres at 38
    EXPECT_EQ(LbxLineX(l.step, 1, 0), l.step / 2 + 2);
    EXPECT_EQ(LbxLineX(l.step, 1, 100), 114);
    EXPECT_EQ(LbxMidY(LbxRect{0, 20, 10, 35}), 27);
    EXPECT_EQ(Fields(LbxBoxRect(38, 28)), std::tuple(34, 24, 34 + 9, 24 + 9));
    // Odd average widths truncate.
    RowInput odd = TreeRow(1);
    odd.ave = 9;
    EXPECT_EQ(LayoutRow(odd).half, 4);
    EXPECT_EQ(LayoutRow(odd).step, 32);
}

TEST(PaintGeometry, TextBesideThePicture) {
    RowLayout l = LayoutRow(Row());
    EXPECT_EQ(l.textX, 0);
    EXPECT_EQ(l.textY, 21); // (16 - 13) / 2 + 20
    EXPECT_EQ(l.gap, 0);
    l = LayoutRow(WithPicture(Row()));
    EXPECT_EQ(l.gap, 5); // a flat item
    EXPECT_EQ(l.textX, 5 + 16);
    l = LayoutRow(WithPicture(TreeRow(2)));
    EXPECT_EQ(l.gap, 7); // an item with a node: the average width
    EXPECT_EQ(l.textX, 7 + 16 + 48);
    RowInput left = Row();
    left.row.left = 10;
    EXPECT_EQ(LayoutRow(left).textX, 10);
    RowInput tall = Row();
    tall.tmHeight = 20; // taller than the row: above its top
    EXPECT_EQ(LayoutRow(tall).textY, 18);
}

TEST(PaintGeometry, TextUnderThePicture) {
    RowInput in = WithPicture(Row(LBX_StylePictureAbove), 32, 32);
    RowLayout l = LayoutRow(in);
    EXPECT_EQ(l.textY, 20 + 32);
    EXPECT_EQ(l.textX, (200 - 50) / 2);
    in.textW = 400; // wider than the row: starts at the row's left
    EXPECT_EQ(LayoutRow(in).textX, 0);
    // The frame is the whole row above a picture.
    EXPECT_EQ(LayoutRow(in).frame.left, 0);
    EXPECT_EQ(LayoutRow(in).frame.right, 200);
}

TEST(PaintGeometry, Frames) {
    RowLayout l = LayoutRow(WithPicture(TreeRow(1, LBX_StyleTextSelect)));
    EXPECT_EQ(Fields(l.frame), std::tuple(l.textX - 2, 20, l.textX - 2 + 50 + 4, 36));
    RowInput wide = TreeRow(1, LBX_StyleTextSelect);
    wide.textW = 500;
    EXPECT_EQ(LayoutRow(wide).frame.right, 200);
    l = LayoutRow(WithPicture(TreeRow(1, LBX_StyleIndentSelect)));
    EXPECT_EQ(l.frame.left, 24);
    EXPECT_EQ(l.frame.right, 24 + 50 + 7 + 16 + 4);
    // Text selection wins when both are set.
    l = LayoutRow(TreeRow(1, LBX_StyleIndentSelect | LBX_StyleTextSelect));
    EXPECT_EQ(l.frame.left, l.textX - 2);
    l = LayoutRow(Row());
    EXPECT_EQ(l.frame.left, 0);
    EXPECT_EQ(l.frame.right, 200);
}

TEST(PaintGeometry, DisabledRowsGetAMargin) {
    RowInput in = Row(LBX_StyleTextSelect);
    in.disabled = true;
    EXPECT_EQ(LayoutRow(in).frame.left, LayoutRow(in).textX - 2); // left edge 0: no margin
    in.row.left = 1;
    EXPECT_EQ(Fields(LayoutRow(in).frame), std::tuple(0, 19, 202, 38));
}

TEST(PaintGeometry, TextRectangleUsesTheAverageGapForFlatItems) {
    RowInput in = WithPicture(Row());
    // Left at 7 + 16 where the paint puts it at 5 + 16; the bottom from the
    // larger of text and picture.
    EXPECT_EQ(Fields(TextRectangle(in)), std::tuple(7 + 16, 21, 7 + 16 + 54, 21 + 16));
    EXPECT_EQ(LayoutRow(in).textX, 5 + 16);
    const LbxRect t = TextRectangle(TreeRow(3));
    EXPECT_EQ(t.left, 72);
    EXPECT_EQ(t.bottom, 21 + 13);
    const LbxRect a = TextRectangle(WithPicture(Row(LBX_StylePictureAbove), 32, 32));
    EXPECT_EQ(a.left, 75);
    EXPECT_EQ(a.top, 52);
    EXPECT_EQ(ExtentNeeded(30, 50), 84);
}

TEST(PaintLook, ColoursAndPictureByState) {
    using enum TextColour;
    using enum PictureChoice;
    using enum SelectedMark;
    const struct {
        uint32_t style, flags;
        bool selected;
        std::tuple<TextColour, BackColour, PictureChoice, SelectedMark> look;
    } cases[] = {
        {0, 0, false, {Item, BackColour::Background, Normal, Clear}},
        {0, 0, true, {HighlightText, BackColour::Highlight, Selected, Set}},
        {LBX_StyleKeepTextColor, 0, true, {Item, BackColour::Highlight, Selected, Set}},
        {LBX_StyleNoHighlight | LBX_StyleItemColorBack, 0, true, {Item, BackColour::Background, Selected, Set}},
        {LBX_StyleItemColorBack, 0, true, {HighlightText, BackColour::Item, Selected, Set}},
        // A selected disabled row paints as not selected.
        {0, LBX_ItemDisabled, true, {Item, BackColour::Background, Normal, Clear}},
        // An owed inactive frame keeps the selection mark as it is.
        {0, LBX_ItemInactive, true, {Item, BackColour::Background, SelectedElseNormal, Keep}},
        {0, LBX_ItemInactive, false, {Item, BackColour::Background, Normal, Keep}},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(testing::Message() << std::hex << c.style << " " << c.flags << " " << c.selected);
        const StateLook l = ChooseLook(c.style, c.flags, c.selected);
        EXPECT_EQ(std::tuple(l.text, l.back, l.picture, l.mark), c.look);
    }
}

TEST(PaintPicture, BitmapAndIconPlaces) {
    const LbxRect row{0, 20, 200, 36};
    const uint32_t above = LBX_StylePictureAbove, text = LBX_StyleTextSelect;
    const struct {
        bool icon;
        LbxRect row;
        uint32_t style;
        int32_t picW, picH, gap, indentPx;
        std::tuple<int32_t, int32_t, int32_t, int32_t, bool> place; // left, top, source top, height, fill
    } cases[] = {
        // A 32-line bitmap in a 16-line row shows its middle 16 lines.
        {false, row, 0, 32, 32, 7, 24, {3 + 24, 20, 8, 16, false}},
        {false, row, text, 16, 10, 5, 0, {2, 23, 0, 10, true}},
        {false, row, above | text, 32, 32, 7, 24, {(200 - 32) / 2 + 1, 20, 0, 16, false}},
        {false, {50, 0, 60, 16}, above, 32, 16, 0, 0, {50, 0, 0, 16, false}}, // never left of the row
        // No source offset: the icon stands out of the row.
        {true, row, 0, 32, 32, 7, 24, {27, 12, 0, 32, false}},
        {true, row, text, 16, 16, 0, 0, {0, 20, 0, 16, true}},
        {true, row, above, 16, 16, 0, 0, {(200 - 16) / 2 + 1, 20, 0, 16, false}},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(testing::Message() << (c.icon ? "icon " : "bitmap ") << c.picW << "x" << c.picH << " style "
                                        << std::hex << c.style);
        const PicturePlace p = (c.icon ? PlaceIcon : PlaceBitmap)(c.row, c.style, c.picW, c.picH, c.gap, c.indentPx);
        EXPECT_EQ(std::tuple(p.left, p.top, p.sourceTop, p.height, p.fillColumn), c.place);
    }
}

} // namespace
