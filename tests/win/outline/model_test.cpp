// Flags, root and handles of rows.
#include "model_fixture.h"

namespace {

using namespace outlinetest;

TEST_F(ListFixture, GetFlagsGivesTheItemsFlagsOrMinusOne) {
    ASSERT_EQ(ZelListAddColor(list, L"blue", 0x01FF0000), 0);
    EXPECT_EQ(ZelListGetFlags(list, 0), static_cast<int32_t>(LBX_ItemDisabled));
    EXPECT_EQ(ZelListGetColor(list, 0), 0xFF0000);
    EXPECT_EQ(ZelListGetFlags(list, 1), -1);
    EXPECT_EQ(ZelListGetFlags(list, -1), -1);
    zkt::TestWindow other;
    HWND plain = other.AddListBox(1, {0, 0, 50, 50});
    SendMessageW(plain, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"x"));
    EXPECT_EQ(ZelListGetFlags(plain, 0), -1);
    EXPECT_EQ(ZelListGetFlags(nullptr, 0), -1);
}

TEST_F(ListFixture, SetFlagsAnswersMinusOneAndSetsAndClearsBits) {
    Add({L"a", L"b"});
    EXPECT_EQ(ZelListSetFlags(list, 1, 0x0005, 1), -1);
    EXPECT_EQ(ZelListGetFlags(list, 1), 0x0005);
    EXPECT_EQ(ZelListSetFlags(list, 1, 0x0001, 0), -1);
    EXPECT_EQ(ZelListGetFlags(list, 1), 0x0004);
    EXPECT_EQ(ZelListSetFlags(list, 7, 0x0001, 1), -1); // no row: nothing happens
    EXPECT_EQ(ZelListGetFlags(list, 0), 0);
}

TEST_F(ListFixture, SetFlagsSelectsAndDeselects) {
    Add({L"a", L"b", L"c"});
    ZelListSetFlags(list, 2, LBX_ItemSelected, 1);
    EXPECT_EQ(Send(list, LB_GETCURSEL), 2);
    EXPECT_TRUE(ZelListGetFlags(list, 2) & LBX_ItemSelected);
    ZelListSetFlags(list, 2, LBX_ItemSelected, 0);
    EXPECT_EQ(Send(list, LB_GETCURSEL), LB_ERR);
}

TEST_F(ListFixture, SetFlagsHiddenRemovesTheRowAndKeepsItsItem) {
    Add({L"a", L"b"});
    LbxItem *item = ItemAt(list, 0);
    ASSERT_NE(item, nullptr);
    ZelListSetFlags(list, 0, LBX_ItemHidden, 1);
    EXPECT_EQ(Send(list, LB_GETCOUNT), 1);
    EXPECT_EQ(RowText(list, 0), L"b");
    // The item outlives its row (its flags were written after the removal).
    EXPECT_EQ(item->self, item);
    EXPECT_TRUE(item->flags & LBX_ItemHidden);
    EXPECT_EQ(ParentRecord(form).parentFlags & LBX_ParentKeepItems, 0);
    // A row for the existing item brings it back; the list frees it at its end.
    EXPECT_EQ(Send(list, ZKM_LbxAddRow, 0, reinterpret_cast<LPARAM>(item)), 1);
    EXPECT_EQ(RowText(list, 1), L"a");
}

TEST_F(ListFixture, SetFlagsDeletedRemovesTheRowWithItsItem) {
    Add({L"a", L"b"});
    ZelListSetFlags(list, 0, LBX_ItemDeleted, 1);
    EXPECT_EQ(Send(list, LB_GETCOUNT), 1);
    EXPECT_EQ(RowText(list, 0), L"b");
    EXPECT_EQ(ZelListGetFlags(list, 0), 0);
}

TEST_F(ListFixture, SetFlagsRepaintsForTheTopEightBitsOnly) {
    Add({L"a", L"b"});
    UpdateWindow(list);
    ValidateRect(list, nullptr);
    ZelListSetFlags(list, 0, 0x0001, 1);
    RECT dirty{};
    EXPECT_FALSE(GetUpdateRect(list, &dirty, FALSE));
    ZelListSetFlags(list, 1, LBX_ItemDisabled, 1);
    ASSERT_TRUE(GetUpdateRect(list, &dirty, FALSE));
    RECT row{};
    Send(list, LB_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&row));
    EXPECT_EQ(dirty.top, row.top);
    EXPECT_EQ(dirty.bottom, row.bottom);
}

TEST_F(ListFixture, TheRootIsMadeOnceAndKeptInItsProperty) {
    const ZelItemHandle root = ZelListGetRoot(list);
    ASSERT_NE(root, 0);
    EXPECT_EQ(ZelListGetRoot(list), root);
    EXPECT_EQ(reinterpret_cast<ZelItemHandle>(GetPropW(list, L"ZK:LbxRootLow")), root);
    const auto *node = reinterpret_cast<const LbxNode *>(root);
    EXPECT_EQ(node->level, -1);
    EXPECT_EQ(node->window, list);
    ASSERT_NE(node->item, nullptr);
    EXPECT_EQ(node->item->node, node);
    EXPECT_EQ(ZelListGetItemHandle(list, LBX_RootRow), root);
}

TEST(ZelListGetRoot, APlainWindowGetsARootAllTheSameButNoHandleByRow) {
    zkt::TestWindow form;
    HWND plain = form.AddListBox(kListId, {0, 0, 100, 100});
    EXPECT_EQ(ZelListGetItemHandle(plain, LBX_RootRow), 0);
    EXPECT_EQ(GetPropW(plain, L"ZK:LbxRootLow"), nullptr);
    const ZelItemHandle root = ZelListGetRoot(plain);
    EXPECT_NE(root, 0);
    EXPECT_EQ(ZelListGetItemHandle(plain, LBX_RootRow), 0); // still not adopted
    EXPECT_EQ(ZelListGetRoot(nullptr), 0);
    RemovePropW(plain, L"ZK:LbxRootLow"); // a plain list never frees it
}

TEST_F(ListFixture, TheUserRecordIsCopiedInAndOut) {
    struct Record {
        uint16_t word;
        char text[20];
    };
    Record in{0x1234, "hello"};
    EXPECT_EQ(Send(list, ZKM_LbxUserRecord, 1, reinterpret_cast<LPARAM>(&in)), 1);
    EXPECT_EQ(ChildRecord(list).userWord, 0x1234);
    EXPECT_STREQ(ChildRecord(list).userText, "hello");
    Record out{};
    EXPECT_EQ(Send(list, ZKM_LbxUserRecord, 0, reinterpret_cast<LPARAM>(&out)), 1);
    EXPECT_EQ(out.word, 0x1234);
    EXPECT_STREQ(out.text, "hello");
}

} // namespace
