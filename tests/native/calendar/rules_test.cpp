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

struct Colors {
    uint32_t text = 0xDEAD, back = 0xBEEF;
};

TEST(Rules, TheKindsMatchInTheirOrderWhateverTheCallersType) {
    Shown s(2024, 3, false);
    for (int type = SPECIAL_YearWeekday; type >= SPECIAL_Date; --type) {
        ASSERT_EQ(s.cal.SetSpecialRule(KindFor15March(type), 1), 1);
        for (int asked : {0, 1, 4, 6, 99}) {
            Colors c;
            SSpecialRule probe(asked, CDateTime(2024, 3, 15), 6, 3, 0, 0);
            ASSERT_EQ(s.cal.MatchSpecial(probe, &c.text, &c.back), 1);
            EXPECT_EQ(c.text, 0x100u + type) << "kind " << type << " beats those after it";
            EXPECT_EQ(c.back, 0x200u + type);
        }
    }
    EXPECT_EQ(s.cal.Rules().size(), 6u);
}

TEST(Rules, EachKindMatchesItsOwnDates) {
    Shown s(2024, 3, false);
    auto matches = [&](int year, int month, int day, int weekday, int week) {
        return s.cal.MatchSpecial(SSpecialRule(0, CDateTime(year, month, day), weekday, week, 0, 0), nullptr,
                                  nullptr);
    };
    s.cal.SetSpecialRule(KindFor15March(SPECIAL_Date), 1);
    EXPECT_EQ(matches(2024, 3, 15, 6, 3), 1);
    EXPECT_EQ(matches(2025, 3, 15, 7, 3), 0);
    s.cal.ClearSpecials(0);
    s.cal.SetSpecialRule(KindFor15March(SPECIAL_Weekly), 1);
    EXPECT_EQ(matches(2024, 3, 22, 6, 4), 1);
    EXPECT_EQ(matches(2024, 3, 16, 7, 3), 0);
    s.cal.ClearSpecials(0);
    s.cal.SetSpecialRule(KindFor15March(SPECIAL_MonthDay), 1);
    EXPECT_EQ(matches(1999, 8, 15, 1, 3), 1);
    EXPECT_EQ(matches(2024, 3, 14, 5, 2), 0);
    s.cal.ClearSpecials(0);
    s.cal.SetSpecialRule(KindFor15March(SPECIAL_MonthWeekday), 1);
    EXPECT_EQ(matches(2024, 4, 19, 6, 3), 1);
    EXPECT_EQ(matches(2024, 3, 22, 6, 4), 0);
    s.cal.ClearSpecials(0);
    s.cal.SetSpecialRule(KindFor15March(SPECIAL_YearDay), 1);
    EXPECT_EQ(matches(2031, 3, 15, 7, 3), 1);
    EXPECT_EQ(matches(2024, 4, 15, 2, 3), 0);
    s.cal.ClearSpecials(0);
    s.cal.SetSpecialRule(KindFor15March(SPECIAL_YearWeekday), 1);
    EXPECT_EQ(matches(2025, 3, 21, 6, 3), 1);
    EXPECT_EQ(matches(2025, 4, 18, 6, 3), 0);
}

TEST(Rules, ASecondRuleOfTheSameKeyReplacesTheFirst) {
    Shown s(2024, 3, false);
    s.cal.SetSpecialRule(SSpecialRule(SPECIAL_Date, CDateTime(2024, 3, 15), 0, 0, 1, 2), 1);
    EXPECT_EQ(s.cal.SetSpecialRule(SSpecialRule(SPECIAL_Date, CDateTime(2024, 3, 15), 4, 4, 3, 4), 1), 1);
    EXPECT_EQ(s.cal.Rules().size(), 1u);
    Colors c;
    s.cal.MatchSpecial(SSpecialRule(0, CDateTime(2024, 3, 15), 6, 3, 0, 0), &c.text, &c.back);
    EXPECT_EQ(c.text, 3u);
    EXPECT_EQ(c.back, 4u);
}

