// Rows with colours, pictures and fonts; enabling and disabling.
#include "model_fixture.h"
#include "outline/win/pic.h"

using namespace zk::lbx;

namespace {

using namespace outlinetest;

// Bitmaps of the library's own resources.
ZelPicHandle LoadPicture(const wchar_t *name) {
    return ZelPicLoad(PIC_LoadModule | PIC_FormatBitmap, L"ZKLIB.dll", name);
}

LRESULT RowHeight(HWND list, int row) { return Send(list, LB_GETITEMHEIGHT, static_cast<WPARAM>(row)); }

TEST_F(ListFixture, HostAddStringMakesAnItemInTheWindowTextColour) {
    EXPECT_EQ(Send(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"host row")), 0);
    LbxItem *item = ItemAt(list, 0);
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->color, GetSysColor(COLOR_WINDOWTEXT));
    EXPECT_EQ(Send(list, LB_GETITEMDATA, 0), 0);
    EXPECT_EQ(Send(list, LB_SETITEMDATA, 0, 77), 1);
    EXPECT_EQ(Send(list, LB_GETITEMDATA, 0), 77);
    EXPECT_EQ(item->value, 77);
    EXPECT_EQ(RawData(list, 0), reinterpret_cast<std::uintptr_t>(item));
    EXPECT_EQ(Send(list, LB_INSERTSTRING, 0, reinterpret_cast<LPARAM>(L"first")), 0);
    EXPECT_EQ(RowText(list, 0), L"first");
}

TEST_F(ListFixture, ColourRowsTakeTheTopByteAsFlagsAndAValue) {
    EXPECT_EQ(ZelListAddColor(list, L"blue", 0x01FF0000), 0);
    EXPECT_EQ(ZelListAddColorValue(list, L"red", 0x0000FF, 42), 1);
    EXPECT_EQ(ZelListInsertColor(list, 0, L"green", 0x008000), 0);
    EXPECT_EQ(ZelListInsertColorValue(list, -1, L"last", 0x10, 9), 3);
    EXPECT_EQ(RowText(list, 0), L"green");
    EXPECT_EQ(ZelListGetFlags(list, 1), static_cast<int32_t>(LBX_ItemDisabled));
    EXPECT_EQ(ZelListGetColor(list, 1), 0xFF0000);
    EXPECT_EQ(Send(list, LB_GETITEMDATA, 2), 42);
    EXPECT_EQ(Send(list, LB_GETITEMDATA, 3), 9);
    EXPECT_EQ(ZelListSetColor(list, 3, 0x7F123456), 1);
    EXPECT_EQ(ZelListGetColor(list, 3), 0x123456);
    EXPECT_EQ(ZelListSetColor(list, 9, 0), 0);
    EXPECT_EQ(ZelListGetColor(list, 9), -1);
}

TEST_F(ListFixture, StoredTextsFollowTheCaseStyle) {
    ZelListSetStyle(list, LBX_StyleProperCase, nullptr);
    ZelListAddColor(list, L"O'BRIEN-SMITH", 0);
    ZelListAddColor(list, L"keep Me", 0);
    EXPECT_EQ(RowText(list, 0), L"O'Brien-Smith");
    EXPECT_EQ(RowText(list, 1), L"keep Me");
    ZelListSetStyle(list, LBX_StyleUpperCase, nullptr);
    Send(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"shout"));
    EXPECT_EQ(RowText(list, 2), L"SHOUT");
}

TEST(ZelListRows, AListThatIsNotAdoptedTakesNoRows) {
    zkt::TestWindow form;
    HWND plain = form.AddListBox(kListId, {0, 0, 100, 100}, kListStyle);
    EXPECT_EQ(ZelListAddColor(plain, L"a", 0), -1);
    EXPECT_EQ(ZelListInsertColorValue(plain, 0, L"a", 0, 1), -1);
    EXPECT_EQ(ZelListAddPicture(plain, L"a", 0, 0), -1);
    EXPECT_EQ(ZelListAddFont(plain, L"a", nullptr), -1);
    EXPECT_EQ(ZelListDisableItem(plain, 0, 0), -1);
    EXPECT_EQ(ZelListSetFont(plain, 0, nullptr), 0);
    EXPECT_EQ(Send(plain, LB_GETCOUNT), 0);
}

