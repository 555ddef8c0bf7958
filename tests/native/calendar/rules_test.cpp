// Special rules: their priority, replacement, removal and what a cell asks.
#include <gtest/gtest.h>

#include "calendar_fakes.h"

namespace {

using caltest::Shown;
using Events = std::vector<std::string>;
using zk::cal::CDateTime;
using zk::cal::SSpecialRule;

// Every kind, each with colours of its own, all matching Friday 15 March 2024
// (the third Friday of the month).
SSpecialRule KindFor15March(int type) {
    return SSpecialRule(type, CDateTime(2024, 3, 15), 6, 3, 0x100u + type, 0x200u + type);
}

int Matches(zk::cal::CalendarModel &cal, int y, int m, int d, int weekday, int week, uint32_t *text = nullptr,
            uint32_t *back = nullptr) {
    return cal.MatchSpecial(SSpecialRule(0, CDateTime(y, m, d), weekday, week, 0, 0), text, back);
}

TEST(Rules, TheKindsMatchInTheirOrderWhateverTheCallersType) {
    Shown s(2024, 3, false);
    for (int type = SPECIAL_YearWeekday; type >= SPECIAL_Date; --type) {
        ASSERT_EQ(s.cal.SetSpecialRule(KindFor15March(type), 1), 1);
        for (int asked : {0, 1, 4, 6, 99}) {
            uint32_t text = 0, back = 0;
            ASSERT_EQ(s.cal.MatchSpecial(SSpecialRule(asked, CDateTime(2024, 3, 15), 6, 3, 0, 0), &text, &back), 1);
            EXPECT_EQ(text, 0x100u + type) << "kind " << type << " beats those after it";
            EXPECT_EQ(back, 0x200u + type);
        }
    }
    EXPECT_EQ(s.cal.Rules().size(), 6u);
}

TEST(Rules, EachKindMatchesItsOwnDates) {
    struct Probe {
        int year, month, day, weekday, week;
    };
    const struct {
        int type;
        Probe hit, miss;
    } table[] = {
        {SPECIAL_Date, {2024, 3, 15, 6, 3}, {2025, 3, 15, 7, 3}},
        {SPECIAL_Weekly, {2024, 3, 22, 6, 4}, {2024, 3, 16, 7, 3}},
        {SPECIAL_MonthDay, {1999, 8, 15, 1, 3}, {2024, 3, 14, 5, 2}},
        {SPECIAL_MonthWeekday, {2024, 4, 19, 6, 3}, {2024, 3, 22, 6, 4}},
        {SPECIAL_YearDay, {2031, 3, 15, 7, 3}, {2024, 4, 15, 2, 3}},
        {SPECIAL_YearWeekday, {2025, 3, 21, 6, 3}, {2025, 4, 18, 6, 3}},
    };
    for (const auto &row : table) {
        SCOPED_TRACE(row.type);
        Shown s(2024, 3, false);
        s.cal.SetSpecialRule(KindFor15March(row.type), 1);
        const Probe &h = row.hit, &m = row.miss;
        EXPECT_EQ(Matches(s.cal, h.year, h.month, h.day, h.weekday, h.week), 1);
        EXPECT_EQ(Matches(s.cal, m.year, m.month, m.day, m.weekday, m.week), 0);
    }
}

TEST(Rules, ASecondRuleOfTheSameKeyReplacesTheFirst) {
    Shown s(2024, 3, false);
    s.cal.SetSpecialRule(SSpecialRule(SPECIAL_Date, CDateTime(2024, 3, 15), 0, 0, 1, 2), 1);
    EXPECT_EQ(s.cal.SetSpecialRule(SSpecialRule(SPECIAL_Date, CDateTime(2024, 3, 15), 4, 4, 3, 4), 1), 1);
    EXPECT_EQ(s.cal.Rules().size(), 1u);
    uint32_t text = 0, back = 0;
    Matches(s.cal, 2024, 3, 15, 6, 3, &text, &back);
    EXPECT_EQ(text, 3u);
    EXPECT_EQ(back, 4u);
}

TEST(Rules, AddingRemovingAndClearingRedrawOnlyWhatChanged) {
    Shown s(2024, 3);
    EXPECT_EQ(s.cal.SetSpecialRule(KindFor15March(SPECIAL_Weekly), 0), 0) << "not there";
    EXPECT_EQ(s.cal.SetSpecialRule(KindFor15March(SPECIAL_Weekly), 2), 0);
    EXPECT_EQ(s.cal.ClearSpecials(1), 1);
    EXPECT_TRUE(s.window.events.empty());
    s.cal.SetSpecialRule(KindFor15March(SPECIAL_Date), 1);
    EXPECT_EQ(s.window.Take(), (Events{"inv cell 19", "update"})) << "a date rule redraws only its cell";
    s.cal.SetSpecialRule(SSpecialRule(SPECIAL_Date, CDateTime(2025, 1, 1), 0, 0, 1, 2), 1);
    EXPECT_EQ(s.window.Take(), (Events{"update"})) << "a date off the grid has no cell";
    s.cal.SetSpecialRule(KindFor15March(SPECIAL_Weekly), 1);
    s.window.Take();
    EXPECT_EQ(s.cal.SetSpecialRule(KindFor15March(SPECIAL_Weekly), 0), 1);
    EXPECT_EQ(s.window.Take(), (Events{"inv grid", "update"}));
    EXPECT_EQ(s.cal.ClearSpecials(1), 1);
    EXPECT_TRUE(s.cal.Rules().empty());
    EXPECT_EQ(s.window.Take(), (Events{"inv grid", "update"}));
}

TEST(Rules, ATypeOfNoKindIsStoredButNeverMatches) {
    Shown s(2024, 3, false);
    EXPECT_EQ(s.cal.SetSpecialRule(KindFor15March(9), 1), 1);
    EXPECT_EQ(s.cal.Rules().size(), 1u);
    EXPECT_EQ(Matches(s.cal, 2024, 3, 15, 6, 3), 0);
    EXPECT_EQ(s.cal.MatchSpecial(SSpecialRule(0, CDateTime(HostDateTime{}), 0, 0, 0, 0), nullptr, nullptr), 0)
        << "not even a probe of no fields";
}

TEST(CellSpecial, NeedsShowSpecialAndComputesTheWeekOfTheMonth) {
    Shown s(2024, 3, false);
    // The fifth Sunday of March 2024 is the 31st, in cell 35.
    s.cal.SetSpecialRule(SSpecialRule(SPECIAL_MonthWeekday, CDateTime(2024, 1, 1), 1, 5, 7, 8), 1);
    uint32_t text = 0xDEAD, back = 0xBEEF;
    EXPECT_EQ(s.cal.GetCellSpecial(35, &text, &back, -1, -1, nullptr), 0);
    EXPECT_EQ(text, 0u) << "the outputs are cleared";
    EXPECT_EQ(back, 0u);
    s.cal.SetStyle(CALS_ShowSpecial, 2);
    EXPECT_EQ(s.cal.GetCellSpecial(35, nullptr, nullptr, -1, -1, nullptr), 0) << "Show Special counts at 1";
    s.cal.SetStyle(CALS_ShowSpecial, 1);
    EXPECT_EQ(s.cal.GetCellSpecial(35, &text, &back, -1, -1, nullptr), 1);
    EXPECT_EQ(text, 7u);
    EXPECT_EQ(back, 8u);
    EXPECT_EQ(s.cal.GetCellSpecial(28, nullptr, nullptr, -1, -1, nullptr), 0) << "the 24th is in week 4";
    EXPECT_EQ(s.cal.GetCellSpecial(6, nullptr, nullptr, -1, -1, nullptr), 0) << "3 March is in week 1";
    const CDateTime given(2024, 6, 30); // the fifth Sunday of June
    EXPECT_EQ(s.cal.GetCellSpecial(0, nullptr, nullptr, -1, -1, &given), 1) << "a given date wins over the cell";
}

} // namespace
