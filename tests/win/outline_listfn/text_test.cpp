// Texts of any length read and changed on all four kinds of list.
#include "listfn_fixture.h"

namespace {

using namespace listfntest;

using Texts = AnyList;
LISTFN_ALL_KINDS(Texts);

// Far past any buffer a caller could have sized in advance.
std::wstring LongText(wchar_t first, size_t n = 5000) {
    std::wstring s(n, L'x');
    s[0] = first;
    s[n - 1] = L'Z';
    return s;
}

TEST_P(Texts, GetTextGivesTextsOfAnyLengthAndEmptyOnFailure) {
    const std::wstring big = LongText(L'A');
    Add({{L"one", 1}, {big.c_str(), 2}, {L"", 3}});
    const int32_t liveBefore = ZkHostLiveStrings();
    EXPECT_EQ(Take(ZelListGetText(list, 0)), L"one");
    EXPECT_EQ(Take(ZelListGetText(list, 1)), big);
    EXPECT_EQ(Take(ZelListGetText(list, 2)), L"");
    EXPECT_EQ(Take(ZelListGetText(list, 3)), L"") << "past the end";
    EXPECT_EQ(Take(ZelListGetText(list, -2)), L"");
    EXPECT_EQ(ZkHostLiveStrings(), liveBefore) << "no string is left behind on the failure path";
}

TEST_P(Texts, SetTextShorterAndLongerKeepsValueAndSelection) {
    Add({{L"first", 11}, {L"second", 22}, {L"third", 33}});
    SendMessageW(list, combo ? CB_SETCURSEL : LB_SETCURSEL, 1, 0);
    EXPECT_EQ(ZelListSetText(list, 1, L"2nd"), 0);
    const std::wstring big = LongText(L'B', 3000);
    EXPECT_EQ(ZelListSetText(list, 2, big.c_str()), 0);
    EXPECT_EQ(ZelListSetText(list, 0, nullptr), 0);
    EXPECT_EQ(RowTexts(), (std::vector<std::wstring>{L"", L"2nd", big}));
    EXPECT_EQ(RowValues(), (std::vector<int32_t>{11, 22, 33}));
    EXPECT_EQ(SendMessageW(list, combo ? CB_GETCURSEL : LB_GETCURSEL, 0, 0), 1);
    EXPECT_EQ(ZelListSetText(list, 3, L"x"), -1);
    EXPECT_EQ(ZelListSetText(list, -1, L"x"), -1);
    EXPECT_EQ(RowTexts().size(), 3u);
}

TEST(TextsPlain, SetTextInAMultiSelectListKeepsEachRowsSelection) {
    zkt::TestWindow form{400, 300};
    HWND list = MakeList(form, Kind::PlainList, LBS_MULTIPLESEL);
    for (const wchar_t *t : {L"a", L"b", L"c"}) {
        ZelListAddValue(list, t, 0);
    }
    SendMessageW(list, LB_SETSEL, TRUE, 0);
    SendMessageW(list, LB_SETSEL, TRUE, 1);
    EXPECT_EQ(ZelListSetText(list, 1, L"bee"), 0);
    EXPECT_EQ(ZelListSetText(list, 2, L"sea"), 0);
    EXPECT_EQ(SendMessageW(list, LB_GETSELCOUNT, 0, 0), 2);
    EXPECT_GT(SendMessageW(list, LB_GETSEL, 1, 0), 0);
    EXPECT_EQ(SendMessageW(list, LB_GETSEL, 2, 0), 0);
    EXPECT_EQ(Take(ZelListGetText(list, 1)), L"bee");
}

// The adopted row keeps everything but its text; a longer text moves the
// row to a new item, which the tree node then names.
TEST(TextsAdopted, ALongerTextKeepsFlagsColourFontAndTreeLinks) {
    zkt::TestWindow form{400, 300};
    HWND list = MakeList(form, Kind::AdoptedList);
    ZelListSetStyle(list, LBX_StyleOutline | LBX_StyleUpperCase, nullptr);
    const ZelItemHandle root = ZelListGetRoot(list);
    const ZelItemHandle top = ZelListLoadChild(list, root, 0, 0, L"top", 5, 0x0000000Au);
    ASSERT_NE(top, 0);
    ASSERT_NE(ZelListLoadChild(list, top, 0, 0, L"kid", 6, 0), 0);
    ASSERT_EQ(ZelListShowOutline(list, 1), 1);
    HFONT font = static_cast<HFONT>(GetStockObject(ANSI_FIXED_FONT));
    ZelListSetColor(list, 0, RGB(1, 2, 3));
    ZelListSetFont(list, 0, font);
    const int32_t flags = ZelListGetFlags(list, 0);

    EXPECT_EQ(ZelListSetText(list, 0, L"the top row"), 0);
    EXPECT_EQ(Take(ZelListGetText(list, 0)), L"THE TOP ROW") << "stored by the list's case rule";
    EXPECT_EQ(Take(ZelListGetItemText(top)), L"THE TOP ROW") << "the node names the new item";
    EXPECT_EQ(ZelListGetItemHandle(list, 0), top);
    EXPECT_EQ(ZelListGetFlags(list, 0), flags);
    EXPECT_EQ(ZelListGetValue(list, 0), 5);
    EXPECT_EQ(ZelListGetColor(list, 0), static_cast<int32_t>(RGB(1, 2, 3)));
    EXPECT_EQ(ZelListGetFont(list, 0), reinterpret_cast<INT_PTR>(font));
    EXPECT_EQ(ZelListGetParent(ZelListGetItemHandle(list, 1)), top);
    EXPECT_EQ(ZelListSetText(list, 1, L"k"), 0);
    EXPECT_EQ(Take(ZelListGetItemText(ZelListGetItemHandle(list, 1))), L"K");
}

} // namespace
