#include "calendar/core/calendar_layout.h"

#include <algorithm>

namespace zk::cal {

Rect MonthLayout::AreaRect(Area area) const {
    switch (area) {
    case Area::Window:
        return client_;
    case Area::Grid:
        return grid_;
    case Area::Caption:
        return caption_;
    case Area::WeekdayHeader:
        return weekdayHeader_;
    case Area::CaptionAndHeader:
        return caption_.Union(weekdayHeader_);
    case Area::Buttons:
        return leftButton_.Union(rightButton_);
    case Area::Body:
        return body_;
    }
    return {};
}

void MonthLayout::Compute(int32_t width, int32_t height, int32_t columnWidth, int32_t rowHeight) {
    client_ = {0, 0, width, height};
    // The cells grow with the window but never fall below 2.5 columns by one row.
    cellWidth_ = std::max(width / 7 - 1, columnWidth * 250 / 100);
    cellHeight_ = std::max(height / 8 - 1, rowHeight);

    const int32_t gridWidth = 7 * cellWidth_ + 6;
    const int32_t gridHeight = 8 * cellHeight_ + 7;
    const int32_t dx = width > gridWidth ? (width - gridWidth) / 2 : 0;
    const int32_t dy = height > gridHeight ? (height - gridHeight) / 2 : 0;
    frame_ = {dx, dy, dx + gridWidth, dy + gridHeight};

    // Buttons and caption run the whole client width; header and grid are centred.
    const int32_t s = ButtonWidth();
    leftButton_ = {client_.left, client_.top, client_.left + s, client_.top + cellHeight_};
    rightButton_ = {client_.right - s, client_.top, client_.right, client_.top + cellHeight_};
    caption_ = {leftButton_.right, client_.top, rightButton_.left - 1, client_.top + cellHeight_};
    const int32_t headerTop = caption_.bottom + 1;
    weekdayHeader_ = {frame_.left, headerTop, frame_.right, headerTop + cellHeight_};
    const int32_t gridTop = weekdayHeader_.bottom + 1;
    grid_ = {frame_.left, gridTop, frame_.left + 7 * cellWidth_ + 6, gridTop + 6 * cellHeight_ + 5};
    body_ = {client_.left, grid_.top, client_.right, client_.bottom};
}

Rect MonthLayout::WeekdayBand() const {
    return {client_.left, weekdayHeader_.top, client_.right, weekdayHeader_.bottom};
}

Rect MonthLayout::CellRect(int32_t cell) const {
    if (cell < 0 || cell >= 42)
        return {};
    const int32_t left = grid_.left + (cell % 7) * (cellWidth_ + 1);
    const int32_t top = grid_.top + (cell / 7) * (cellHeight_ + 1);
    return {left, top, left + cellWidth_, top + cellHeight_};
}

CellSpan MonthLayout::CellRange(const Rect &area) const {
    const Rect r = area.Intersect(grid_);
    if (r.Empty() || cellWidth_ <= 0 || cellHeight_ <= 0)
        return {};
    const int32_t dx = cellWidth_ + 1, dy = cellHeight_ + 1;
    CellSpan span;
    span.first = ((r.top - grid_.top) / dy) * 7 + (r.left - grid_.left) / dx;
    span.last = ((r.bottom - grid_.top - 1) / dy) * 7 + (r.right - grid_.left - 1) / dx;
    span.first = std::clamp(span.first, 0, 41);
    span.last = std::clamp(span.last, 0, 41);
    return span;
}

int32_t MonthLayout::HitTestCell(int32_t x, int32_t y, int32_t focusCell, bool extraPickable, int32_t firstCell,
                                 int32_t lastCell) const {
    int32_t result = focusCell;
    for (int32_t row = 0; row < 6; ++row)
        for (int32_t column = 0; column < 7; ++column) {
            const int32_t cell = row * 7 + column;
            if (!CellRect(cell).Contains(x, y))
                continue;
            const bool extra = cell < firstCell || cell > lastCell;
            result = extra && !extraPickable ? -1 : cell;
        }
    return result;
}

std::array<Point, 3> ArrowCorners(const Rect &button, bool leftButton, bool pressed, bool alternate) {
    const int32_t p = pressed ? 1 : 0;
    const int32_t l = leftButton ? 1 : 0;
    const int32_t x = button.left, y = button.top;
    if (!alternate) {
        const int32_t a = (button.Height() - 4) / 3, b = button.Width() / 2;
        const Point first{x - a + b + p, y + (2 - l) * a + 2 + p};
        return {first, Point{x + b + p, y + (l + 1) * a + 2 + p}, Point{x + a + b + p, first.y}};
    }
    const int32_t a = (button.Width() - 4) / 3, b = button.Height() / 2;
    const Point second{x + (l + 1) * a + 2 + p, y + a + b + p};
    return {Point{x + (2 - l) * a + 2 + p, y + b + p}, second, Point{second.x, y - a + b + p}};
}

} // namespace zk::cal
