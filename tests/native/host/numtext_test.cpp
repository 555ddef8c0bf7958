// Numbers from and to text and doubles.
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>

#include "hosttest.h"

using namespace hosttest;

namespace {

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
