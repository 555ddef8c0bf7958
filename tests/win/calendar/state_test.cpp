// Focus date, colours, style bits and week start through the exports.
#include "calendar_support.h"

namespace {

using caltest::CalendarExports;
using caltest::Date;

TEST_F(CalendarExports, TheFocusDateIsTheDayAtMidnight) {
    EXPECT_EQ(ZelCalSetFocusDate(control(), Date(2024, 2, 29, 17, 5, 0)), 1);
    HostDateTime d{};
    EXPECT_EQ(ZelCalGetFocusDate(control(), &d), 1);
    EXPECT_EQ(caltest::Text(d), L"2024-02-29 00:00:00");
    EXPECT_EQ(calendar->DisplayMonth(), 2);
    EXPECT_EQ(calendar->FocusCell(), 32);
    EXPECT_EQ(ZelCalIsDateMarked(control(), Date(2024, 2, 29)), 1) << "the single selection follows";
    EXPECT_EQ(ZelCalSetFocusDate(control(), Date(2024, 3, 1)), 1);
    EXPECT_EQ(ZelCalIsDateMarked(control(), Date(2024, 2, 29)), 0);
}

TEST_F(CalendarExports, AnInvalidFocusDateIsRefused) {
    zkt::DebugOutputCapture capture;
    EXPECT_EQ(ZelCalSetFocusDate(control(), HostDateTime{}), 0);
    EXPECT_EQ(calendar->DisplayMonth(), 0) << "nothing changed";
    EXPECT_EQ(capture.calls(), 0u) << "a refusal, not an exception";
    EXPECT_EQ(ZelCalGetFocusDate(control(), nullptr), 0);
    EXPECT_EQ(capture.text(), L"ZelCalGetFocusDate() - Unable to retrieve current datetime.\n");
}

TEST_F(CalendarExports, ColoursFollowTheSystemUntilSetAndOnlySixteenRolesExist) {
    EXPECT_EQ(ZelCalGetColor(control(), CALR_CellBack), int32_t(GetSysColor(COLOR_WINDOW)));
    EXPECT_EQ(ZelCalGetColor(control(), CALR_MarkBack), int32_t(GetSysColor(COLOR_HIGHLIGHT)));
    // The old colour is the one in force, so restoring it gives the system colour back.
    EXPECT_EQ(ZelCalSetColor(control(), CALR_CellText, RGB(1, 2, 3)), int32_t(GetSysColor(COLOR_WINDOWTEXT)));
    EXPECT_EQ(ZelCalGetColor(control(), CALR_CaptionText), int32_t(RGB(1, 2, 3))) << "derived from the cell text";
    EXPECT_EQ(ZelCalSetColor(control(), CALR_CellText, RGB(4, 5, 6)), int32_t(RGB(1, 2, 3)));
    zkt::DebugOutputCapture capture;
    EXPECT_EQ(ZelCalGetColor(control(), 16), -1);
    EXPECT_EQ(ZelCalSetColor(control(), -1, 0), -1);
    EXPECT_EQ(capture.lines(),
              (std::vector<std::wstring>{L"ZelCalGetColor() - Unable to retrieve color for specified role.",
                                         L"ZelCalSetColor() - Unable to assign color to specified role."}));
}

TEST_F(CalendarExports, StyleBits) {
    const int32_t defaults = CALS_EnableButtons | CALS_EnableKeyboard | CALS_ShowFocus | CALS_SelectExtra |
                             CALS_SelectSpecial | CALS_ShowExtra;
    EXPECT_EQ(ZelCalGetStyle(control()), defaults);
    EXPECT_EQ(ZelCalSetStyle(control(), CALS_ShowGridlines | CALS_MultipleSelection | 0x40000, 1), defaults);
    EXPECT_EQ(ZelCalGetStyle(control()), defaults | CALS_ShowGridlines | CALS_MultipleSelection);
    ZelCalMarkDate(control(), Date(2024, 1, 1), 1);
    ZelCalMarkDate(control(), Date(2024, 1, 2), 1);
    ZelCalSetStyle(control(), CALS_MultipleSelection, 0);
    EXPECT_EQ(calendar->Marks().size(), 1u) << "back to one selection: the focus date";
}

TEST_F(CalendarExports, WeekStartOutsideOneToSevenIsReportedWithTheRangeText) {
    zkt::DebugOutputCapture capture;
    EXPECT_EQ(ZelCalWeekStartGet(control()), 1);
    EXPECT_EQ(ZelCalWeekStartSet(control(), 0), -1);
    EXPECT_EQ(ZelCalWeekStartSet(control(), 8), -1);
    EXPECT_EQ(capture.lines(),
              (std::vector<std::wstring>{L"ZelCalWeekStartSet() - Maximum must be greater than or equal to minimum.",
                                         L"ZelCalWeekStartSet() - Maximum must be greater than or equal to minimum."}));
    capture.clear();
    EXPECT_EQ(ZelCalWeekStartSet(control(), 2), 1);
    EXPECT_EQ(ZelCalWeekStartSet(control(), 7), 2);
    EXPECT_EQ(ZelCalWeekStartGet(control()), 7);
    EXPECT_EQ(capture.calls(), 0u);
    calendar->SetWeekStart(9);
    EXPECT_EQ(ZelCalWeekStartGet(control()), -1);
    EXPECT_EQ(capture.text(), L"ZelCalWeekStartGet() - Maximum must be greater than or equal to minimum.\n");
}

} // namespace
