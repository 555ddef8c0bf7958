#include "menu/core/message_box_layout.h"

#include <algorithm>

#include "zklib/window.h"

namespace zk::menu {

MsgBoxLayout LayOutMessageBox(const MsgBoxMetrics &m, bool hasIcon, std::u16string_view text,
                              const std::vector<std::optional<std::u16string_view>> &buttons,
                              const MsgBoxMeasure &measure) {
    const int32_t X = m.baseX, Y = m.baseY;
    const int32_t rightMargin = X * 9 / 4;
    const int32_t iconTextGap = hasIcon ? X * 10 / 4 : 0;
    const int32_t sideMargin = X * 22 / 4;
    const int32_t bottomGap = Y * 6 / 8;
    const int32_t topGap = Y * 9 / 8;
    const int32_t iconLeft = X * 11 / 4;
    const int32_t buttonHeight = Y * 14 / 8;
    const int32_t buttonGap = X * 8 / 4;
    const int32_t smallestButton = X * 28 / 4;
    // Without an icon only its width drops out: its height still counts
    // below, as it always has.
    const int32_t iconWidth = hasIcon ? m.iconWidth : 0;
    const int32_t iconHeight = m.iconHeight;

    MsgBoxLayout out;
    out.textLimit = m.screenWidth * 65 / 100 - 2 * m.frameX - rightMargin - iconLeft;
    if (hasIcon)
        out.textLimit -= iconWidth + iconLeft;

    Extent size = measure.Line(text);
    if (size.width > out.textLimit || text.find_first_of(u"\n\t") != std::u16string_view::npos) {
        size = measure.Wrapped(text, out.textLimit);
        out.wrapped = true;
    }

    int32_t iconTop, textTop;
    if (size.height <= iconHeight) {
        iconTop = topGap;
        textTop = iconTop + (iconHeight - size.height) / 2;
    } else {
        textTop = Y;
        iconTop = Y + (size.height - iconHeight) / 2;
    }

    const auto count = static_cast<int32_t>(buttons.size());
    out.buttonWidth = smallestButton;
    for (const auto &caption : buttons)
        if (caption)
            out.buttonWidth = std::max(out.buttonWidth, measure.ButtonText(*caption) + buttonGap);
    // A row wider than the screen is cut to it; the buttons keep their
    // places and run off the edge.
    out.row =
        std::min(count * out.buttonWidth + (count - 1) * buttonGap + 2 * sideMargin, m.screenWidth - 2 * m.frameY);

    const int32_t width =
        std::max(out.row, size.width + iconTextGap + rightMargin + iconLeft + iconWidth) + 2 * m.frameX;
    const int32_t height = std::max(iconHeight, size.height) + std::min(iconTop, textTop) + 2 * m.frameY +
                           buttonHeight + topGap + bottomGap + m.caption;
    const int32_t x = (m.screenWidth - width) / 2;
    const int32_t y = std::max((m.screenHeight - height) / 2, 0);
    out.dialog = {x, y, x + width, y + height};

    out.icon = {iconLeft, iconTop};
    const int32_t textLeft = iconLeft + iconWidth + iconTextGap;
    out.text = {textLeft, textTop, textLeft + size.width, textTop + size.height};

    out.buttonHeight = buttonHeight;
    out.buttonY = height - 2 * m.frameY - buttonHeight - bottomGap - m.caption;
    const int32_t first = std::max(sideMargin, (width - 2 * m.frameY - out.row) / 2 + sideMargin);
    for (int32_t place = 0; place < count; ++place)
        out.buttonX.push_back(first + place * (out.buttonWidth + buttonGap));
    return out;
}

int32_t MsgBoxButtonId(uint32_t result, int32_t place, int32_t count) {
    return result == 2 || count == 1 ? 2 : place + 3;
}

MsgBoxIcon MsgBoxIconOf(uint64_t selector) {
    if (selector & 0xFFFF)
        return MsgBoxIcon::Picture;
    if (selector & MSGBOX_IconAsterisk)
        return MsgBoxIcon::Asterisk;
    if (selector & MSGBOX_IconHand)
        return MsgBoxIcon::Hand;
    if (selector & MSGBOX_IconQuestion)
        return MsgBoxIcon::Question;
    if (selector & MSGBOX_IconExclamation)
        return MsgBoxIcon::Exclamation;
    return MsgBoxIcon::None;
}

} // namespace zk::menu
