#include <gtest/gtest.h>

#include "fakes.h"
#include "text/proper.h"

using namespace zk::text;

namespace {

std::u16string P(std::u16string_view text) {
    zktest::AsciiCaseMap caseMap;
    return Proper(text, caseMap);
}

TEST(Proper, Names) {
    EXPECT_EQ(P(u"o'brien macdonald"), u"O'Brien MacDonald");
    EXPECT_EQ(P(u"JOHN  SMITH"), u"John  Smith");
    EXPECT_EQ(P(u" leading space"), u" Leading Space");
    EXPECT_EQ(P(u""), u"");
}

TEST(Proper, MacAndMcAppliedBlindlyOnceEach) {
    EXPECT_EQ(P(u"machine"), u"MacHine");
    EXPECT_EQ(P(u"macdonald macdonald"), u"MacDonald Macdonald");
    EXPECT_EQ(P(u"mcdonald mcdonald"), u"McDonald Mcdonald");
    EXPECT_EQ(P(u"mac mc"), u"Mac Mc");         // a space after is left alone
    EXPECT_EQ(P(u"tim mac"), u"Tim Mac");       // nothing after the end
    EXPECT_EQ(P(u"mac-neil"), u"Mac-Neil");     // punctuation: word start anyway
    EXPECT_EQ(P(u"mcmac"), u"McMac");           // "Mac" and "Mc" are looked up separately
}

TEST(Proper, EveryPunctuationCharacterEndsAWordAndStays) {
    ASSERT_EQ(kProperPunctuation.size(), 31u);
    for (char16_t p : kProperPunctuation) {
        std::u16string text = u"ab";
        text += p;
        text += u"cd";
        std::u16string expected = u"Ab";
        expected += p;
        expected += u"Cd";
        EXPECT_EQ(P(text), expected) << static_cast<int>(p);
    }
}

TEST(Proper, OtherCharactersJoinWords) {
    EXPECT_EQ(P(u"ab`cd"), u"Ab`cd");    // ` is not in the set
    EXPECT_EQ(P(u"ab\tcd"), u"Ab\tcd");  // only the space character splits
    EXPECT_EQ(P(u"1st place"), u"1st Place");
}

} // namespace
