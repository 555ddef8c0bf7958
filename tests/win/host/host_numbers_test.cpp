// Number and date-time exports: conversions with their ranges, exact sums,
// date parts, pictures, parsing and the clock.
#include <cmath>
#include <cstring>

#include "host_test_util.h"

using namespace hosttest;

namespace {

class HostNumbers : public HostTest {};
class HostDates : public HostTest {};

HostDateTime Date(int y, int mo, int d, int h = 0, int mi = 0, int s = 0) {
    HostDateTime out{};
    HostDateConstruct(&out, y, mo, d, h, mi, s);
    return out;
}

std::wstring Format(const HostDateTime &d, const wchar_t *picture) {
    HostStr s = HostDateToStr(d, picture, nullptr);
    std::wstring text = Text(s);
    ZkHostStrRelease(s);
    return text;
}

TEST_F(HostNumbers, SmallIntegersConvertWithinTheirRanges) {
    HostNumber n{};
    int16_t s = 0;
    uint16_t us = 0;
    int32_t l = 0;
    uint32_t ul = 0;
    EXPECT_EQ(HostNumberFromShort(-5, &n), &n);
    EXPECT_EQ(HostNumberToLong(&n, &l), 1);
    EXPECT_EQ(l, -5);
    HostNumberFromShort(0x18000, &n); // only the low 16 bits are the short
    EXPECT_EQ(HostNumberToShort(&n, &s), 1);
    EXPECT_EQ(s, -32768);
    HostNumberFromUShort(0x1FFFF, &n);
    EXPECT_EQ(HostNumberToUShort(&n, &us), 1);
    EXPECT_EQ(us, 65535);

    n = Long(40000);
    EXPECT_EQ(HostNumberToShort(&n, &s), 0);
    EXPECT_EQ(s, 0);
    EXPECT_EQ(HostNumberToUShort(&n, &us), 1);
    EXPECT_EQ(us, 40000);
    n = Long(-1);
    EXPECT_EQ(HostNumberToUShort(&n, &us), 0);
    EXPECT_EQ(HostNumberToULong(&n, &ul), 0);
    HostNumberFromULong(0xFFFFFFFFu, &n);
    EXPECT_EQ(HostNumberToULong(&n, &ul), 1);
    EXPECT_EQ(ul, 0xFFFFFFFFu);
    EXPECT_EQ(HostNumberToLong(&n, &l), 0);
    n = Num(L"-2147483648");
    EXPECT_EQ(HostNumberToLong(&n, &l), 1);
    EXPECT_EQ(l, INT32_MIN);
    n = Num(L"-2.7");
    EXPECT_EQ(HostNumberToLong(&n, &l), 1);
    EXPECT_EQ(l, -2) << "toward zero";

    HostNumber null{};
    EXPECT_EQ(HostNumberToLong(&null, &l), 0);
    EXPECT_EQ(HostNumberToLong(nullptr, &l), 0);
    HostNumber junk{};
    junk.length = 200;
    EXPECT_EQ(HostNumberToLong(&junk, &l), 0);
}

TEST_F(HostNumbers, DoublesAndTextRoundTrip) {
    HostNumber n{};
    double d = 0;
    HostNumberFromDouble(1.5, &n);
    EXPECT_EQ(HostNumberToDouble(&n, &d), 1);
    EXPECT_EQ(d, 1.5);
    HostNumberFromDouble(0.1, &n);
    HostNumber tenth = Num(L"0.1");
    EXPECT_EQ(HostNumberCompare(&n, &tenth), 0);
    HostNumberFromDouble(std::nan(""), &n);
    EXPECT_EQ(n.length, 0);
    HostNumberFromDouble(INFINITY, &n);
    EXPECT_EQ(n.length, 0);
    EXPECT_EQ(HostNumberToDouble(&n, &d), 0);

    EXPECT_EQ(HostNumberFromText(&n, L"abc"), 0);
    EXPECT_EQ(n.length, 0);
    EXPECT_EQ(HostNumberFromText(&n, nullptr), 0);
    HostNumber parsed{};
    EXPECT_EQ(HostStrToNumber(&parsed, L"  -12.50 "), &parsed);
    HostNumber expected = Num(L"-12.5");
    EXPECT_EQ(HostNumberCompare(&parsed, &expected), 0);
    EXPECT_EQ(HostStrToNumber(&parsed, L"12x")->length, 0);
    EXPECT_EQ(HostStrIsValidNumber(L"42"), 1);
    EXPECT_EQ(HostStrIsValidNumber(L"4 2"), 0);
    EXPECT_EQ(HostStrIsValidNumber(nullptr), 0);
}

TEST_F(HostNumbers, CompareOrdersValuesAndNull) {
    HostNumber one = Long(1), two = Long(2), minus = Long(-3), null{};
    HostNumber twoD{};
    HostNumberFromDouble(2.0, &twoD);
    EXPECT_LT(HostNumberCompare(&one, &two), 0);
    EXPECT_GT(HostNumberCompare(&two, &minus), 0);
    EXPECT_EQ(HostNumberCompare(&two, &twoD), 0);
    EXPECT_LT(HostNumberCompare(&null, &minus), 0);
    EXPECT_EQ(HostNumberCompare(&null, nullptr), 0);
}

TEST_F(HostNumbers, SumsAreExactDecimalAndMayOverwriteAnOperand) {
    HostNumber a = Num(L"0.1"), b = Num(L"0.2"), sum{};
    sum.length = uint8_t(HostNumberAdd(sum.digits, a.digits, a.length, b.digits, b.length));
    HostNumber expected = Num(L"0.3");
    EXPECT_EQ(HostNumberCompare(&sum, &expected), 0);

    HostNumber big = Num(L"12345678901234567890.5");
    big.length = uint8_t(HostNumberAdd(big.digits, big.digits, big.length, a.digits, a.length));
    expected = Num(L"12345678901234567890.6");
    EXPECT_EQ(HostNumberCompare(&big, &expected), 0);

    HostNumber diff = Num(L"5");
    diff.length = uint8_t(HostNumberSubtract(diff.digits, diff.digits, diff.length, b.digits, b.length));
    expected = Num(L"4.8");
    EXPECT_EQ(HostNumberCompare(&diff, &expected), 0);

    HostNumber day = Long(10);
    day.length = uint8_t(HostNumberAddDouble(day.digits, day.digits, day.length, -1.0));
    expected = Long(9);
    EXPECT_EQ(HostNumberCompare(&day, &expected), 0);

    EXPECT_EQ(HostNumberAdd(sum.digits, a.digits, 30, b.digits, b.length), 0);
    EXPECT_EQ(HostNumberAdd(nullptr, a.digits, a.length, b.digits, b.length), 0);
    EXPECT_EQ(HostNumberAddDouble(sum.digits, a.digits, a.length, NAN), 0);
}

TEST_F(HostDates, PartsOfAConstructedDate) {
    HostDateTime d = Date(2024, 2, 29, 13, 45, 10);
    EXPECT_EQ(HostDateYear(d), 2024);
    EXPECT_EQ(HostDateMonth(d), 2);
    EXPECT_EQ(HostDateDay(d), 29);
    EXPECT_EQ(HostDateHour(d), 13);
    EXPECT_EQ(HostDateMinute(d), 45);
    EXPECT_EQ(HostDateSecond(d), 10);
    EXPECT_EQ(HostDateWeekday(d), 5) << "a Thursday";
    EXPECT_EQ(HostDateWeekday(Date(1899, 12, 30)), 0) << "Saturday is 0";
    EXPECT_EQ(HostDateWeekday(Date(2023, 1, 1)), 1) << "Sunday is 1";
    EXPECT_EQ(HostDateWeekday(Date(2023, 1, 6)), 6) << "Friday is 6";
}

TEST_F(HostDates, OnlyTheLowFourBitsOfTheLengthCount) {
    HostDateTime d = Date(2001, 9, 8);
    d.length |= 0xA0;
    EXPECT_EQ(HostDateYear(d), 2001);
    EXPECT_EQ(HostDateDay(d), 8);
    EXPECT_EQ(Format(d, L"yyyy-MM-dd"), L"2001-09-08");
    HostDateTime null{};
    null.length = 0x30;
    EXPECT_EQ(HostDateYear(null), 0);
    EXPECT_EQ(Format(null, L"yyyy"), L"");
}

TEST_F(HostDates, FormatByPictureIntoASlot) {
    HostDateTime d = Date(2024, 2, 29, 13, 45, 10);
    EXPECT_EQ(Format(d, L"yyyy-MM-dd hh:mm:ss"), L"2024-02-29 13:45:10");
    EXPECT_EQ(Format(d, nullptr), L"2024-02-29-13.45.10.000000");
    EXPECT_EQ(Format(d, L"hh:mm:ss AMPM"), L"01:45:10 PM");

    HostStr slot = ZkHostStrMake(L"old");
    HostStr old = slot;
    HostStr made = HostDateToStr(d, L"dd.MM.yy", &slot);
    EXPECT_EQ(made, slot);
    EXPECT_EQ(Text(slot), L"29.02.24");
    EXPECT_EQ(ZkHostStrRefs(old), 0) << "the slot dropped what it held";
    EXPECT_EQ(ZkHostStrRefs(slot), 1) << "one reference, the slot's";
    ZkHostStrRelease(slot);
}

TEST_F(HostDates, ParsingAndValidity) {
    HostDateTime d{};
    EXPECT_EQ(HostStrToDate(&d, L"2024-02-29"), &d);
    EXPECT_EQ(HostDateYear(d), 2024);
    EXPECT_EQ(HostDateDay(d), 29);
    HostStrToDate(&d, L"2024-02-29-13.45.10.250000");
    EXPECT_EQ(Format(d, nullptr), L"2024-02-29-13.45.10.250000");
    HostStrToDate(&d, L"not a date");
    EXPECT_EQ(d.length & 0x0F, 0);
    EXPECT_EQ(HostStrIsValidDateTime(L"2024-02-29"), 1);
    EXPECT_EQ(HostStrIsValidDateTime(L"2023-02-29"), 0);
    EXPECT_EQ(HostStrIsValidDateTime(nullptr), 0);
    EXPECT_EQ(HostStrIsValidPicture(L"yyyy-MM-dd", 1), 1);
    EXPECT_EQ(HostStrIsValidPicture(L"qq", 1), 0);
    EXPECT_EQ(HostStrIsValidPicture(L"yyyy-MM-dd", 0), 0);
}

TEST_F(HostDates, TheClockIsRealUnlessATestFixesIt) {
    HostDateTime fixed = Date(1999, 12, 31, 23, 59, 58);
    ZkHostSetClock(&fixed);
    HostDateTime now{};
    EXPECT_EQ(HostDateCurrent(&now), &now);
    EXPECT_EQ(memcmp(&now, &fixed, sizeof now), 0);
    ZkHostSetClock(nullptr);

    SYSTEMTIME before{}, after{};
    GetLocalTime(&before);
    HostDateCurrent(&now);
    GetLocalTime(&after);
    int year = HostDateYear(now), day = HostDateDay(now);
    EXPECT_TRUE(year == before.wYear || year == after.wYear);
    EXPECT_TRUE(day == before.wDay || day == after.wDay);
    std::wstring micros = Format(now, L"mmmmmm");
    ASSERT_EQ(micros.size(), 6u);
    EXPECT_EQ(micros.substr(3), L"000") << "milliseconds of the local time";
}

} // namespace
