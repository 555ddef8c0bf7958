// ZelStrTrim, ZelStrLeftTrim, ZelStrRightTrim, ZelStrPad, ZelStrPadB.
#include "text_support.h"

using namespace textwin;

namespace {

class TrimPad : public HostTest {};

TEST_F(TrimPad, TrimsWhiteSpaceAtTheEnds) {
    EXPECT_EQ(L"a \t b", Take(ZelStrTrim(L" \t\r\n a \t b \n")));
    EXPECT_EQ(2 * 5 + 2, ZkHostLastAllocSize());
    EXPECT_EQ(L"a b \t", Take(ZelStrLeftTrim(L"\t a b \t")));
    EXPECT_EQ(2 * 5 + 2, ZkHostLastAllocSize());
    EXPECT_EQ(L"\t a b", Take(ZelStrRightTrim(L"\t a b \t")));
    // Nothing left, or no text: the empty string.
    for (auto trim : {ZelStrTrim, ZelStrLeftTrim, ZelStrRightTrim}) {
        EXPECT_EQ(L"", Take(trim(L"   \t ")));
        EXPECT_EQ(2, ZkHostLastAllocSize());
        EXPECT_EQ(L"", Take(trim(L"")));
        EXPECT_EQ(L"", Take(trim(nullptr)));
    }
}

TEST_F(TrimPad, PadExtendsAndCutsToWidth) {
    EXPECT_EQ(L"abc  ", Take(ZelStrPad(L"abc", 5)));
    EXPECT_EQ(2 * 5 + 2, ZkHostLastAllocSize());
    EXPECT_EQ(L"abc", Take(ZelStrPad(L"abcdef", 3)));
    EXPECT_EQ(2 * 3 + 2, ZkHostLastAllocSize());
    EXPECT_EQ(L"", Take(ZelStrPad(L"abc", -5)));
    EXPECT_EQ(L"", Take(ZelStrPad(nullptr, 5)));
}

TEST_F(TrimPad, PadBCountsBytesOfTheCodePage) {
    EXPECT_EQ(L"abc  ", Take(ZelStrPadB(L"abc", 5)));
    EXPECT_EQ((3 + 2) * 2 + 2, ZkHostLastAllocSize());
    EXPECT_EQ(L"abc", Take(ZelStrPadB(L"abc", 3))); // byte length equal to width: unchanged
    EXPECT_EQ(3 * 2 + 2, ZkHostLastAllocSize());
    EXPECT_EQ(L"abc", Take(ZelStrPadB(L"abcdef", 3))); // cut: m = 4 characters with the terminator
    EXPECT_EQ(2 * 4, ZkHostLastAllocSize());
    EXPECT_EQ(L"", Take(ZelStrPadB(L"abc", -1)));
    EXPECT_EQ(L"", Take(ZelStrPadB(nullptr, 3)));
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

} // namespace
