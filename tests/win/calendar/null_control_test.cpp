// Every export with a null control: the box of string 48 naming the
// function, the failure value, and the function's own failure words in the
// debugger output (none for ZelCalWeekStartGet).
#include <functional>

#include "calendar_support.h"

namespace {

using Row = zkt::NullControlCall;

std::vector<Row> Rows() {
    const ZelCalControl none = 0;
    const HostDateTime d = caltest::Date(2024, 3, 15);
    HostDateTime out{};
    return {
        {L"ZelCalClearMarked()", 0, L"Unable to clear selected dates.", [=] { return ZelCalClearMarked(none); }},
        {L"ZelCalClearSpecial()", 0, L"Unable to clear special dates.", [=] { return ZelCalClearSpecials(none); }},
        {L"ZelCalGetColor()", -1, L"Unable to retrieve color for specified role.",
         [=] { return ZelCalGetColor(none, 1); }},
        {L"ZelCalGetFocusDate()", 0, L"Unable to retrieve current datetime.",
         [=]() mutable { return ZelCalGetFocusDate(none, &out); }},
        {L"ZelCalGetMarked()", -1, L"Unable to retrieve marked dates.", [=] { return ZelCalGetMarked(none, 0); }},
        {L"ZelCalGetSpecials()", -1, L"Unable to retrieve special weekdays.",
         [=] { return ZelCalGetSpecials(none, 0, 0, 0, 0); }},
        {L"ZelCalGetStyle()", 0, L"Unable to retrieve style bits.", [=] { return ZelCalGetStyle(none); }},
        {L"ZelCalIsDateMarked()", 0, L"Unable to determine if specified date is marked.",
         [=] { return ZelCalIsDateMarked(none, d); }},
        {L"ZelCalIsDateSpecial()", 0, L"Unable to determine if specified date is special.",
         [=] { return ZelCalIsDateSpecial(none, 1, d, 6, 3); }},
        {L"ZelCalMarkDate()", 0, L"Unable to add/remove date from selection list.",
         [=] { return ZelCalMarkDate(none, d, 1); }},
        {L"ZelCalMarkDates()", 0, L"Unable to add/remove multiple dates from selection list.",
         [=] { return ZelCalMarkDates(none, 0, 1); }},
        {L"ZelCalSetColor()", -1, L"Unable to assign color to specified role.",
         [=] { return ZelCalSetColor(none, 1, 0xFF); }},
        {L"ZelCalSetFocusDate()", 0, L"Unable to assign new focus by date.",
         [=] { return ZelCalSetFocusDate(none, d); }},
        {L"ZelCalSetMonths()", 0, L"Unable to assign text for month names.", [=] { return ZelCalSetMonths(none, 0); }},
        {L"ZelCalSetStyle()", 0, L"Unable to update style bits.", [=] { return ZelCalSetStyle(none, 0x20, 1); }},
        {L"ZelCalSetWeekDays()", 0, L"Unable to assign text for weekday names.",
         [=] { return ZelCalSetWeekDays(none, 0); }},
        {L"ZelCalSpecialDate()", 0, L"Unable to add/remove date from special rule list.",
         [=] { return ZelCalSpecialDate(none, 1, d, 0, 0, 0, 0, 1); }},
        {L"ZelCalWeekStartSet()", -1, L"Unable to set the starting weekday.",
         [=] { return ZelCalWeekStartSet(none, 2); }},
        {L"ZelCalWeekStartGet()", -1, nullptr, [=] { return ZelCalWeekStartGet(none); }},
    };
}

TEST(CalendarNullControl, EveryExportShowsStringFortyEightAndFails) {
    const std::vector<Row> rows = Rows();
    ASSERT_EQ(rows.size(), 19u) << "all nineteen exports";
    for (const Row &row : rows)
        EXPECT_TRUE(zkt::NullControlAnswers(row)) << row.name;
}

} // namespace
