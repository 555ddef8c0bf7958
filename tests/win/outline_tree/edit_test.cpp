// Restructuring by rows: demote, promote, move up and down.
#include "tree_fixture.h"

namespace {

using namespace treetest;

constexpr uint32_t kConn = LBX_ItemConnectors;

// The last WM_SETREDRAW a window was sent: 1 on, 0 off, -1 none.
int LastRedraw(const zkt::MessageRecorder &rec, HWND window) {
    int last = -1;
    for (const auto &m : rec.messages()) {
        if (m.hwnd == window && m.message == WM_SETREDRAW) last = m.wParam ? 1 : 0;
    }
    return last;
}

const LbxNode *N(H h) { return reinterpret_cast<const LbxNode *>(h); }

TEST_F(FamilyFixture, DemoteMakesTheNodeLastChildOfItsPreviousSibling) {
    const ZelPicHandle pic = ZelPicLoad(PIC_FormatBitmap, nullptr, nullptr);
    ASSERT_NE(pic, 0);
    EXPECT_EQ(ZelListDemote(list, 5, pic, 0), 1); // A3 under A2
    EXPECT_EQ(Rows(), L"A .A1 .A2 ..A2a ..A2b ..A3 B C .C1");
    EXPECT_EQ(ZelListGetParent(a3), a2);
    EXPECT_EQ(Flags(a3) & kConn, 0x00070000u);
    EXPECT_EQ(Flags(a2b) & kConn, 0x000F0000u);
    // Last child of A now, but a demote does not take LBX_ItemHasNext from it.
    EXPECT_EQ(Flags(a2) & kConn, 0x000F0000u);
    ZelPicHandle n = 0, s = 1;
    ZelListGetItemPicture(a2, &n, &s);
    EXPECT_EQ(n, pic);
    EXPECT_EQ(s, 0);
    tolerance.connectorsFree.insert(reinterpret_cast<const LbxNode *>(a2));
    Check();
    // Under a sibling without children: the only child.
    EXPECT_EQ(ZelListDemote(list, 6, 0, 0), 1); // B under A
    EXPECT_EQ(ZelListGetParent(b), a);
    EXPECT_EQ(Rows(), L"A .A1 .A2 ..A2a ..A2b ..A3 .B C .C1");
    Check();
    ZelPicFree(pic);
}

TEST_F(FamilyFixture, DemoteFailsOnAFirstChildAndUnderAClosedSibling) {
    EXPECT_EQ(ZelListDemote(list, 0, 0, 0), 0); // row 0
    EXPECT_EQ(ZelListDemote(list, 1, 0, 0), 0); // A1 has no previous sibling
    Check();
    ZelListCollapse(list, 2);                    // A2 closed with children
    zkt::MessageRecorder rec;
    rec.watch(list);
    EXPECT_EQ(ZelListDemote(list, 3, 0, 0), 0);  // A3 under closed A2: refused
    EXPECT_EQ(ZelListGetParent(a3), a);
    EXPECT_EQ(LastRedraw(rec, list), 0); // and painting is left off
    Check();
    EXPECT_EQ(ZelListDemote(list, 2, 0, ZelPicHandle{12345}), 0); // no such picture
}

TEST_F(FamilyFixture, PromoteMovesTheNodeBehindItsParentWithItsRows) {
    EXPECT_EQ(ZelListPromote(list, 2, 0, 0), 1); // A2 becomes sibling after A
    EXPECT_EQ(Rows(), L"A .A1 .A3 A2 .A2a .A2b B C .C1");
    EXPECT_EQ(ZelListGetParent(a2), root);
    EXPECT_EQ(ZelListGetNextSibling(a), a2);
    EXPECT_EQ(ZelListGetPrevSibling(b), a2);
    EXPECT_EQ(Flags(a2) & kConn, 0x000E0000u);
    EXPECT_EQ(Flags(a3) & kConn, 0x00070000u);
    Check();
}

TEST_F(FamilyFixture, PromoteOfALastChildLeavesTheParentChildlessWithThePictures) {
    const ZelPicHandle pic = ZelPicLoad(PIC_FormatBitmap, nullptr, nullptr);
    EXPECT_EQ(ZelListPromote(list, 8, pic, pic), 1); // C1 after C
    EXPECT_EQ(Rows(), L"A .A1 .A2 ..A2a ..A2b .A3 B C C1");
    EXPECT_EQ(Flags(c) & (LBX_ItemHasChildren | LBX_ItemExpanded | LBX_ItemPlus | LBX_ItemMinus), 0u);
    ZelPicHandle n = 0, s = 0;
    ZelListGetItemPicture(c, &n, &s);
    EXPECT_EQ(n, pic);
    EXPECT_EQ(Flags(c1) & kConn, 0x00060000u);
    Check();
    EXPECT_EQ(ZelListPromote(list, 8, 0, 0), 0); // level 0
    ZelPicFree(pic);
}

TEST_F(FamilyFixture, PromoteTakesTheRowsOfLaterSiblingsChildrenAndLeavesTheirNodes) {
    ZelListDemote(list, 6, 0, 0); // B under A: A1 A2 A3 B
    Check();
    EXPECT_EQ(ZelListPromote(list, 1, 0, 0), 1); // A1 out
    EXPECT_EQ(Rows(), L"A .A2 .A3 .B A1 C .C1");
    // A2 lost its children's rows; it stays open and they stay unhidden.
    EXPECT_EQ(Flags(a2) & (LBX_ItemExpanded | LBX_ItemHidden), LBX_ItemExpanded);
    EXPECT_FALSE(Flags(a2a) & LBX_ItemHidden);
    EXPECT_EQ(Flags(a2) & kConn, 0x000F0000u); // first child now, its bits not mended
    EXPECT_EQ(Flags(a1) & kConn, 0x000E0000u);
    tolerance.connectorsFree.insert(N(a2));
    EXPECT_EQ(CheckTree(list, tolerance), "");
    EXPECT_NE(CheckRows(list, tolerance), ""); // A2's children are missing
    // Showing the outline again repairs the rows.
    EXPECT_EQ(ZelListShowOutline(list, LBX_ShowAllButHidden), 1);
    EXPECT_EQ(Rows(), L"A .A2 ..A2a ..A2b .A3 .B A1 C .C1");
    Check();
}

TEST_F(OutlineFixture, MoveAndPromoteNumberSubtreeRowsWithoutSteppingOverGrandchildren) {
    // A (B (B1), C) and Z; B open.
    const H a = Load(root, L"A");
    const H b = Load(a, L"B");
    Load(b, L"B1");
    Load(a, L"C");
    Load(root, L"Z");
    ASSERT_EQ(ZelListShowOutline(list, LBX_ShowEverything), 1);
    tolerance.connectors = false;
    EXPECT_EQ(ZelListMoveDown(list, 0), 1);
    EXPECT_EQ(Rows(), L"Z A .B .C ..B1");
    EXPECT_EQ(CheckTree(list, tolerance), "");
    ASSERT_EQ(ZelListShowOutline(list, LBX_ShowEverything), 1);
    EXPECT_EQ(Rows(), L"Z A .B ..B1 .C");
    // The same subtree one level down, promoted past a later sibling.
    ASSERT_EQ(ZelListDemote(list, 1, 0, 0), 1); // A under Z, after nothing: Z (A (B (B1), C))
    const H tail = Load(reinterpret_cast<H>(N(a)->parent), L"T");
    ASSERT_EQ(ZelListShowOutline(list, LBX_ShowEverything), 1);
    ASSERT_EQ(Rows(), L"Z .A ..B ...B1 ..C .T");
    EXPECT_EQ(ZelListPromote(list, 1, 0, 0), 1);
    EXPECT_EQ(Rows(), L"Z .T A .B .C ..B1");
    EXPECT_EQ(ZelListGetNextSibling(tail), 0);
    EXPECT_EQ(CheckTree(list, tolerance), "");
}

TEST_F(FamilyFixture, MoveSwapsWithASiblingRowsAndSubtreeTogether) {
    EXPECT_EQ(ZelListMoveDown(list, 2), 1); // A2 below A3
    EXPECT_EQ(Rows(), L"A .A1 .A3 .A2 ..A2a ..A2b B C .C1");
    // The pair's bits: the first loses 0x00060000 and gains HasNext, the
    // second the other way round, whatever their other neighbours.
    EXPECT_EQ(Flags(a3) & kConn, 0x00090000u);
    EXPECT_EQ(Flags(a2) & kConn, 0x00070000u);
    tolerance.connectorsFree.insert(N(a3));
    Check();
    EXPECT_EQ(ZelListMoveUp(list, 3), 1);
    EXPECT_EQ(Rows(), L"A .A1 .A2 ..A2a ..A2b .A3 B C .C1");
    EXPECT_EQ(Flags(a2) & kConn, 0x00090000u);
    EXPECT_EQ(Flags(a3) & kConn, 0x00070000u);
    tolerance.connectorsFree = {N(a2)};
    Check();
    EXPECT_EQ(ZelListMoveUp(list, 0), 0);   // no previous sibling
    EXPECT_EQ(ZelListMoveDown(list, 7), 0); // C is last
    Check();
}

TEST_F(FamilyFixture, MoveOfADeepSubtreeInterleavesItsRowsUntilShownAgain) {
    EXPECT_EQ(ZelListMoveDown(list, 0), 1); // A with its five rows below B
    EXPECT_EQ(Rows(), L"B A .A1 .A2 .A3 ..A2a ..A2b C .C1");
    EXPECT_EQ(Flags(b) & kConn, 0x00080000u);
    EXPECT_EQ(Flags(a) & kConn, 0x00060000u); // second of the pair: no HasNext, though C follows
    tolerance.connectorsFree = {N(a)};
    EXPECT_EQ(CheckTree(list, tolerance), "");
    EXPECT_NE(CheckRows(list, tolerance), "");
    EXPECT_EQ(ZelListShowOutline(list, LBX_ShowEverything), 1);
    EXPECT_EQ(Rows(), L"B A .A1 .A2 ..A2a ..A2b .A3 C .C1");
    Check();
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
