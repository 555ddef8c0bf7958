// Number and date-time exports: integer ranges, what the exports do with
// null and junk records, date parts and pictures into slots, the clock.
// The decimal and calendar arithmetic itself is tested natively.
#include <cmath>
#include <cstring>

#include "host_test_util.h"

using namespace hosttest;

namespace {

class HostNumbers : public HostTest {};

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

TEST_F(HostNumbers, IntegersConvertWithinTheirRanges) {
    HostNumber n{};
    int16_t s = 0;
    uint16_t us = 0;
    int32_t l = 0;
    uint32_t ul = 0;
    HostNumberFromShort(0x18000, &n); // only the low 16 bits are the short
    EXPECT_EQ(HostNumberToShort(&n, &s), 1);
    EXPECT_EQ(s, -32768);
    HostNumberFromUShort(0x1FFFF, &n);
    EXPECT_EQ(HostNumberToUShort(&n, &us), 1);
    EXPECT_EQ(us, 65535);
    n = Long(40000);
    EXPECT_EQ(HostNumberToShort(&n, &s), 0);
    EXPECT_EQ(s, 0);
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
}

TEST_F(HostNumbers, NullPointersAndJunkRecordsGiveTheFailureValue) {
    HostNumber null{}, junk{}, n{};
    junk.length = 200;
    int32_t l = 0;
    double d = 0;
    EXPECT_EQ(HostNumberToLong(&null, &l), 0);
    EXPECT_EQ(HostNumberToLong(nullptr, &l), 0);
    EXPECT_EQ(HostNumberToLong(&junk, &l), 0);
    HostNumberFromDouble(INFINITY, &n);
    EXPECT_EQ(n.length, 0);
    EXPECT_EQ(HostNumberToDouble(&n, &d), 0);
    EXPECT_EQ(HostNumberFromText(&n, nullptr), 0);
    EXPECT_EQ(HostStrToNumber(&n, L"12x")->length, 0);
    EXPECT_EQ(HostStrIsValidNumber(nullptr), 0);
    EXPECT_EQ(HostNumberCompare(&null, nullptr), 0);
    HostNumber a = Num(L"0.1"), sum{};
    EXPECT_EQ(HostNumberAdd(sum.digits, a.digits, 30, a.digits, a.length), 0);
    EXPECT_EQ(HostNumberAdd(nullptr, a.digits, a.length, a.digits, a.length), 0);
    EXPECT_EQ(HostNumberAddDouble(sum.digits, a.digits, a.length, NAN), 0);
    HostNumber big = Num(L"12345678901234567890.5");
    big.length = uint8_t(HostNumberAdd(big.digits, big.digits, big.length, a.digits, a.length));
    HostNumber expected = Num(L"12345678901234567890.6");
    EXPECT_EQ(HostNumberCompare(&big, &expected), 0) << "the output may be an operand";
}

TEST_F(HostNumbers, DatePartsAndTheWeekdayFromSaturday) {
    HostDateTime d = Date(2024, 2, 29, 13, 45, 10);
    EXPECT_EQ(HostDateYear(d) * 10000 + HostDateMonth(d) * 100 + HostDateDay(d), 20240229);
    EXPECT_EQ(HostDateHour(d) * 10000 + HostDateMinute(d) * 100 + HostDateSecond(d), 134510);
    EXPECT_EQ(HostDateWeekday(d), 5) << "a Thursday";
    EXPECT_EQ(HostDateWeekday(Date(1899, 12, 30)), 0) << "Saturday is 0";
    // Only the low four bits of the length count.
    d.length |= 0xA0;
    EXPECT_EQ(HostDateYear(d), 2024);
    EXPECT_EQ(Format(d, L"yyyy-MM-dd"), L"2024-02-29");
    HostDateTime null{};
    null.length = 0x30;
    EXPECT_EQ(HostDateYear(null), 0);
    EXPECT_EQ(Format(null, L"yyyy"), L"");
}

TEST_F(HostNumbers, DateTextsBothWaysAndIntoASlot) {
    HostDateTime d = Date(2024, 2, 29, 13, 45, 10);
    EXPECT_EQ(Format(d, nullptr), L"2024-02-29-13.45.10.000000");
    HostStr slot = ZkHostStrMake(L"old");
    HostStr old = slot;
    EXPECT_EQ(HostDateToStr(d, L"dd.MM.yy", &slot), slot);
    EXPECT_EQ(Text(slot), L"29.02.24");
    EXPECT_EQ(ZkHostStrRefs(old), 0) << "the slot dropped what it held";
    EXPECT_EQ(ZkHostStrRefs(slot), 1) << "one reference, the slot's";
    ZkHostStrRelease(slot);

    EXPECT_EQ(HostStrToDate(&d, L"2024-02-29-13.45.10.250000"), &d);
    EXPECT_EQ(Format(d, nullptr), L"2024-02-29-13.45.10.250000");
    HostStrToDate(&d, L"not a date");
    EXPECT_EQ(d.length & 0x0F, 0);
    EXPECT_EQ(HostStrIsValidDateTime(L"2023-02-29"), 0);
    EXPECT_EQ(HostStrIsValidDateTime(nullptr), 0);
    EXPECT_EQ(HostStrIsValidPicture(L"yyyy-MM-dd", 1), 1);
    EXPECT_EQ(HostStrIsValidPicture(L"yyyy-MM-dd", 0), 0);
}

TEST_F(HostNumbers, TheClockIsRealUnlessATestFixesIt) {
    HostDateTime fixed = Date(1999, 12, 31, 23, 59, 58), now{};
    ZkHostSetClock(&fixed);
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
    EXPECT_EQ(Format(now, L"mmmmmm").substr(3), L"000") << "milliseconds of the local time";
}

} // namespace