TEST(Rules, RemovingARuleThatIsNotThereFailsWithoutRedrawing) {
    Shown s(2024, 3);
    EXPECT_EQ(s.cal.SetSpecialRule(KindFor15March(SPECIAL_Weekly), 0), 0);
    EXPECT_EQ(s.cal.SetSpecialRule(KindFor15March(SPECIAL_Weekly), 2), 0);
    EXPECT_TRUE(s.window.events.empty());
    s.cal.SetSpecialRule(KindFor15March(SPECIAL_Weekly), 1);
    s.window.Take();
    EXPECT_EQ(s.cal.SetSpecialRule(KindFor15March(SPECIAL_Weekly), 0), 1);
    EXPECT_TRUE(s.cal.Rules().empty());
    EXPECT_EQ(s.window.Take(), (Events{"inv grid", "update"}));
}

TEST(Rules, ADateRuleRedrawsOnlyItsCell) {
    Shown s(2024, 3);
    s.cal.SetSpecialRule(KindFor15March(SPECIAL_Date), 1);
    EXPECT_EQ(s.window.Take(), (Events{"cell 19", "update"}));
    s.cal.SetSpecialRule(SSpecialRule(SPECIAL_Date, CDateTime(2025, 1, 1), 0, 0, 1, 2), 1);
    EXPECT_EQ(s.window.Take(), (Events{"update"})) << "a date off the grid has no cell";
}

TEST(Rules, ATypeOfNoKindIsStoredButNeverMatches) {
    Shown s(2024, 3, false);
    EXPECT_EQ(s.cal.SetSpecialRule(KindFor15March(9), 1), 1);
    EXPECT_EQ(s.cal.Rules().size(), 1u);
    EXPECT_EQ(s.cal.MatchSpecial(SSpecialRule(0, CDateTime(2024, 3, 15), 6, 3, 0, 0), nullptr, nullptr), 0);
    EXPECT_EQ(s.cal.MatchSpecial(SSpecialRule(0, CDateTime(HostDateTime{}), 0, 0, 0, 0), nullptr, nullptr), 0)
        << "not even a probe of no fields";
}

TEST(Rules, ClearRemovesAllAndRedrawsOnlyIfThereWereAny) {
    Shown s(2024, 3);
    EXPECT_EQ(s.cal.ClearSpecials(1), 1);
    EXPECT_TRUE(s.window.events.empty());
    s.cal.SetSpecialRule(KindFor15March(SPECIAL_Weekly), 1);
    s.cal.SetSpecialRule(KindFor15March(SPECIAL_YearDay), 1);
    s.window.Take();
    EXPECT_EQ(s.cal.ClearSpecials(1), 1);
    EXPECT_TRUE(s.cal.Rules().empty());
    EXPECT_EQ(s.window.Take(), (Events{"inv grid", "update"}));
}

TEST(CellSpecial, NeedsShowSpecialAndComputesTheWeekOfTheMonth) {
    Shown s(2024, 3, false);
    // The fifth Sunday of March 2024 is the 31st, in cell 35.
    s.cal.SetSpecialRule(SSpecialRule(SPECIAL_MonthWeekday, CDateTime(2024, 1, 1), 1, 5, 7, 8), 1);
    Colors c;
    EXPECT_EQ(s.cal.GetCellSpecial(35, &c.text, &c.back, -1, -1, nullptr), 0);
    EXPECT_EQ(c.text, 0u) << "the outputs are cleared";
    EXPECT_EQ(c.back, 0u);
    s.cal.SetStyle(CALS_ShowSpecial, 2);
    EXPECT_EQ(s.cal.GetCellSpecial(35, nullptr, nullptr, -1, -1, nullptr), 0) << "Show Special counts at 1";
    s.cal.SetStyle(CALS_ShowSpecial, 1);
    EXPECT_EQ(s.cal.GetCellSpecial(35, &c.text, &c.back, -1, -1, nullptr), 1);
    EXPECT_EQ(c.text, 7u);
    EXPECT_EQ(c.back, 8u);
    EXPECT_EQ(s.cal.GetCellSpecial(28, nullptr, nullptr, -1, -1, nullptr), 0) << "the 24th is in week 4";
    EXPECT_EQ(s.cal.GetCellSpecial(6, nullptr, nullptr, -1, -1, nullptr), 0) << "3 March is in week 1";
    const CDateTime given(2024, 6, 30); // the fifth Sunday of June
    EXPECT_EQ(s.cal.GetCellSpecial(0, nullptr, nullptr, -1, -1, &given), 1) << "a given date wins over the cell";
}

} // namespace
