// The painting exports through the library, on lists adopted the way the
// host adopts them: indent, text rectangle, horizontal extent, and rows
// painted by the library's own parent procedure.
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "list_support.h"
#include "outline/core/lbx.h"
#include "zkharness.h"
#include "zklib.h"

using namespace zk::lbx;

namespace {

using namespace outlinetest;
constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);

// Records the window styles a list is given, beneath whatever procedure it has.
struct StyleWatch {
    static inline WNDPROC next = nullptr;
    static inline std::vector<DWORD> styles;
    static LRESULT CALLBACK Proc(HWND w, UINT m, WPARAM wp, LPARAM lp) {
        if (m == WM_STYLECHANGED && wp == static_cast<WPARAM>(GWL_STYLE))
            styles.push_back(reinterpret_cast<const STYLESTRUCT *>(lp)->styleNew);
        return CallWindowProcW(next, w, m, wp, lp);
    }
    explicit StyleWatch(HWND w) {
        styles.clear();
        next = reinterpret_cast<WNDPROC>(SetWindowLongPtrW(w, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Proc)));
    }
};

class Exports : public ::testing::Test {
protected:
    void SetUp() override {
        font = PaintFont();
        list = form.AddListBox(1, {10, 10, 160, 150}, kListStyle);
        SendMessageW(list, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
        ASSERT_EQ(ZelListSetStyle(list, LBX_StyleOwnerDraw, nullptr), 1);
        picture = ZelPicLoad(0x0201, L"ZKLIB.dll", L"plusdk");
        ASSERT_NE(picture, 0);
    }
    void TearDown() override {
        DestroyWindow(list);
        ZelPicFree(picture);
        DeleteObject(font);
    }
    TEXTMETRICW Metrics() const { return FontMetrics(list, font); }
    int Width(const wchar_t *text) const { return TextWidth(list, font, text); }
    RECT Row(int row) const {
        RECT r{};
        SendMessageW(list, LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&r));
        return r;
    }

    zkt::TestWindow form{400, 300};
    HWND list = nullptr;
    HFONT font = nullptr;
    ZelPicHandle picture = 0;
};

TEST_F(Exports, TextRectangleBesideAPicture) {
    ASSERT_GE(ZelListAddPicture(list, L"Text", picture, picture), 0);
    int32_t top = -1, left = -1, bottom = -1, right = -1;
    ASSERT_EQ(ZelListGetTextRectangle(list, 0, &top, &left, &bottom, &right), 1);
    const TEXTMETRICW tm = Metrics();
    const RECT row = Row(0);
    // A flat item with a picture: the gap is the average width here.
    EXPECT_EQ(left, row.left + tm.tmAveCharWidth + 16);
    EXPECT_EQ(top, row.top + (row.bottom - row.top - tm.tmHeight) / 2);
    EXPECT_EQ(right, left + Width(L"Text") + 4);
    EXPECT_EQ(bottom, top + std::max<int>(tm.tmHeight, 16));
    // The right edge given out never passes the row's.
    ASSERT_GE(ZelListAddPicture(list, L"A text far wider than the list itself is", picture, picture), 0);
    ASSERT_EQ(ZelListGetTextRectangle(list, 1, &top, &left, &bottom, &right), 1);
    EXPECT_EQ(right, Row(1).right);
}

TEST_F(Exports, TextRectangleFailures) {
    ASSERT_GE(ZelListAddColor(list, L"row", 0), 0);
    int32_t v = 0;
    EXPECT_EQ(ZelListGetTextRectangle(list, 5, &v, &v, &v, &v), 0);
    EXPECT_EQ(ZelListGetTextRectangle(list, -1, &v, &v, &v, &v), 0);
    EXPECT_EQ(ZelListGetTextRectangle(list, 0, nullptr, &v, &v, &v), 0);
    HWND plain = form.AddListBox(2, {200, 10, 100, 100});
    SendMessageW(plain, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"plain"));
    EXPECT_EQ(ZelListGetTextRectangle(plain, 0, &v, &v, &v, &v), 0);
    HWND combo = form.AddComboBox(3, {200, 150, 100, 100}, CBS_DROPDOWNLIST | CBS_OWNERDRAWVARIABLE);
    CREATESTRUCTW create{};
    create.style = GetWindowLongW(combo, GWL_STYLE);
    ASSERT_EQ(ZelListSetStyle(combo, LBX_StyleOwnerDraw, &create), 1);
    ASSERT_GE(ZelListAddColor(combo, L"row", 0), 0);
    EXPECT_EQ(ZelListGetTextRectangle(combo, 0, &v, &v, &v, &v), 0);
}

