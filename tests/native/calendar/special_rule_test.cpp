// Rule keys: each kind keys on its own fields only, as "%.4d%.2d%.2d%.2d%.2d"
// writes them (the 0 flag of the format gives way to the precision).
#include <gtest/gtest.h>

#include <climits>
#include <cstdio>

#include "calendar/core/special_rule.h"

namespace {

using zk::cal::SSpecialRule;

SSpecialRule Rule(int type, int year = 2024) {
    SSpecialRule r;
    r.type = type;
    r.year = year;
    r.month = 3;
    r.day = 15;
    r.weekday = 6;
    r.week = 3;
    return r;
}

TEST(SpecialRule, EachKindKeysOnItsFields) {
    EXPECT_EQ(Rule(SPECIAL_Date).Key(), "202403150000");
    EXPECT_EQ(Rule(SPECIAL_Weekly).Key(), "000000000600");
    EXPECT_EQ(Rule(SPECIAL_MonthDay).Key(), "000000150000");
    EXPECT_EQ(Rule(SPECIAL_MonthWeekday).Key(), "000000000603");
    EXPECT_EQ(Rule(SPECIAL_YearDay).Key(), "000003150000");
    EXPECT_EQ(Rule(SPECIAL_YearWeekday).Key(), "000003000603");
    EXPECT_EQ(Rule(SPECIAL_Date, -5).Key(), "-000503150000");
    EXPECT_EQ(Rule(SPECIAL_Date, 12345).Key(), "1234503150000");
    for (int type : {0, 7, -1, 100}) {
        EXPECT_EQ(Rule(type).Key(), "000000000000") << type;
        EXPECT_TRUE(zk::cal::IsEmptyKey(Rule(type).Key()));
    }
    EXPECT_FALSE(zk::cal::IsEmptyKey(Rule(SPECIAL_Weekly).Key()));
}

TEST(SpecialRule, KeysAreTheTextOfTheirFormatForAnyValue) {
    for (int32_t v : {0, 1, 9, 10, 99, 100, 2024, 12345, -1, -5, -2024, INT32_MAX, INT32_MIN}) {
        SSpecialRule r;
        r.type = SPECIAL_Date;
        r.year = v;
        r.month = v;
        r.day = 7;
        char expected[96];
        std::snprintf(expected, sizeof expected, "%.4d%.2d%.2d%.2d%.2d", v, v, 7, 0, 0);
        EXPECT_EQ(r.Key(), expected) << v;
        r.type = SPECIAL_YearWeekday;
        r.weekday = v;
        r.week = 3;
        std::snprintf(expected, sizeof expected, "%.4d%.2d%.2d%.2d%.2d", 0, v, 0, v, 3);
        EXPECT_EQ(r.Key(), expected) << v;
    }
}

} // namespace
