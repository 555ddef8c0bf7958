// Where the spin field's parts lie for a client rectangle: the two buttons
// in the right-hand strip, two thirds of the height wide, the edit that
// fills the rest with its border outside the client area, and the points
// of the buttons' edges and arrows. Integer division truncates throughout.
#pragma once

#include <array>
#include <cstdint>

#include "frame/core/geometry.h"

namespace zk::ctl {

enum class SpinButton { None, Up, Down };

struct SpinLayout {
    explicit SpinLayout(const Rect &client);

    Rect client;
    Rect up;                          // {a, top, right, top + h / 2}
    Rect down;                        // {a, bottom - h / 2, right, bottom}
    Rect edit;                        // at (-1, -1), client width - 2t + 2 wide, h + 2 high
    int32_t a = 0;                    // left of the buttons' strip: right - 2 * (h / 3)
    int32_t mx = 0;                   // middle of the strip
    int32_t my = 0;                   // top + h / 2
    int32_t q = 0;                    // a + 1, where the buttons' faces start
    int32_t s = 0;                    // the arrows' half width: (right - a - 6) / 2
    std::array<Point, 3> upArrow{};   // tip, then the base from left to right
    std::array<Point, 3> downArrow{}; // the base from left to right, then the tip

    // The button under a point; the up button is asked first.
    SpinButton ButtonAt(Point p) const;
    // The strip right of the edit, the buttons' part of the client area.
    Rect Strip() const { return Rect{a, client.top, client.right, client.bottom}; }
};

} // namespace zk::ctl
