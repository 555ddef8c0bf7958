// Tree lines and the plus/minus box, pixel by pixel.
#include "paint_bench.h"

#include "outline/core/paint_lines.h"

using namespace zk::lbx;

namespace painttest {
namespace {

class TreePaint : public PaintBench {
protected:
    // A (0) > B (1, A's last child) > C (2, B's first child), D (2, last);
    // C has a child E (3).
    void SetUp() override {
        PaintBench::SetUp();
        a = Node(nullptr, L"A");
        b = Node(a, L"B");
        c = Node(b, L"C");
        d = Node(b, L"D");
        e = Node(c, L"E");
    }
    int Step() const { return 8 * (Metrics().tmAveCharWidth / 2); }
    int LineX(int level) const { return LbxLineX(Step(), level, 0); }

    LbxNode *a = nullptr, *b = nullptr, *c = nullptr, *d = nullptr, *e = nullptr;
};

TEST_F(TreePaint, OutlineLinesAreAGrayCheckerPattern) {
    SetStyle(LBX_StyleOutline | LBX_StyleTextSelect);
    d->item->text.assign(u""); // the stub reaches 3 pixels into where the text starts
    ASSERT_TRUE(Draw(d->item, ODA_DRAWENTIRE, 0));
    const int x = LineX(2);
    const int mid = kRowHeight / 2;
    // D is the last child: its line runs from the top to the middle only.
    for (int y = 0; y < kRowHeight; ++y) {
        const bool drawn = y < mid && zk::lbx::paint::DottedPointDrawn(x, y);
        EXPECT_EQ(canvas.pixel(x, y), drawn ? kGray : kWhite) << "y " << y;
    }
    // The stub runs one pixel beyond half a step.
    for (int sx = x; sx < x + Step() / 2 + 1; ++sx)
        EXPECT_EQ(canvas.pixel(sx, mid), zk::lbx::paint::DottedPointDrawn(sx, mid) ? kGray : kWhite) << "x " << sx;
    EXPECT_EQ(canvas.pixel(x + Step() / 2 + 1, mid), kWhite);
    // B, the parent, is a last child: no line in its column.
    for (int y = 0; y < kRowHeight; ++y)
        EXPECT_EQ(canvas.pixel(LineX(1), y), kWhite) << "y " << y;
    EXPECT_EQ(canvas.count(kBlack, RECT{0, 0, x + Step() / 2 + 2, kRowHeight}), 0); // no box: D has no children
}

TEST_F(TreePaint, LevelZeroHasNeitherLineNorBox) {
    SetStyle(LBX_StyleOutline);
    ASSERT_TRUE(Draw(a->item, ODA_DRAWENTIRE, 0));
    EXPECT_EQ(canvas.count(kGray, RECT{0, 0, 40, kRowHeight}), 0);
}

TEST_F(TreePaint, CollapsedBoxShowsAPlus) {
    SetStyle(LBX_StyleOutline | LBX_StyleTextSelect);
    ASSERT_TRUE(Draw(c->item, ODA_DRAWENTIRE, 0));
    const int x = LineX(2), y = kRowHeight / 2;
    const RECT box{x - 4, y - 4, x + 5, y + 5};
    // The frame: solid gray on its outer pixels, all of them.
    for (int i = box.left; i < box.right; ++i) {
        EXPECT_EQ(canvas.pixel(i, box.top), kGray);
        EXPECT_EQ(canvas.pixel(i, box.bottom - 1), kGray);
    }
    for (int j = box.top; j < box.bottom; ++j) {
        EXPECT_EQ(canvas.pixel(box.left, j), kGray);
        EXPECT_EQ(canvas.pixel(box.right - 1, j), kGray);
    }
    // Inside: the background, a bar across and one down in the DC's pen.
    for (int i = x - 2; i <= x + 2; ++i)
        EXPECT_EQ(canvas.pixel(i, y), kBlack) << i;
    for (int j = y - 2; j <= y + 2; ++j)
        EXPECT_EQ(canvas.pixel(x, j), kBlack) << j;
    EXPECT_EQ(canvas.pixel(x - 3, y), kWhite);
    EXPECT_EQ(canvas.pixel(x, y - 3), kWhite);
    EXPECT_EQ(canvas.pixel(x - 2, y - 2), kWhite);
    // C is not the last child: its line runs on below the box.
    EXPECT_EQ(canvas.pixel(x, kRowHeight - 1), zk::lbx::paint::DottedPointDrawn(x, kRowHeight - 1) ? kGray : kWhite);
}

TEST_F(TreePaint, ExpandedBoxShowsAMinusAndPlusFlagAloneShowsABox) {
    SetStyle(LBX_StyleOutline | LBX_StyleTextSelect);
    c->item->flags |= LBX_ItemExpanded;
    ASSERT_TRUE(Draw(c->item, ODA_DRAWENTIRE, 0));
    const int x = LineX(2), y = kRowHeight / 2;
    EXPECT_EQ(canvas.pixel(x, y), kBlack);
    EXPECT_EQ(canvas.pixel(x, y - 2), kWhite);
    EXPECT_EQ(canvas.pixel(x, y + 2), kWhite);
    // A node without children shows the box when it says it has some.
    e->item->flags |= LBX_ItemPlus;
    canvas.fill(kBlack);
    ASSERT_TRUE(Draw(e->item, ODA_DRAWENTIRE, 0));
    const int x3 = LineX(3);
    EXPECT_EQ(canvas.pixel(x3 - 4, y - 4), kGray);
    EXPECT_EQ(canvas.pixel(x3, y + 2), kBlack);
}

TEST_F(TreePaint, PlainTreeLinesAreSolidBlackWithAShorterStub) {
    SetStyle(0, 8);
    c->item->text.assign(u""); // the stub ends where the text starts
    e->item->text.assign(u"");
    ASSERT_TRUE(Draw(c->item, ODA_DRAWENTIRE, 0));
    const int x = LineX(2), y = kRowHeight / 2;
    for (int j = 0; j < kRowHeight; ++j)
        EXPECT_EQ(canvas.pixel(x, j), kBlack) << j;
    for (int i = x; i < x + Step() / 2 - 2; ++i)
        EXPECT_EQ(canvas.pixel(i, y), kBlack) << i;
    EXPECT_EQ(canvas.pixel(x + Step() / 2 - 2, y), kWhite);
    EXPECT_EQ(canvas.count(kGray), 0); // no box without the outline style
    // An ancestor that is not a last child keeps its column: E under C.
    canvas.fill(kWhite);
    ASSERT_TRUE(Draw(e->item, ODA_DRAWENTIRE, 0));
    for (int j = 0; j < kRowHeight; ++j) {
        EXPECT_EQ(canvas.pixel(LineX(2), j), kBlack) << j;
        EXPECT_EQ(canvas.pixel(LineX(1), j), kWhite) << j;
    }
}

TEST_F(TreePaint, NoLinesStyleAndFocusActionsSkipTheLines) {
    SetStyle(LBX_StyleOutline | LBX_StyleNoLines);
    ASSERT_TRUE(Draw(c->item, ODA_DRAWENTIRE, 0));
    EXPECT_EQ(canvas.count(kGray), 0);
    SetStyle(LBX_StyleOutline | LBX_StyleShowInactive);
    canvas.fill(kWhite);
    ASSERT_TRUE(Draw(c->item, ODA_FOCUS, 0));
    EXPECT_EQ(canvas.count(kGray), 0);
}

TEST_F(TreePaint, TextStandsAfterTheIndent) {
    SetStyle(LBX_StyleOutline | LBX_StyleTextSelect);
    d->item->color = RGB(0, 0, 255);
    ASSERT_TRUE(Draw(d->item, ODA_DRAWENTIRE, 0));
    const int textX = 2 * Step(); // level 2, no picture
    const int first = FirstColumn(RGB(0, 0, 255));
    EXPECT_GE(first, textX);
    EXPECT_LE(first, textX + 2);
}

} // namespace
} // namespace painttest
