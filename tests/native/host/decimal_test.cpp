// Exact decimal records: format, sums, rounding, order, integers; numbers
// from and to text and doubles.
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>

#include "hosttest.h"

using namespace hosttest;

namespace {

HostNumber raw(std::initializer_list<uint8_t> bytes, int length) {
    HostNumber n{};
    int i = 0;
    for (uint8_t b : bytes)
        n.digits[i++] = b;
    n.length = static_cast<uint8_t>(length);
    return n;
}

TEST(HostDecimal, RecordLayout) {
    // 123.45 = 0.12345e3: exponent byte 0x43, BCD 12 34 50, the rest zero.
    EXPECT_TRUE(SameRecord(num("123.45"), raw({0x43, 0x12, 0x34, 0x50}, 4)));
    const HostNumber n = num("123.45");
    for (int i = 4; i < 24; ++i)
        EXPECT_EQ(n.digits[i], 0) << i;
    EXPECT_TRUE(SameRecord(num("-0.05"), raw({0x80 | (64 - 1), 0x50}, 2)));
    EXPECT_TRUE(SameRecord(zkh::NumberZero(), raw({0x40}, 1)));
    EXPECT_FALSE(zkh::IsNull(zkh::NumberZero()));
    EXPECT_EQ(num("1234567890123456789012345678").length, 15) << "28 digits fill 15 bytes";
}

TEST(HostDecimal, EqualValuesHaveEqualBytes) {
    const HostNumber forms[] = {num("1.10"),
                                num("001.1"),
                                num("1.1e0"),
                                num("0.011e2"),
                                zkh::NumberFromDouble(1.1),
                                add(num("1"), num("0.1")),
                                sub(num("2.2"), num("1.1"))};
    for (const HostNumber &f : forms)
        EXPECT_TRUE(SameRecord(f, forms[0])) << text(f);
    EXPECT_TRUE(SameRecord(num("-0"), zkh::NumberZero()));
    EXPECT_TRUE(SameRecord(sub(num("0.3"), num("0.3")), zkh::NumberZero()));
    EXPECT_TRUE(SameRecord(zkh::NumberFromInt64(1), zkh::NumberFromDouble(1.0)));
}

TEST(HostDecimal, RoundsHalfAwayFromZeroBeyondTwentyEightDigits) {
    const HostNumber big = num("1234567890123456789012345678");
    EXPECT_EQ(text(add(big, num("0.5"))), "1234567890123456789012345679");
    EXPECT_EQ(text(add(big, num("0.49"))), "1234567890123456789012345678");
    EXPECT_EQ(text(sub(num("-1234567890123456789012345678"), num("0.5"))), "-1234567890123456789012345679");
    EXPECT_EQ(text(add(num("9999999999999999999999999999"), num("0.5"))), "10000000000000000000000000000");
    // Far apart: the small addend only matters through the rounding digit.
    EXPECT_EQ(text(add(num("1e30"), num("6e2"))), "1000000000000000000000000001000");
    EXPECT_EQ(text(add(num("1e30"), num("4.99e2"))), "1000000000000000000000000000000");
    EXPECT_EQ(text(add(num("1e27"), num("0.6"))), "1000000000000000000000000001");
}

TEST(HostDecimal, NullReadsAsZeroInSums) {
    const HostNumber null{};
    EXPECT_TRUE(SameRecord(add(null, null), zkh::NumberZero()));
    EXPECT_EQ(text(sub(null, num("2.5"))), "-2.5");
}

TEST(HostDecimal, OutputMayBeAnOperand) {
    HostNumber a = num("10.5");
    const HostNumber b = num("0.25");
    a.length = static_cast<uint8_t>(zkh::NumberAdd(a.digits, a.digits, a.length, b.digits, b.length));
    EXPECT_EQ(text(a), "10.75");
    a.length = static_cast<uint8_t>(zkh::NumberSubtract(a.digits, b.digits, b.length, a.digits, a.length));
    EXPECT_EQ(text(a), "-10.5");
}

TEST(HostDecimal, ExponentLimits) {
    // The largest magnitude is just below 10^63; beyond it a sum is null.
    const HostNumber top = num("9e62");
    EXPECT_EQ(text(top).size(), 63u);
    EXPECT_EQ(add(top, top).length, 0);
    HostNumber n{};
    EXPECT_FALSE(zkh::NumberFromText(u"1e63", n));
    EXPECT_EQ(n.length, 0);
    // Below 10^-65 values vanish into zero.
    EXPECT_EQ(text(num("1e-65")), "0." + std::string(64, '0') + "1");
    EXPECT_TRUE(SameRecord(num("1e-66"), zkh::NumberZero()));
}

// Order beyond what the random sums reach: null first, the extremes.
TEST(HostDecimal, CompareOrdersValuesAndPutsNullFirst) {
    const HostNumber ordered[] = {HostNumber{}, num("-1e40"),     num("-1e-30"), num("0"),
                                  num("1e-30"), num("1.0000001"), num("9e62")};
    for (size_t i = 0; i + 1 < std::size(ordered); ++i) {
        EXPECT_LT(zkh::NumberCompare(ordered[i], ordered[i + 1]), 0) << i;
        EXPECT_GT(zkh::NumberCompare(ordered[i + 1], ordered[i]), 0) << i;
    }
}

TEST(HostDecimal, OddRecordsAreReadSafely) {
    // A length beyond the 24 digit bytes is null, whatever the bytes say.
    HostNumber wild = num("5");
    wild.length = 200;
    EXPECT_EQ(zkh::NumberCompare(wild, HostNumber{}), 0);
    EXPECT_EQ(zkh::NumberToText(wild), u"");
    EXPECT_EQ(text(add(wild, num("1"))), "1");
    // A nibble that is no digit makes the record unreadable, hence null.
    EXPECT_EQ(zkh::NumberToText(raw({0x41, 0x1A}, 2)), u"");
    // Leading zero digits and a negative zero are read for what they mean.
    EXPECT_EQ(text(raw({0x43, 0x01, 0x20}, 3)), "12");
    EXPECT_EQ(zkh::NumberCompare(raw({0xC5}, 1), zkh::NumberZero()), 0);
    // A long record reads all 46 digits and rounds once when written again.
    HostNumber longest{};
    longest.length = 24;
    longest.digits[0] = 0x40 + 46;
    for (int i = 1; i < 24; ++i)
        longest.digits[i] = 0x99;
    EXPECT_EQ(text(add(longest, zkh::NumberZero())), "1" + std::string(46, '0'));
}

TEST(HostDecimal, Int64Conversions) {
    const int64_t values[] = {0, -90, 1234567890123, std::numeric_limits<int64_t>::max(),
                              std::numeric_limits<int64_t>::min()};
    for (int64_t v : values) {
        int64_t back = 42;
        EXPECT_TRUE(zkh::NumberToInt64(zkh::NumberFromInt64(v), back)) << v;
        EXPECT_EQ(back, v);
        EXPECT_EQ(text(zkh::NumberFromInt64(v)), std::to_string(v));
    }
    int64_t out = 0;
    EXPECT_TRUE(zkh::NumberToInt64(num("-2.9"), out));
    EXPECT_EQ(out, -2);
    EXPECT_TRUE(zkh::NumberToInt64(num("-9223372036854775808.7"), out));
    EXPECT_EQ(out, std::numeric_limits<int64_t>::min());
    EXPECT_FALSE(zkh::NumberToInt64(num("9223372036854775808"), out));
    EXPECT_FALSE(zkh::NumberToInt64(num("-9223372036854775809"), out));
    EXPECT_FALSE(zkh::NumberToInt64(num("1e25"), out));
    EXPECT_FALSE(zkh::NumberToInt64(HostNumber{}, out));
}

// Scaled 128-bit integers as an independent oracle for sums of up to 27
// digits each.
std::string ScaledText(__int128 value, int scale) {
    const bool negative = value < 0;
    unsigned __int128 m = negative ? -static_cast<unsigned __int128>(value) : value;
    std::string digits;
    do {
        digits.insert(digits.begin(), static_cast<char>('0' + static_cast<int>(m % 10)));
        m /= 10;
    } while (m != 0);
    if (static_cast<int>(digits.size()) <= scale)
        digits.insert(0, static_cast<size_t>(scale + 1) - digits.size(), '0');
    std::string out = digits.substr(0, digits.size() - scale);
    std::string fraction = digits.substr(digits.size() - scale);
    while (!fraction.empty() && fraction.back() == '0')
        fraction.pop_back();
    if (!fraction.empty())
        out += "." + fraction;
    if (negative && out != "0")
        out.insert(0, "-");
    return out;
}

TEST(HostDecimal, RandomSumsMatchWideIntegers) {
    std::mt19937_64 rng(20240229);
    for (int round = 0; round < 20000; ++round) {
        auto draw = [&](int &scale) {
            const int digits = 1 + static_cast<int>(rng() % 27);
            __int128 v = 0;
            for (int i = 0; i < digits; ++i)
                v = v * 10 + static_cast<int>(rng() % 10);
            scale = static_cast<int>(rng() % 12);
            return rng() % 2 ? -v : v;
        };
        int sa = 0, sb = 0;
        const __int128 a = draw(sa), b = draw(sb);
        // Bring both to one scale only if the wider one still fits 27 digits.
        const int scale = std::max(sa, sb);
        __int128 pa = a, pb = b;
        for (int i = sa; i < scale; ++i)
            pa *= 10;
        for (int i = sb; i < scale; ++i)
            pb *= 10;
        const __int128 limit = static_cast<__int128>(1000000000000000000) * 1000000000; // 10^27
        if (pa >= limit || pa <= -limit || pb >= limit || pb <= -limit)
            continue;
        const HostNumber x = num(ScaledText(a, sa)), y = num(ScaledText(b, sb));
        ASSERT_EQ(text(add(x, y)), ScaledText(pa + pb, scale)) << text(x) << " + " << text(y);
        ASSERT_EQ(text(sub(x, y)), ScaledText(pa - pb, scale)) << text(x) << " - " << text(y);
        const int order = pa < pb ? -1 : (pa > pb ? 1 : 0);
        const int got = zkh::NumberCompare(x, y);
        ASSERT_EQ((got > 0) - (got < 0), order) << text(x) << " <> " << text(y);
    }
}

TEST(HostNumberText, AcceptedForms) {
    const struct {
        const char *in, *out;
    } cases[] = {
        {"0", "0"},
        {"123.45", "123.45"},
        {"  -0.5  ", "-0.5"},
        {".5", "0.5"},
        {"00012.3400", "12.34"},
        {"1e3", "1000"},
        {"1.5E-3", "0.0015"},
        {"-2.5e+2", "-250"},
        {"18446744073709551615", "18446744073709551615"},
        {"-0.0", "0"},
        {"0e999999999999", "0"},
        {"1.5e-10", "0.00000000015"}, // plain notation, never an exponent
        {"1e20", "100000000000000000000"},
    };
    for (const auto &c : cases)
        EXPECT_EQ(text(num(c.in)), c.out) << c.in;
    EXPECT_EQ(zkh::NumberToText(HostNumber{}), u"");
}

TEST(HostNumberText, RejectedForms) {
    const char *bad[] = {"",    "   ", "-",   ".",    "e5",    "1e+", "1.2.3",
                         "1,5", "--1", "1 2", "0x10", "1e5.5", "nan", "1e64"};
    for (const char *b : bad) {
        HostNumber n = num("7");
        EXPECT_FALSE(zkh::NumberFromText(u16(b), n)) << b;
        EXPECT_EQ(n.length, 0) << b;
    }
}

TEST(HostNumberText, RoundsMoreThanTwentyEightDigits) {
    EXPECT_EQ(text(num("1.23456789012345678901234567849")), "1.234567890123456789012345678");
    EXPECT_EQ(text(num("1.23456789012345678901234567850")), "1.234567890123456789012345679");
    EXPECT_EQ(text(num("-99999999999999999999999999995")), "-100000000000000000000000000000");
    // A long run of digits: only the first 29 matter, the scale counts them all.
    EXPECT_EQ(text(num(std::string(60, '1'))), std::string(28, '1') + std::string(32, '0'));
    EXPECT_EQ(text(num("0." + std::string(50, '0') + "25")), "0." + std::string(50, '0') + "25");
}

TEST(HostNumberDouble, FifteenDigitsFromDoubles) {
    EXPECT_TRUE(SameRecord(zkh::NumberFromDouble(0.1), num("0.1")));
    EXPECT_TRUE(SameRecord(zkh::NumberFromDouble(-0.0), zkh::NumberZero()));
    EXPECT_TRUE(SameRecord(zkh::NumberFromDouble(0.1 + 0.2), num("0.3")));
    EXPECT_EQ(text(zkh::NumberFromDouble(1.0 / 3.0)), "0.333333333333333");
    EXPECT_EQ(text(zkh::NumberFromDouble(-1e20)), "-100000000000000000000");
    EXPECT_EQ(text(zkh::NumberFromDouble(1e-300)), "0");
    EXPECT_TRUE(zkh::IsNull(zkh::NumberFromDouble(1e300)));
    EXPECT_TRUE(zkh::IsNull(zkh::NumberFromDouble(NAN)));
}

TEST(HostNumberDouble, ToDoubleIsCorrectlyRounded) {
    EXPECT_EQ(zkh::NumberToDouble(HostNumber{}), 0.0);
    EXPECT_EQ(zkh::NumberToDouble(num("18446744073709551615")), 18446744073709551615.0);
    // Against the C library's reading of the same decimal, over random
    // 28-digit values of every scale.
    std::mt19937_64 rng(7);
    for (int i = 0; i < 5000; ++i) {
        std::string digits;
        for (int k = 0; k < 28; ++k)
            digits += static_cast<char>('0' + rng() % 10);
        const int exponent = static_cast<int>(rng() % 120) - 60;
        const std::string decimal = (rng() % 2 ? "-0." : "0.") + digits + "e" + std::to_string(exponent);
        const HostNumber n = num(decimal);
        ASSERT_EQ(zkh::NumberToDouble(n), std::strtod(decimal.c_str(), nullptr)) << decimal;
    }
}

TEST(HostNumberDouble, FifteenDigitDecimalsSurviveADouble) {
    std::mt19937_64 rng(11);
    for (int i = 0; i < 5000; ++i) {
        char buffer[64];
        const long long mantissa = static_cast<long long>(rng() % 900000000000000ULL) + 100000000000000LL;
        const int exponent = static_cast<int>(rng() % 40) - 20;
        std::snprintf(buffer, sizeof buffer, "%lld e%d", mantissa, exponent);
        std::string decimal(buffer);
        decimal.erase(decimal.find(' '), 1);
        const HostNumber n = num(decimal);
        ASSERT_TRUE(SameRecord(zkh::NumberFromDouble(zkh::NumberToDouble(n)), n)) << decimal;
    }
}

TEST(HostNumberDouble, AddDoubleStepsExactly) {
    HostNumber d = num("43968.5729166666666666666667");
    HostNumber r{};
    r.length = static_cast<uint8_t>(zkh::NumberAddDouble(r.digits, d.digits, d.length, 1.0));
    EXPECT_EQ(text(r), "43969.5729166666666666666667");
    r.length = static_cast<uint8_t>(zkh::NumberAddDouble(r.digits, r.digits, r.length, -2.0));
    EXPECT_EQ(text(r), "43967.5729166666666666666667");
    r.length = static_cast<uint8_t>(zkh::NumberAddDouble(r.digits, nullptr, 0, 0.1));
    EXPECT_EQ(text(r), "0.1");
    EXPECT_EQ(zkh::NumberAddDouble(r.digits, d.digits, d.length, NAN), 0);
}

} // namespace
