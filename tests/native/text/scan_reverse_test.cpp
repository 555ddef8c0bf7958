#include <gtest/gtest.h>

#include <random>

#include "fakes.h"
#include "text/core/scan_reverse.h"

using namespace zk::text;

namespace {

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
    const char16_t alphabet[] = u"aAbB";
    auto randomText = [&](std::size_t maxLength) {
        std::uniform_int_distribution<std::size_t> len(0, maxLength);
        std::uniform_int_distribution<int> pick(0, 3);
        std::u16string s(len(rng), u'a');
        for (char16_t &c : s)
            c = alphabet[pick(rng)];
        return s;
    };
    for (int round = 0; round < 5000; ++round) {
        const std::u16string text = randomText(20), search = randomText(3);
        std::uniform_int_distribution<int32_t> start(-3, static_cast<int32_t>(text.size()) + 1);
        const int32_t s = start(rng);
        ASSERT_EQ(Scan(text, s, search), Reference(text, s, search)) << round;
    }
}

} // namespace
