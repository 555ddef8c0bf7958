#include <gtest/gtest.h>

#include "fakes.h"
#include "text/core/expand.h"

using namespace zk::text;
using zktest::FakeArray;

namespace {

FakeArray Numbers(std::initializer_list<int32_t> values, int32_t low = 0) {
    FakeArray a;
    a.numbers = values;
    a.low = low;
    return a;
}

FakeArray Strings(std::initializer_list<std::u16string> values, int32_t low = 0) {
    FakeArray a;
    a.strings = values;
    a.low = low;
    return a;
}

std::u16string X(std::u16string_view text, FakeArray &a) { return Expand(text, a.Shape(), a); }
uint64_t E(std::u16string_view text, FakeArray &a) { return EstimateExpandSize(text, a.Shape(), a); }

struct Case {
    std::u16string_view text, expected;
};

void ExpectAll(FakeArray a, std::initializer_list<Case> cases) {
    for (const Case &c : cases)
        EXPECT_EQ(X(c.text, a), c.expected) << std::string(c.text.begin(), c.text.end());
}

TEST(Expand, PlainCodesAndCodesAfterTheElements) {
    ExpectAll(Numbers({7, -3}), {{u"a%nb%nc", u"a7b-3c"}, {u"%n%n%n", u"7-3%n"}});
    ExpectAll(Numbers({INT32_MIN}), {{u"%n", u"-2147483648"}});
    ExpectAll(Strings({u"x", u"yy"}), {{u"[%s|%s]", u"[x|yy]"},
                                       {u"%u %u", u"0 1"},
                                       {u"100%%", u"100%"},
                                       {u"no codes", u"no codes"},
                                       {u"%s%s%s %n %u %x %", u"xyy%s %n %u %x %"}});
    ExpectAll(FakeArray(), {{u"%s%%", u"%s%"}});
}

TEST(Expand, Groups) {
    ExpectAll(Numbers({1, 2}), {
                                   {u"{x%,ny}", u"x1y,x2y"},
                                   {u"{x%ny}", u"x1yx2y"},
                                   {u"<{%,u}>", u"<0,1>"},
                                   // The group's code is the first % with a letter.
                                   {u"{%x%n}", u"%x1%x2"},
                                   {u"{%%n}", u"%1%2"},
                                   {u"{%n%n}", u"1%n2%n"}, // the suffix is copied as it stands
                                   {u"{a{%n}", u"a{1a{2"}, // a group runs to its first }
                                   // A group without code is copied.
                                   {u"{plain}", u"{plain}"},
                                   {u"{%d}%n", u"{%d}1"},
                                   {u"a}b", u"a}b"},
                                   // An unterminated brace is plain text.
                                   {u"{%n", u"{1"},
                                   {u"{%,n%", u"{%,n%"},
                                   {u"{{%n", u"{{1"},
                                   {u"{", u"{"},
                                   {u"{%", u"{%"},
                                   {u"{%,", u"{%,"},
                                   {u"{%n}{%n", u"12{1"},
                               });
    // The plain cursor is not moved by groups.
    ExpectAll(Strings({u"p", u"q"}), {{u"{'%s'}", u"'p''q'"}, {u"{%s}%s", u"pqp"}});
    ExpectAll(FakeArray(), {{u"a{%,n}b", u"ab"}});
}

TEST(Expand, NonZeroLowBound) {
    // Groups walk the host indices; plain codes count from 0 regardless.
    FakeArray a = Numbers({10, 20, 30}, 1);
    EXPECT_EQ(X(u"{%,u}", a), u"1,2,3");
    EXPECT_EQ(X(u"{%,n}", a), u"10,20,30");
    EXPECT_EQ(X(u"%n %n %n", a), u"0 10 20");
    EXPECT_EQ(a.numberReads.back(), 2);
    EXPECT_EQ(X(u"%u%u", a), u"01");
}

TEST(Expand, GroupWalkBoundedByCount) {
    FakeArray a = Numbers({1, 2});
    ArrayShape shape{2, 0, INT32_MAX}; // bounds that disagree with the count
    EXPECT_EQ(Expand(u"{%n}", shape, a), u"12");
    ArrayShape reversed{3, 5, 2};
    EXPECT_EQ(Expand(u"{%n}", reversed, a), u"");
}

TEST(Expand, EstimateFollowsTheRules) {
    FakeArray n = Numbers({1, 2, 3});
    EXPECT_EQ(E(u"%n", n), 2u + 1 + 36); // length + 1 + 12 * count
    EXPECT_EQ(E(u"{%,n}", n), 5u + 1 + 36 + 3 + (5 + 12) * 3);
    EXPECT_EQ(E(u"{%u}", n), 4u + 1 + (4 + 12) * 3); // u decides no extra
    EXPECT_EQ(E(u"{%d}", n), 4u + 1);                // a group without code adds nothing
    FakeArray s = Strings({u"ab", u"cde"});
    EXPECT_EQ(E(u"%s", s), 2u + 1 + 5); // the strings' lengths
    EXPECT_EQ(E(u"a{%s}", s), 5u + 1 + 5 + 4 * 2 + 5);
    EXPECT_EQ(E(u"%x%,s", s), 5u + 1 + 5); // first % followed by n or s decides
    EXPECT_EQ(E(u"{%n", s), 3u + 1 + 24);  // an unterminated group adds nothing
}

TEST(Expand, EstimateCoversWellFormedTemplates) {
    FakeArray n = Numbers({INT32_MIN, INT32_MAX, -1, 0});
    for (std::u16string_view t : {u"%n%n%n%n", u"{(%,n)}", u"{%u}{%,n}%n", u"x{%n}y{%u}"}) {
        EXPECT_GE(E(t, n), X(t, n).size() + 1) << std::string(t.begin(), t.end());
    }
    FakeArray s = Strings({u"alpha", u"", u"gamma"});
    for (std::u16string_view t : {u"%s-%s-%s", u"{[%s]}", u"{%,s}{%,u}"}) {
        EXPECT_GE(E(t, s), X(t, s).size() + 1) << std::string(t.begin(), t.end());
    }
}

TEST(Expand, TemplateBeyondTheEstimateStillExpands) {
    const std::u16string longA(40, u'a'), longB(40, u'b');
    FakeArray s = Strings({longA, longB});
    s.numbers = {1, 2};
    EXPECT_EQ(X(u"%n%s", s), u"1" + longB);
    // The first code gives 12 a number; the strings are longer than that.
    EXPECT_LT(E(u"%n{%s}", s), X(u"%n{%s}", s).size() + 1);
    EXPECT_EQ(X(u"%n{%s}", s), u"1" + longA + longB);
}

TEST(Expand, ManyBracesStayLinear) {
    FakeArray a = Numbers({1});
    const std::u16string opens(300'000, u'{');
    EXPECT_EQ(X(opens, a), opens);
    EXPECT_EQ(E(opens, a), opens.size() + 1);
    std::u16string mixed;
    for (int i = 0; i < 100'000; ++i)
        mixed += u"{%";
    mixed += u"}";
    EXPECT_EQ(X(mixed, a).size(), mixed.size());
}

TEST(Expand, LargeArrayGroup) {
    FakeArray a;
    for (int32_t i = 0; i < 100'000; ++i)
        a.numbers.push_back(i);
    const std::u16string out = X(u"{%,n}", a);
    EXPECT_EQ(out.substr(0, 6), u"0,1,2,");
    EXPECT_EQ(out.substr(out.size() - 6), u",99999");
    EXPECT_GE(E(u"{%,n}", a), out.size() + 1);
}

} // namespace
