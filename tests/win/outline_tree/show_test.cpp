// Showing and hiding: expand, collapse, expand descendants, show outline, delete.
#include "tree_fixture.h"

namespace {

using namespace treetest;

TEST_F(FamilyFixture, CollapseHidesTheSubtreeAndExpandShowsOneLevelAgain) {
    EXPECT_EQ(ZelListCollapse(list, 0), 1);
    EXPECT_EQ(Rows(), L"A B C .C1");
    Check();
    EXPECT_TRUE(Flags(a2a) & LBX_ItemHidden);
    EXPECT_FALSE(Flags(a2) & LBX_ItemExpanded); // the child closed with it
    EXPECT_EQ(Flags(a) & (LBX_ItemPlus | LBX_ItemMinus | LBX_ItemExpanded), LBX_ItemPlus);
    EXPECT_EQ(ZelListExpand(list, 0), 3);
    EXPECT_EQ(Rows(), L"A .A1 .A2 .A3 B C .C1");
    Check();
    EXPECT_EQ(Flags(a) & (LBX_ItemPlus | LBX_ItemMinus | LBX_ItemExpanded), LBX_ItemMinus | LBX_ItemExpanded);
    EXPECT_EQ(Send(list, LB_GETCARETINDEX), 0);
    // Expanding an open node counts the rows already below it, deeper ones included.
    EXPECT_EQ(ZelListExpand(list, 2), 2);
    EXPECT_EQ(ZelListExpand(list, 0), 5);
    EXPECT_EQ(Rows(), L"A .A1 .A2 ..A2a ..A2b .A3 B C .C1");
    Check();
}

TEST_F(FamilyFixture, ExpandOnALeafAnswersZeroButSetsTheBitsAndMovesTheCaret) {
    EXPECT_EQ(ZelListExpand(list, 6), 0); // B
    EXPECT_EQ(Flags(b) & (LBX_ItemExpanded | LBX_ItemMinus), LBX_ItemExpanded | LBX_ItemMinus);
    EXPECT_EQ(Send(list, LB_GETCARETINDEX), 6);
    EXPECT_EQ(ZelListExpand(list, 42), 0);
    EXPECT_EQ(ZelListExpand(nullptr, 0), 0);
}

TEST_F(FamilyFixture, ExpandOfTheRootRowMinusOneShowsTheTopLevel) {
    ASSERT_EQ(ZelListShowOutline(list, 0), 1);
    EXPECT_EQ(Rows(), L"A B C");
    EXPECT_EQ(ZelListExpand(list, -1), 3);
    EXPECT_EQ(Rows(), L"A B C");
    Check();
}

TEST_F(FamilyFixture, ExpandDescendentsOpensEveryLevelBelowTheRow) {
    ASSERT_EQ(ZelListShowOutline(list, 0), 1);
    Check();
    EXPECT_EQ(ZelListExpandDescendents(list, 0), 1);
    EXPECT_EQ(Rows(), L"A .A1 .A2 ..A2a ..A2b .A3 B C");
    Check();
    EXPECT_TRUE(Flags(a2) & LBX_ItemExpanded);
    // Half open already: rows in place are kept, missing ones made.
    ZelListCollapse(list, 2);
    EXPECT_EQ(ZelListExpandDescendents(list, 0), 1);
    EXPECT_EQ(Rows(), L"A .A1 .A2 ..A2a ..A2b .A3 B C");
    Check();
    EXPECT_EQ(ZelListExpandDescendents(list, 99), 0);
}

TEST_F(FamilyFixture, ShowOutlineByLevelMarksDeeperNodesHidden) {
    EXPECT_EQ(ZelListShowOutline(list, 0), 1);
    EXPECT_EQ(Rows(), L"A B C");
    EXPECT_TRUE(Flags(a1) & LBX_ItemHidden);
    EXPECT_TRUE(Flags(a2b) & LBX_ItemHidden);
    Check();
    EXPECT_EQ(ZelListShowOutline(list, 1), 1);
    EXPECT_EQ(Rows(), L"A .A1 .A2 .A3 B C .C1");
    Check();
    // 32766 keeps what is hidden hidden; 32767 shows everything.
    EXPECT_EQ(ZelListShowOutline(list, LBX_ShowAllButHidden), 1);
    EXPECT_EQ(Rows(), L"A .A1 .A2 .A3 B C .C1");
    Check();
    EXPECT_EQ(ZelListShowOutline(list, LBX_ShowEverything), 1);
    EXPECT_EQ(Rows(), L"A .A1 .A2 ..A2a ..A2b .A3 B C .C1");
    EXPECT_FALSE(Flags(a2a) & LBX_ItemHidden);
    Check();
    EXPECT_EQ(Send(list, LB_GETCARETINDEX), 0);
}

TEST_F(OutlineFixture, ShowOutlineOfAnEmptyTreeOrUnadoptedListFails) {
    EXPECT_EQ(ZelListShowOutline(list, LBX_ShowEverything), 0);
    const H only = Load(root, L"only", LBX_ItemHidden);
    EXPECT_EQ(ZelListShowOutline(list, LBX_ShowAllButHidden), 0); // nothing shown at the top
    EXPECT_EQ(ZelListShowOutline(list, LBX_ShowEverything), 1);
    EXPECT_EQ(Rows(), L"only");
    (void)only;
    zkt::TestWindow other;
    HWND plain = other.addListBox(1, {0, 0, 50, 50});
    EXPECT_EQ(ZelListShowOutline(plain, LBX_ShowEverything), 0);
}

TEST_F(FamilyFixture, SelectedNodesAreSelectedAgainWhenTheirRowsReturn) {
    ZelListSetItemFlags(a2a, LBX_ItemSelected, 1);
    ASSERT_EQ(Send(list, LB_GETCURSEL), 3);
    ZelListShowOutline(list, LBX_ShowEverything);
    EXPECT_EQ(Send(list, LB_GETCURSEL), 3);
}

TEST_F(FamilyFixture, DeleteChildTakesRowsAndNodesOfTheSubtree) {
    const int32_t livesBefore = static_cast<int32_t>(SendMessageW(list, LB_GETCOUNT, 0, 0));
    EXPECT_GT(ZelListDeleteChild(list, 2), 0); // A2 with A2a, A2b
    EXPECT_EQ(Rows(), L"A .A1 .A3 B C .C1");
    EXPECT_EQ(ZelListGetLevel(a2), -1); // freed: the handle is stale
    EXPECT_EQ(ZelListGetLevel(a2b), -1);
    EXPECT_EQ(SendMessageW(list, LB_GETCOUNT, 0, 0), livesBefore - 3);
    Check();
    EXPECT_EQ(ZelListDeleteChild(list, 40), -1);
}

TEST_F(FamilyFixture, DeleteDescendentsEmptiesANodeButKeepsIt) {
    EXPECT_GT(ZelListDeleteDescendents(list, 0), 0);
    EXPECT_EQ(Rows(), L"A B C .C1");
    EXPECT_EQ(Flags(a) & (LBX_ItemHasChildren | LBX_ItemExpanded | LBX_ItemMinus), 0u);
    EXPECT_EQ(ZelListGetLevel(a1), -1);
    Check();
    EXPECT_EQ(ZelListDeleteDescendents(list, 1), 0); // B has none
    EXPECT_EQ(ZelListDeleteDescendents(list, 40), -1);
}

} // namespace
