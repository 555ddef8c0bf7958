#include <gtest/gtest.h>

#include <random>

#include "text/core/substitute.h"

using namespace zk::text;

namespace {

// Straightforward left-to-right replacement to compare against.
std::u16string Reference(std::u16string_view text, std::u16string_view search, std::u16string_view repl,
                         std::size_t &count) {
    count = 0;
    if (search.empty())
        return std::u16string(text);
    std::u16string out;
    std::size_t i = 0;
    while (i < text.size()) {
        if (text.substr(i, search.size()) == search) {
            out += repl;
            i += search.size();
            ++count;
        } else {
            out += text[i++];
        }
    }
    return out;
}

TEST(Substitute, EdgeCases) {
    EXPECT_EQ(Substitute(u"abababa", u"aba", u"X"), u"XbX"); // without overlap
    EXPECT_EQ(Substitute(u"text", u"", u"x"), u"text");
    EXPECT_EQ(CountOccurrences(u"text", u""), 0u);
    EXPECT_EQ(Substitute(u"Abc abc", u"abc", u"d"), u"Abc d"); // with case
}

TEST(Substitute, MatchesReferenceOnRandomTexts) {
    std::mt19937 rng(1234);
    const char16_t alphabet[] = u"ab";
    auto randomText = [&](std::size_t maxLength) {
        std::uniform_int_distribution<std::size_t> len(0, maxLength);
        std::uniform_int_distribution<int> pick(0, 1);
        std::u16string s(len(rng), u'a');
        for (char16_t &c : s)
            c = alphabet[pick(rng)];
        return s;
    };
    for (int round = 0; round < 5000; ++round) {
        const std::u16string text = randomText(40), search = randomText(5), repl = randomText(3);
        std::size_t count = 0;
        const std::u16string expected = Reference(text, search, repl, count);
        ASSERT_EQ(Substitute(text, search, repl), expected) << round;
        ASSERT_EQ(CountOccurrences(text, search), count) << round;
    }
}

TEST(Substitute, LongPeriodicPatternStaysLinear) {
    // A naive search would compare about 10^11 characters here.
    const std::u16string text(2'000'000, u'a');
    const std::u16string search = std::u16string(50'000, u'a') + u"b";
    EXPECT_EQ(Substitute(text, search, u"x"), text);
    EXPECT_EQ(CountOccurrences(text, std::u16string(3, u'a')), 666'666u);
}

} // namespace
