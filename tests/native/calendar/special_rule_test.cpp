// Rule keys: each kind keys on its own fields only, in fixed widths.
#include <gtest/gtest.h>

#include "calendar/special_rule.h"

namespace {

using zk::cal::SSpecialRule;

SSpecialRule Rule(int type) {
    SSpecialRule r;
    r.type = type;
    r.year = 2024;
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
}

TEST(SpecialRule, ATypeOfNoKindKeysOnNothing) {
    for (int type : {0, 7, -1, 100}) {
        EXPECT_EQ(Rule(type).Key(), "000000000000");
        EXPECT_TRUE(zk::cal::IsEmptyKey(Rule(type).Key()));
    }
    EXPECT_FALSE(zk::cal::IsEmptyKey(Rule(SPECIAL_Weekly).Key()));
}

TEST(SpecialRule, FieldsWiderThanTheirWidthsAndNegativeOnesAsPrintfWritesThem) {
    SSpecialRule r = Rule(SPECIAL_Date);
    r.year = 12345;
    EXPECT_EQ(r.Key(), "1234503150000");
    r.year = 7;
    EXPECT_EQ(r.Key(), "000703150000");
    r.year = -5;
    EXPECT_EQ(r.Key(), "-000503150000");
    r = Rule(SPECIAL_MonthWeekday);
    r.week = 123;
    EXPECT_EQ(r.Key(), "0000000006123");
}

} // namespace
