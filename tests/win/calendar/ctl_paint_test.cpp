// The paint, read back from a memory context: cells by their roles,
// gridlines in the gaps, the arrows' directions, the etched and disabled
// looks, and the colours the notify window hands out.
#include "ctl_support.h"

namespace {

using ctltest::ColumnCount;
using ctltest::FormCalendar;
using ctltest::RowCount;

constexpr COLORREF kMark = RGB(200, 30, 40);
constexpr COLORREF kRuleBack = RGB(10, 200, 10);
constexpr COLORREF kRuleText = RGB(0, 0, 160);
constexpr COLORREF kArrow = RGB(0, 160, 0);
constexpr COLORREF kDisabled = RGB(255, 0, 255);
constexpr COLORREF kFrame = RGB(0, 0, 255);

int CellCount(const zkt::Bitmap &b, const FormCalendar &c, int cell, COLORREF colour) {
    return b.count(colour, ctltest::Win(c.layout().CellRect(cell)));
}
int Area(const FormCalendar &c, int cell) {
    const auto r = c.layout().CellRect(cell);
    return r.Width() * r.Height();
}

TEST(CalendarPaint, AMarkedCellIsInRoleFourAndWinsOverASpecialRule) {
    FormCalendar c;
    ZelCalSetColor(c.control(), CALR_MarkBack, kMark);
    ZelCalSetStyle(c.control(), CALS_ShowSpecial, 1);
    ZelCalSpecialDate(c.control(), SPECIAL_Date, ctltest::Date(2024, 3, 15), 0, 0, kRuleText, kRuleBack, 1);
    ZelCalSpecialDate(c.control(), SPECIAL_Date, ctltest::Date(2024, 3, 20), 0, 0, kRuleText, kRuleBack, 1);
    const zkt::Bitmap b = c.Paint();
    EXPECT_GT(CellCount(b, c, 19, kMark), Area(c, 19) / 2) << "15 March: marked and special";
    EXPECT_EQ(CellCount(b, c, 19, kRuleBack), 0);
    EXPECT_GT(CellCount(b, c, 24, kRuleBack), Area(c, 24) / 2) << "20 March: special only";
    EXPECT_GT(CellCount(b, c, 24, kRuleText), 0) << "in the rule's text colour";
    EXPECT_EQ(CellCount(b, c, 18, kMark) + CellCount(b, c, 18, kRuleBack), 0);
    EXPECT_EQ(b.count(kMark), CellCount(b, c, 19, kMark)) << "nothing else in role 4";
}

TEST(CalendarPaint, GridlinesRunThroughTheGapsOnlyWhenAskedFor) {
    FormCalendar c;
    ZelCalSetColor(c.control(), CALR_Frame, kFrame);
    const auto &l = c.layout();
    const int midRow = (l.CellRect(0).top + l.CellRect(0).bottom) / 2;
    const int midColumn = (l.CellRect(0).left + l.CellRect(0).right) / 2;
    zkt::Bitmap plain = c.Paint();
    EXPECT_NE(plain.pixel(l.GridlineX(1), midRow), kFrame);
    ZelCalSetStyle(c.control(), CALS_ShowGridlines, 1);
    const zkt::Bitmap b = c.Paint();
    for (int i = 1; i <= 6; ++i) {
        EXPECT_EQ(b.pixel(l.GridlineX(i), midRow), kFrame) << i;
        EXPECT_EQ(b.pixel(l.GridlineX(i), l.Body().bottom - 1), kFrame) << "down to the body's bottom " << i;
        EXPECT_NE(b.pixel(l.GridlineX(i) + 1, midRow), kFrame) << "inside the cell " << i;
    }
    for (int j = 1; j <= 5; ++j)
        EXPECT_EQ(b.pixel(midColumn, l.GridlineY(j)), kFrame) << j;
    EXPECT_EQ(b.pixel(1, l.GridlineY(1)), kFrame) << "across the body from its left";
}

// Rows of the arrow of a button: widths of the arrow colour per row.
std::vector<int> ArrowRows(const zkt::Bitmap &b, const zk::Rect &r, COLORREF colour) {
    std::vector<int> rows;
    for (int y = r.top; y < r.bottom; ++y)
        if (int n = RowCount(b, colour, y, r.left, r.right))
            rows.push_back(n);
    return rows;
}
std::vector<int> ArrowColumns(const zkt::Bitmap &b, const zk::Rect &r, COLORREF colour) {
    std::vector<int> columns;
    for (int x = r.left; x < r.right; ++x)
        if (int n = ColumnCount(b, colour, x, r.top, r.bottom))
            columns.push_back(n);
    return columns;
}

TEST(CalendarPaint, ArrowsPointDownAndUpOrLeftAndRight) {
    FormCalendar c;
    ZelCalSetColor(c.control(), CALR_ButtonArrow, kArrow);
    const zkt::Bitmap b = c.Paint();
    const auto left = ArrowRows(b, c.layout().LeftButton(), kArrow);
    const auto right = ArrowRows(b, c.layout().RightButton(), kArrow);
    ASSERT_GE(left.size(), 2u);
    ASSERT_GE(right.size(), 2u);
    EXPECT_GT(left.front(), left.back()) << "wide at the top: pointing down";
    EXPECT_LT(right.front(), right.back()) << "wide at the bottom: pointing up";
    EXPECT_EQ(left.back() % 2, 1) << "the tip has a centre pixel";
    ZelCalSetStyle(c.control(), CALS_AlternateButtons, 1);
    const zkt::Bitmap alt = c.Paint();
    const auto altLeft = ArrowColumns(alt, c.layout().LeftButton(), kArrow);
    const auto altRight = ArrowColumns(alt, c.layout().RightButton(), kArrow);
    ASSERT_GE(altLeft.size(), 2u);
    ASSERT_GE(altRight.size(), 2u);
    EXPECT_LT(altLeft.front(), altLeft.back()) << "alternate: narrow at the left, pointing left";
    EXPECT_GT(altRight.front(), altRight.back()) << "alternate: narrow at the right, pointing right";
}

TEST(CalendarPaint, APressedButtonsArrowMovesDownAndRight) {
    FormCalendar c;
    ZelCalSetColor(c.control(), CALR_ButtonArrow, kArrow);
    const auto &r = c.layout().LeftButton();
    const auto corners = zk::cal::ArrowCorners(r, true, false, false);
    const zkt::Bitmap up = c.Paint();
    EXPECT_EQ(up.pixel(corners[1].x, corners[1].y), kArrow);
    c.Mouse(WM_LBUTTONDOWN, r.left + 3, r.top + 3);
    const zkt::Bitmap down = c.Paint();
    EXPECT_EQ(down.pixel(corners[1].x + 1, corners[1].y + 1), kArrow) << "the tip, one pixel on";
    EXPECT_EQ(ArrowRows(down, r, kArrow).size(), ArrowRows(up, r, kArrow).size());
    c.Mouse(WM_LBUTTONUP, r.left + 3, r.top + 3);
}

TEST(CalendarPaint, DisabledAllTextButASpecialCellsIsInRoleTwelve) {
    FormCalendar c;
    ZelCalSetColor(c.control(), CALR_DisabledText, kDisabled);
    ZelCalSetColor(c.control(), CALR_ButtonArrow, kArrow);
    ZelCalSetColor(c.control(), CALR_MarkBack, kMark);
    ZelCalSetStyle(c.control(), CALS_ShowSpecial, 1);
    ZelCalSpecialDate(c.control(), SPECIAL_Date, ctltest::Date(2024, 3, 20), 0, 0, kRuleText, kRuleBack, 1);
    SetFocus(c.hwnd());
    EnableWindow(c.hwnd(), FALSE);
    const zkt::Bitmap b = c.Paint();
    const auto &l = c.layout();
    EXPECT_EQ(b.count(kArrow), 0);
    EXPECT_GT(b.count(kDisabled, ctltest::Win(l.LeftButton())), 0) << "arrows in role 12";
    EXPECT_GT(b.count(kDisabled, ctltest::Win(l.Caption())), 0) << "the caption";
    EXPECT_GT(b.count(kDisabled, ctltest::Win(l.WeekdayBand())), 0) << "the weekday names";
    EXPECT_GT(CellCount(b, c, 10, kDisabled), 0) << "a plain cell's day";
    EXPECT_GT(CellCount(b, c, 19, kDisabled), 0) << "the marked cell's day";
    EXPECT_GT(CellCount(b, c, 24, kRuleText), 0) << "the special cell keeps its own text colour";
    EXPECT_EQ(CellCount(b, c, 24, kDisabled), 0);
    // No focus mark: the marked cell is the same as when painted without the focus.
    const auto r = l.CellRect(19);
    EXPECT_EQ(RowCount(b, kMark, r.top, r.left, r.right), r.Width()) << "no dotted frame along the top";
    EnableWindow(c.hwnd(), TRUE);
}

TEST(CalendarPaint, TheFocusMarkShowsOnlyWithTheFocus) {
    FormCalendar c;
    ZelCalSetColor(c.control(), CALR_MarkBack, kMark);
    const auto r = c.layout().CellRect(19);
    SetFocus(c.form);
    EXPECT_EQ(RowCount(c.Paint(), kMark, r.top, r.left, r.right), r.Width());
    SetFocus(c.hwnd());
    ASSERT_EQ(GetFocus(), c.hwnd());
    EXPECT_LT(RowCount(c.Paint(), kMark, r.top, r.left, r.right), r.Width()) << "the dotted frame";
}

TEST(CalendarPaint, EtchedLookPaintsOnTheButtonFace) {
    FormCalendar c;
    ZelCalSetStyle(c.control(), CALS_EtchedLook, 1);
    const zkt::Bitmap b = c.Paint();
    const auto r = c.layout().CellRect(10);
    EXPECT_EQ(b.pixel(r.left, r.top), GetSysColor(COLOR_BTNFACE)) << "the cell background";
    EXPECT_EQ(ZelCalGetColor(c.control(), CALR_CellText), static_cast<int32_t>(GetSysColor(COLOR_BTNTEXT)));
}

TEST(CalendarPaint, TheNotifyWindowsListColoursHoldForOnePaint) {
    FormCalendar c;
    c.listBrush = CreateSolidBrush(RGB(250, 240, 200));
    c.listText = RGB(120, 0, 0);
    ZelCalSetColor(c.control(), CALR_CellBack, RGB(1, 1, 1));
    const zkt::Bitmap b = c.Paint();
    const auto r = c.layout().CellRect(10);
    EXPECT_EQ(b.pixel(r.left, r.top), RGB(250, 240, 200));
    EXPECT_GT(CellCount(b, c, 10, RGB(120, 0, 0)), 0) << "the day in the context's text colour";
    EXPECT_EQ(ZelCalGetColor(c.control(), CALR_CellBack), static_cast<int32_t>(RGB(250, 240, 200)));
}

TEST(CalendarPaint, WithoutANotifyWindowTheTextStaysBlackFromPaintToPaint) {
    HWND popup = CreateWindowExW(0, L"ZK:cCalendar:10", L"", WS_POPUP | WS_BORDER, 0, 0, 240, 180, nullptr, nullptr,
                                 GetModuleHandleW(nullptr), nullptr);
    ASSERT_NE(popup, nullptr);
    for (int round = 0; round < 2; ++round) {
        const zkt::Bitmap b = zkt::PrintClient(popup);
        const RECT days{0, b.height() / 3, b.width(), b.height()}; // below buttons and names
        EXPECT_GT(b.count(RGB(0, 0, 0), days), 50) << "black days, round " << round;
    }
    DestroyWindow(popup);
    zkt::PumpMessages();
}

TEST(CalendarPaint, APaintCopiesOnlyTheClipBox) {
    FormCalendar c;
    ZelCalSetColor(c.control(), CALR_MarkBack, kMark);
    UpdateWindow(c.hwnd());
    const auto r = c.layout().CellRect(19);
    HDC dc = GetDC(c.hwnd());
    // Scribble over the whole client area, then let one cell be painted again.
    RECT all{};
    GetClientRect(c.hwnd(), &all);
    HBRUSH black = static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH));
    FillRect(dc, &all, black);
    const RECT cell = ctltest::Win(r);
    InvalidateRect(c.hwnd(), &cell, FALSE);
    UpdateWindow(c.hwnd());
    EXPECT_EQ(GetPixel(dc, r.left + 1, r.top + 1), kMark);
    EXPECT_EQ(GetPixel(dc, r.right + 3, r.top + 1), RGB(0, 0, 0)) << "outside the clip box nothing changed";
    ReleaseDC(c.hwnd(), dc);
}

} // namespace
