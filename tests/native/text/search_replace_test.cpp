// Proper names, the caseless reverse scan and substitution, each against
// the platform stand-ins of fakes.h or a plain reference on random texts.
#include <gtest/gtest.h>

#include <random>

#include "fakes.h"
#include "text/core/proper.h"
#include "text/core/scan_reverse.h"
#include "text/core/substitute.h"

using namespace zk::text;

namespace {

// A text of up to maxLength characters drawn from the alphabet.
std::u16string RandomText(std::mt19937 &rng, std::size_t maxLength, std::u16string_view alphabet) {
    std::u16string s(std::uniform_int_distribution<std::size_t>(0, maxLength)(rng), u'a');
    for (char16_t &c : s)
        c = alphabet[std::uniform_int_distribution<std::size_t>(0, alphabet.size() - 1)(rng)];
    return s;
}

std::u16string P(std::u16string_view text) {
    zktest::AsciiCaseMap caseMap;
    return Proper(text, caseMap);
}

TEST(Proper, NamesWithMacAndMcAppliedBlindlyOnceEach) {
    EXPECT_EQ(P(u"JOHN  SMITH"), u"John  Smith");
    EXPECT_EQ(P(u" leading space"), u" Leading Space");
    EXPECT_EQ(P(u""), u"");
    EXPECT_EQ(P(u"machine"), u"MacHine");
    EXPECT_EQ(P(u"macdonald macdonald"), u"MacDonald Macdonald");
    EXPECT_EQ(P(u"mcdonald mcdonald"), u"McDonald Mcdonald");
    EXPECT_EQ(P(u"mac mc"), u"Mac Mc");     // a space after is left alone
    EXPECT_EQ(P(u"tim mac"), u"Tim Mac");   // nothing after the end
    EXPECT_EQ(P(u"mac-neil"), u"Mac-Neil"); // punctuation: word start anyway
    EXPECT_EQ(P(u"mcmac"), u"McMac");       // "Mac" and "Mc" are looked up separately
}

TEST(Proper, EveryPunctuationCharacterEndsAWordAndStays) {
    ASSERT_EQ(kProperPunctuation.size(), 31u);
    for (char16_t p : kProperPunctuation) {
        EXPECT_EQ(P(u"ab" + std::u16string(1, p) + u"cd"), u"Ab" + std::u16string(1, p) + u"Cd") << int(p);
    }
}

TEST(Proper, OtherCharactersJoinWords) {
    EXPECT_EQ(P(u"ab`cd"), u"Ab`cd");   // ` is not in the set
    EXPECT_EQ(P(u"ab\tcd"), u"Ab\tcd"); // only the space character splits
}

int32_t Scan(std::u16string_view text, int32_t start, std::u16string_view search) {
    zktest::AsciiScanner scanner;
    return ScanReverse(text, start, search, scanner);
}

// Every position from the start back to 0, compared caselessly.
int32_t Reference(std::u16string_view text, int32_t start, std::u16string_view search) {
    const int32_t length = static_cast<int32_t>(text.size());
    if (start < -1 || start > length - 1)
        return -1;
    for (int32_t p = start == -1 ? std::max(length - 1, 0) : start; p >= 0; --p) {
        if (length - p < static_cast<int32_t>(search.size()))
            continue;
        bool same = true;
        for (std::size_t i = 0; i < search.size() && same; ++i)
            same = zktest::AsciiLower(text[p + i]) == zktest::AsciiLower(search[i]);
        if (same)
            return p;
    }
    return -1;
}

// The edges the random texts may miss.
TEST(ScanReverse, Bounds) {
    EXPECT_EQ(Scan(u"abcabc", -1, u"BC"), 4);
    EXPECT_EQ(Scan(u"abc", 3, u"c"), -1); // start equal to the length
    EXPECT_EQ(Scan(u"abc", -2, u"a"), -1);
    EXPECT_EQ(Scan(u"", 0, u""), -1);
    EXPECT_EQ(Scan(u"abc", 1, u""), 1); // an empty search matches at the start
    EXPECT_EQ(Scan(u"", -1, u""), 0);
}

TEST(ScanReverse, StepsOverSurrogatePairs) {
    const std::u16string text = u"a\xD83D\xDE00";
    zktest::AsciiScanner scanner;
    EXPECT_EQ(ScanReverse(text, -1, u"\xD83D", scanner), 1);  // the last character is the pair
    EXPECT_EQ(ScanReverse(text, -1, u"\xDE00", scanner), -1); // never lands inside it
}

// A platform step that does not move must not hang the walk.
class StuckScanner final : public ReverseScanner {
public:
    std::size_t Previous(std::u16string_view, std::size_t position) override { return position; }
    bool EqualNoCase(const char16_t *a, const char16_t *b, std::size_t count) override {
        return std::u16string_view(a, count) == std::u16string_view(b, count);
    }
};

TEST(ScanReverse, AlwaysEnds) {
    StuckScanner scanner;
    EXPECT_EQ(ScanReverse(u"xaaaa", 4, u"x", scanner), 0);
    EXPECT_EQ(ScanReverse(u"aaaa", 3, u"x", scanner), -1);
}

TEST(ScanReverse, MatchesReferenceOnRandomTexts) {
    std::mt19937 rng(99);
    auto randomText = [&](std::size_t maxLength) { return RandomText(rng, maxLength, u"aAbB"); };
    for (int round = 0; round < 5000; ++round) {
        const std::u16string text = randomText(20), search = randomText(3);
        std::uniform_int_distribution<int32_t> start(-3, static_cast<int32_t>(text.size()) + 1);
        const int32_t s = start(rng);
        ASSERT_EQ(Scan(text, s, search), Reference(text, s, search)) << round;
    }
}

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
    auto randomText = [&](std::size_t maxLength) { return RandomText(rng, maxLength, u"ab"); };
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
