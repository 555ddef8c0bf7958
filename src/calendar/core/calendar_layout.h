// Where the parts of the month lie in the client area: the cell size that
// follows the window, the frame centred in it, the six rectangles, the
// cells and the gaps between them, which cells a rectangle touches, the
// arrows of the two month buttons and the gridlines. Pure sums over
// rectangles; the window feeds it its client size and font metrics.
#pragma once

#include <array>
#include <cstdint>

#include "frame/core/geometry.h"

namespace zk::cal {

// Which parts of the control an invalidation names; the layout knows where
// they lie.
enum class Area {
    Window,        // the whole client area
    Grid,          // the 42 cells
    Caption,       // month and year
    WeekdayHeader, // the weekday names
    CaptionAndHeader,
    Buttons, // both month buttons
    Body,    // client width, from the grid's top down
};

// First and last cell a rectangle touches; first > last when none.
struct CellSpan {
    int32_t first = 0, last = -1;
    bool Empty() const { return first > last; }
};

class MonthLayout {
public:
    // Metrics, frame and rectangles for a client area of width x height and
    // the frame's column width and row height.
    void Compute(int32_t width, int32_t height, int32_t columnWidth, int32_t rowHeight);

    int32_t CellWidth() const { return cellWidth_; }
    int32_t CellHeight() const { return cellHeight_; }
    // The month buttons' width: always odd, so the arrow has a centre pixel.
    int32_t ButtonWidth() const { return cellHeight_ % 2 == 0 ? cellHeight_ + 1 : cellHeight_; }
    const Rect &Client() const { return client_; }
    const Rect &Frame() const { return frame_; }
    const Rect &LeftButton() const { return leftButton_; }
    const Rect &RightButton() const { return rightButton_; }
    const Rect &Caption() const { return caption_; }
    const Rect &WeekdayHeader() const { return weekdayHeader_; }
    const Rect &Grid() const { return grid_; }
    const Rect &Body() const { return body_; }
    // The weekday band: the header's height over the whole client width.
    Rect WeekdayBand() const;

    // Cell 0 to 41; -1 (or any cell outside the grid) gives an empty rectangle.
    Rect CellRect(int32_t cell) const;
    // The cells from the first to the last that the rectangle touches
    // inside the grid; painting walks all of them.
    CellSpan CellRange(const Rect &area) const;
    // The cell under a point, starting from the present focus cell: a point
    // in a gap between cells (or off the grid) answers the focus cell. An
    // extra cell answers -1 unless extra cells may be picked.
    int32_t HitTestCell(int32_t x, int32_t y, int32_t focusCell, bool extraPickable, int32_t firstCell,
                        int32_t lastCell) const;

    // Gridlines: vertical i = 1 to 6 and horizontal j = 1 to 5, through the
    // gaps between the cells.
    int32_t GridlineX(int32_t i) const { return grid_.left + i * (cellWidth_ + 1) - 1; }
    int32_t GridlineY(int32_t j) const { return body_.top + j * (cellHeight_ + 1) - 1; }

    // The rectangle of an area; Window is the client area, Buttons the
    // two buttons together.
    Rect AreaRect(Area area) const;

    // The window size that fits the month exactly.
    int32_t FitWidth() const { return 7 * cellWidth_ + 8; }
    int32_t FitHeight() const { return 8 * cellHeight_ + 9; }

private:
    int32_t cellWidth_ = 0, cellHeight_ = 0;
    Rect client_, frame_, leftButton_, rightButton_, caption_, weekdayHeader_, grid_, body_;
};

// The three corners of a month button's arrow. Plain buttons point down
// (left) and up (right); alternate buttons point left and right. A pressed
// button's arrow sits one pixel lower and to the right.
std::array<Point, 3> ArrowCorners(const Rect &button, bool leftButton, bool pressed, bool alternate);

} // namespace zk::cal
