// Restructuring by rows: demote, promote, move up and down. Moved subtrees'
// rows are numbered without stepping over grandchild rows, and later
// siblings may lose their children's rows: ShowOutline repairs both.
#include "tree_fixture.h"

namespace {

using namespace treetest;

TEST_F(FamilyFixture, DemoteMakesTheNodeLastChildOfItsPreviousSiblingWhichKeepsHasNext) {
    const ZelPicHandle pic = ZelPicLoad(PIC_FormatBitmap, nullptr, nullptr);
    ASSERT_NE(pic, 0);
    EXPECT_EQ(ZelListDemote(list, 5, pic, 0), 1); // A3 under A2
    EXPECT_EQ(Rows(), L"A .A1 .A2 ..A2a ..A2b ..A3 B C .C1");
    EXPECT_EQ(ZelListGetParent(a3), a2);
    EXPECT_EQ(Flags(a3) & kConn, 0x00070000u);
    EXPECT_EQ(Flags(a2b) & kConn, 0x000F0000u);
    EXPECT_EQ(Flags(a2) & kConn, 0x000F0000u); // last child of A now
    ZelPicHandle n = 0, s = 1;
    ZelListGetItemPicture(a2, &n, &s);
    EXPECT_EQ(n, pic);
    EXPECT_EQ(s, 0);
    tolerance.connectorsFree = {N(a2)};
    Check();
    EXPECT_EQ(ZelListDemote(list, 6, 0, 0), 1); // B under A
    EXPECT_EQ(Rows(), L"A .A1 .A2 ..A2a ..A2b ..A3 .B C .C1");
    Check();
    EXPECT_EQ(ZelListDemote(list, 0, 0, 0), 0);                   // row 0
    EXPECT_EQ(ZelListDemote(list, 1, 0, 0), 0);                   // A1 has no previous sibling
    EXPECT_EQ(ZelListDemote(list, 7, 0, ZelPicHandle{12345}), 0); // no such picture
    ZelListCollapse(list, 2);
    zkt::MessageRecorder rec;
    rec.watch(list);
    EXPECT_EQ(ZelListDemote(list, 3, 0, 0), 0); // B under A2, closed with children: refused
    EXPECT_EQ(ZelListGetParent(b), a);
    EXPECT_EQ(LastRedraw(rec, list), 0); // and painting is left off
    Check();
    ZelPicFree(pic);
}

TEST_F(FamilyFixture, PromoteTakesLaterSiblingsChildRowsAndMendsNoConnectors) {
    EXPECT_EQ(ZelListPromote(list, 1, 0, 0), 1); // A1 out, behind A
    EXPECT_EQ(Rows(), L"A .A2 .A3 A1 B C .C1");
    EXPECT_EQ(ZelListGetNextSibling(a), a1);
    // A2 lost its children's rows; it stays open and they stay unhidden.
    EXPECT_EQ(Flags(a2) & (LBX_ItemExpanded | LBX_ItemHidden), LBX_ItemExpanded);
    EXPECT_FALSE(Flags(a2a) & LBX_ItemHidden);
    EXPECT_EQ(Flags(a2) & kConn, 0x000F0000u); // first child now, its bits not mended
    EXPECT_EQ(Flags(a1) & kConn, 0x000E0000u); // all four less the top level's left line
    tolerance.connectorsFree = {N(a2)};
    EXPECT_EQ(CheckTree(list, tolerance), "");
    EXPECT_NE(CheckRows(list, tolerance), "");
    EXPECT_EQ(ZelListShowOutline(list, LBX_ShowAllButHidden), 1);
    EXPECT_EQ(Rows(), L"A .A2 ..A2a ..A2b .A3 A1 B C .C1");
    Check();
    // A last child leaves its parent childless, with the pictures given.
    const ZelPicHandle pic = ZelPicLoad(PIC_FormatBitmap, nullptr, nullptr);
    EXPECT_EQ(ZelListPromote(list, 8, pic, pic), 1); // C1 after C
    EXPECT_EQ(Rows(), L"A .A2 ..A2a ..A2b .A3 A1 B C C1");
    EXPECT_EQ(Flags(c) & (LBX_ItemHasChildren | kBox), 0u);
    ZelPicHandle n = 0, s = 0;
    ZelListGetItemPicture(c, &n, &s);
    EXPECT_EQ(n, pic);
    EXPECT_EQ(Flags(c1) & kConn, 0x00060000u);
    Check();
    EXPECT_EQ(ZelListPromote(list, 8, 0, 0), 0); // level 0
    ZelPicFree(pic);
}

TEST_F(FamilyFixture, MoveOfADeepSubtreeInterleavesItsRowsUntilShownAgain) {
    EXPECT_EQ(ZelListMoveDown(list, 0), 1); // A with its five rows below B
    EXPECT_EQ(Rows(), L"B A .A1 .A2 .A3 ..A2a ..A2b C .C1");
    // The first of the pair loses 0x00060000 and gains HasNext, the second
    // the other way round, whatever their other neighbours.
    EXPECT_EQ(Flags(b) & kConn, 0x00080000u);
    EXPECT_EQ(Flags(a) & kConn, 0x00060000u);
    tolerance.connectorsFree = {N(a)};
    EXPECT_EQ(CheckTree(list, tolerance), "");
    EXPECT_NE(CheckRows(list, tolerance), "");
    EXPECT_EQ(ZelListShowOutline(list, LBX_ShowEverything), 1);
    EXPECT_EQ(Rows(), L"B A .A1 .A2 ..A2a ..A2b .A3 C .C1");
    Check();
    EXPECT_EQ(ZelListMoveDown(list, 3), 1); // A2 below A3
    EXPECT_EQ(Rows(), L"B A .A1 .A3 .A2 ..A2a ..A2b C .C1");
    EXPECT_EQ(Flags(a3) & kConn, 0x00090000u);
    EXPECT_EQ(Flags(a2) & kConn, 0x00070000u);
    tolerance.connectorsFree = {N(a), N(a3)};
    Check();
    EXPECT_EQ(ZelListMoveUp(list, 0), 0);   // no previous sibling
    EXPECT_EQ(ZelListMoveDown(list, 7), 0); // C is last
}

TEST_F(FamilyFixture, MoveKeepsTheSelectionOnTheMovedRow) {
    Send(list, LB_SETCURSEL, 6); // B
    EXPECT_EQ(ZelListMoveUp(list, 6), 1);
    EXPECT_EQ(Rows(), L"B A .A1 .A2 ..A2a ..A2b .A3 C .C1");
    EXPECT_EQ(Send(list, LB_GETCURSEL), 0);
    tolerance.connectorsFree = {N(a)};
    Check();
}

} // namespace
