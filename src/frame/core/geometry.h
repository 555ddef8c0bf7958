// Points and rectangles in client pixels, for the sums of every control.
// Rectangles are half-open like the platform's: right and bottom lie outside.
#pragma once

#include <algorithm>
#include <cstdint>

namespace zk {

struct Point {
    int32_t x = 0, y = 0;
    bool operator==(const Point &) const = default;
};

struct Rect {
    int32_t left = 0, top = 0, right = 0, bottom = 0;

    constexpr int32_t Width() const { return right - left; }
    constexpr int32_t Height() const { return bottom - top; }
    constexpr bool Empty() const { return right <= left || bottom <= top; }
    constexpr bool Contains(int32_t x, int32_t y) const { return x >= left && x < right && y >= top && y < bottom; }
    constexpr bool Contains(Point p) const { return Contains(p.x, p.y); }
    // Whether the two share a pixel; an empty rectangle meets nothing.
    constexpr bool Intersects(const Rect &o) const {
        return !Empty() && !o.Empty() && left < o.right && o.left < right && top < o.bottom && o.top < bottom;
    }
    // The common part; empty (all zero) when they share no pixel.
    constexpr Rect Intersect(const Rect &o) const {
        if (!Intersects(o))
            return {};
        return {std::max(left, o.left), std::max(top, o.top), std::min(right, o.right), std::min(bottom, o.bottom)};
    }
    // The smallest rectangle holding both; an empty one adds nothing.
    constexpr Rect Union(const Rect &o) const {
        if (Empty())
            return o;
        if (o.Empty())
            return *this;
        return {std::min(left, o.left), std::min(top, o.top), std::max(right, o.right), std::max(bottom, o.bottom)};
    }
    constexpr Rect Offset(int32_t dx, int32_t dy) const { return {left + dx, top + dy, right + dx, bottom + dy}; }
    // Grows each side by dx and dy (shrinks for negative values).
    constexpr Rect Inflate(int32_t dx, int32_t dy) const { return {left - dx, top - dy, right + dx, bottom + dy}; }
    bool operator==(const Rect &) const = default;
};

} // namespace zk
