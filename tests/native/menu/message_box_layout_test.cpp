// The message box's layout sums, measured in a font of 8 by 16 pixels.
#include <gtest/gtest.h>

#include <string>

#include "menu/core/message_box_layout.h"

using namespace zk::menu;

namespace {

// Eight pixels a character, sixteen a line; a wrapped text fills lines of
// the width given, and a line feed starts a new one.
class FakeFont final : public MsgBoxMeasure {
public:
    Extent Line(std::u16string_view text) const override {
        ++lines;
        return {static_cast<int32_t>(text.size() + 1) * 8, 16};
    }
    Extent Wrapped(std::u16string_view text, int32_t width) const override {
        wrappedAt = width;
        const int32_t perLine = width / 8;
        int32_t count = 0, widest = 0;
        for (size_t start = 0; start <= text.size();) {
            size_t end = text.find(u'\n', start);
            if (end == std::u16string_view::npos)
                end = text.size();
            const auto length = static_cast<int32_t>(end - start);
            count += length == 0 ? 1 : (length + perLine - 1) / perLine;
            widest = std::max(widest, std::min(length, perLine) * 8);
            start = end + 1;
        }
        return {widest, count * 16};
    }
    int32_t ButtonText(std::u16string_view caption) const override { return static_cast<int32_t>(caption.size()) * 8; }
    mutable int lines = 0;
    mutable int32_t wrappedAt = -1;
};

MsgBoxMetrics Screen() {
    MsgBoxMetrics m;
    m.baseX = 8;
    m.baseY = 16;
    m.iconWidth = m.iconHeight = 32;
    m.frameX = m.frameY = 3;
    m.caption = 18;
    m.screenWidth = 1024;
    m.screenHeight = 730;
    return m;
}

using Buttons = std::vector<std::optional<std::u16string_view>>;

TEST(MsgBoxLayout, TwoButtonsAndAnIcon) {
    FakeFont font;
    const MsgBoxLayout l = LayOutMessageBox(Screen(), true, u"Hello", Buttons{u"OK", u"Cancel"}, font);
    EXPECT_FALSE(l.wrapped);
    // 665 of the screen, less the frames, the right margin, the icon's
    // margin twice and the icon.
    EXPECT_EQ(l.textLimit, 665 - 6 - 18 - 22 - 32 - 22);
    // The text is lower than the icon: centred on it below the top gap.
    EXPECT_EQ(l.icon, (zk::Point{22, 18}));
    EXPECT_EQ(l.text, (zk::Rect{22 + 32 + 20, 26, 22 + 32 + 20 + 48, 42}));
    // "Cancel" and the gap beat the smallest width of 56.
    EXPECT_EQ(l.buttonWidth, 64);
    EXPECT_EQ(l.buttonHeight, 28);
    EXPECT_EQ(l.row, 2 * 64 + 16 + 2 * 44);
    const int32_t width = l.row + 6, height = 32 + 18 + 6 + 28 + 18 + 12 + 18;
    EXPECT_EQ(l.dialog, (zk::Rect{(1024 - width) / 2, (730 - height) / 2, (1024 + width) / 2, (730 + height) / 2}));
    EXPECT_EQ(l.buttonY, height - 6 - 28 - 12 - 18);
    EXPECT_EQ(l.buttonX, (std::vector<int32_t>{44, 44 + 64 + 16}));
}

TEST(MsgBoxLayout, WithoutAnIconItsHeightStillCounts) {
    FakeFont font;
    const MsgBoxLayout l = LayOutMessageBox(Screen(), false, u"Hello", Buttons{u"OK"}, font);
    EXPECT_EQ(l.textLimit, 665 - 6 - 18 - 22);
    EXPECT_EQ(l.text.left, 22) << "no icon width, no gap";
    EXPECT_EQ(l.text.top, 26);
    EXPECT_EQ(l.dialog.Height(), 32 + 18 + 6 + 28 + 18 + 12 + 18);
    // The text (48) and margins (18 + 22) are narrower than the row.
    EXPECT_EQ(l.dialog.Width(), 56 + 2 * 44 + 6);
}

TEST(MsgBoxLayout, LongTextsTabsAndLineFeedsWrap) {
    struct Case {
        std::u16string text;
        bool wrapped;
    } cases[] = {
        {u"short", false},
        {u"a\tb", true},
        {u"a\nb", true},
        {std::u16string(64, u'x'), false},
        {std::u16string(100, u'x'), true}, // 101 characters with the terminator exceed 565 pixels
    };
    for (const Case &c : cases) {
        FakeFont font;
        const MsgBoxLayout l = LayOutMessageBox(Screen(), true, c.text, Buttons{u"OK"}, font);
        EXPECT_EQ(l.wrapped, c.wrapped) << std::string(c.text.begin(), c.text.end());
        EXPECT_EQ(font.wrappedAt, c.wrapped ? l.textLimit : -1);
    }
}

TEST(MsgBoxLayout, TallTextMovesTheIconDown) {
    FakeFont font;
    const MsgBoxLayout l = LayOutMessageBox(Screen(), true, u"1\n2\n3\n4", Buttons{u"OK"}, font);
    EXPECT_EQ(l.text.top, 16) << "one base unit down";
    EXPECT_EQ(l.text.Height(), 64);
    EXPECT_EQ(l.icon.y, 16 + (64 - 32) / 2);
    EXPECT_EQ(l.dialog.Height(), 64 + 16 + 6 + 28 + 18 + 12 + 18);
}

TEST(MsgBoxLayout, ARowWiderThanTheScreenIsCutAndButtonsKeepTheirPlaces) {
    FakeFont font;
    Buttons many(20, std::u16string_view(u"Button"));
    const MsgBoxLayout l = LayOutMessageBox(Screen(), true, u"Hello", many, font);
    EXPECT_EQ(l.row, 1024 - 6);
    EXPECT_EQ(l.dialog.Width(), 1024 - 6 + 6);
    ASSERT_EQ(l.buttonX.size(), 20u);
    EXPECT_EQ(l.buttonX.front(), 44);
    EXPECT_EQ(l.buttonX.back(), 44 + 19 * (64 + 16)) << "past the edge of the box";
}

TEST(MsgBoxLayout, BlankPlacesTakeTheirRoom) {
    FakeFont font;
    const MsgBoxLayout l =
        LayOutMessageBox(Screen(), true, u"Hello", Buttons{u"Yes", std::nullopt, u"A very long caption"}, font);
    EXPECT_EQ(l.buttonWidth, 19 * 8 + 16);
    EXPECT_EQ(l.row, 3 * l.buttonWidth + 2 * 16 + 2 * 44);
    EXPECT_EQ(l.buttonX[2] - l.buttonX[0], 2 * (l.buttonWidth + 16));
}

TEST(MsgBoxLayout, ButtonIdsAndIcons) {
    EXPECT_EQ(MsgBoxButtonId(2, 3, 4), 2) << "a result of 2 is pressed by Esc";
    EXPECT_EQ(MsgBoxButtonId(7, 0, 1), 2) << "so is the only button";
    EXPECT_EQ(MsgBoxButtonId(7, 1, 3), 4);

    EXPECT_EQ(MsgBoxIconOf(0), MsgBoxIcon::None);
    EXPECT_EQ(MsgBoxIconOf(0x12345), MsgBoxIcon::Picture);
    EXPECT_EQ(MsgBoxIconOf(0x90000), MsgBoxIcon::Asterisk) << "asterisk before exclamation";
    EXPECT_EQ(MsgBoxIconOf(0x60000), MsgBoxIcon::Hand) << "hand before question";
    EXPECT_EQ(MsgBoxIconOf(0xC0000), MsgBoxIcon::Question);
    EXPECT_EQ(MsgBoxIconOf(0x80000), MsgBoxIcon::Exclamation);
}

} // namespace
