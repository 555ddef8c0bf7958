// The indented text outline: where each line is loaded.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "outline/core/ofile_text.h"

using namespace zk::ofile;

namespace {

std::vector<TextLine> Parse(std::string_view bytes) {
    std::vector<TextLine> lines;
    EXPECT_EQ(OutlineTextParse(bytes, lines), TextStatus::ok);
    return lines;
}

TextLine Child(int32_t anchor, int32_t level, std::u16string text) { return {anchor, false, level, std::move(text)}; }
TextLine Sibling(int32_t anchor, int32_t level, std::u16string text) { return {anchor, true, level, std::move(text)}; }

TEST(OutlineText, ATabCountsEightBlanks) {
    EXPECT_EQ(Parse("A\r\n\tB\r\n        C\r\n"),
              (std::vector<TextLine>{Child(kTextRoot, 0, u"A"), Child(0, 1, u"B"), Sibling(1, 1, u"C")}));
    // A tab adds 8 wherever it stands: blank then tab is column 9, not 8.
    EXPECT_EQ(Parse("A\r\n\tB\r\n \tC"),
              (std::vector<TextLine>{Child(kTextRoot, 0, u"A"), Child(0, 1, u"B"), Child(1, 2, u"C")}));
}

TEST(OutlineText, EmptyAndBlankLinesAreSkipped) {
    EXPECT_EQ(Parse("\r\n\r\nA\r\n   \r\n\t\r\n\r\nB\r\n\r\n"),
              (std::vector<TextLine>{Child(kTextRoot, 0, u"A"), Sibling(0, 0, u"B")}));
    EXPECT_TRUE(Parse("").empty());
    EXPECT_TRUE(Parse(" \t\r\n").empty());
}

TEST(OutlineText, ShallowerLinesGoBackToTheEntryWhoseColumnIsLess) {
    // C lies between A and B: a child of A, so a sibling of B by its place,
    // though loaded as a child. D at column 0 again: a child of the root.
    EXPECT_EQ(Parse("A\r\n        B\r\n    C\r\n      E\r\nD\r\n"),
              (std::vector<TextLine>{Child(kTextRoot, 0, u"A"), Child(0, 1, u"B"), Child(0, 1, u"C"),
                                     Child(2, 2, u"E"), Child(kTextRoot, 0, u"D")}));
    // Starting indented: the root's column is -1, any line is deeper.
    EXPECT_EQ(Parse("  A\r\n  B\r\nC"),
              (std::vector<TextLine>{Child(kTextRoot, 0, u"A"), Sibling(0, 0, u"B"), Child(kTextRoot, 0, u"C")}));
}

TEST(OutlineText, OnlyCarriageReturnLineFeedEndsALine) {
    using namespace std::string_view_literals;
    // A lone LF or CR stays in the text; a NUL byte ends the line as CR LF
    // does; what follows the indentation is kept as it stands.
    EXPECT_EQ(Parse("A\nB\rC\r\nD\0E\r\n\tx\ty \r\n"sv),
              (std::vector<TextLine>{Child(kTextRoot, 0, u"A\nB\rC"), Sibling(0, 0, u"D"), Sibling(1, 0, u"E"),
                                     Child(2, 1, u"x\ty ")}));
    // CR at the very end has no LF to pair with.
    EXPECT_EQ(Parse("A\r"), (std::vector<TextLine>{Child(kTextRoot, 0, u"A\r")}));
}

TEST(OutlineText, BytesAreWidenedByTheSystemCodePage) {
    auto widen = [](std::string_view b) {
        std::u16string out;
        for (char c : b) out.push_back(c == '\x82' ? u'\u00E9' : static_cast<char16_t>(static_cast<unsigned char>(c)));
        return out;
    };
    std::vector<TextLine> lines;
    ASSERT_EQ(OutlineTextParse("caf\x82\r\n\tn\x82", lines, widen), TextStatus::ok);
    EXPECT_EQ(lines, (std::vector<TextLine>{Child(kTextRoot, 0, u"caf\u00E9"), Child(0, 1, u"n\u00E9")}));
    // A code page that drops the final NUL still ends the last line.
    auto dropNul = [](std::string_view b) { return std::u16string(u"x"); };
    ASSERT_EQ(OutlineTextParse("ignored", lines, dropNul), TextStatus::ok);
    EXPECT_EQ(lines, (std::vector<TextLine>{Child(kTextRoot, 0, u"x")}));
}

TEST(OutlineText, SizeAndDepthLimitsRefuseTheWholeFile) {
    std::vector<TextLine> lines{Child(kTextRoot, 0, u"kept")};
    const std::vector<TextLine> before = lines;
    std::string big(kTextLimit - 1, 'a');
    ASSERT_EQ(OutlineTextParse(big, lines), TextStatus::ok);
    EXPECT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0].text.size(), kTextLimit - 1);
    lines = before;
    big.push_back('a');
    EXPECT_EQ(OutlineTextParse(big, lines), TextStatus::tooLarge);
    EXPECT_EQ(lines, before);

    // One blank deeper per line: level 255 is the deepest a line may take.
    std::string deep;
    for (int level = 0; level <= 255; ++level) deep += std::string(static_cast<size_t>(level), ' ') + "n\r\n";
    ASSERT_EQ(OutlineTextParse(deep, lines), TextStatus::ok);
    ASSERT_EQ(lines.size(), 256u);
    EXPECT_EQ(lines.back().level, 255);
    EXPECT_EQ(lines.back().anchor, 254);
    lines = before;
    deep += std::string(256, ' ') + "too deep\r\n";
    EXPECT_EQ(OutlineTextParse(deep, lines), TextStatus::tooDeep);
    EXPECT_EQ(lines, before);
    // Going back up frees the table: the same depth again is fine.
    std::string again = deep.substr(0, deep.size() - 266) + "top\r\n" + std::string(255, ' ') + "x\r\n";
    ASSERT_EQ(OutlineTextParse(again, lines), TextStatus::ok);
    EXPECT_EQ(lines.back().level, 1);
}

} // namespace
