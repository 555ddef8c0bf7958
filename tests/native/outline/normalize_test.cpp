// Case styles of stored texts.
#include <gtest/gtest.h>

#include "fakes.h"

namespace {

using outlinetest::AsciiRules;

std::u16string Normalized(uint32_t style, const char16_t *text) {
    AsciiRules rules;
    LbxText t;
    t.assign(text);
    LbxNormalizeText(style, t, rules);
    return std::u16string(t.view());
}

TEST(LbxNormalizeText, UpperWinsOverLowerAndProper) {
    EXPECT_EQ(Normalized(LBX_StyleUpperCase | LBX_StyleLowerCase, u"MiXed"), u"MIXED");
    EXPECT_EQ(Normalized(LBX_StyleUpperCase | LBX_StyleProperCase, u"john"), u"JOHN");
    EXPECT_EQ(Normalized(LBX_StyleLowerCase | LBX_StyleProperCase, u"JOHN SMITH"), u"john smith");
    EXPECT_EQ(Normalized(0, u"MiXed"), u"MiXed");
}

TEST(LbxNormalizeText, ProperCaseOnlyWithoutLowerCase) {
    EXPECT_EQ(Normalized(LBX_StyleProperCase, u"JOHN MCDONALD"), u"John McDonald");
    EXPECT_EQ(Normalized(LBX_StyleProperCase, u"JOHN mCDONALD"), u"JOHN mCDONALD");
    EXPECT_EQ(Normalized(LBX_StyleProperCase, u"ALL CAPITALS HERE"), u"All Capitals Here");
}

TEST(LbxNormalizeText, PunctuationCountsAsBlankAndStays) {
    EXPECT_EQ(Normalized(LBX_StyleProperCase, u"O'BRIEN-SMITH"), u"O'Brien-Smith");
    EXPECT_EQ(Normalized(LBX_StyleProperCase, u"A.B/C(D)"), u"A.B/C(D)");
    EXPECT_EQ(Normalized(LBX_StyleProperCase, u"X.YZ"), u"X.Yz");
}

TEST(LbxNormalizeText, MacRuleNeedsNoWordBoundaryAndTouchesOnlyTheFirst) {
    EXPECT_EQ(Normalized(LBX_StyleProperCase, u"MACHINE SHOP"), u"MacHine Shop");
    EXPECT_EQ(Normalized(LBX_StyleProperCase, u"MACDONALD MACDONALD"), u"MacDonald Macdonald");
    EXPECT_EQ(Normalized(LBX_StyleProperCase, u"MAC"), u"Mac");
    EXPECT_EQ(Normalized(LBX_StyleProperCase, u"MAC DUFF"), u"Mac Duff");
}

TEST(LbxProperCase, EmptyAndBlankTexts) {
    AsciiRules rules;
    char16_t blanks[] = u"   ";
    LbxProperCase(blanks, 3, rules);
    EXPECT_EQ(std::u16string(blanks), u"   ");
    LbxProperCase(nullptr, 0, rules);
}

} // namespace
