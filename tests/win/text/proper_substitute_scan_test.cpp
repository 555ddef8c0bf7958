// ZelStrProper, ZelStrSubstitute, ZelStrScanReverse.
#include "text_support.h"

using namespace textwin;

namespace {

class ProperEtc : public HostTest {};

TEST_F(ProperEtc, ProperCapitalisesNames) {
    EXPECT_EQ(L"O'Brien MacDonald", Take(ZelStrProper(L"o'brien macdonald")));
    EXPECT_EQ(2 * 17 + 2, ZkHostLastAllocSize());
    EXPECT_EQ(L"John Smith-Jones", Take(ZelStrProper(L"JOHN sMITH-jONES")));
    EXPECT_EQ(L"\u00c9lan \u00dcber", Take(ZelStrProper(L"\u00e9LAN \u00fcber")));
    EXPECT_EQ(L"", Take(ZelStrProper(L"")));
    EXPECT_EQ(L"", Take(ZelStrProper(nullptr)));
}

TEST_F(ProperEtc, ProperMacAndMcQuirks) {
    EXPECT_EQ(L"MacHine", Take(ZelStrProper(L"machine")));
    EXPECT_EQ(L"MacDonald Macdonald", Take(ZelStrProper(L"macdonald macdonald")));
    EXPECT_EQ(L"McKay Mckay", Take(ZelStrProper(L"mckay mckay")));
    EXPECT_EQ(L"Mac Mc", Take(ZelStrProper(L"mac mc")));
    EXPECT_EQ(L"Tim Mac", Take(ZelStrProper(L"tim mac")));
}

TEST_F(ProperEtc, SubstituteReplacesWithoutOverlap) {
    EXPECT_EQ(L"ba", Take(ZelStrSubstitute(L"aaa", L"aa", L"b")));
    EXPECT_EQ((1 - 2) * 1 * 2 + 3 * 2 + 2, ZkHostLastAllocSize());
    EXPECT_EQ(L"a--b--c", Take(ZelStrSubstitute(L"a-b-c", L"-", L"--")));
    EXPECT_EQ(((2 - 1) * 2 + 5) * 2 + 2, ZkHostLastAllocSize());
    EXPECT_EQ(L"Abc d", Take(ZelStrSubstitute(L"Abc abc", L"abc", L"d")));
    EXPECT_EQ(L"ac", Take(ZelStrSubstitute(L"abc", L"b", nullptr)));
}

TEST_F(ProperEtc, SubstituteEmptySearchOrTextGivesTheText) {
    EXPECT_EQ(L"text", Take(ZelStrSubstitute(L"text", L"", L"x")));
    EXPECT_EQ(L"text", Take(ZelStrSubstitute(L"text", nullptr, L"x")));
    EXPECT_EQ(L"", Take(ZelStrSubstitute(L"", L"a", L"b")));
    EXPECT_EQ(2, ZkHostLastAllocSize());
    EXPECT_EQ(L"", Take(ZelStrSubstitute(nullptr, L"a", L"b")));
}

TEST_F(ProperEtc, SubstituteNeverAsksOnFailure) {
    // The plain path: a refused allocation gives 0, with no dialog.
    for (const wchar_t *text : {L"abc", L""}) {
        const int32_t calls = ZkHostAllocCalls();
        ZkHostFailAllocations(1);
        EXPECT_EQ(0u, ZelStrSubstitute(text, L"b", L"x"));
        EXPECT_EQ(calls + 1, ZkHostAllocCalls());
        ZkHostFailAllocations(0);
    }
}

TEST_F(ProperEtc, ScanReverseWithoutRegardToCase) {
    EXPECT_EQ(4, ZelStrScanReverse(L"abcabc", -1, L"BC"));
    EXPECT_EQ(1, ZelStrScanReverse(L"abcabc", 3, L"bc"));
    EXPECT_EQ(-1, ZelStrScanReverse(L"abcabc", 0, L"bc"));
    EXPECT_EQ(-1, ZelStrScanReverse(L"abcabc", -1, L"x"));
    EXPECT_EQ(0, ZelStrScanReverse(L"aBcX", -1, L"AbC"));
}

TEST_F(ProperEtc, ScanReverseBounds) {
    EXPECT_EQ(-1, ZelStrScanReverse(L"abcabc", 6, L"c")); // start equal to the length
    EXPECT_EQ(5, ZelStrScanReverse(L"abcabc", 5, L"c"));
    EXPECT_EQ(-1, ZelStrScanReverse(L"abcabc", -2, L"a"));
    EXPECT_EQ(-1, ZelStrScanReverse(nullptr, -1, L"a"));
    EXPECT_EQ(-1, ZelStrScanReverse(L"abc", -1, nullptr));
    EXPECT_EQ(2, ZelStrScanReverse(L"abc", 2, L""));  // an empty search matches at the start
    EXPECT_EQ(2, ZelStrScanReverse(L"abc", -1, L""));
    EXPECT_EQ(-1, ZelStrScanReverse(L"abc", 1, L"bcd"));
}

} // namespace
