// The meter's sums: its text, where the text stands, and the parts of the
// client area on either side of the fill edge. A meter wider than tall
// fills from the left; a tall or square one from the bottom.
#pragma once

#include <cstdint>
#include <string>

#include "frame/core/geometry.h"

namespace zk::ctl {

// The window word of a meter: 0 to 100 a percentage, 0xFFFF no value (only
// the background shows), anything else paints nothing.
inline constexpr uint16_t kMeterNoValue = 0xFFFF;
inline constexpr uint16_t kMeterMost = 100;
// The word a meter on the designer's canvas shows.
inline constexpr uint16_t kMeterDesignPercent = 30;

struct MeterLayout {
    // For percent 0 to 100, a client rectangle and the extent of the text.
    MeterLayout(const Rect &client, int32_t percent, int32_t textWidth, int32_t textHeight);

    Point text;  // {right / 2 - width / 2, bottom / 2 - height / 2}
    Rect empty;  // background, text in the text colour
    Rect filled; // text colour, text in the background colour
};

// "37%".
std::u16string MeterText(int32_t percent);

} // namespace zk::ctl
