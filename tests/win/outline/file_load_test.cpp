// Loading a saved outline into an adopted list, from streams spelt out by hand.
#include "file_support.h"

namespace {

using namespace ofiletest;

// Root record, Alpha with Beta and a hidden child, then Gamma. Picture and
// font indices out of range stand for none.
Bytes Golden() {
    return Spell{}
        .header(kOutlineStyle | LBX_StyleKeepTextColor, 6, 0, 1, 1, 5)
        .u16(0x0201)
        .wide(L"ZKLIB.dll")
        .wide(L"minusdk")
        .u16(12)
        .u16(FONT_Bold | FONT_Italic)
        .wide(L"Tahoma")
        .item(-1, -1, -1, -1, 0, 0x00000005, 77, L"")
        .item(0, 0, 5, 0, 0x123456, 0x00000002, 10, L"Alpha")
        .item(1, -1, 0, -1, 0, 0, 11, L"Beta")
        .item(1, -1, -1, -1, 0, LBX_ItemHidden | 0x4, 12, L"Hidden")
        .item(0, -1, -1, 9, 0, 0, 13, L"Gamma")
        .b;
}

using LoadTest = FileFixture;

TEST_F(LoadTest, ReadsTheOutlineAndShowsWhatIsNotHidden) {
    const ZelItemHandle root = Load(list, Golden());
    ASSERT_EQ(root, Root());
    EXPECT_EQ(ZelListGetStyle(list), kOutlineStyle | LBX_StyleKeepTextColor);
    EXPECT_EQ(Indent(list), 6);
    EXPECT_EQ(ZelListGetItemValue(root), 77);
    EXPECT_EQ(ZelListGetItemFlags(root) & 0xFFFF, 0x5u);
    const LbxNode *alpha = Node(root)->firstChild;
    ASSERT_TRUE(alpha && alpha->firstChild && alpha->firstChild->next && alpha->next);
    const LbxNode *beta = alpha->firstChild, *hidden = beta->next, *gamma = alpha->next;
    EXPECT_TRUE(!hidden->next && !gamma->next);
    EXPECT_EQ(NodeText(gamma), L"Gamma");
    EXPECT_EQ(hidden->item->value, 12);
    EXPECT_TRUE(hidden->item->flags & LBX_ItemHidden);
    EXPECT_EQ(alpha->item->color, 0x123456u);
    // Pictures are loaded anew, owned by the list; fonts likewise.
    CPicArray *pics = PicRegistry(list);
    ASSERT_TRUE(pics && pics->Count() == 1);
    PIC *pic = PicAt(pics, 0);
    EXPECT_EQ(pic->flags, 0x8201);
    EXPECT_EQ(pic->name, L"minusdk");
    EXPECT_EQ(alpha->item->picNormal, pic);
    EXPECT_EQ(alpha->item->picSelected, nullptr);
    EXPECT_EQ(beta->item->picSelected, pic);
    HostStr face = 0;
    int32_t points = 0;
    uint16_t style = 0;
    ASSERT_EQ(ZelFontGet(static_cast<HFONT>(alpha->item->font), &face, &points, &style), 1);
    EXPECT_EQ(std::wstring(HostStrLock(face, nullptr)), L"Tahoma");
    ZkHostStrRelease(face);
    EXPECT_EQ(points, 12);
    EXPECT_EQ(style, FONT_Bold | FONT_Italic);
    EXPECT_NE(gamma->item->font, alpha->item->font); // index 9 named no font
    // Rows for all but the hidden one, in tree order.
    ASSERT_EQ(Rows(list), 3);
    EXPECT_EQ(ZelListGetItemHandle(list, 1), reinterpret_cast<ZelItemHandle>(beta));
    EXPECT_EQ(ZelListGetItemHandle(list, 2), reinterpret_cast<ZelItemHandle>(gamma));
}

// No root record, and a record three levels deeper than the first: the
// first loads under the root, the deep one under the record before it.
TEST_F(LoadTest, WithoutARootRecordDeeperLevelsLoadUnderTheRecordBefore) {
    const Bytes stream = Spell{}
                             .header(kOutlineStyle, 8, 0, 0, 0, 3)
                             .item(1, -1, -1, -1, 0, 0, 1, L"A")
                             .item(4, -1, -1, -1, 0, 0, 2, L"B")
                             .item(0, -1, -1, -1, 0, 0, 3, L"C")
                             .b;
    ASSERT_EQ(Load(list, stream), Root());
    const LbxNode *a = Node(Root())->firstChild;
    ASSERT_TRUE(a && a->firstChild && a->next);
    EXPECT_EQ(NodeText(a->firstChild), L"B");
    EXPECT_EQ(NodeText(a->next), L"C");
    EXPECT_EQ(a->firstChild->level, 1); // a child's level follows its parent, not the record
}

TEST_F(LoadTest, OlderStreamsWithSingleByteStringsLoadAndSaveWide) {
    Spell s;
    s.header(kOutlineStyle, 8, 0, 1, 1, 1);
    s.u16(0x0201).narrow("ZKLIB.dll").narrow("plusdk");
    s.u16(10).u16(0).narrow("Tahoma");
    s.u32(0).u32(0).u32(0xFFFFFFFF).u32(0).u32(0).u32(0).u32(1).narrow("Caf\xE9");
    ASSERT_NE(Load(list, s.b), 0);
    EXPECT_EQ(NodeText(Node(Root())->firstChild), L"Caf\u00E9"); // code page 1252
    EXPECT_EQ(PicAt(PicRegistry(list), 0)->name, L"plusdk");
    const Bytes again = Save(list);
    const Bytes tagged = Spell{}.u16(0x8201).wide(L"ZKLIB.dll").b;
    EXPECT_EQ(Bytes(again.begin() + 26, again.begin() + 26 + tagged.size()), tagged);
}

TEST_F(LoadTest, AStreamThatDoesNotReadWholeLeavesTheListAsItWas) {
    ASSERT_NE(Load(list, Golden()), 0);
    const std::string before = Describe(Root());
    CPicArray *pics = PicRegistry(list);
    void *fonts = FontRegistry(list);
    auto untouched = [&](const char *what, size_t n) {
        EXPECT_EQ(Describe(Root()), before) << what << n;
        EXPECT_EQ(Rows(list), 3) << what << n;
        EXPECT_EQ(PicRegistry(list), pics) << what << n;
        EXPECT_EQ(FontRegistry(list), fonts) << what << n;
    };
    const Bytes golden = Golden();
    for (size_t n = 0; n < golden.size(); ++n) {
        EXPECT_EQ(Load(list, Bytes(golden.begin(), golden.begin() + static_cast<long>(n))), 0) << n;
        untouched("truncated at ", n);
    }
    Bytes wrongMagic = golden;
    wrongMagic[1] = 0x88;
    EXPECT_EQ(Load(list, wrongMagic), 0);
    untouched("magic", 0);
    EXPECT_EQ(ZelListLoadOutline(list, 0), 0);
    HostStr carrier = Carry(golden);
    HWND gone = form.AddListBox(105, {0, 0, 10, 10}, kListStyle);
    DestroyWindow(gone);
    EXPECT_EQ(ZelListLoadOutline(gone, carrier), 0);
    ZkHostStrRelease(carrier);
    untouched("arguments", 0);
}

TEST_F(LoadTest, NoItemsEmptiesTheListAndKeepsTheRegistries) {
    ASSERT_NE(Load(list, Golden()), 0);
    CPicArray *pics = PicRegistry(list);
    EXPECT_EQ(Load(list, Spell{}.header(LBX_StyleNoLines, 4, 0, 0, 0, 0).b), Root());
    EXPECT_EQ(Node(Root())->firstChild, nullptr);
    EXPECT_EQ(Rows(list), 0);
    EXPECT_EQ(PicRegistry(list), pics);
    // The style only grows; the indent is the stream's.
    EXPECT_EQ(ZelListGetStyle(list), kOutlineStyle | LBX_StyleKeepTextColor | LBX_StyleNoLines);
    EXPECT_EQ(Indent(list), 4);
}

TEST_F(LoadTest, APictureThatWillNotLoadFailsTheWholeLoadWithTheListEmpty) {
    ASSERT_NE(Load(list, Golden()), 0);
    const ZelPicHandle old = reinterpret_cast<ZelPicHandle>(PicAt(PicRegistry(list), 0));
    const Bytes missing = Spell{}
                              .header(kOutlineStyle, 8, 0, 1, 0, 1)
                              .u16(PIC_LoadFile)
                              .wide(L"Z:\\no\\such\\file.bmp")
                              .wide(L"")
                              .item(0, 0, 0, -1, 0, 0, 0, L"x")
                              .b;
    EXPECT_EQ(Load(list, missing), 0);
    EXPECT_EQ(Node(Root())->firstChild, nullptr);
    EXPECT_EQ(Rows(list), 0);
    EXPECT_EQ(PicRegistry(list), nullptr);
    EXPECT_EQ(FontRegistry(list), nullptr);
    EXPECT_EQ(ZelPicFree(old), ZEL_INVALID_PARAMETER); // the old registry freed what it owned
}

} // namespace
