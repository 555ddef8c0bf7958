// Drop step of drag and drop within a list and between sibling lists.
#include "tree_fixture.h"

namespace {

using namespace treetest;

TEST_F(FamilyFixture, DropBelowTheSourceCorrectsTheTargetRowByTheRowsTakenOut) {
    EXPECT_EQ(ZelListDragDrop(list, 0, list, 7, LBX_DropAsChild), 1); // A (6 rows) into C
    // The subtree's rows are numbered without stepping over A2's children.
    EXPECT_EQ(Rows(), L"B C .C1 .A ..A1 ..A2 ..A3 ...A2a ...A2b");
    EXPECT_EQ(ZelListGetParent(a), c);
    EXPECT_EQ(Send(list, LB_GETCARETINDEX), 1);
    // The level it came from decides the left line: 0, so none.
    EXPECT_EQ(Flags(a) & kConn, 0x00060000u);
    // B, first at the top level now, takes 0x00090000 left line and all.
    EXPECT_EQ(Flags(b) & kConn, 0x00090000u);
    tolerance.leftLineByOldLevel.insert(N(a));
    tolerance.connectorsFree.insert(N(b));
    EXPECT_EQ(CheckTree(list, tolerance), "");
    ASSERT_EQ(ZelListShowOutline(list, LBX_ShowEverything), 1);
    Check();
    EXPECT_EQ(ZelListDragDrop(list, 3, list, 0, LBX_DropAsSibling), 1); // A back after B
    EXPECT_EQ(Rows(), L"B A .A1 .A2 .A3 ..A2a ..A2b C .C1");
    EXPECT_EQ(CheckTree(list, tolerance), "");
}

TEST_F(FamilyFixture, DropOnACollapsedTargetOpensItAndBothBitsMeanChild) {
    ZelListCollapse(list, 7);                                         // C closed
    EXPECT_EQ(ZelListDragDrop(list, 1, list, 7, LBX_DropAsChild), 1); // A1 into C
    EXPECT_EQ(Rows(), L"A .A2 ..A2a ..A2b .A3 B C .C1 .A1");
    EXPECT_EQ(Flags(c) & kBox, LBX_ItemExpanded | LBX_ItemMinus);
    EXPECT_EQ(Flags(a1) & kConn, 0x00070000u);
    Check();
    EXPECT_EQ(ZelListDragDrop(list, 2, list, 0, LBX_DropAsChild | LBX_DropAsSibling), 1); // A2a into A
    EXPECT_EQ(ZelListGetParent(a2a), a);
    tolerance.connectors = false;
    Check();
}

TEST_F(FamilyFixture, DropOnItsOwnChildLiftsTheChildrenFirst) {
    EXPECT_EQ(ZelListDragDrop(list, 0, list, 2, LBX_DropAsChild), 1); // A onto A2
    EXPECT_EQ(Rows(), L"A1 A2 .A2a .A2b .A A3 B C .C1");
    EXPECT_EQ(ZelListGetParent(a1), root);
    EXPECT_EQ(ZelListGetParent(a), a2);
    EXPECT_EQ(Flags(a) & (LBX_ItemHasChildren | LBX_ItemExpanded | LBX_ItemPlus), 0u);
    // Lifted children keep their bits but for the first's 0x00060000 (taken
    // off again as it became first) and the last's HasNext.
    EXPECT_EQ(Flags(a1) & kConn, 0x00090000u);
    EXPECT_EQ(Flags(a3) & kConn, 0x000F0000u);
    tolerance.connectors = false;
    Check();
    // Without a next sibling to take the place it fails after lifting.
    EXPECT_EQ(ZelListDragDrop(list, 7, list, 8, LBX_DropAsChild), 0); // C onto C1
    EXPECT_EQ(Rows(), L"A1 A2 .A2a .A2b .A A3 B C C1");               // rows stay, levels follow
    EXPECT_EQ(ZelListGetNextSibling(c), c1);
    EXPECT_EQ(Flags(c) & (LBX_ItemHasChildren | LBX_ItemExpanded), LBX_ItemHasChildren | LBX_ItemExpanded);
    tolerance.childBitFree.insert(N(c));
    Check();
}

TEST_F(FamilyFixture, DropWithoutAModeUnlinksTheNodeKeepsItAndShowsItsRows) {
    EXPECT_EQ(ZelListDragDrop(list, 6, list, 0, 0), 1); // B, no place
    EXPECT_EQ(ZelListGetParent(b), 0);
    EXPECT_EQ(ZelListGetLevel(b), 0); // not freed
    EXPECT_EQ(ZelListGetNextSibling(a), c);
    EXPECT_EQ(Rows(), L"A .A1 .A2 ..A2a ..A2b .A3 B C .C1"); // after the target's subtree all the same
    EXPECT_EQ(CheckTree(list, tolerance), "");
    EXPECT_NE(CheckRows(list, tolerance), ""); // a row for a node outside the tree
    ASSERT_EQ(ZelListShowOutline(list, LBX_ShowEverything), 1);
    EXPECT_EQ(Rows(), L"A .A1 .A2 ..A2a ..A2b .A3 C .C1");
    Check();
}

TEST_F(FamilyFixture, DropIntoASiblingListMovesNodesAndRowsButNotIntoCombosOrStrangers) {
    HWND combo = Combo({L"x"});
    EXPECT_EQ(ZelListDragDrop(list, 0, combo, 0, LBX_DropAsChild), 0);
    EXPECT_EQ(ZelListDragDrop(combo, 0, list, 0, LBX_DropAsChild), 0);
    EXPECT_EQ(ZelListDragDrop(list, 0, list, 0, LBX_DropAsChild), 0);  // onto itself
    EXPECT_EQ(ZelListDragDrop(list, 0, list, 40, LBX_DropAsChild), 0); // no target row
    zkt::TestWindow elsewhere;
    HWND stranger = elsewhere.AddListBox(1, {0, 0, 50, 50}, kListStyle);
    ZelListSetStyle(stranger, LBX_StyleOutline, nullptr);
    ZelListLoadChild(stranger, ZelListGetRoot(stranger), 0, 0, L"y", 0, 0);
    ZelListShowOutline(stranger, LBX_ShowEverything);
    EXPECT_EQ(ZelListDragDrop(list, 0, stranger, 0, LBX_DropAsChild), 0); // another parent
    Check();
    HWND other = form.AddListBox(202, {240, 10, 200, 300}, kListStyle);
    ASSERT_EQ(ZelListSetStyle(other, LBX_StyleOutline, nullptr), 1);
    const H home = ZelListLoadChild(other, ZelListGetRoot(other), 0, 0, L"home", 0, 0);
    ASSERT_EQ(ZelListShowOutline(other, LBX_ShowEverything), 1);
    const ZelPicHandle pic = ZelPicLoad(PIC_FormatBitmap, nullptr, nullptr);
    ZelListSetItemPicture(a2, pic, pic);
    EXPECT_EQ(ZelListDragDrop(list, 2, other, 0, LBX_DropAsChild), 1);
    EXPECT_EQ(Rows(), L"A .A1 .A3 B C .C1");
    EXPECT_EQ(ZelListGetParent(a2), home);
    EXPECT_EQ(ZelListGetItemIndex(a2b), 3);
    ZelPicHandle n = 0, s = 0;
    ZelListGetItemPicture(a2, &n, &s);
    EXPECT_EQ(n, pic);
    Check();
    EXPECT_CONSISTENT(other);
    ZelListDeleteChild(other, 0);
    ZelPicFree(pic);
}

} // namespace
