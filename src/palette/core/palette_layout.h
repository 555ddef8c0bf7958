// Where the three zones of the palette lie: the main colours, the menu
// lines and the recent colours, stacked inside a frame, all from the font's
// line height and base width and the client width. Pure sums; the window
// feeds it its client area and metrics, the model its counts.
//
// A rectangle here holds right and bottom as the sums give them: a cell's
// bevel paints its right and bottom coordinates too, but the rectangles are
// used as they stand (hit test, invalidation), one pixel short there. The
// sums are kept as they are, odd steps included: menu lines follow each
// other at H + 3 while the menu zone grows by H + 2 a line, so with several
// lines the last ones reach past the zone, and a zone with nothing in it has
// a negative height (the recent zone -2, the menu zone -3).
#pragma once

#include <cstdint>

#include "frame/core/geometry.h"

namespace zk::pal {

// Zones of the control: a cell is a zone and an index in it.
inline constexpr int32_t kZoneMain = 0, kZoneMenu = 1, kZoneRecent = 2, kZoneCount = 3;

// What the zones hold now: main colours, menu lines (the application's
// entries and the internal ones), recent colours.
struct ZoneCounts {
    int32_t main = 0, lines = 0, recent = 0;
    int32_t Of(int32_t zone) const { return zone == kZoneMain ? main : zone == kZoneMenu ? lines : recent; }
};

struct Hit {
    int32_t zone = -1, index = -1;
    bool operator==(const Hit &) const = default;
};

class GridLayout {
public:
    // RecalcLayout: lineHeight H = tmHeight + tmHeight / 3, baseWidth
    // B = tmAveCharWidth + 6 * tmAveCharWidth / 10.
    void Compute(const Rect &client, int32_t lineHeight, int32_t baseWidth, const ZoneCounts &counts);

    int32_t LineHeight() const { return lineHeight_; }
    int32_t ZoneWidth() const { return zoneWidth_; }
    int32_t MainCellWidth() const { return mainCellWidth_; }
    int32_t MainCellHeight() const { return mainCellHeight_; }
    int32_t RecentCellWidth() const { return recentCellWidth_; }
    int32_t RecentCellHeight() const { return recentCellHeight_; }
    const Rect &Client() const { return client_; }
    const Rect &Frame() const { return frame_; }
    const Rect &Main() const { return main_; }
    const Rect &Menu() const { return menu_; }
    const Rect &Recent() const { return recent_; }
    // Zone 0, 1 or 2; an empty rectangle for any other.
    Rect ZoneRect(int32_t zone) const;

    // Columns of a colour zone (0 or 2): at least 1.
    int32_t Columns(int32_t zone) const;
    // How far VK_UP and VK_DOWN step in a zone: a row of a colour zone, a
    // line of the menu.
    int32_t RowStep(int32_t zone) const { return zone == kZoneMenu ? 1 : Columns(zone); }

    // A cell of a colour zone, for index 0 to count inclusive (the cell a
    // new colour would take); otherwise an empty rectangle.
    Rect GetColorCellRect(int32_t zone, int32_t index, int32_t count) const;
    // A menu line, for index 0 to lines - 1; otherwise an empty rectangle.
    Rect GetMenuLineRect(int32_t index, int32_t lines) const;
    // The cell of a zone as the counts stand now.
    Rect GetCellRect(int32_t zone, int32_t index, const ZoneCounts &counts) const;

    // The first cell holding the point, zone 0 before 1 before 2 and each
    // in index order; -1, -1 when none does.
    Hit HitTest(int32_t x, int32_t y, const ZoneCounts &counts) const;

    // Indices of the cells of a colour zone whose painted pixels (bevel
    // included) meet an area, in rows: first and last column and row.
    struct CellBlock {
        int32_t firstRow = 0, lastRow = -1, firstColumn = 0, lastColumn = -1;
    };
    CellBlock CellsMeeting(int32_t zone, const Rect &area, int32_t count) const;

    // The window size that fits the frame, as size to fit gives it.
    int32_t FitWidth() const { return frame_.right - frame_.left + 3; }
    int32_t FitHeight() const { return frame_.bottom - frame_.top + 3; }

private:
    void Zones(int32_t left, int32_t top, const ZoneCounts &counts);
    int32_t CellWidth(int32_t zone) const { return zone == kZoneMain ? mainCellWidth_ : recentCellWidth_; }
    int32_t CellHeight(int32_t zone) const { return zone == kZoneMain ? mainCellHeight_ : recentCellHeight_; }

    int32_t lineHeight_ = 0, zoneWidth_ = 0;
    int32_t mainCellWidth_ = 0, mainCellHeight_ = 0, recentCellWidth_ = 0, recentCellHeight_ = 0;
    Rect client_, frame_, main_, menu_, recent_;
};

} // namespace zk::pal
