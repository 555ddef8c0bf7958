// Save, load, save again: the outline survives, and a loaded outline saves
// to the very bytes it was loaded from.
#include "file_support.h"

namespace {

using namespace ofiletest;

// The parts of each node that a round trip must keep: text, value, level,
// colour, the application's bits and the hidden bit.
std::string Content(ZelItemHandle root) {
    std::string out;
    for (const LbxNode *n : Walk(Node(root))) {
        char line[64];
        std::snprintf(line, sizeof line, "%d %d %06x %04x %d|", n->level, n->item->value,
                      static_cast<unsigned>(n->item->color), static_cast<unsigned>(n->item->flags & 0xFFFF),
                      (n->item->flags & LBX_ItemHidden) != 0);
        out += line;
        const std::wstring text = NodeText(n);
        out += std::string(reinterpret_cast<const char *>(text.data()), 2 * text.size());
    }
    return out;
}

using RoundTripTest = FileFixture;

TEST_F(RoundTripTest, ALoadedOutlineSavesToTheBytesItCameFrom) {
    // Three levels, pictures, fonts, colours, application bits, a hidden
    // branch and texts of every length form.
    const ZelPicHandle plus = ZelPicLoad(0x8201, L"ZKLIB.dll", L"plusdk");
    const ZelPicHandle minus = ZelPicLoad(0x8201, L"ZKLIB.dll", L"minusdk");
    const HFONT big = ZelFontLoad(L"Tahoma", 14, FONT_Underline);
    ASSERT_TRUE(plus && minus && big);
    for (int i = 0; i < 6; ++i) {
        const ZelItemHandle top = Child(Root(), (L"top " + std::to_wstring(i)).c_str(), i, i, plus, minus);
        ZelListSetItemColor(top, RGB(i * 40, 0, 255 - i * 40));
        for (int j = 0; j < 4; ++j) {
            const ZelItemHandle mid = Child(top, L"mid", 100 * i + j, j == 2 ? LBX_ItemHidden : 0, minus, 0);
            if (j == 1)
                ZelListSetItemFont(mid, big);
            for (int k = 0; k < j; ++k)
                Child(mid, std::wstring(k == 0 ? 300 : 3, static_cast<wchar_t>(L'a' + k)).c_str(), k);
        }
    }
    ASSERT_EQ(ZelListShowOutline(list, 32766), 1);
    const std::string content = Content(Root());
    const int rows = Rows(list);
    ASSERT_NE(Load(other, Save(list)), 0);
    EXPECT_EQ(Content(Root(other)), content);
    const Bytes second = Save(other);
    ASSERT_NE(Load(list, second), 0);
    EXPECT_EQ(Save(list), second);
    EXPECT_EQ(Describe(Root(list)), Describe(Root(other)));
    // The hidden nodes stayed hidden: the rows are those the outline had.
    EXPECT_EQ(Rows(other), rows);
    EXPECT_EQ(Rows(list), rows);
    // Pictures and fonts are rebuilt from how they were made.
    CPicArray *pics = PicRegistry(other);
    ASSERT_TRUE(pics && pics->Count() == 2);
    EXPECT_EQ(PicAt(pics, 1)->name, L"minusdk");
    EXPECT_NE(PicAt(pics, 0)->bitmap, nullptr);
    const LbxNode *top = Node(Root(other))->firstChild;
    EXPECT_EQ(top->item->picNormal, PicAt(pics, 0));
    EXPECT_EQ(top->item->picSelected, PicAt(pics, 1));
    HostStr face = 0;
    int32_t points = 0;
    uint16_t style = 0;
    ASSERT_EQ(ZelFontGet(static_cast<HFONT>(top->firstChild->next->item->font), &face, &points, &style), 1);
    ZkHostStrRelease(face);
    EXPECT_EQ(points, 14);
    EXPECT_EQ(style, FONT_Underline);
}

TEST_F(RoundTripTest, AComboBoxRoundTripsToo) {
    HWND combo = form.AddComboBox(103, {10, 200, 200, 150}, kComboStyle);
    HWND combo2 = form.AddComboBox(104, {220, 200, 200, 150}, kComboStyle);
    ASSERT_EQ(ZelListSetStyle(combo, LBX_StyleOutline, nullptr), 1);
    ASSERT_EQ(ZelListSetStyle(combo2, LBX_StyleOutline, nullptr), 1);
    const ZelItemHandle a = Child(Root(combo), L"a", 1, 0, 0, 0, combo);
    Child(a, L"b", 2, 0, 0, 0, combo);
    Child(Root(combo), L"c", 3, 0, 0, 0, combo);
    ASSERT_EQ(ZelListShowOutline(combo, 32767), 1);
    ASSERT_NE(Load(combo2, Save(combo)), 0);
    EXPECT_EQ(Content(Root(combo2)), Content(Root(combo)));
    EXPECT_EQ(SendMessageW(combo2, CB_GETCOUNT, 0, 0), 3);
    const Bytes second = Save(combo2);
    ASSERT_NE(Load(combo, second), 0);
    EXPECT_EQ(Save(combo), second);
}

} // namespace
