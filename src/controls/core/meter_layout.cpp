#include "controls/core/meter_layout.h"

#include <algorithm>

namespace zk::ctl {

MeterLayout::MeterLayout(const Rect &c, int32_t p, int32_t textWidth, int32_t textHeight)
    : text{c.right / 2 - textWidth / 2, c.bottom / 2 - textHeight / 2}, empty(c), filled(c) {
    if (c.Width() <= c.Height()) {
        const int32_t y1 = std::min(std::max((100 - p) * c.bottom / 100, c.top), c.bottom);
        empty.bottom = y1;
        filled.top = y1;
    } else {
        const int32_t x1 = std::min(std::max(c.right * p / 100, c.left), c.right);
        filled.right = x1;
        empty.left = x1;
    }
}

std::u16string MeterText(int32_t percent) {
    const std::string digits = std::to_string(percent);
    return std::u16string(digits.begin(), digits.end()) + u'%';
}

} // namespace zk::ctl
