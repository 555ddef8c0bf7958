// Rows of a flat list: colours by state, the picture, the frames, tabs,
// the focus frames and the horizontal extent.
#include "frame/win/propcache.h"
#include "paint_bench.h"

namespace painttest {
namespace {

const COLORREF kRed = RGB(255, 0, 0);

COLORREF Highlight() { return GetSysColor(COLOR_HIGHLIGHT); }

TEST_F(PaintBench, ItemColourOnTheBackground) {
    LbxItem *item = Item(L"Wide text", kRed | 0x05000000);
    LRESULT answer = 0;
    ASSERT_TRUE(Draw(item, ODA_DRAWENTIRE, 0, {0, 0, kRowWidth, kRowHeight}, &answer));
    EXPECT_EQ(answer, 1);
    EXPECT_GT(canvas.count(kRed), 10); // the colour's top byte is not a colour
    EXPECT_EQ(canvas.pixel(kRowWidth - 1, 0), kWhite);
    const int first = FirstColumn(kRed);
    EXPECT_GE(first, 0);
    EXPECT_LE(first, 2);
    EXPECT_EQ(item->flags & LBX_ItemSelected, 0u);
    EXPECT_EQ(Child().bkColor, GetSysColor(COLOR_WINDOW));
}

TEST_F(PaintBench, SelectedRowsAreHighlightedAndMarked) {
    LbxItem *item = Item(L"Sel", kRed);
    ASSERT_TRUE(Draw(item, ODA_DRAWENTIRE, ODS_SELECTED));
    EXPECT_EQ(canvas.pixel(kRowWidth - 1, kRowHeight - 1), Highlight());
    EXPECT_EQ(canvas.count(kRed), 0);
    EXPECT_GT(canvas.count(GetSysColor(COLOR_HIGHLIGHTTEXT)), 5);
    EXPECT_NE(item->flags & LBX_ItemSelected, 0u);
    SetStyle(LBX_StyleKeepTextColor);
    ASSERT_TRUE(Draw(item, ODA_DRAWENTIRE, ODS_SELECTED));
    EXPECT_GT(canvas.count(kRed), 5);
    SetStyle(LBX_StyleItemColorBack);
    ASSERT_TRUE(Draw(item, ODA_DRAWENTIRE, ODS_SELECTED));
    EXPECT_EQ(canvas.pixel(kRowWidth - 1, 0), kRed);
    SetStyle(LBX_StyleNoHighlight);
    ASSERT_TRUE(Draw(item, ODA_DRAWENTIRE, ODS_SELECTED));
    EXPECT_EQ(canvas.pixel(kRowWidth - 1, 0), kWhite);
    EXPECT_GT(canvas.count(kRed), 5);
    ASSERT_TRUE(Draw(item, ODA_DRAWENTIRE, 0));
    EXPECT_EQ(item->flags & LBX_ItemSelected, 0u);
}

TEST_F(PaintBench, ASelectedDisabledRowPaintsAsNotSelected) {
    LbxItem *item = Item(L"Off", kRed, LBX_ItemDisabled);
    ASSERT_TRUE(Draw(item, ODA_DRAWENTIRE, ODS_SELECTED, {0, 0, kRowWidth, kRowHeight}));
    EXPECT_EQ(canvas.count(Highlight()), 0);
    EXPECT_GT(canvas.count(kRed), 5);
    EXPECT_EQ(item->flags & LBX_ItemSelected, 0u);
}

TEST_F(PaintBench, TextSelectHighlightsTheTextOnlyAndKeepsThePictureClear) {
    SetStyle(LBX_StyleTextSelect);
    LbxItem *item = Item(L"Text", kBlack);
    item->picSelected = item->picNormal = Picture();
    ASSERT_TRUE(Draw(item, ODA_DRAWENTIRE, ODS_SELECTED));
    const int textX = 5 + 16; // a flat item: gap 5
    const int frameRight = textX - 2 + Width(L"Text") + 4;
    EXPECT_EQ(canvas.pixel(textX - 2, 0), Highlight());
    EXPECT_EQ(canvas.pixel(textX - 3, 0), kWhite);
    EXPECT_EQ(canvas.pixel(frameRight - 1, 0), Highlight());
    EXPECT_EQ(canvas.pixel(frameRight, 0), kWhite);
    // The picture at gap / 2: its transparent parts show the background.
    EXPECT_EQ(canvas.pixel(2 + 1, 1), kWhite);
    EXPECT_EQ(canvas.pixel(2 + 4, 4), kBlack);
    EXPECT_EQ(canvas.pixel(2 + 11, 11), kBlack);
    EXPECT_EQ(canvas.pixel(2 + 12, 12), kWhite);
    EXPECT_EQ(canvas.count(kKey), 0);
}

TEST_F(PaintBench, APictureIsTransparentOverTheHighlight) {
    LbxItem *item = Item(L"Row", kBlack);
    item->picSelected = Picture();
    item->picNormal = nullptr;
    ASSERT_TRUE(Draw(item, ODA_DRAWENTIRE, ODS_SELECTED));
    EXPECT_EQ(canvas.pixel(2, 1), Highlight());
    EXPECT_EQ(canvas.pixel(2 + 5, 5), kBlack);
    EXPECT_EQ(canvas.count(kKey), 0);
    // Unselected, the normal picture (none here) is shown: no square.
    ASSERT_TRUE(Draw(item, ODA_DRAWENTIRE, 0));
    EXPECT_EQ(canvas.pixel(2 + 5, 5), kWhite);
    // A picture freed behind the row is not painted.
    item->picNormal = Picture();
    delete item->picNormal;
    pictures.pop_back();
    ASSERT_TRUE(Draw(item, ODA_DRAWENTIRE, 0));
    EXPECT_EQ(canvas.pixel(2 + 5, 5), kWhite);
}

TEST_F(PaintBench, TabsGoToTheStopsAfterTheTextStart) {
    SetTabs({60}, 1);
    LbxItem *item = Item(L"A\tB", kBlack);
    ASSERT_TRUE(Draw(item, ODA_DRAWENTIRE, 0));
    const int b = FirstColumn(kBlack, 20);
    EXPECT_GE(b, 60);
    EXPECT_LE(b, 62);
    EXPECT_LT(FirstColumn(kBlack), 10);
}

// Pixels of the row's top line that differ from white.
int TopLineMarks(const zkt::Bitmap &canvas, int from) {
    int marks = 0;
    for (int x = from; x < kRowWidth; ++x)
        marks += canvas.pixel(x, 0) != kWhite;
    return marks;
}

TEST_F(PaintBench, FocusFramesAreDrawnTwiceOnARowOffTheLeftEdge) {
    SetStyle(LBX_StyleShowInactive);
    LbxItem *item = Item(L"f");
    // At the left edge: once, on the frame.
    ASSERT_TRUE(Draw(item, ODA_FOCUS, ODS_FOCUS));
    EXPECT_GT(TopLineMarks(canvas, 0), 20);
    // Off the edge: on the frame, then on the row, which is the same
    // rectangle here, so the two inversions cancel.
    canvas.fill(kWhite);
    ASSERT_TRUE(Draw(item, ODA_FOCUS, ODS_FOCUS, {4, 0, kRowWidth, kRowHeight}));
    EXPECT_EQ(TopLineMarks(canvas, 4), 0);
    // A list without the focus styles frames a focus action once and paints nothing else.
    SetStyle(0);
    canvas.fill(kWhite);
    ASSERT_TRUE(Draw(Item(L"WWWW", kRed), ODA_FOCUS, ODS_FOCUS));
    EXPECT_GT(TopLineMarks(canvas, 0), 20);
    EXPECT_EQ(canvas.count(kRed), 0);
}

TEST_F(PaintBench, OwedFramesArePaidOnce) {
    LbxItem *item = Item(L"owed", kBlack, LBX_ItemInactive | LBX_ItemFocusMark);
    ASSERT_TRUE(Draw(item, ODA_DRAWENTIRE, 0));
    EXPECT_EQ(canvas.pixel(0, 0), Highlight()); // the inactive frame
    EXPECT_EQ(canvas.pixel(kRowWidth - 1, kRowHeight - 1), Highlight());
    EXPECT_EQ(item->flags & (LBX_ItemInactive | LBX_ItemFocusMark), 0u); // not selected: the mark is dropped
    // Selected, the owed focus frame is drawn over the highlight and stays owed.
    ASSERT_TRUE(Draw(item, ODA_DRAWENTIRE, ODS_SELECTED));
    std::vector<COLORREF> plain;
    for (int x = 0; x < kRowWidth; ++x)
        plain.push_back(canvas.pixel(x, 0));
    item->flags |= LBX_ItemFocusMark;
    ASSERT_TRUE(Draw(item, ODA_DRAWENTIRE, ODS_SELECTED));
    EXPECT_NE(item->flags & LBX_ItemFocusMark, 0u);
    int changed = 0;
    for (int x = 0; x < kRowWidth; ++x)
        changed += canvas.pixel(x, 0) != plain[static_cast<size_t>(x)];
    EXPECT_GT(changed, 20);
}

TEST_F(PaintBench, EmptyListsAndForeignControls) {
    canvas.fill(kWhite);
    LRESULT answer = 7;
    ASSERT_TRUE(Draw(reinterpret_cast<void *>(-1), ODA_DRAWENTIRE, ODS_FOCUS, {0, 0, kRowWidth, kRowHeight}, &answer));
    EXPECT_EQ(answer, 0);
    EXPECT_GT(TopLineMarks(canvas, 0), 20);
    canvas.fill(kWhite);
    ASSERT_TRUE(Draw(reinterpret_cast<void *>(-1), ODA_DRAWENTIRE, 0));
    EXPECT_EQ(TopLineMarks(canvas, 0), 0);
    // A row whose data is no item paints no text of ours.
    ASSERT_TRUE(Draw(nullptr, ODA_DRAWENTIRE, 0, {0, 0, kRowWidth, kRowHeight}, &answer));
    EXPECT_EQ(answer, 1);
    zk::PropRemove(list, L"ZK:ChildLbx");
    EXPECT_FALSE(Draw(Item(L"x"), ODA_DRAWENTIRE, 0));
    zk::PropSet(list, L"ZK:ChildLbx", record);
}

} // namespace
} // namespace painttest