TEST_F(ListFixture, PictureRowsAreAsHighAsTheirPicture) {
    const ZelPicHandle open = LoadPicture(L"ZK_LOGO");
    const ZelPicHandle closed = LoadPicture(L"ZK_CAL");
    ASSERT_NE(open, 0);
    ASSERT_NE(closed, 0);
    const int picture = reinterpret_cast<const PIC *>(open)->height;
    EXPECT_EQ(ZelListAddColor(list, L"plain", 0), 0);
    EXPECT_EQ(ZelListAddPicture(list, L"pictured", closed, open), 1);
    EXPECT_EQ(ZelListAddPictureValue(list, L"valued", closed, 0, 5), 2);
    EXPECT_EQ(ZelListInsertPicture(list, 0, L"top", 0, open), 0);
    EXPECT_EQ(ZelListInsertPictureValue(list, 0, L"top2", open, open, 6), 0);
    EXPECT_GE(RowHeight(list, 3), picture + 2);
    ZelPicHandle normal = -1, selected = -1;
    EXPECT_EQ(ZelListGetPicture(list, 3, &normal, &selected), 0);
    EXPECT_EQ(normal, closed);
    EXPECT_EQ(selected, open);
    EXPECT_EQ(ZelListGetPicture(list, 9, &normal, &selected), -1);
    EXPECT_EQ(Send(list, LB_GETITEMDATA, 0), 6);

    const LRESULT plainHeight = RowHeight(list, 2);
    EXPECT_EQ(ZelListSetPicture(list, 2, open, 0), 1);
    EXPECT_GE(RowHeight(list, 2), picture + 2);
    EXPECT_GT(RowHeight(list, 2), plainHeight);
    EXPECT_EQ(ZelListSetPicture(list, 2, 0, 0), 1);
    EXPECT_EQ(RowHeight(list, 2), plainHeight);
    ZelPicFree(open);
    ZelPicFree(closed);
}

TEST_F(ListFixture, StaleOrForgedPictureHandlesFail) {
    const ZelPicHandle gone = LoadPicture(L"ZK_CAL");
    ASSERT_NE(gone, 0);
    ASSERT_EQ(ZelPicFree(gone), 0);
    int forged = 0;
    EXPECT_EQ(ZelListAddPicture(list, L"x", gone, 0), -1);
    EXPECT_EQ(ZelListInsertPicture(list, 0, L"x", 0, reinterpret_cast<ZelPicHandle>(&forged)), -1);
    EXPECT_EQ(Send(list, LB_GETCOUNT), 0);
    Add({L"a"});
    EXPECT_EQ(ZelListSetPicture(list, 0, gone, 0), 0);
}

TEST_F(ListFixture, FontRowsAreMeasuredWithTheirFont) {
    HFONT big = CreateFontW(-40, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, L"Tahoma");
    ASSERT_NE(big, nullptr);
    Send(list, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), 0);
    Add({L"plain"});
    EXPECT_EQ(ZelListAddFont(list, L"big", big), 1);
    EXPECT_EQ(ZelListAddFontValue(list, L"big2", big, 3), 2);
    EXPECT_EQ(ZelListInsertFont(list, 0, L"big0", big), 0);
    EXPECT_EQ(ZelListInsertFontValue(list, 0, L"bigger", big, 4), 0);
    EXPECT_GE(RowHeight(list, 3), 40);
    EXPECT_LT(RowHeight(list, 2), 40);
    EXPECT_EQ(ZelListGetFont(list, 3), reinterpret_cast<INT_PTR>(big));
    // The first measure gives a row without a font the control's.
    EXPECT_EQ(ZelListGetFont(list, 2), Send(list, WM_GETFONT));
    EXPECT_EQ(ZelListSetFont(list, 2, big), 1);
    EXPECT_GE(RowHeight(list, 2), 40);
    EXPECT_EQ(ZelListGetFont(list, 9), -1);
    DestroyWindow(list);
    DeleteObject(big);
}

TEST_F(ListFixture, DisableAndEnableDeselectAndRecolour) {
    Add({L"a", L"b", L"c"});
    Send(list, LB_SETCURSEL, 1);
    EXPECT_EQ(ZelListDisableItem(list, 1, 0x00808080), 1);
    EXPECT_EQ(Send(list, LB_GETCURSEL), LB_ERR);
    EXPECT_TRUE(ZelListGetFlags(list, 1) & LBX_ItemDisabled);
    EXPECT_EQ(ZelListGetColor(list, 1), 0x808080);
    EXPECT_EQ(ZelListEnableItem(list, 1, 0x7F0000FF), 1);
    EXPECT_FALSE(ZelListGetFlags(list, 1) & LBX_ItemDisabled);
    EXPECT_EQ(ZelListGetColor(list, 1), 0xFF);
    EXPECT_EQ(ZelListDisableItem(list, 5, 0), -1);
    EXPECT_EQ(ZelListEnableItem(list, -1, 0), -1);
}

TEST(ZelListRows, DisablingInAMultiSelectListSendsTheRequestAsItStands) {
    zkt::TestWindow form;
    HWND list = form.AddListBox(kListId, {0, 0, 100, 100}, kListStyle | LBS_MULTIPLESEL);
    ZelListSetStyle(list, LBX_StyleOwnerDraw, nullptr);
    for (const wchar_t *t : {L"a", L"b", L"c"}) {
        ZelListAddColor(list, t, 0);
    }
    // LB_SETSEL with the row as the flag and 0 as the row: row 0 is selected.
    EXPECT_EQ(ZelListDisableItem(list, 2, 0), 2);
    EXPECT_GT(Send(list, LB_GETSEL, 0), 0);
    EXPECT_TRUE(ZelListGetFlags(list, 2) & LBX_ItemDisabled);
}

} // namespace
