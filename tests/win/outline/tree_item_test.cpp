// Items by handle: fields, flags, searches, lists into host arrays, and
// what stale or forged handles get.
#include "tree_fixture.h"

#include "zkhostctl.h"

namespace {

using namespace treetest;

TEST_F(FamilyFixture, FieldsSearchesAndEnumerationsByHandle) {
    EXPECT_EQ(ZelListGetParent(a2a), a2);
    EXPECT_EQ(ZelListGetParent(root), 0);
    EXPECT_EQ(ZelListGetLevel(root), -1);
    EXPECT_EQ(ZelListSetItemColor(a1, 0x12345678), 1);
    EXPECT_EQ(ZelListGetItemColor(a1), 0x12345678); // high byte kept
    EXPECT_EQ(ZelListSetItemText(a1, L"renamed"), a1);
    EXPECT_EQ(Take(ZelListGetItemText(a1)), L"renamed");
    EXPECT_EQ(ZelListGetItemIndex(a2b), 4);
    EXPECT_EQ(ZelListGetItemIndex(root), -1);
    // SetItemData stores the whole flag word, connector bits included.
    EXPECT_EQ(ZelListSetItemData(list, a3, L"three", 5, LBX_ItemDisabled | 0x0003), a3);
    EXPECT_EQ(Flags(a3), LBX_ItemDisabled | 0x0003u);
    HostStr data = 0;
    int32_t value = 0;
    uint32_t flags = 0;
    EXPECT_EQ(ZelListGetItemData(a3, &data, &value, &flags), 1);
    EXPECT_EQ(Take(data), L"three");
    EXPECT_EQ(value, 5);
    zkt::TestWindow other;
    EXPECT_EQ(ZelListSetItemData(other.AddListBox(1, {0, 0, 50, 50}), a1, L"x", 0, 0), 0); // not adopted
    EXPECT_EQ(TextOf(a1), L"renamed");
    // Searches and enumerations walk parents before children.
    ZelListSetItemValue(a2b, 77);
    ZelListSetItemValue(c1, 77);
    EXPECT_EQ(ZelListFindItemValue(root, 77), a2b);
    EXPECT_EQ(ZelListFindItemValue(c, 77), c1);
    EXPECT_EQ(ZelListFindItemValue(b, 77), 0);
    const HostArray handles = HostArrayCreate(HOST_TYPE_NUMBER);
    EXPECT_EQ(ZelListEnumChildren(a, handles), 3);
    EXPECT_EQ(ZelListEnumDescendents(root, handles), 9);
    int32_t low = 0, high = 0;
    HostArrayGetBounds(handles, &low, &high);
    std::vector<H> order;
    for (int i = low; i <= high; ++i) {
        HostNumber n{};
        double d = 0;
        HostArrayGetNumber(handles, &n, i);
        HostNumberToDouble(&n, &d);
        order.push_back(static_cast<H>(d));
    }
    EXPECT_EQ(order, (std::vector<H>{a, a1, a2, a2a, a2b, a3, b, c, c1}));
    EXPECT_EQ(ZelListEnumChildren(b, handles), 0);
    HostArrayDestroy(handles);
    tolerance.connectorsFree = {N(a3)};
    Check();
}

TEST_F(FamilyFixture, StaleFreedAndForgedHandlesGetTheFailureValues) {
    ZelListCollapse(list, 2);
    ASSERT_EQ(ZelListFreeDescendents(a2), 1); // rows were gone already
    int dummy = 0;
    for (H h : {H(0), a2a, reinterpret_cast<H>(&dummy), H(0x10), H(-1)}) {
        EXPECT_EQ(ZelListGetParent(h), 0);
        EXPECT_EQ(ZelListGetNextSibling(h), 0);
        EXPECT_EQ(ZelListGetPrevSibling(h), 0);
        EXPECT_EQ(ZelListGetLevel(h), -1);
        EXPECT_EQ(ZelListGetItemColor(h), -1);
        EXPECT_EQ(ZelListGetItemFont(h), -1);
        EXPECT_EQ(ZelListGetItemFlags(h), 0u);
        EXPECT_EQ(ZelListGetItemValue(h), 0);
        EXPECT_EQ(Take(ZelListGetItemText(h)), L"");
        EXPECT_EQ(ZelListGetItemData(h, nullptr, nullptr, nullptr), 0);
        EXPECT_EQ(ZelListGetItemPicture(h, nullptr, nullptr), 0);
        EXPECT_EQ(ZelListGetItemIndex(h), -1);
        EXPECT_EQ(ZelListSetItemColor(h, 1), 0);
        EXPECT_EQ(ZelListSetItemFont(h, nullptr), 0);
        EXPECT_EQ(ZelListSetItemPicture(h, 0, 0), 0);
        EXPECT_EQ(ZelListSetItemText(h, L"x"), 0);
        EXPECT_EQ(ZelListSetItemValue(h, 1), 0);
        EXPECT_EQ(ZelListSetItemFlags(h, 1, 1), 0);
        EXPECT_EQ(ZelListFreeChild(h), 0);
        EXPECT_EQ(ZelListFreeDescendents(h), 0);
        EXPECT_EQ(ZelListFindItemValue(h, 0), 0);
        EXPECT_EQ(ZelListEnumChildren(h, 0), 0);
        EXPECT_EQ(ZelListEnumDescendents(h, 0), 0);
        EXPECT_EQ(ZelListLoadSibling(list, h, 0, 0, L"x", 0, 0), 0);
        EXPECT_EQ(ZelListSetItemData(list, h, L"x", 0, 0), 0);
    }
    EXPECT_EQ(dummy, 0);
    Check();
}

TEST_F(FamilyFixture, SetItemFlagsCollapsesHidesShowsSelectsAndDeletes) {
    EXPECT_EQ(ZelListSetItemFlags(a, 0x0001, 0), 1); // clearing any bit but expanded collapses
    EXPECT_EQ(Rows(), L"A B C .C1");
    Check();
    ZelListExpand(list, 0);
    EXPECT_EQ(ZelListSetItemFlags(a, LBX_ItemExpanded, 0), 1); // the bit itself leaves the rows
    EXPECT_EQ(Rows(), L"A .A1 .A2 .A3 B C .C1");
    EXPECT_FALSE(Flags(a) & LBX_ItemExpanded);
    EXPECT_EQ(ZelListSetItemFlags(a, LBX_ItemExpanded, 1), 1);
    EXPECT_EQ(ZelListSetItemFlags(a2, LBX_ItemHidden, 1), 1);
    EXPECT_EQ(Rows(), L"A .A1 .A3 B C .C1");
    Check();
    EXPECT_EQ(ZelListSetItemFlags(a2, 0x0100, 1), 1); // any other bit shows it again
    EXPECT_EQ(Rows(), L"A .A1 .A2 .A3 B C .C1");
    EXPECT_EQ(Flags(a2) & (LBX_ItemHidden | 0x0100u), 0x0100u);
    EXPECT_EQ(ZelListSetItemFlags(b, LBX_ItemSelected, 1), 1);
    EXPECT_EQ(Send(list, LB_GETCURSEL), RowOf(b));
    EXPECT_EQ(ZelListSetItemFlags(b, 0x0002, 1), 1); // drops the selection
    EXPECT_EQ(Send(list, LB_GETCURSEL), LB_ERR);
    EXPECT_EQ(ZelListSetItemFlags(c, LBX_ItemDeleted, 1), 1);
    EXPECT_EQ(Rows(), L"A .A1 .A2 .A3 B");
    EXPECT_EQ(ZelListGetLevel(c1), -1);
    // B, last now, takes 0x00070000 as it stands, left line at the top level too.
    EXPECT_EQ(Flags(b) & kConn, 0x00070000u);
    tolerance.connectorsFree = {N(b)};
    Check();
}

TEST_F(FamilyFixture, SetItemFlagsShowsANodeRightAfterItsPreviousSiblingsRow) {
    ASSERT_EQ(ZelListSetItemFlags(a3, LBX_ItemHidden, 1), 1);
    EXPECT_EQ(ZelListSetItemFlags(a3, 0x0100, 1), 1);
    EXPECT_EQ(Rows(), L"A .A1 .A2 .A3 ..A2a ..A2b B C .C1"); // not after A2's subtree
    EXPECT_FALSE(Flags(a3) & LBX_ItemHidden);
    EXPECT_NE(CheckRows(list, tolerance), "");
    // A first child goes before its next sibling's row; an only child, or
    // one whose sibling has no row, gets none.
    ZelListShowOutline(list, LBX_ShowEverything);
    ZelListSetItemFlags(a1, LBX_ItemHidden, 1);
    EXPECT_EQ(ZelListSetItemFlags(a1, 0x0100, 1), 1);
    EXPECT_EQ(RowOf(a1), 1);
    ZelListSetItemFlags(c1, LBX_ItemHidden, 1);
    EXPECT_EQ(ZelListSetItemFlags(c1, 0x0100, 1), 1);
    EXPECT_EQ(RowOf(c1), -1);
    EXPECT_TRUE(Flags(c1) & LBX_ItemHidden);
    ZelListSetItemFlags(a2b, LBX_ItemHidden, 1);
    ZelListSetItemFlags(a2a, LBX_ItemHidden, 1);
    EXPECT_EQ(ZelListSetItemFlags(a2b, 0x0100, 1), 1);
    EXPECT_EQ(RowOf(a2b), -1);
}

TEST_F(FamilyFixture, SetItemFlagsOnAComboActsOnTheCurrentSelectionsRow) {
    HWND combo = Combo({L"x", L"y"});
    const H x = ZelListGetItemHandle(combo, 0);
    Send(combo, CB_SETCURSEL, 1);
    EXPECT_EQ(ZelListGetItemIndex(x), 1); // the selection, whatever the handle
    EXPECT_EQ(ZelListSetItemFlags(x, LBX_ItemHidden, 1), 1);
    EXPECT_EQ(Send(combo, CB_GETCOUNT), 1);
    EXPECT_EQ(ZelListGetItemHandle(combo, 0), x); // y's row went
    EXPECT_TRUE(Flags(x) & LBX_ItemHidden);
}

TEST_F(FamilyFixture, OutlineRedrawIsOneSwitchForAllListsAndVisibleRangeCountsWholeRows) {
    HWND second = form.AddListBox(202, {240, 10, 200, 200}, kListStyle);
    ASSERT_EQ(ZelListSetStyle(second, LBX_StyleOutline, nullptr), 1);
    zkt::MessageRecorder rec;
    rec.watch(list);
    rec.watch(second);
    EXPECT_EQ(ZelListSetOutlineRedraw(second, 0), 1);
    EXPECT_EQ(LastRedraw(rec, second), 0);
    ZelListCollapse(list, 0); // the other list's operations leave painting off as well
    EXPECT_EQ(LastRedraw(rec, list), 0);
    EXPECT_EQ(ZelListSetOutlineRedraw(list, 1), 1);
    ZelListExpand(list, 0);
    EXPECT_EQ(LastRedraw(rec, list), 1);
    zkt::TestWindow other;
    EXPECT_EQ(ZelListSetOutlineRedraw(other.AddListBox(1, {0, 0, 50, 50}), 1), 0);
    int32_t first = -5, last = -5;
    const int32_t count = ZelListGetVisibleRange(list, &first, &last);
    EXPECT_EQ(first, 0);
    EXPECT_EQ(count, last - first + 1);
    EXPECT_GE(count, 1);
    EXPECT_EQ(ZelListGetVisibleRange(form.AddComboBox(204, {240, 10, 100, 200}), &first, &last), ZEL_INVALID_PARAMETER);
}

} // namespace