TEST_F(Exports, ScrollWidthGrowsToTheWidestRowAndNeverShrinks) {
    const wchar_t *longText = L"A row of text much wider than the list box";
    ASSERT_GE(ZelListAddColor(list, L"short", 0), 0);
    ASSERT_GE(ZelListAddColor(list, longText, 0), 0);
    StyleWatch watch(list);
    EXPECT_EQ(ZelListSetScrollWidth(list, -1), 0);
    const int32_t pad = Metrics().tmAveCharWidth / 2;
    const int32_t widest = Row(1).left + Width(longText) + 4 + pad;
    EXPECT_EQ(SendMessageW(list, LB_GETHORIZONTALEXTENT, 0, 0), widest);
    // The list is given a horizontal scroll bar. (Wine's list box shows and
    // hides that bar by the style it was created with, so the style is
    // watched as it is set rather than read back.)
    ASSERT_FALSE(StyleWatch::styles.empty());
    EXPECT_NE(StyleWatch::styles.front() & WS_HSCROLL, 0u);
    // One row alone, narrower: the extent stays.
    EXPECT_EQ(ZelListSetScrollWidth(list, 0), 0);
    EXPECT_EQ(SendMessageW(list, LB_GETHORIZONTALEXTENT, 0, 0), widest);
    // A row past the end holds no item.
    EXPECT_EQ(ZelListSetScrollWidth(list, 9), ZEL_NOT_ENOUGH_MEMORY);
}

TEST_F(Exports, ScrollWidthOfPlainListsAndBadWindows) {
    HWND plain = form.AddListBox(2, {200, 10, 60, 100}, LBS_NOTIFY | LBS_HASSTRINGS | WS_VSCROLL);
    SendMessageW(plain, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    const wchar_t *text = L"plain text wider than sixty";
    SendMessageW(plain, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
    EXPECT_EQ(ZelListSetScrollWidth(plain, -1), 0);
    EXPECT_EQ(SendMessageW(plain, LB_GETHORIZONTALEXTENT, 0, 0), Width(text) + Metrics().tmAveCharWidth / 2);
    SendMessageW(plain, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L""));
    EXPECT_EQ(ZelListSetScrollWidth(plain, -1), ZEL_FAILED); // an empty text cannot be measured
    EXPECT_EQ(ZelListSetScrollWidth(nullptr, -1), ZEL_INVALID_PARAMETER);
    HWND button = form.AddButton(3, {0, 200, 50, 20}, L"b");
    EXPECT_EQ(ZelListSetScrollWidth(button, -1), ZEL_INVALID_PARAMETER);
}

TEST_F(Exports, RowsPaintedByTheLibrary) {
    ASSERT_GE(ZelListAddColor(list, L"Red row", kRed), 0);
    ASSERT_GE(ZelListAddColor(list, L"Disabled blue", 0x01000000 | kBlue), 0);
    ASSERT_GE(ZelListAddPicture(list, L"Picture", picture, picture), 0);
    SendMessageW(list, LB_SETCURSEL, 0, 0);
    zkt::PumpMessages();
    const zkt::Bitmap shot = zkt::CaptureClient(list);
    ASSERT_TRUE(shot.valid());
    const RECT r0 = Row(0), r1 = Row(1), r2 = Row(2);
    EXPECT_GT(shot.count(GetSysColor(COLOR_HIGHLIGHT), r0), 50);
    EXPECT_EQ(shot.count(kRed, r0), 0);
    EXPECT_GT(shot.count(kBlue, r1), 5);
    EXPECT_EQ(shot.count(GetSysColor(COLOR_HIGHLIGHT), r1), 0);
    // The plus box: its black frame at gap / 2 (a flat item: 2), the key colour nowhere.
    EXPECT_EQ(shot.pixel(r2.left + 2 + 3, r2.top + (r2.bottom - r2.top - 16) / 2 + 3), RGB(0, 0, 0));
    EXPECT_EQ(shot.count(RGB(255, 0, 255)), 0);
    EXPECT_EQ(ZelListGetFlags(list, 0) & static_cast<int32_t>(LBX_ItemSelected),
              static_cast<int32_t>(LBX_ItemSelected));
}

} // namespace
