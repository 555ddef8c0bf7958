// The string results of the family through the exports: choose and the
// number helpers, trim and pad, proper, substitute, scan, expand over real
// host arrays, and the retry dialog every result goes through when the host
// refuses memory. The rules themselves are checked on the portable core;
// here the platform's case mapping and code page, the sizes asked of the
// host, and null texts. No test leaves a host string or array behind.
#include <cstring>
#include <functional>

#include "array_support.h"
#include "files_support.h"
#include "zkharness.h"

using namespace arraytest;
using filestest::Take;

namespace {

using HostTest = ArrayTest;

// Bytes of the text in the system code page.
int AnsiBytes(const std::wstring &text) {
    return text.empty() ? 0
                        : WideCharToMultiByte(CP_ACP, 0, text.c_str(), static_cast<int>(text.size()), nullptr, 0,
                                              nullptr, nullptr);
}

class Choose : public HostTest {};

TEST_F(Choose, StringChoiceAddsAReference) {
    const HostStr a = ZkHostStrMake(L"first");
    const HostStr b = ZkHostStrMake(L"second");
    const HostStr r = ZelStrChoose(7, a, b);
    EXPECT_EQ(a, r);
    EXPECT_EQ(2, ZkHostStrRefs(a));
    EXPECT_EQ(1, ZkHostStrRefs(b));
    ZkHostStrRelease(r);
    const HostStr s = ZelStrChoose(0, a, b);
    EXPECT_EQ(b, s);
    EXPECT_EQ(1, ZkHostStrRefs(a));
    EXPECT_EQ(2, ZkHostStrRefs(b));
    ZkHostStrRelease(s);
    EXPECT_EQ(L"", Take(ZelStrChoose(1, 0, b))) << "no string gives the empty string";
    EXPECT_EQ(1, ZkHostStrRefs(b));
    ZkHostStrRelease(a);
    ZkHostStrRelease(b);
}

HostNumber Record(uint8_t length, uint8_t fill) {
    HostNumber n;
    n.length = length;
    std::memset(n.digits, fill, sizeof n.digits);
    return n;
}

TEST(NumberChoose, CopiesTheWholeRecord) {
    const HostNumber a = Record(3, 0x5A);
    const HostNumber nullB = Record(0, 0xC3); // null, with digits that must travel along
    HostNumber r = ZelNumberChoose(1, a, nullB);
    EXPECT_EQ(0, std::memcmp(&r, &a, sizeof r));
    r = ZelNumberChoose(0, a, nullB);
    EXPECT_EQ(0, std::memcmp(&r, &nullB, sizeof r));
    r = ZelNumberChoose(0x80000000u, nullB, a);
    EXPECT_EQ(0, std::memcmp(&r, &nullB, sizeof r));
}

TEST(NumberBits, SetClearAndBytes) {
    uint32_t word = 0x10;
    EXPECT_EQ(0x13u, ZelNumberBitSet(&word, 0x03));
    EXPECT_EQ(0x13u, word);
    EXPECT_EQ(0x11u, ZelNumberBitClear(&word, 0x02));
    word = 0xFFFFFFFFu;
    EXPECT_EQ(0x7FFFFFFEu, ZelNumberBitClear(&word, 0x80000001u));
    EXPECT_EQ(0u, ZelNumberBitSet(nullptr, 1));
    EXPECT_EQ(0x010203u, ZelNumberHighByte(0x01020304u)) << "not masked";
    EXPECT_EQ(0xFFu, ZelNumberLowByte(0xFFFFFFFFu));
}

TEST(NumberBits, MakeLongIgnoresUpperHalves) {
    EXPECT_EQ(0x56781234u, ZelNumberMakeLong(0x1234, 0x5678));
    // A caller may pass whole 32-bit words; only their low halves count.
    using Wide = uint32_t(ZKAPI *)(uint32_t, uint32_t);
    const auto wide = reinterpret_cast<Wide>(
        reinterpret_cast<void *>(GetProcAddress(GetModuleHandleW(L"ZKLIB.dll"), "ZelNumberMakeLong")));
    ASSERT_NE(nullptr, wide);
    EXPECT_EQ(0x56781234u, wide(0xABCD1234u, 0xFFFF5678u));
    EXPECT_EQ(0xFFFFFFFFu, wide(0x0001FFFFu, 0x8000FFFFu));
}

class StringResults : public HostTest {};

// Each result's text and the bytes it asked of the host (0: not compared):
// the text and its terminator, or what the rule estimated before the cut.
TEST_F(StringResults, TextsAndTheSizesAskedOfTheHost) {
    const struct {
        std::function<HostStr()> call;
        std::wstring expected;
        int32_t size;
    } cases[] = {
        {[] { return ZelStrTrim(L" \t\r\n a \t b \n"); }, L"a \t b", 2 * 5 + 2},
        {[] { return ZelStrLeftTrim(L"\t a b \t"); }, L"a b \t", 2 * 5 + 2},
        {[] { return ZelStrRightTrim(L"\t a b \t"); }, L"\t a b", 0},
        {[] { return ZelStrPad(L"abc", 5); }, L"abc  ", 2 * 5 + 2},
        {[] { return ZelStrPad(L"abcdef", 3); }, L"abc", 2 * 3 + 2},
        {[] { return ZelStrPad(L"abc", -5); }, L"", 0},
        {[] { return ZelStrPad(nullptr, 5); }, L"", 0},
        // PadB counts the bytes of the code page.
        {[] { return ZelStrPadB(L"abc", 5); }, L"abc  ", (3 + 2) * 2 + 2},
        {[] { return ZelStrPadB(L"abc", 3); }, L"abc", 3 * 2 + 2}, // byte length equal to width: unchanged
        {[] { return ZelStrPadB(L"abcdef", 3); }, L"abc", 2 * 4},  // cut: m = 4 characters with the terminator
        {[] { return ZelStrPadB(L"abc", -1); }, L"", 0},
        {[] { return ZelStrPadB(nullptr, 3); }, L"", 0},
        // The platform's case mapping capitalises names.
        {[] { return ZelStrProper(L"o'brien macdonald"); }, L"O'Brien MacDonald", 2 * 17 + 2},
        {[] { return ZelStrProper(L"\u00e9LAN \u00fcber"); }, L"\u00c9lan \u00dcber", 0},
        {[] { return ZelStrProper(L"macdonald macdonald"); }, L"MacDonald Macdonald", 0},
        {[] { return ZelStrProper(nullptr); }, L"", 0},
        {[] { return ZelStrSubstitute(L"aaa", L"aa", L"b"); }, L"ba", (1 - 2) * 1 * 2 + 3 * 2 + 2},
        {[] { return ZelStrSubstitute(L"a-b-c", L"-", L"--"); }, L"a--b--c", ((2 - 1) * 2 + 5) * 2 + 2},
        {[] { return ZelStrSubstitute(L"abc", L"b", nullptr); }, L"ac", 0},
        {[] { return ZelStrSubstitute(L"text", nullptr, L"x"); }, L"text", 0},
        {[] { return ZelStrSubstitute(L"", L"a", L"b"); }, L"", 2},
        {[] { return ZelStrSubstitute(nullptr, L"a", L"b"); }, L"", 0},
    };
    for (size_t i = 0; i < std::size(cases); ++i) {
        SCOPED_TRACE(testing::Message() << "case " << i);
        EXPECT_EQ(cases[i].expected, Take(cases[i].call()));
        if (cases[i].size != 0) {
            EXPECT_EQ(cases[i].size, ZkHostLastAllocSize());
        }
    }
    // Nothing left, or no text: the empty string.
    for (auto trim : {ZelStrTrim, ZelStrLeftTrim, ZelStrRightTrim}) {
        EXPECT_EQ(L"", Take(trim(L"   \t ")));
        EXPECT_EQ(2, ZkHostLastAllocSize());
        EXPECT_EQ(L"", Take(trim(L"")));
        EXPECT_EQ(L"", Take(trim(nullptr)));
    }
}

// Double-byte characters need a double-byte system code page (the program
// runs under Wine in a Japanese locale for it).
class PadBDoubleByte : public HostTest {
protected:
    void SetUp() override {
        HostTest::SetUp();
        if (GetACP() != 932)
            GTEST_SKIP() << "system code page is " << GetACP() << ", not 932: double-byte padding not checked";
    }
};

const std::wstring kA = L"\u3042"; // HIRAGANA LETTER A, two bytes in code page 932

TEST_F(PadBDoubleByte, DoubleByteCharacterCountsTwo) {
    const std::wstring text = L"x" + kA;
    ASSERT_EQ(3, AnsiBytes(text));
    EXPECT_EQ(text, Take(ZelStrPadB(text.c_str(), 3))); // equal: the same text
    EXPECT_EQ(2 * 2 + 2, ZkHostLastAllocSize());
    EXPECT_EQ(text + L"  ", Take(ZelStrPadB(text.c_str(), 5)));
    EXPECT_EQ((2 + 2) * 2 + 2, ZkHostLastAllocSize());
    const std::wstring longer = L"x" + kA + L"y";
    EXPECT_EQ(text, Take(ZelStrPadB(longer.c_str(), 3))); // cut after the whole character
    EXPECT_EQ(2 * 3, ZkHostLastAllocSize());
}

TEST_F(PadBDoubleByte, CutInsideACharacterLeavesASpace) {
    const std::wstring text = L"x" + kA + L"y";
    const std::wstring cut = Take(ZelStrPadB(text.c_str(), 2));
    EXPECT_EQ(L"x ", cut);
    EXPECT_EQ(2, AnsiBytes(cut));
    EXPECT_EQ(2 * 2, ZkHostLastAllocSize()); // m = 2: "x" and the terminator

    const std::wstring two = kA + kA;
    EXPECT_EQ(kA + L" ", Take(ZelStrPadB(two.c_str(), 3)));
    EXPECT_EQ(L" ", Take(ZelStrPadB(kA.c_str(), 1)));
    EXPECT_EQ(2, ZkHostLastAllocSize());
}

class ProperEtc : public HostTest {};

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

class Expand : public HostTest {
protected:
    // Expands and gives back the text; the array is destroyed.
    std::wstring Run(const wchar_t *templateText, HostArray array) {
        const std::wstring text = Take(ZelStrExpand(templateText, array));
        allocBytes = ZkHostLastAllocSize();
        HostArrayDestroy(array);
        return text;
    }
    int32_t allocBytes = 0;
};

// The template's rules are checked on the portable core; here the
// elements come from real host arrays.
TEST_F(Expand, CodesAndGroupsReadTheHostsElements) {
    EXPECT_EQ(L"a7b-2147483648c 50% %n", Run(L"a%nb%nc 50%% %n", Longs({7, INT32_MIN})));
    EXPECT_EQ(L"[x|yy] %u", Run(L"[%s|%s] %u", Strings({L"x", L"yy"})));
    EXPECT_EQ(L"0 1", Run(L"%u %u", Longs({5, 6})));
    EXPECT_EQ(L"('a'),('b')a", Run(L"{('%,s')}%s", Strings({L"a", L"b"})));
}

TEST_F(Expand, EmptyOrNull) {
    EXPECT_EQ(L"ab", Run(L"a{%,n}b", HostArrayCreate(HOST_TYPE_NUMBER)));
    EXPECT_EQ(L"", Run(L"", Longs({1})));
    EXPECT_EQ(L"", Take(ZelStrExpand(nullptr, 0)));
}

TEST_F(Expand, BoundsNotZero) {
    // Groups walk the host's indices 1..3; plain codes ask for 0, 1, 2,
    // and the host has nothing at 0.
    EXPECT_EQ(L"1,2,3", Run(L"{%,u}", Longs({10, 20, 30}, 1)));
    EXPECT_EQ(L"10,20,30", Run(L"{%,n}", Longs({10, 20, 30}, 1)));
    EXPECT_EQ(L"0 10 20", Run(L"%n %n %n", Longs({10, 20, 30}, 1)));
    EXPECT_EQ(L"|a|b", Run(L"%s|%s|%s", Strings({L"a", L"b", L"c"}, 1)));
}

TEST_F(Expand, BufferIsTheEstimate) {
    // length 7 + 1, 12 a number for the first code, the comma, (7 + 12) a repeat.
    EXPECT_EQ(L"x1y,x2y", Run(L"{x%,ny}", Longs({1, 2})));
    EXPECT_EQ(2 * (7 + 1 + 24 + 2 + 19 * 2), allocBytes);
    // %s: the lengths of all element strings.
    EXPECT_EQ(L"ab-cde", Run(L"%s-%s", Strings({L"ab", L"cde"})));
    EXPECT_EQ(2 * (5 + 1 + 5), allocBytes);
}

TEST_F(Expand, TemplateBeyondTheEstimateGrowsTheBuffer) {
    const std::wstring a(60, L'a'), b(70, L'b');
    HostArray array = Strings({a.c_str(), b.c_str()});
    // The first code is %n: 12 characters an element, but a string follows.
    EXPECT_EQ(L"0" + b, Run(L"%n%s", array));
    EXPECT_EQ(2 * (1 + 70 + 1), allocBytes);
}

constexpr int kRetry = 203;
constexpr int kHalt = 204;

struct StringResult {
    const char *name;
    std::function<HostStr()> call;
    std::wstring expected;
};

class Retry : public HostTest {
protected:
    void SetUp() override {
        HostTest::SetUp();
        numbers_ = Longs({4, 5, 6});
        ZkHostHaltReturns(1);
    }
    void TearDown() override {
        ZkHostHaltReturns(0);
        ZkHostFailAllocations(0);
        HostArrayDestroy(numbers_);
        HostTest::TearDown();
    }
    HostArray numbers_ = 0;
};

TEST_F(Retry, EveryStringResultAsksUntilTheHostGivesIn) {
    const HostArray numbers = numbers_;
    const std::vector<StringResult> results = {
        {"ZelStrTrim", [] { return ZelStrTrim(L"  ab  "); }, L"ab"},
        {"ZelStrTrim empty", [] { return ZelStrTrim(L"   "); }, L""},
        {"ZelStrLeftTrim", [] { return ZelStrLeftTrim(L"  ab "); }, L"ab "},
        {"ZelStrRightTrim", [] { return ZelStrRightTrim(L" ab  "); }, L" ab"},
        {"ZelStrRightTrim null", [] { return ZelStrRightTrim(nullptr); }, L""},
        {"ZelStrPad", [] { return ZelStrPad(L"ab", 4); }, L"ab  "},
        {"ZelStrPad width 0", [] { return ZelStrPad(L"ab", 0); }, L""},
        {"ZelStrPadB short", [] { return ZelStrPadB(L"ab", 4); }, L"ab  "},
        {"ZelStrPadB cut", [] { return ZelStrPadB(L"abcdef", 3); }, L"abc"},
        {"ZelStrProper", [] { return ZelStrProper(L"mcdonald"); }, L"McDonald"},
        {"ZelStrExpand", [=] { return ZelStrExpand(L"{%,n}", numbers); }, L"4,5,6"},
        {"ZelStrExpand null", [] { return ZelStrExpand(nullptr, 0); }, L""},
        {"ZelStrChoose no string", [] { return ZelStrChoose(1, 0, 0); }, L""},
    };
    for (const StringResult &r : results) {
        SCOPED_TRACE(r.name);
        // The size the function asks for when all goes well.
        EXPECT_EQ(r.expected, Take(r.call()));
        const int32_t size = ZkHostLastAllocSize();
        const int32_t live = ZkHostLiveStrings();
        const int32_t calls = ZkHostAllocCalls();
        const int32_t halts = ZkHostHaltCount();

        ZkHostFailAllocations(3);
        HostStr handle = 0;
        {
            zkt::DialogAnswerer answerer({kRetry, kHalt, kRetry}, zkt::DialogMatch{L"Zelkova Kit"});
            handle = r.call();
            ASSERT_EQ(3, answerer.answered());
            for (const zkt::AnsweredDialog &d : answerer.dialogs()) {
                EXPECT_EQ(L"Zelkova Kit", d.caption);
                EXPECT_TRUE(d.HasControl(kRetry));
                EXPECT_TRUE(d.HasControl(kHalt));
            }
        }
        EXPECT_EQ(calls + 4, ZkHostAllocCalls()) << "one try, then one per answer";
        EXPECT_EQ(size, ZkHostLastAllocSize()) << "a retry asks for the same size";
        EXPECT_EQ(halts + 1, ZkHostHaltCount()) << "Halt calls HostHalt, then tries again";
        EXPECT_EQ(r.expected, Take(handle));
        EXPECT_EQ(live, ZkHostLiveStrings());
    }
}

} // namespace
