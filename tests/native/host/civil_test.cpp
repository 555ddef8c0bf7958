// The day-count calendar and date-time records.
#include <climits>

#include "core/datetime.h"
#include "hosttest.h"

using namespace hosttest;

namespace {

bool leap(long long y) { return (y % 4 == 0 && y % 100 != 0) || y % 400 == 0; }
int MonthLength(long long y, int m) {
    static const int lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return m == 2 && leap(y) ? 29 : lengths[m - 1];
}

struct Civil {
    long long year;
    int month, day;
};

void StepForward(Civil &c) {
    if (++c.day > MonthLength(c.year, c.month)) {
        c.day = 1;
        if (++c.month > 12) {
            c.month = 1;
            ++c.year;
        }
    }
}
void StepBack(Civil &c) {
    if (--c.day < 1) {
        if (--c.month < 1) {
            c.month = 12;
            --c.year;
        }
        c.day = MonthLength(c.year, c.month);
    }
}

void ExpectDay(int64_t day, const Civil &c, int weekday) {
    int64_t year = 0;
    int month = 0, dayOfMonth = 0;
    zkh::detail::CivilFromDays(day, year, month, dayOfMonth);
    ASSERT_EQ(year, c.year) << day;
    ASSERT_EQ(month, c.month) << day;
    ASSERT_EQ(dayOfMonth, c.day) << day;
    ASSERT_EQ(zkh::detail::DaysFromCivil(c.year, c.month, c.day), day);
    // The record path on a sample, with its weekday.
    if (day % 89 == 0 && c.year >= INT_MIN && c.year <= INT_MAX) {
        const zkh::DateParts p =
            zkh::DateToParts(zkh::DateFromParts(static_cast<int>(c.year), c.month, c.day, 0, 0, 0));
        ASSERT_EQ(p.year, c.year);
        ASSERT_EQ(p.month, c.month);
        ASSERT_EQ(p.day, c.day);
        ASSERT_EQ(p.weekday, weekday) << day;
    }
}

// A day-by-day walk from 1899-12-30 (day 0, a Saturday) over three thousand
// years each way, against the plain month-length rule.
TEST(HostCalendar, DayWalkAgreesBothWays) {
    Civil c{1899, 12, 30};
    int weekday = 0;
    for (int64_t day = 0; c.year < 4900; ++day) {
        ExpectDay(day, c, weekday);
        StepForward(c);
        weekday = (weekday + 1) % 7;
        if (HasFatalFailure())
            return;
    }
    c = Civil{1899, 12, 30};
    weekday = 0;
    for (int64_t day = 0; c.year > -1100; --day) {
        ExpectDay(day, c, weekday);
        StepBack(c);
        weekday = (weekday + 6) % 7;
        if (HasFatalFailure())
            return;
    }
}

TEST(HostCalendar, LeapRulesAndBadMonths) {
    const int cases[][3] = {{1900, 2, 28}, {2000, 2, 29}, {2023, 4, 30}, {0, 2, 29},   {-1, 2, 28},
                            {-100, 2, 28}, {-400, 2, 29}, {2023, 0, 0},  {2023, 13, 0}};
    for (const auto &c : cases)
        EXPECT_EQ(zkh::DaysInMonth(c[0], c[1]), c[2]) << c[0] << "-" << c[1];
}

void ExpectParts(const HostDateTime &d, int y, int mo, int da, int h = 0, int mi = 0, int s = 0, int us = 0) {
    const zkh::DateParts p = zkh::DateToParts(d);
    EXPECT_EQ(p.year, y);
    EXPECT_EQ(p.month, mo);
    EXPECT_EQ(p.day, da);
    EXPECT_EQ(p.hour, h);
    EXPECT_EQ(p.minute, mi);
    EXPECT_EQ(p.second, s);
    EXPECT_EQ(p.microsecond, us);
}

TEST(HostCalendar, FieldsRollOver) {
    ExpectParts(zkh::DateFromParts(2020, 13, 1, 0, 0, 0), 2021, 1, 1);
    ExpectParts(zkh::DateFromParts(2020, -13, 1, 0, 0, 0), 2018, 11, 1);
    ExpectParts(zkh::DateFromParts(2020, 3, 0, 0, 0, 0), 2020, 2, 29);
    ExpectParts(zkh::DateFromParts(2020, 1, 367, 0, 0, 0), 2021, 1, 1);
    ExpectParts(zkh::DateFromParts(2020, 1, 1, 0, -1, 0), 2019, 12, 31, 23, 59);
    ExpectParts(zkh::DateFromParts(2020, 5, 17, 0, 0, 86400), 2020, 5, 18);
    ExpectParts(zkh::DateFromParts(2020, 5, 17, 13, 45, 10, 1000000), 2020, 5, 17, 13, 45, 11);
    ExpectParts(zkh::DateFromParts(2020, 5, 17, 0, 0, 0, -1), 2020, 5, 16, 23, 59, 59, 999999);
}

TEST(HostCalendar, RecordsAreDayCounts) {
    EXPECT_TRUE(SameRecord(zkh::DateFromParts(1899, 12, 30, 0, 0, 0), zkh::NumberZero()));
    EXPECT_TRUE(SameRecord(zkh::DateFromParts(1899, 12, 29, 18, 0, 0), num("-0.25")));
    EXPECT_TRUE(SameRecord(zkh::DateFromParts(2020, 5, 17, 0, 0, 0), num("43968")));
    // One hour is 1/24 of a day, rounded to 28 significant digits.
    EXPECT_EQ(text(zkh::DateFromParts(1899, 12, 30, 1, 0, 0)), "0.04166666666666666666666666667");
    EXPECT_EQ(text(zkh::DateFromParts(2020, 5, 17, 1, 0, 0)), "43968.04166666666666666666667");
    // Stepping by a day keeps the time exactly.
    const HostDateTime d = zkh::DateFromParts(2020, 5, 17, 13, 45, 10, 123456);
    HostDateTime next{};
    next.length = static_cast<uint8_t>(zkh::NumberAddDouble(next.digits, d.digits, d.length, 1.0));
    EXPECT_TRUE(SameRecord(next, zkh::DateFromParts(2020, 5, 18, 13, 45, 10, 123456)));
}

// Every sampled microsecond of a day comes back, at days of every size.
TEST(HostCalendar, MicrosecondsRoundTrip) {
    const int years[] = {1899, 2020, 0, -4713, 275760, INT_MAX, INT_MIN};
    for (int year : years) {
        const int month = year == INT_MIN ? 1 : 12, day = year == INT_MIN ? 1 : 31;
        auto check = [&](int64_t micros) {
            const int h = static_cast<int>(micros / 3600000000), mi = static_cast<int>(micros / 60000000 % 60),
                      s = static_cast<int>(micros / 1000000 % 60), us = static_cast<int>(micros % 1000000);
            const zkh::DateParts p = zkh::DateToParts(zkh::DateFromParts(year, month, day, h, mi, s, us));
            ASSERT_TRUE(p.year == year && p.month == month && p.day == day && p.hour == h && p.minute == mi &&
                        p.second == s && p.microsecond == us)
                << year << " " << micros;
        };
        for (int64_t m = 0; m < 3000; ++m)
            check(m);
        for (int64_t m = zkh::detail::kMicrosPerDay - 3000; m < zkh::detail::kMicrosPerDay; ++m)
            check(m);
        for (int64_t m = 0; m < zkh::detail::kMicrosPerDay; m += 7919 * 1009)
            check(m);
        if (HasFatalFailure())
            return;
    }
}

// Numbers that no date produced still read to the nearest microsecond.
TEST(HostCalendar, AnyNumberReadsToTheNearestMicrosecond) {
    ExpectParts(num("0.1"), 1899, 12, 30, 2, 24);
    ExpectParts(num("0.3333333333333333333333333333"), 1899, 12, 30, 8);
    ExpectParts(num("43968.99999999999999"), 2020, 5, 18);
    // 1/6400000000 of a day is exactly 13.5 microseconds: half rounds away from zero.
    ExpectParts(num("0.00000000015625"), 1899, 12, 30, 0, 0, 0, 14);
    ExpectParts(num("-0.00000000015625"), 1899, 12, 29, 23, 59, 59, 999986);
    ExpectParts(num("1e-60"), 1899, 12, 30);
}

TEST(HostCalendar, NullAndOutOfRange) {
    HostDateTime null{};
    null.length = 0x30; // junk above the four length bits
    EXPECT_TRUE(zkh::DateIsNull(null));
    const zkh::DateParts p = zkh::DateToParts(null);
    EXPECT_EQ(p.year + p.month + p.day + p.hour + p.weekday, 0);

    HostDateTime tagged = zkh::DateFromParts(2020, 5, 17, 0, 0, 0);
    tagged.length |= 0xA0;
    EXPECT_FALSE(zkh::DateIsNull(tagged));
    EXPECT_EQ(zkh::DateToParts(tagged).year, 2020);

    EXPECT_TRUE(zkh::DateIsNull(zkh::DateFromParts(INT_MAX, 13, 1, 0, 0, 0)));
    EXPECT_TRUE(zkh::DateIsNull(zkh::DateFromParts(INT_MIN, 1, 0, 0, 0, 0)));
    ExpectParts(zkh::DateFromParts(INT_MAX, 13, 0, 0, 0, 0), INT_MAX, 12, 31);
    // Every field at its extreme still lands on a day, and that day's own
    // parts build the same record.
    const HostDateTime extreme = zkh::DateFromParts(2000, INT_MAX, INT_MAX, INT_MAX, INT_MAX, INT_MAX, INT_MAX);
    ASSERT_FALSE(zkh::DateIsNull(extreme));
    const zkh::DateParts e = zkh::DateToParts(extreme);
    EXPECT_GT(e.year, 2000 + INT_MAX / 12);
    EXPECT_TRUE(
        SameRecord(zkh::DateFromParts(e.year, e.month, e.day, e.hour, e.minute, e.second, e.microsecond), extreme));
    // A number far beyond any int year has no parts.
    const zkh::DateParts far = zkh::DateToParts(num("1e20"));
    EXPECT_EQ(far.year + far.month + far.day, 0);
}

} // namespace
