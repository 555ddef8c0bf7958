// ZelStrProper, ZelStrSubstitute, ZelStrScanReverse.
#include "text_support.h"

using namespace textwin;

namespace {

class ProperEtc : public HostTest {};

// The rules are checked on the portable core; here the platform's case
// mapping, the sizes asked of the host, and null texts.
TEST_F(ProperEtc, ProperCapitalisesNames) {
    EXPECT_EQ(L"O'Brien MacDonald", Take(ZelStrProper(L"o'brien macdonald")));
    EXPECT_EQ(2 * 17 + 2, ZkHostLastAllocSize());
    EXPECT_EQ(L"\u00c9lan \u00dcber", Take(ZelStrProper(L"\u00e9LAN \u00fcber")));
    EXPECT_EQ(L"MacDonald Macdonald", Take(ZelStrProper(L"macdonald macdonald")));
    EXPECT_EQ(L"", Take(ZelStrProper(nullptr)));
}

TEST_F(ProperEtc, SubstituteSizesAndNulls) {
    EXPECT_EQ(L"ba", Take(ZelStrSubstitute(L"aaa", L"aa", L"b")));
    EXPECT_EQ((1 - 2) * 1 * 2 + 3 * 2 + 2, ZkHostLastAllocSize());
    EXPECT_EQ(L"a--b--c", Take(ZelStrSubstitute(L"a-b-c", L"-", L"--")));
    EXPECT_EQ(((2 - 1) * 2 + 5) * 2 + 2, ZkHostLastAllocSize());
    EXPECT_EQ(L"ac", Take(ZelStrSubstitute(L"abc", L"b", nullptr)));
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
    EXPECT_EQ(0, ZelStrScanReverse(L"aBcX", -1, L"AbC"));
    EXPECT_EQ(-1, ZelStrScanReverse(L"abcabc", 6, L"c")); // start equal to the length
    EXPECT_EQ(-1, ZelStrScanReverse(nullptr, -1, L"a"));
    EXPECT_EQ(-1, ZelStrScanReverse(L"abc", -1, nullptr));
    EXPECT_EQ(2, ZelStrScanReverse(L"abc", -1, L""));
}

} // namespace
