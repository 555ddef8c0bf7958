// The spin field's value: text form, parsing through the reference host's
// number reading, stepping at the ends, and where its parts lie.
#include <gtest/gtest.h>

#include <climits>

#include "controls/core/spin_layout.h"
#include "controls/core/spin_model.h"
#include "core/hostnum.h"

namespace {

using zk::Rect;
using namespace zk::ctl;

bool Valid(std::u16string_view text) {
    HostNumber n{};
    return zkh::NumberFromText(text, n);
}
bool Integer(std::u16string_view text, int32_t &value) {
    HostNumber n{};
    int64_t v = 0;
    const bool ok = zkh::NumberFromText(text, n) && zkh::NumberToInt64(n, v) && v >= INT32_MIN && v <= INT32_MAX;
    value = ok ? static_cast<int32_t>(v) : 0;
    return ok;
}
const NumberReader kReader{&Valid, &Integer};

std::string Narrow(const std::u16string &s) { return std::string(s.begin(), s.end()); }

TEST(SpinText, ValuesShowTheirDecimalPlaces) {
    struct Case {
        int32_t value, adjust;
        const char *text;
    };
    const Case cases[] = {
        {1234, -2, "12.34"},
        {1205, -2, "12.05"},
        {1200, -2, "12"},
        {5, -2, "0.05"},
        {-5, -2, "0.05"} /* the sign goes with the zero whole part */,
        {-1234, -2, "-12.34"},
        {12, 2, "1200"},
        {0, 0, "0"},
        {-7, 0, "-7"},
        {1000000, -1, "100000"},
        {999999, -1, "99999.9"},
        {INT32_MIN, 0, "-2147483648"},
        {INT32_MIN, -3, "-2147483.648"},
    };
    for (const Case &c : cases)
        EXPECT_EQ(Narrow(FormatValue(c.value, c.adjust)), c.text) << c.value << " adjust " << c.adjust;
    EXPECT_EQ(FormatValue(1, -2000000000).size(), 1026u) << "padding is bounded";
}

TEST(SpinText, TextsParseWithTheKeptQuirks) {
    struct Case {
        const char16_t *text;
        int32_t adjust, value;
    };
    const Case cases[] = {
        {u"12.34", -2, 1234}, {u"12.5", -2, 1205} /* the fraction is not scaled */,
        {u"-1.25", -2, -75},  {u"12.345", -2, 1234},
        {u"12", -2, 1200},    {u"1200", 2, 12},
        {u"7", 0, 7},         {u"abc", -2, 0},
        {u"", 0, 0},          {u"99999.9", -1, 999999},
        {u".5", -1, 5},
    };
    for (const Case &c : cases)
        EXPECT_EQ(ParseValue(c.text, c.adjust, kReader), c.value) << Narrow(c.text) << " adjust " << c.adjust;
    EXPECT_EQ(ScaleByTen(7, 40), 0) << "wraps to 0 after 32 steps";
    EXPECT_EQ(ScaleByTen(-999, -2), -9);
}

TEST(SpinSteps, EndsAndEmptyEdits) {
    struct Case {
        int32_t value, minimum, maximum, increment;
        const char16_t *edit;
        bool up;
        int32_t after;
    };
    const Case cases[] = {
        {0, 1, 0x7FFFFFFF, 1, u"", true, 1}, // the defaults: an empty edit shows the minimum
        {1, 1, 0x7FFFFFFF, 1, u"1", true, 2},
        {10, 1, 10, 1, u"10", true, 10},
        {1, 1, 10, 1, u"1", false, 1},
        {9, 1, 10, 3, u"9", true, 10}, // 12 is cut to the maximum
        {5, 1, 10, 1, u"", false, 1},  // down from an empty edit gives the minimum too
        {4, 1, 10, 1, u"x", true, 5},  // no number: the stored value steps
        {4, 1, 10, 1, u"7", true, 8},  // the edit's number wins over the stored value
        {0, -10, 10, 4, u"-8", false, -10},
        {4, 1, 10, 0, u"7", true, 4},                                  // increment 0 does not read the edit
        {0x7FFFFFFF, INT32_MIN, 0x7FFFFFFF, 1, u"x", true, INT32_MIN}, // the sum wraps, unchecked
    };
    for (const Case &c : cases) {
        SpinValues v{c.value, c.minimum, c.maximum, c.increment, 0};
        if (c.up)
            StepUp(v, c.edit, kReader);
        else
            StepDown(v, c.edit, kReader);
        EXPECT_EQ(v.value, c.after) << Narrow(c.edit) << (c.up ? " up" : " down") << " from " << c.value;
    }
    SpinValues v;
    EXPECT_TRUE(AcceptsValue(v, 0x7FFFFFFF)) << "above the maximum is stored";
    EXPECT_TRUE(AcceptsValue(v, -5));
    v.minimum = 10;
    v.maximum = 0;
    EXPECT_FALSE(AcceptsValue(v, 5)) << "below a minimum above the maximum";
}

TEST(SpinSteps, ADecimalStepAMillionTimesLandsExactly) {
    SpinValues v{0, 0, 0x7FFFFFFF, 1, -1};
    std::u16string text = FormatValue(v.value, v.decimalAdjust);
    for (int i = 0; i < 1000000; ++i) {
        StepUp(v, text, kReader);
        text = FormatValue(v.value, v.decimalAdjust);
    }
    EXPECT_EQ(Narrow(text), "100000") << "0.1 a million times from 0, read back from the text each time";
    EXPECT_EQ(v.value, 1000000);
}

TEST(SpinSteps, AHeldButtonRepeatsAfterThreeHundredMilliseconds) {
    EXPECT_FALSE(RepeatDue(1299, 1000));
    EXPECT_TRUE(RepeatDue(1300, 1000));
    EXPECT_TRUE(RepeatDue(100, 0xFFFFFF00u)) << "across the wrap of the tick count";
    EXPECT_FALSE(RepeatDue(10, 0xFFFFFFF0u));
}

TEST(SpinLayoutSums, ButtonsEditAndArrows) {
    const SpinLayout l(Rect{0, 0, 100, 21});
    EXPECT_EQ(l.a, 86) << "t = 7: two thirds of the height";
    EXPECT_EQ(l.up, (Rect{86, 0, 100, 10}));
    EXPECT_EQ(l.down, (Rect{86, 11, 100, 21}));
    EXPECT_EQ(l.edit, (Rect{-1, -1, 87, 22})) << "its border outside the client area";
    EXPECT_EQ(l.mx, 93);
    EXPECT_EQ(l.my, 10);
    EXPECT_EQ(l.s, 4);
    EXPECT_EQ(l.upArrow[0], (zk::Point{93, 2})) << "v = 7: tip at v - 1 - s";
    EXPECT_EQ(l.upArrow[1], (zk::Point{89, 6}));
    EXPECT_EQ(l.upArrow[2], (zk::Point{97, 6}));
    EXPECT_EQ(l.downArrow[0], (zk::Point{89, 13})) << "w = 13";
    EXPECT_EQ(l.downArrow[2], (zk::Point{93, 17}));
    EXPECT_EQ(l.ButtonAt({90, 3}), SpinButton::Up);
    EXPECT_EQ(l.ButtonAt({90, 10}), SpinButton::None) << "the middle row of an odd height";
    EXPECT_EQ(l.ButtonAt({90, 20}), SpinButton::Down);
    EXPECT_EQ(l.ButtonAt({85, 3}), SpinButton::None);
    const SpinLayout even(Rect{0, 0, 60, 24});
    EXPECT_EQ(even.up.bottom, even.down.top) << "an even height leaves no gap";
}

} // namespace
