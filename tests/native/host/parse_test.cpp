// Reading date texts.
#include <climits>
#include <random>

#include "hosttest.h"

using namespace hosttest;

namespace {

HostDateTime parse(std::string_view text) {
    HostDateTime d{};
    EXPECT_TRUE(zkh::DateParse(u16(text), d)) << text;
    return d;
}

void ExpectParsed(std::string_view text, const HostDateTime &expected) {
    const HostDateTime got = parse(text);
    EXPECT_TRUE(SameRecord(got, expected))
        << text << " -> " << ascii(zkh::DateFormat(got, u"yyyy-MM-dd-hh.mm.ss.mmmmmm"));
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
        const std::u16string text = zkh::DateFormat(d, u"yyyy-MM-dd-hh.mm.ss.mmmmmm");
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

} // namespace
