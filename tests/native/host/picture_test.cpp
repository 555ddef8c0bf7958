// Formatting date-times by picture, and which pictures are valid.
#include "hosttest.h"

using namespace hosttest;

namespace {

constexpr std::u16string_view kDefault = u"yyyy-MM-dd-hh.mm.ss.mmmmmm";

std::string format(const HostDateTime &d, std::string_view picture) { return ascii(zkh::DateFormat(d, u16(picture))); }

TEST(HostPicture, DefaultPicture) {
    EXPECT_EQ(ascii(zkh::DateFormat(zkh::DateFromParts(2020, 5, 17, 13, 45, 10), kDefault)),
              "2020-05-17-13.45.10.000000");
    EXPECT_EQ(ascii(zkh::DateFormat(zkh::DateFromParts(5, 1, 2, 3, 4, 5, 60), kDefault)), "0005-01-02-03.04.05.000060");
    EXPECT_EQ(ascii(zkh::DateFormat(zkh::DateFromParts(12345, 12, 31, 23, 59, 59, 999999), kDefault)),
              "12345-12-31-23.59.59.999999");
    EXPECT_EQ(ascii(zkh::DateFormat(zkh::DateFromParts(-44, 3, 15, 0, 0, 0), kDefault)), "-0044-03-15-00.00.00.000000");
    EXPECT_EQ(zkh::DateFormat(HostDateTime{}, kDefault), u"");
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
