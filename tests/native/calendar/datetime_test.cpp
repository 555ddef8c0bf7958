// Date-time values: the host's arithmetic as the classes use it, checked
// against the C++ library's calendar, and the behaviours the classes keep.
#include <gtest/gtest.h>

#include <cstring>

#include "calendar_fakes.h"
#include "core/hostnum.h"
#include "frame/core/errors.h"

namespace {

using caltest::Days;
using caltest::Parts;
using caltest::Record;
using caltest::Ymd;
using zk::cal::CDateTime;
using zk::cal::CDateTimeSpan;

TEST(DaysInMonth, ProlepticGregorianAndZeroForNoMonth) {
    for (int year = -2400; year <= 2400; ++year)
        for (int month = 1; month <= 12; ++month)
            ASSERT_EQ(CDateTime::DaysInMonth(year, month), caltest::MonthLength(year, month)) << year << "-" << month;
    EXPECT_EQ(CDateTime::DaysInMonth(2023, 0), 0);
    EXPECT_EQ(CDateTime::DaysInMonth(2023, 13), 0);
}

TEST(DateTime, PartsAndWeekdaysAgreeWithAnIndependentCalendar) {
    const auto check = [](std::chrono::sys_days day) {
        const Ymd ymd = Parts(day);
        const CDateTime d(ymd.year, ymd.month, ymd.day);
        ASSERT_EQ(Parts(d), ymd);
        ASSERT_EQ(d.GetWeekday(), caltest::Weekday(day)) << ymd;
    };
    for (auto day = Days(1700, 1, 1); day < Days(2300, 1, 1); day += std::chrono::days(10))
        check(day);
    for (auto day = Days(1999, 1, 1); day < Days(2002, 1, 1); day += std::chrono::days(1))
        check(day);
    EXPECT_EQ(CDateTime(2020, 5, 17, 13, 45, 10).KeyText(), u"2020-05-17-00.00.00.000000") << "parts make midnight";
}

TEST(DateTime, TheRecordConstructorKeepsTheLowFourBitsOfTheLength) {
    HostDateTime junk = Record(2021, 7, 4, 6, 30, 0);
    const uint8_t clean = junk.length;
    ASSERT_LT(clean, 16);
    junk.length |= 0xB0;
    const CDateTime fromRecord(junk);
    EXPECT_EQ(fromRecord.Record().length, clean);
    CDateTime assigned(2000, 1, 1);
    assigned = junk;
    EXPECT_EQ(assigned.Record().length, clean);
    EXPECT_EQ(assigned.KeyText(), u"2021-07-04-06.30.00.000000");
    HostDateTime out{};
    assigned.GetRecord(&out);
    EXPECT_EQ(std::memcmp(&out, &fromRecord.Record(), sizeof out), 0);
}

TEST(DateTime, SetNowTakesTheHostsRecordAsItComes) {
    HostDateTime junk = Record(2022, 2, 2, 2, 2, 2);
    const uint8_t clean = junk.length;
    junk.length |= 0x70;
    caltest::ClockAt clock(junk);
    CDateTime d(1990, 1, 1);
    d.SetNow();
    EXPECT_EQ(d.Record().length, junk.length);
    EXPECT_EQ(CDateTime().Record().length, junk.length) << "the default constructor is SetNow";
    EXPECT_EQ(CDateTime::Now().Record().length, clean) << "Now goes through the record constructor";
    EXPECT_EQ(d.NextDay().KeyText(), u"2022-02-03-02.02.02.000000") << "the host reads the low four bits only";
}

TEST(DateTime, ParseTakesADateAndKeepsTheOldValueOtherwise) {
    CDateTime d(2001, 2, 3);
    EXPECT_EQ(d.Parse(u"no date at all"), 0);
    EXPECT_EQ(d.Parse(u""), 0);
    EXPECT_EQ(Parts(d), (Ymd{2001, 2, 3}));
    EXPECT_EQ(d.Parse(u"2019-12-31-23.59.58"), 1);
    EXPECT_EQ(d.KeyText(), u"2019-12-31-23.59.58.000000");
}

TEST(DateTime, SteppingByDays) {
    const CDateTime d(2024, 2, 28);
    EXPECT_EQ(Parts(d.NextDay()), (Ymd{2024, 2, 29}));
    EXPECT_EQ(Parts(d.PreviousDay()), (Ymd{2024, 2, 27}));
    EXPECT_EQ(Parts(d), (Ymd{2024, 2, 28})) << "NextDay and PreviousDay leave the object";
    CDateTime e(2023, 12, 31);
    EXPECT_EQ(&e.Increment(), &e);
    EXPECT_EQ(Parts(e), (Ymd{2024, 1, 1}));
    e.Decrement();
    EXPECT_EQ(Parts(e), (Ymd{2023, 12, 31}));
    const CDateTime g = e++;
    EXPECT_EQ(Parts(g), (Ymd{2024, 1, 1})) << "the postfix form hands back the new value";
}

TEST(DateTime, SumsAndDifferencesOfDays) {
    // Pairs across leap days, centuries and the epoch of the host's count.
    const Ymd dates[] = {{1899, 12, 30}, {1899, 1, 1},   {1900, 2, 28}, {1900, 3, 1}, {2000, 2, 29},
                         {2024, 3, 15},  {1600, 12, 31}, {2100, 3, 1},  {1753, 1, 1}, {9999, 12, 31}};
    for (const auto &a : dates) {
        for (const auto &b : dates) {
            const CDateTime da(a.year, a.month, a.day), db(b.year, b.month, b.day);
            const CDateTimeSpan span = da - db;
            ASSERT_EQ(span.GetDays(), (Days(a.year, a.month, a.day) - Days(b.year, b.month, b.day)).count())
                << a << " - " << b;
            ASSERT_EQ(Parts(db + span), a) << b << " + span";
            CDateTime moved = db;
            moved += span;
            ASSERT_EQ(moved.KeyText(), da.KeyText());
        }
    }
    EXPECT_LT(CDateTime(2000, 1, 1).KeyText(), CDateTime(Record(2000, 1, 1, 0, 0, 0, 1)).KeyText())
        << "keys order to the microsecond";
}

TEST(DateTimeSpan, DaysInTheHostsOwnFormWhateverTheTimeOfDay) {
    HostNumber raw{};
    CDateTimeSpan().GetRecord(&raw);
    EXPECT_EQ(raw.length, 0);
    for (const HostDateTime now :
         {Record(2024, 3, 15, 0, 0, 0), Record(2024, 3, 15, 23, 59, 59, 999999), Record(1850, 6, 1, 12, 0, 0)}) {
        caltest::ClockAt clock(now);
        CDateTimeSpan(0, 5, 6, 7).GetRecord(&raw);
        const HostNumber hostZero = zkh::NumberZero();
        EXPECT_EQ(raw.length, hostZero.length) << "zero as the host writes it, not the empty record";
        EXPECT_EQ(std::memcmp(raw.digits, hostZero.digits, raw.length), 0);
        EXPECT_EQ(CDateTimeSpan(-40, 23, 0, 0).GetDays(), -40) << "hours are dropped";
        EXPECT_EQ(CDateTimeSpan(70000, 0, 0, 0).GetDays(), 70000);
    }
    CDateTimeSpan s(3, 0, 0, 0);
    EXPECT_EQ(&s.AddDays(-10), &s);
    EXPECT_EQ(s.GetDays(), -7);
}

TEST(DateNames, TablesFromStringResourcesAndTheirBounds) {
    const CDateTime any;
    EXPECT_EQ(CDateTime::WeekdayName(0), u"NULL WEEKDAY");
    EXPECT_EQ(CDateTime::WeekdayName(1), u"#32");
    EXPECT_EQ(CDateTime::WeekdayName(7), u"#38");
    EXPECT_EQ(CDateTime::MonthName(0), u"NULL MONTH");
    EXPECT_EQ(CDateTime::MonthName(12), u"#27");
    EXPECT_THROW(CDateTime::MonthName(13), zk::InvalidArgException);
    EXPECT_THROW(CDateTime::MonthName(-1), zk::InvalidArgException);
    EXPECT_THROW(CDateTime::WeekdayName(8), zk::InvalidArgException);
}

std::vector<std::u16string> Names(const char16_t *stem, int count) {
    std::vector<std::u16string> names;
    for (int i = 0; i < count; ++i)
        names.push_back(stem + std::u16string(1, char16_t(u'a' + i)));
    return names;
}

TEST(DateNames, TooFewNamesChangeNothingAndTheFirstReplaceIndicesFromOne) {
    const CDateTime any;
    std::vector<std::u16string> months, weekdays;
    for (int i = 1; i <= 12; ++i)
        months.push_back(CDateTime::MonthName(i));
    for (int i = 1; i <= 7; ++i)
        weekdays.push_back(CDateTime::WeekdayName(i));
    EXPECT_EQ(CDateTime::SetMonthNames(Names(u"m", 11)), 0);
    EXPECT_EQ(CDateTime::SetWeekdayNames(Names(u"w", 6)), 0);
    EXPECT_EQ(CDateTime::MonthName(1), u"#16");
    EXPECT_EQ(CDateTime::WeekdayName(1), u"#32");
    EXPECT_EQ(CDateTime::SetMonthNames(Names(u"m", 13)), 1);
    EXPECT_EQ(CDateTime::MonthName(0), u"NULL MONTH");
    EXPECT_EQ(CDateTime::MonthName(12), u"ml");
    EXPECT_THROW(CDateTime::MonthName(13), zk::InvalidArgException) << "the table keeps its size";
    EXPECT_EQ(CDateTime::SetWeekdayNames(Names(u"w", 7)), 1);
    EXPECT_EQ(CDateTime::WeekdayName(7), u"wg");
    CDateTime::SetMonthNames(months);
    CDateTime::SetWeekdayNames(weekdays);
}

} // namespace
