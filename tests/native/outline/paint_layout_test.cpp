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

TEST(PaintGeometry, LineAndBoxSums) {
    // indent 8, average width 7: half 3, step 24.
    const RowLayout l = LayoutRow(TreeRow(2));
    EXPECT_EQ(l.half, 3);
    EXPECT_EQ(l.step, 24);
    EXPECT_EQ(l.indentPx, 48);
    EXPECT_EQ(LbxLineX(l.step, 2, 0), 38); // the box of level 2 centres at 38
    EXPECT_EQ(LbxLineX(l.step, 1, 0), l.step / 2 + 2);
    EXPECT_EQ(LbxLineX(l.step, 1, 100), 114);
    EXPECT_EQ(LbxMidY(LbxRect{0, 20, 10, 35}), 27);
    const LbxRect box = LbxBoxRect(38, 28);
    EXPECT_EQ(box.left, 34);
    EXPECT_EQ(box.top, 24);
    EXPECT_EQ(box.right - box.left, 9);
    EXPECT_EQ(box.bottom - box.top, 9);
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
    EXPECT_EQ(l.frame.left, l.textX - 2);
    EXPECT_EQ(l.frame.right, l.textX - 2 + 50 + 4);
    EXPECT_EQ(l.frame.top, 20);
    EXPECT_EQ(l.frame.bottom, 36);
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
    const LbxRect f = LayoutRow(in).frame;
    EXPECT_EQ(f.left, 0);
    EXPECT_EQ(f.top, 19);
    EXPECT_EQ(f.right, 202);
    EXPECT_EQ(f.bottom, 38);
}

TEST(PaintGeometry, TextRectangleUsesTheAverageGapForFlatItems) {
    RowInput in = WithPicture(Row());
    const LbxRect r = TextRectangle(in);
    EXPECT_EQ(r.left, 7 + 16); // the paint puts it at 5 + 16
    EXPECT_EQ(LayoutRow(in).textX, 5 + 16);
    EXPECT_EQ(r.top, 21);
    EXPECT_EQ(r.right, r.left + 54);
    EXPECT_EQ(r.bottom, 21 + 16); // the larger of text and picture
    const LbxRect t = TextRectangle(TreeRow(3));
    EXPECT_EQ(t.left, 72);
    EXPECT_EQ(t.bottom, 21 + 13);
    const LbxRect a = TextRectangle(WithPicture(Row(LBX_StylePictureAbove), 32, 32));
    EXPECT_EQ(a.left, 75);
    EXPECT_EQ(a.top, 52);
    EXPECT_EQ(ExtentNeeded(30, 50), 84);
}

TEST(PaintLook, ColoursAndPictureByState) {
    StateLook l = ChooseLook(0, 0, false);
    EXPECT_EQ(l.text, TextColour::Item);
    EXPECT_EQ(l.back, BackColour::Background);
    EXPECT_EQ(l.picture, PictureChoice::Normal);
    EXPECT_EQ(l.mark, SelectedMark::Clear);
    l = ChooseLook(0, 0, true);
    EXPECT_EQ(l.text, TextColour::HighlightText);
    EXPECT_EQ(l.back, BackColour::Highlight);
    EXPECT_EQ(l.picture, PictureChoice::Selected);
    EXPECT_EQ(l.mark, SelectedMark::Set);
    EXPECT_EQ(ChooseLook(LBX_StyleKeepTextColor, 0, true).text, TextColour::Item);
    EXPECT_EQ(ChooseLook(LBX_StyleKeepTextColor, 0, true).back, BackColour::Highlight);
    l = ChooseLook(LBX_StyleNoHighlight | LBX_StyleItemColorBack, 0, true);
    EXPECT_EQ(l.text, TextColour::Item);
    EXPECT_EQ(l.back, BackColour::Background);
    EXPECT_EQ(ChooseLook(LBX_StyleItemColorBack, 0, true).back, BackColour::Item);
}

TEST(PaintLook, DisabledAndInactiveRows) {
    // A selected disabled row paints as not selected.
    StateLook l = ChooseLook(0, LBX_ItemDisabled, true);
    EXPECT_EQ(l.back, BackColour::Background);
    EXPECT_EQ(l.mark, SelectedMark::Clear);
    EXPECT_EQ(l.picture, PictureChoice::Normal);
    // An owed inactive frame keeps the selection mark as it is.
    l = ChooseLook(0, LBX_ItemInactive, true);
    EXPECT_EQ(l.text, TextColour::Item);
    EXPECT_EQ(l.back, BackColour::Background);
    EXPECT_EQ(l.picture, PictureChoice::SelectedElseNormal);
    EXPECT_EQ(l.mark, SelectedMark::Keep);
    EXPECT_EQ(ChooseLook(0, LBX_ItemInactive, false).picture, PictureChoice::Normal);
}

TEST(PaintPicture, BitmapPlaces) {
    const LbxRect row{0, 20, 200, 36};
    // A 32-line bitmap in a 16-line row shows its middle 16 lines.
    PicturePlace p = PlaceBitmap(row, 0, 32, 32, 7, 24);
    EXPECT_EQ(p.sourceTop, 8);
    EXPECT_EQ(p.top, 20);
    EXPECT_EQ(p.height, 16);
    EXPECT_EQ(p.left, 3 + 24);
    EXPECT_FALSE(p.fillColumn);
    p = PlaceBitmap(row, LBX_StyleTextSelect, 16, 10, 5, 0);
    EXPECT_EQ(p.sourceTop, 0);
    EXPECT_EQ(p.top, 23);
    EXPECT_EQ(p.height, 10);
    EXPECT_EQ(p.left, 2);
    EXPECT_TRUE(p.fillColumn);
    p = PlaceBitmap(row, LBX_StylePictureAbove | LBX_StyleTextSelect, 32, 32, 7, 24);
    EXPECT_EQ(p.top, 20);
    EXPECT_EQ(p.left, (200 - 32) / 2 + 1);
    EXPECT_EQ(p.sourceTop, 0);
    EXPECT_FALSE(p.fillColumn);
    p = PlaceBitmap({50, 0, 60, 16}, LBX_StylePictureAbove, 32, 16, 0, 0);
    EXPECT_EQ(p.left, 50); // never left of the row
}

TEST(PaintPicture, IconPlaces) {
    const LbxRect row{0, 20, 200, 36};
    PicturePlace p = PlaceIcon(row, 0, 32, 32, 7, 24);
    EXPECT_EQ(p.top, 12); // no source offset: the icon stands out of the row
    EXPECT_EQ(p.left, 27);
    EXPECT_EQ(p.height, 32);
    EXPECT_TRUE(PlaceIcon(row, LBX_StyleTextSelect, 16, 16, 0, 0).fillColumn);
    EXPECT_EQ(PlaceIcon(row, LBX_StylePictureAbove, 16, 16, 0, 0).top, 20);
}

} // namespace
