// Saving an adopted list's outline into a host string.
#include "file_support.h"

namespace {

using namespace ofiletest;

struct SaveTest : FileFixture {
    void TearDown() override { DestroyWindow(list); } // the registries own the fonts from the save on
};

TEST_F(SaveTest, WritesTheOutlineByteForByte) {
    EXPECT_EQ(Save(other), Spell{}.header(kOutlineStyle, 8, 0, 0, 0, 1).item(-1, -1, -1, -1, 0, 0, 0, L"").b);
    // The root with A (B below it) and C; a picture on A and B, a font on B,
    // a colour on A; the control's own font set.
    const HFONT control = ZelFontLoad(L"Tahoma", 10, 0);
    const HFONT bold = ZelFontLoad(L"Tahoma", 12, FONT_Bold);
    const ZelPicHandle plus = ZelPicLoad(PIC_LoadModule | PIC_FormatBitmap, L"ZKLIB.dll", L"plusdk");
    ASSERT_TRUE(control && bold && plus);
    SendMessageW(list, WM_SETFONT, reinterpret_cast<WPARAM>(control), 0);
    const ZelItemHandle a = Child(Root(), L"A", 1, 0x0001, plus, plus);
    ASSERT_EQ(ZelListSetItemColor(a, 0x0000FF), 1);
    ASSERT_EQ(ZelListSetItemFont(Child(a, L"B", 2, 0, plus, 0), bold), 1);
    Child(Root(), L"C", 3);
    const Bytes expected = Spell{}
                               .header(kOutlineStyle, 8, 0, 1, 2, 4)
                               .u16(0x0201)
                               .wide(L"ZKLIB.dll")
                               .wide(L"plusdk") // at offset 26
                               .u16(10)
                               .u16(0)
                               .wide(L"Tahoma") // the control's font comes first
                               .u16(12)
                               .u16(8)
                               .wide(L"Tahoma")
                               .item(-1, -1, -1, -1, 0, 0x40100000, 0, L"")      // root: has children, closed
                               .item(0, 0, 0, -1, 0x0000FF, 0x40180001, 1, L"A") // first at level 0, a parent
                               .item(1, 0, -1, 1, 0, 0x00090000, 2, L"B")        // an only child as first of several
                               .item(0, -1, -1, -1, 0, 0x00060000, 3, L"C")      // last at level 0
                               .b;
    EXPECT_EQ(Save(list), expected);
    // The registries stay, so a second save is the same.
    ASSERT_NE(PicRegistry(list), nullptr);
    EXPECT_EQ(PicRegistry(list)->Count(), 1);
    EXPECT_EQ(Save(list), expected);
}

TEST_F(SaveTest, TheTopRowIsSavedAndLoadedForAListBoxAndZeroForACombo) {
    for (int i = 0; i < 30; ++i)
        Child(Root(), L"row", i);
    ASSERT_EQ(ZelListShowOutline(list, 32767), 1);
    SendMessageW(list, LB_SETTOPINDEX, 12, 0);
    const Bytes bytes = Save(list);
    ASSERT_GE(bytes.size(), 14u);
    EXPECT_EQ(Bytes(bytes.begin() + 10, bytes.begin() + 14), (Bytes{12, 0, 0, 0}));
    ASSERT_NE(Load(other, bytes), 0);
    EXPECT_EQ(SendMessageW(other, LB_GETTOPINDEX, 0, 0), 12);

    HWND combo = form.AddComboBox(103, {10, 200, 200, 150}, kComboStyle);
    ASSERT_EQ(ZelListSetStyle(combo, LBX_StyleOutline, nullptr), 1);
    for (int i = 0; i < 30; ++i)
        Child(Root(combo), L"row", i, 0, 0, 0, combo);
    ASSERT_EQ(ZelListShowOutline(combo, 32767), 1);
    const Bytes comboBytes = Save(combo);
    ASSERT_GE(comboBytes.size(), 26u);
    EXPECT_EQ(Bytes(comboBytes.begin() + 10, comboBytes.begin() + 14), (Bytes{0, 0, 0, 0}));
    EXPECT_EQ(comboBytes[22], 31); // the root and thirty rows
}

TEST_F(SaveTest, FailuresGiveTheirCodes) {
    HostStr out = 0;
    HWND plain = form.AddListBox(104, {10, 200, 100, 100}, kListStyle);
    EXPECT_EQ(ZelListSaveOutline(plain, &out), ZEL_INVALID_PARAMETER);
    EXPECT_EQ(ZelListSaveOutline(nullptr, &out), ZEL_INVALID_PARAMETER);
    EXPECT_EQ(out, 0u);
    EXPECT_EQ(ZelListSaveOutline(list, nullptr), ZEL_NOT_ENOUGH_MEMORY);
    // The host has no string to give: both registries go.
    const ZelPicHandle plus = ZelPicLoad(PIC_LoadModule | PIC_FormatBitmap, L"ZKLIB.dll", L"plusdk");
    Child(Root(), L"A", 1, 0, plus, 0);
    ZkHostFailAllocations(1);
    EXPECT_EQ(ZelListSaveOutline(list, &out), ZEL_NOT_ENOUGH_MEMORY);
    ZkHostFailAllocations(0);
    EXPECT_EQ(PicRegistry(list), nullptr);
    EXPECT_EQ(FontRegistry(list), nullptr);
    EXPECT_EQ(ZelPicFree(plus), 0); // not owned by the list: still the application's
}

} // namespace
