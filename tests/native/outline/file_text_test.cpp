// The indented text outline: where each line is loaded.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "outline/core/ofile_text.h"

using namespace zk::lbx;

using namespace zk::lbx::ofile;
using namespace std::string_view_literals;

namespace {

using Lines = std::vector<TextLine>;
TextLine Child(int32_t anchor, int32_t level, std::u16string text) { return {anchor, false, level, std::move(text)}; }
TextLine Sibling(int32_t anchor, int32_t level, std::u16string text) { return {anchor, true, level, std::move(text)}; }
constexpr int32_t R = kTextRoot;

TEST(OutlineText, LinesFindTheirAnchors) {
    const struct {
        std::string_view bytes;
        Lines expected;
    } cases[] = {
        {"A\r\n\tB\r\n        C\r\n", {Child(R, 0, u"A"), Child(0, 1, u"B"), Sibling(1, 1, u"C")}},
        // A tab adds 8 wherever it stands: blank then tab is column 9.
        {"A\r\n\tB\r\n \tC", {Child(R, 0, u"A"), Child(0, 1, u"B"), Child(1, 2, u"C")}},
        {"\r\n\r\nA\r\n   \r\n\t\r\n\r\nB\r\n\r\n", {Child(R, 0, u"A"), Sibling(0, 0, u"B")}},
        {"", {}},
        {" \t\r\n", {}},
        // C lies between A and B: loaded as a child of A. D goes back to the root.
        {"A\r\n        B\r\n    C\r\n      E\r\nD\r\n",
         {Child(R, 0, u"A"), Child(0, 1, u"B"), Child(0, 1, u"C"), Child(2, 2, u"E"), Child(R, 0, u"D")}},
        // Starting indented: the root's column is -1.
        {"  A\r\n  B\r\nC", {Child(R, 0, u"A"), Sibling(0, 0, u"B"), Child(R, 0, u"C")}},
        // Only CR LF or a NUL ends a line; the text after the indentation stays as it is.
        {"A\nB\rC\r\nD\0E\r\n\tx\ty \r\n"sv,
         {Child(R, 0, u"A\nB\rC"), Sibling(0, 0, u"D"), Sibling(1, 0, u"E"), Child(2, 1, u"x\ty ")}},
        {"A\r", {Child(R, 0, u"A\r")}},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(std::string(c.bytes));
        Lines lines;
        ASSERT_EQ(OutlineTextParse(c.bytes, lines), TextStatus::ok);
        EXPECT_EQ(lines, c.expected);
    }
}

TEST(OutlineText, BytesAreWidenedByTheSystemCodePage) {
    auto widen = [](std::string_view b) {
        std::u16string out;
        for (char c : b)
            out.push_back(c == '\x82' ? u'\u00E9' : static_cast<char16_t>(static_cast<unsigned char>(c)));
        return out;
    };
    Lines lines;
    ASSERT_EQ(OutlineTextParse("caf\x82\r\n\tn\x82", lines, widen), TextStatus::ok);
    EXPECT_EQ(lines, (Lines{Child(R, 0, u"caf\u00E9"), Child(0, 1, u"n\u00E9")}));
    // A code page that drops the final NUL still ends the last line.
    auto dropNul = [](std::string_view) { return std::u16string(u"x"); };
    ASSERT_EQ(OutlineTextParse("ignored", lines, dropNul), TextStatus::ok);
    EXPECT_EQ(lines, (Lines{Child(R, 0, u"x")}));
}

TEST(OutlineText, SizeAndDepthLimitsRefuseTheWholeFile) {
    const Lines before{Child(R, 0, u"kept")};
    Lines lines = before;
    std::string big(kTextLimit - 1, 'a');
    ASSERT_EQ(OutlineTextParse(big, lines), TextStatus::ok);
    EXPECT_EQ(lines[0].text.size(), kTextLimit - 1);
    lines = before;
    EXPECT_EQ(OutlineTextParse(big + 'a', lines), TextStatus::tooLarge);
    EXPECT_EQ(lines, before);
    // One blank deeper per line: level 255 is the deepest a line may take.
    std::string deep;
    for (int level = 0; level <= 255; ++level)
        deep += std::string(static_cast<size_t>(level), ' ') + "n\r\n";
    ASSERT_EQ(OutlineTextParse(deep, lines), TextStatus::ok);
    ASSERT_EQ(lines.size(), 256u);
    EXPECT_EQ(lines.back().level, 255);
    EXPECT_EQ(lines.back().anchor, 254);
    lines = before;
    EXPECT_EQ(OutlineTextParse(deep + std::string(256, ' ') + "too deep\r\n", lines), TextStatus::tooDeep);
    EXPECT_EQ(lines, before);
    // Going back up frees the table: the same depth again is fine.
    ASSERT_EQ(OutlineTextParse(deep + "top\r\n" + std::string(255, ' ') + "x\r\n", lines), TextStatus::ok);
    EXPECT_EQ(lines.back().level, 1);
}

} // namespace
