#include <gtest/gtest.h>

#include "fakes.h"
#include "text/core/proper.h"

using namespace zk::text;

namespace {

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

} // namespace
