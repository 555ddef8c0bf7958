// Date-time texts: reading them, and formatting by picture with the
// pictures that are valid.
#include <climits>
#include <random>

#include "hosttest.h"

using namespace hosttest;

namespace {

constexpr std::u16string_view kDefault = u"yyyy-MM-dd-hh.mm.ss.mmmmmm";

HostDateTime parse(std::string_view text) {
    HostDateTime d{};
    EXPECT_TRUE(zkh::DateParse(u16(text), d)) << text;
    return d;
}

void ExpectParsed(std::string_view text, const HostDateTime &expected) {
    const HostDateTime got = parse(text);
    EXPECT_TRUE(SameRecord(got, expected)) << text << " -> " << ascii(zkh::DateFormat(got, kDefault));
}

TEST(HostDateParse, AcceptedForms) {
    ExpectParsed("2020-05-17", zkh::DateFromParts(2020, 5, 17, 0, 0, 0));
    ExpectParsed("2020-05-17-13.45.10.000123", zkh::DateFromParts(2020, 5, 17, 13, 45, 10, 123));
    ExpectParsed("2020-05-17-13.45.10.5", zkh::DateFromParts(2020, 5, 17, 13, 45, 10, 500000));
    ExpectParsed("2020-05-17 13:45", zkh::DateFromParts(2020, 5, 17, 13, 45, 0));
    ExpectParsed("2020-05-17T13:45:10", zkh::DateFromParts(2020, 5, 17, 13, 45, 10));
    ExpectParsed("2020-5-7T01:02:03.25", zkh::DateFromParts(2020, 5, 7, 1, 2, 3, 250000));
    ExpectParsed("05/17/2020", zkh::DateFromParts(2020, 5, 17, 0, 0, 0));
    ExpectParsed("5/7/2020 1:45 PM", zkh::DateFromParts(2020, 5, 7, 13, 45, 0));
    ExpectParsed("05/17/2020 12:00:01 am", zkh::DateFromParts(2020, 5, 17, 0, 0, 1));
    ExpectParsed("17 May 2020", zkh::DateFromParts(2020, 5, 17, 0, 0, 0));
    ExpectParsed("17 Dec 2020 08:30", zkh::DateFromParts(2020, 12, 17, 8, 30, 0));
    ExpectParsed("February 29, 2024 10:00 PM", zkh::DateFromParts(2024, 2, 29, 22, 0, 0));
    ExpectParsed("   2020-05-17   ", zkh::DateFromParts(2020, 5, 17, 0, 0, 0));
    ExpectParsed("-0044-03-15", zkh::DateFromParts(-44, 3, 15, 0, 0, 0));
    ExpectParsed("-2147483648-01-01", zkh::DateFromParts(INT_MIN, 1, 1, 0, 0, 0));
    ExpectParsed("2147483647-12-31-23.59.59.999999", zkh::DateFromParts(INT_MAX, 12, 31, 23, 59, 59, 999999));
}

TEST(HostDateParse, TimeAloneFallsOnDayZero) {
    ExpectParsed("01:45:10 PM", zkh::DateFromParts(1899, 12, 30, 13, 45, 10));
    ExpectParsed("12:00AM", zkh::DateFromParts(1899, 12, 30, 0, 0, 0));
    ExpectParsed(" 0:00 ", zkh::NumberZero());
}

TEST(HostDateParse, RejectsAndLeavesNull) {
    const char *bad[] = {"",
                         "abc",
                         "2021-02-29",
                         "2020-04-31",
                         "2020-05-17-24.00.00",
                         "2020-05-17-12.00.00.1234567",
                         "2020-05-17x",
                         "5/17/20",
                         "13:00 PM",
                         "0:30 AM",
                         "12:5",
                         "17 Mai 2020",
                         "05/17/2020 1:45PMish",
                         "2020/05/17",
                         "999-01-01",
                         "2147483648-01-01"};
    for (const char *b : bad) {
        HostDateTime d = zkh::DateFromParts(2000, 1, 1, 0, 0, 0);
        EXPECT_FALSE(zkh::DateParse(u16(b), d)) << b;
        EXPECT_EQ(d.length, 0) << b;
    }
}

TEST(HostDateParse, DefaultTextsRoundTrip) {
    std::mt19937_64 rng(99);
    for (int i = 0; i < 3000; ++i) {
        const int year = i % 3 == 0 ? static_cast<int>(rng() % 2000000) - 1000000 : static_cast<int>(rng() % 10000);
        const HostDateTime d = zkh::DateFromParts(
            year, 1 + static_cast<int>(rng() % 12), 1 + static_cast<int>(rng() % 31), static_cast<int>(rng() % 24),
            static_cast<int>(rng() % 60), static_cast<int>(rng() % 60), static_cast<int>(rng() % 1000000));
        const std::u16string text = zkh::DateFormat(d, kDefault);
        HostDateTime back{};
        ASSERT_TRUE(zkh::DateParse(text, back)) << ascii(text);
        ASSERT_TRUE(SameRecord(back, d)) << ascii(text);
        // The American form with the twelve-hour clock comes back to the second.
        const std::u16string us = zkh::DateFormat(d, u"MM/dd/yyyy hh:mm:ss AMPM");
        if (year >= 1000 && year <= 9999) {
            const zkh::DateParts p = zkh::DateToParts(d);
            ASSERT_TRUE(zkh::DateParse(us, back)) << ascii(us);
            ASSERT_TRUE(SameRecord(back, zkh::DateFromParts(p.year, p.month, p.day, p.hour, p.minute, p.second)))
                << ascii(us);
        }
    }
}

std::string format(const HostDateTime &d, std::string_view picture) { return ascii(zkh::DateFormat(d, u16(picture))); }
std::string Default(const HostDateTime &d) { return ascii(zkh::DateFormat(d, kDefault)); }

TEST(HostPicture, DefaultPicture) {
    EXPECT_EQ(Default(zkh::DateFromParts(2020, 5, 17, 13, 45, 10)), "2020-05-17-13.45.10.000000");
    EXPECT_EQ(Default(zkh::DateFromParts(5, 1, 2, 3, 4, 5, 60)), "0005-01-02-03.04.05.000060");
    EXPECT_EQ(Default(zkh::DateFromParts(12345, 12, 31, 23, 59, 59, 999999)), "12345-12-31-23.59.59.999999");
    EXPECT_EQ(Default(zkh::DateFromParts(-44, 3, 15, 0, 0, 0)), "-0044-03-15-00.00.00.000000");
    EXPECT_EQ(Default(HostDateTime{}), "");
}

TEST(HostPicture, TwelveHourClockWithAmPm) {
    EXPECT_EQ(format(zkh::DateFromParts(2020, 5, 17, 13, 45, 10), "hh:mm:ss AMPM"), "01:45:10 PM");
    EXPECT_EQ(format(zkh::DateFromParts(2020, 5, 17, 0, 5, 0), "hh:mm:ss AMPM"), "12:05:00 AM");
    EXPECT_EQ(format(zkh::DateFromParts(2020, 5, 17, 12, 0, 0), "hh:mm:ss AMPM"), "12:00:00 PM");
    EXPECT_EQ(format(zkh::DateFromParts(2020, 5, 17, 9, 0, 0), "h:mm"), "9:00");
    EXPECT_EQ(format(zkh::DateFromParts(2020, 5, 17, 21, 0, 0), "HH hh AMPM"), "21 09 PM");
    EXPECT_EQ(format(zkh::DateFromParts(2020, 5, 17, 21, 0, 0), "HH hh"), "21 21");
}

TEST(HostPicture, NamesAndShortForms) {
    const HostDateTime d = zkh::DateFromParts(2020, 5, 17, 8, 7, 6, 54321);
    EXPECT_EQ(format(d, "dddd, MMMM d, yyyy"), "Sunday, May 17, 2020");
    EXPECT_EQ(format(d, "ddd d MMM yy"), "Sun 17 May 20");
    EXPECT_EQ(format(d, "M/d/yy"), "5/17/20");
    EXPECT_EQ(format(zkh::DateFromParts(2021, 9, 1, 0, 0, 0), "dddd d MMMM"), "Wednesday 1 September");
    EXPECT_EQ(format(zkh::DateFromParts(1905, 1, 1, 0, 0, 0), "yy"), "05");
}

TEST(HostPicture, LongestTokenFirstAndCaseDecides) {
    const HostDateTime d = zkh::DateFromParts(2020, 5, 17, 8, 7, 6, 54321);
    EXPECT_EQ(format(d, "mmmmmm"), "054321");
    EXPECT_EQ(format(d, "mm mmmmmm MM"), "07 054321 05");
    EXPECT_EQ(format(d, "mmmm"), "0707");
    EXPECT_EQ(format(d, "yyyyMMddhhmmss"), "20200517080706");
    EXPECT_EQ(format(d, "MMMMM"), "May5");
}

TEST(HostPicture, QuotedTextAndOtherCharacters) {
    const HostDateTime d = zkh::DateFromParts(2020, 5, 17, 8, 7, 6);
    EXPECT_EQ(format(d, "\"Year\" yyyy"), "Year 2020");
    EXPECT_EQ(format(d, "\"dd\"dd"), "dd17");
    EXPECT_EQ(format(d, "[yyyy] #1 ~ ."), "[2020] #1 ~ .");
    // Letters that make no token are copied as they stand.
    EXPECT_EQ(format(d, "yyyy at hh"), "2020 at 08");
    EXPECT_EQ(zkh::DateFormat(d, u"\u00e9t\u00e9 yyyy"), u"\u00e9t\u00e9 2020");
}

TEST(HostPicture, Validity) {
    const char *good[] = {"yyyy-MM-dd-hh.mm.ss.mmmmmm",
                          "hh:mm:ss AMPM",
                          "yyyy",
                          "d",
                          "\"on\" dddd",
                          "MMMM d, yyyy",
                          "HH:mm",
                          "yyyyMMdd",
                          "-- mm --"};
    for (const char *g : good)
        EXPECT_TRUE(zkh::PictureIsValid(u16(g))) << g;
    const char *bad[] = {"",         "abc",   "yyyyx",       "yyy",         "mmmmm", "ampm",
                         "\"yyyy\"", "123 -", "yyyy \"open", "hh:mm:ss am", "Y"};
    for (const char *b : bad)
        EXPECT_FALSE(zkh::PictureIsValid(u16(b))) << b;
}

} // namespace
