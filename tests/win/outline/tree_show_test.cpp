// Showing and hiding: expand, collapse, expand descendants, show outline, delete.
#include "tree_fixture.h"

namespace {

using namespace treetest;

const wchar_t *const kAll = L"A .A1 .A2 ..A2a ..A2b .A3 B C .C1";

TEST_F(FamilyFixture, CollapseHidesTheSubtreeAndExpandShowsOneLevelAgain) {
    EXPECT_EQ(ZelListCollapse(list, 0), 1);
    EXPECT_EQ(Rows(), L"A B C .C1");
    EXPECT_TRUE(Flags(a2a) & LBX_ItemHidden);
    EXPECT_FALSE(Flags(a2) & LBX_ItemExpanded); // the child closed with it
    EXPECT_EQ(Flags(a) & kBox, LBX_ItemPlus);
    Check();
    EXPECT_EQ(ZelListExpand(list, 0), 3);
    EXPECT_EQ(Rows(), L"A .A1 .A2 .A3 B C .C1");
    EXPECT_EQ(Flags(a) & kBox, LBX_ItemMinus | LBX_ItemExpanded);
    Check();
    // Expanding an open node counts the rows already below it, deeper ones included.
    EXPECT_EQ(ZelListExpand(list, 2), 2);
    EXPECT_EQ(ZelListExpand(list, 0), 5);
    EXPECT_EQ(Rows(), kAll);
    Check();
    // A leaf answers 0 yet sets its bits and moves the caret.
    EXPECT_EQ(ZelListExpand(list, 6), 0);
    EXPECT_EQ(Flags(b) & (LBX_ItemExpanded | LBX_ItemMinus), LBX_ItemExpanded | LBX_ItemMinus);
    EXPECT_EQ(Send(list, LB_GETCARETINDEX), 6);
    EXPECT_EQ(ZelListExpand(list, 42), 0);
    EXPECT_EQ(ZelListExpand(nullptr, 0), 0);
}

TEST_F(FamilyFixture, ShowOutlineByLevelAndExpandDescendentsBringRowsBack) {
    EXPECT_EQ(ZelListShowOutline(list, 0), 1);
    EXPECT_EQ(Rows(), L"A B C");
    EXPECT_TRUE(Flags(a2b) & LBX_ItemHidden);
    EXPECT_EQ(ZelListExpand(list, -1), 3); // the root's row is -1
    Check();
    EXPECT_EQ(ZelListShowOutline(list, 1), 1);
    EXPECT_EQ(Rows(), L"A .A1 .A2 .A3 B C .C1");
    Check();
    // 32766 keeps what is hidden hidden; 32767 shows everything.
    EXPECT_EQ(ZelListShowOutline(list, LBX_ShowAllButHidden), 1);
    EXPECT_EQ(Rows(), L"A .A1 .A2 .A3 B C .C1");
    EXPECT_EQ(ZelListShowOutline(list, LBX_ShowEverything), 1);
    EXPECT_EQ(Rows(), kAll);
    EXPECT_EQ(Send(list, LB_GETCARETINDEX), 0);
    Check();
    // Half open: rows in place are kept, missing ones made, at every level.
    ZelListShowOutline(list, 0);
    ZelListExpand(list, 0);
    EXPECT_EQ(ZelListExpandDescendents(list, 0), 1);
    EXPECT_EQ(Rows(), L"A .A1 .A2 ..A2a ..A2b .A3 B C");
    EXPECT_TRUE(Flags(a2) & LBX_ItemExpanded);
    Check();
    EXPECT_EQ(ZelListExpandDescendents(list, 99), 0);
    // A selected node is selected again when its row returns.
    ZelListSetItemFlags(a2a, LBX_ItemSelected, 1);
    ASSERT_EQ(Send(list, LB_GETCURSEL), 3);
    ZelListShowOutline(list, LBX_ShowEverything);
    EXPECT_EQ(Send(list, LB_GETCURSEL), 3);
}

TEST_F(OutlineFixture, ShowOutlineOfAnEmptyTreeOrUnadoptedListFails) {
    EXPECT_EQ(ZelListShowOutline(list, LBX_ShowEverything), 0);
    Load(root, L"only", LBX_ItemHidden);
    EXPECT_EQ(ZelListShowOutline(list, LBX_ShowAllButHidden), 0); // nothing shown at the top
    EXPECT_EQ(ZelListShowOutline(list, LBX_ShowEverything), 1);
    EXPECT_EQ(Rows(), L"only");
    zkt::TestWindow other;
    EXPECT_EQ(ZelListShowOutline(other.AddListBox(1, {0, 0, 50, 50}), LBX_ShowEverything), 0);
}

TEST_F(FamilyFixture, DeleteTakesRowsAndNodesOfTheSubtree) {
    EXPECT_GT(ZelListDeleteChild(list, 2), 0); // A2 with A2a, A2b
    EXPECT_EQ(Rows(), L"A .A1 .A3 B C .C1");
    EXPECT_EQ(ZelListGetLevel(a2), -1); // freed: the handle is stale
    EXPECT_EQ(ZelListGetLevel(a2b), -1);
    Check();
    EXPECT_GT(ZelListDeleteDescendents(list, 0), 0); // A stays
    EXPECT_EQ(Rows(), L"A B C .C1");
    EXPECT_EQ(Flags(a) & (LBX_ItemHasChildren | LBX_ItemExpanded | LBX_ItemMinus), 0u);
    EXPECT_EQ(ZelListGetLevel(a1), -1);
    Check();
    EXPECT_EQ(ZelListDeleteDescendents(list, 1), 0); // B has none
    EXPECT_EQ(ZelListDeleteDescendents(list, 40), -1);
    EXPECT_EQ(ZelListDeleteChild(list, 40), -1);
}

} // namespace
