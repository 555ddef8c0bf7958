#include "palette/core/palette_layout.h"

#include <algorithm>

namespace zk::pal {

namespace {

// Integer division rounding down, for points left of or above a zone.
int32_t FloorDiv(int32_t a, int32_t b) { return a >= 0 ? a / b : -((-a + b - 1) / b); }

// Cells are at least square, a row is never wider than the zone, and fewer
// colours than would fit stretch to fill the row.
int32_t CellWidthFor(int32_t zoneWidth, int32_t cellHeight, int32_t count) {
    const int32_t n = std::min((zoneWidth + 1) / (cellHeight + 1), count);
    if (n < 1)
        return cellHeight;
    return std::max((zoneWidth - n + 1) / n, cellHeight);
}

int32_t Rows(int32_t count, int32_t columns) { return count <= 0 ? 0 : (count + columns - 1) / columns; }

} // namespace

int32_t GridLayout::Columns(int32_t zone) const {
    // A cell wider than the zone (a font far too large for the window)
    // still makes one column.
    return std::max((zoneWidth_ + 1) / (CellWidth(zone) + 1), 1);
}

void GridLayout::Zones(int32_t left, int32_t top, const ZoneCounts &counts) {
    const int32_t z = zoneWidth_;
    main_.left = left + 3;
    main_.top = top + 3;
    main_.right = main_.left - 1 + z;
    main_.bottom = main_.top - 2 + Rows(counts.main, Columns(kZoneMain)) * (mainCellHeight_ + 1);
    menu_.left = main_.left;
    menu_.top = main_.bottom + 2;
    menu_.right = menu_.left + z - 1;
    menu_.bottom = menu_.top - 3 + counts.lines * (lineHeight_ + 2);
    recent_.left = menu_.left;
    recent_.top = menu_.bottom + 2;
    recent_.right = recent_.left - 1 + z;
    recent_.bottom = recent_.top - 2 + Rows(counts.recent, Columns(kZoneRecent)) * (recentCellHeight_ + 1);
}

void GridLayout::Compute(const Rect &client, int32_t lineHeight, int32_t baseWidth, const ZoneCounts &counts) {
    client_ = client;
    lineHeight_ = lineHeight;
    mainCellHeight_ = recentCellHeight_ = lineHeight;
    zoneWidth_ = std::max(client.Width() - 7, 8 * baseWidth);
    mainCellWidth_ = CellWidthFor(zoneWidth_, mainCellHeight_, counts.main);
    recentCellWidth_ = CellWidthFor(zoneWidth_, recentCellHeight_, counts.recent);

    // The zones once for their sizes, the frame around them, then the
    // zones again from the frame's corner.
    Zones(frame_.left, frame_.top, counts);
    const int32_t h1 = main_.Height(), h2 = menu_.Height(), h3 = recent_.Height();
    const int32_t frameWidth = menu_.Width() + 7;
    const int32_t frameHeight = h1 + h2 + h3 + 9 + (h2 > 0 ? 1 : 0) + (h3 > 0 ? 1 : 0);
    frame_.left = client.left + (client.Width() > frameWidth ? (client.Width() - frameWidth) / 2 : 0);
    frame_.top = client.top;
    frame_.right = frame_.left + frameWidth - 1;
    frame_.bottom = frame_.top + frameHeight - 1;
    Zones(frame_.left, frame_.top, counts);
}

Rect GridLayout::ZoneRect(int32_t zone) const {
    switch (zone) {
    case kZoneMain:
        return main_;
    case kZoneMenu:
        return menu_;
    case kZoneRecent:
        return recent_;
    default:
        return {};
    }
}

Rect GridLayout::GetColorCellRect(int32_t zone, int32_t index, int32_t count) const {
    if ((zone != kZoneMain && zone != kZoneRecent) || index < 0 || index > count)
        return {};
    const Rect &z = zone == kZoneMain ? main_ : recent_;
    const int32_t columns = Columns(zone), width = CellWidth(zone), height = CellHeight(zone);
    Rect r;
    r.left = z.left + (index % columns) * (width + 1);
    r.top = z.top + (index / columns) * (height + 1);
    r.right = r.left + width - 1;
    r.bottom = r.top + height - 1;
    return r;
}

Rect GridLayout::GetMenuLineRect(int32_t index, int32_t lines) const {
    if (index < 0 || index >= lines)
        return {};
    Rect r;
    r.left = menu_.left;
    r.top = menu_.top + index * (lineHeight_ + 3);
    r.right = r.left + zoneWidth_ - 1;
    r.bottom = r.top + lineHeight_ - 1;
    return r;
}

Rect GridLayout::GetCellRect(int32_t zone, int32_t index, const ZoneCounts &counts) const {
    if (zone == kZoneMenu)
        return GetMenuLineRect(index, counts.lines);
    return GetColorCellRect(zone, index, counts.Of(zone));
}

// Cells of a zone never overlap one another, so the one cell whose pitch
// holds the point is the only candidate; zones are tried in order, since a
// long menu's last lines reach into the recent zone.
Hit GridLayout::HitTest(int32_t x, int32_t y, const ZoneCounts &counts) const {
    for (int32_t zone : {kZoneMain, kZoneMenu, kZoneRecent}) {
        const Rect &z = ZoneRect(zone);
        int32_t index;
        Rect cell;
        if (zone == kZoneMenu) {
            index = FloorDiv(y - z.top, lineHeight_ + 3);
            cell = GetMenuLineRect(index, counts.lines);
        } else {
            const int32_t column = FloorDiv(x - z.left, CellWidth(zone) + 1);
            const int32_t row = FloorDiv(y - z.top, CellHeight(zone) + 1);
            if (column < 0 || column >= Columns(zone) || row < 0)
                continue;
            index = row * Columns(zone) + column;
            cell = index < counts.Of(zone) ? GetColorCellRect(zone, index, counts.Of(zone)) : Rect{};
        }
        if (cell.Contains(x, y))
            return {zone, index};
    }
    return {};
}

GridLayout::CellBlock GridLayout::CellsMeeting(int32_t zone, const Rect &area, int32_t count) const {
    CellBlock block;
    if ((zone != kZoneMain && zone != kZoneRecent) || count <= 0 || area.Empty())
        return block;
    const Rect &z = zone == kZoneMain ? main_ : recent_;
    const int32_t columns = Columns(zone), width = CellWidth(zone), height = CellHeight(zone);
    const int32_t rows = Rows(count, columns);
    // A cell paints from its left to its right coordinate inclusive: the
    // width of the cell, then one pixel of gap to the next.
    block.firstRow = std::max(FloorDiv(area.top - z.top - height + 1, height + 1), 0);
    block.lastRow = std::min(FloorDiv(area.bottom - 1 - z.top, height + 1), rows - 1);
    block.firstColumn = std::max(FloorDiv(area.left - z.left - width + 1, width + 1), 0);
    block.lastColumn = std::min(FloorDiv(area.right - 1 - z.left, width + 1), columns - 1);
    return block;
}

} // namespace zk::pal
