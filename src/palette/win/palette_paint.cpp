// The three painters of the palette.
#include "palette/win/palette_paint.h"

#include <initializer_list>
#include <utility>
#include <vector>

namespace zk::pal {

namespace {

// One bevel pass over a rectangle whose right and bottom are painted too:
// the top and left edges from (right, top) through (left, top) to (left,
// bottom) in the first pen, then the bottom and right edges from (left,
// bottom) through (right, bottom) to (right, top) in the second; then the
// rectangle shrinks by one on every side.
void BevelPass(HDC dc, RECT &r, HPEN topLeft, HPEN bottomRight) {
    SelectObject(dc, topLeft);
    MoveToEx(dc, r.right, r.top, nullptr);
    LineTo(dc, r.left, r.top);
    LineTo(dc, r.left, r.bottom);
    SelectObject(dc, bottomRight);
    LineTo(dc, r.right, r.bottom);
    LineTo(dc, r.right, r.top);
    InflateRect(&r, -1, -1);
}

// The outer pass in roles 4 and 3, the inner in roles 5 and 6.
void Bevel(HDC dc, RECT &r, const RoleTools &tools) {
    BevelPass(dc, r, tools.Pen(PALR_OuterTopLeft), tools.Pen(PALR_OuterBottomRight));
    BevelPass(dc, r, tools.Pen(PALR_InnerTopLeft), tools.Pen(PALR_InnerBottomRight));
}

// The two bevel passes of many rectangles, gathered by pen: each pass is
// two three-point polylines (top-left, then bottom-right), as BevelPass
// draws them with its line calls. The rectangle ends shrunk by two.
class BevelBatch {
public:
    void Add(RECT &r) {
        for (int pass = 0; pass < 2; ++pass) {
            Put(pass * 2, {{r.right, r.top}, {r.left, r.top}, {r.left, r.bottom}});
            Put(pass * 2 + 1, {{r.left, r.bottom}, {r.right, r.bottom}, {r.right, r.top}});
            InflateRect(&r, -1, -1);
        }
    }
    void Draw(HDC dc, const RoleTools &tools) const {
        static constexpr int kRoles[4] = {PALR_OuterTopLeft, PALR_OuterBottomRight, PALR_InnerTopLeft,
                                          PALR_InnerBottomRight};
        for (int pen = 0; pen < 4; ++pen) {
            if (points_[pen].empty())
                continue;
            SelectObject(dc, tools.Pen(kRoles[pen]));
            const std::vector<DWORD> counts(points_[pen].size() / 3, 3);
            PolyPolyline(dc, points_[pen].data(), counts.data(), static_cast<DWORD>(counts.size()));
        }
    }

private:
    void Put(int pen, std::initializer_list<POINT> points) {
        points_[pen].insert(points_[pen].end(), points.begin(), points.end());
    }
    std::vector<POINT> points_[4];
};

// The four sides of a rectangle whose right and bottom are painted too.
void Outline(HDC dc, const RECT &r, HPEN pen) {
    SelectObject(dc, pen);
    MoveToEx(dc, r.left, r.top, nullptr);
    LineTo(dc, r.right, r.top);
    LineTo(dc, r.right, r.bottom);
    LineTo(dc, r.left, r.bottom);
    LineTo(dc, r.left, r.top);
}

int LineRole(const Look &look) { return look.disabled ? PALR_DisabledText : PALR_Text; }

} // namespace

RoleTools PaintTools(const PaletteModel &model) {
    return RoleTools::ForRoles(kRoleCount, [&](int role) { return model.GetRoleColor(role); });
}

void PaintGrid(HDC dc, const RoleTools &tools, const GridLayout &layout, const PaletteModel &model, int32_t zone,
               const Rect &clip, const Look &look) {
    const SavedDC saved(dc);
    const RECT z = ToRECT(layout.ZoneRect(zone));
    SelectObject(dc, tools.Pen(LineRole(look)));
    SelectObject(dc, tools.Brush(PALR_GridBack));
    Rectangle(dc, z.left, z.top, z.right, z.bottom);
    const int32_t palette = zone == kZoneMain ? PALP_Main : PALP_Recent;
    const int32_t count = model.Counts().Of(zone);
    const int32_t columns = layout.Columns(zone);
    // Only the cells that meet the clip box: the rest of the buffer is not
    // copied to the screen.
    const GridLayout::CellBlock cells = layout.CellsMeeting(zone, clip, count);
    // Cells sit a pixel apart and every line of a cell's bevel stays within
    // the cell and that gap, so no two cells share a pixel: the bevels of
    // all cells go out in one polyline call per pen, the same pixels as a
    // pass of line calls per cell, then the fills.
    BevelBatch bevels;
    std::vector<std::pair<RECT, COLORREF>> fills;
    for (int32_t row = cells.firstRow; row <= cells.lastRow; ++row) {
        for (int32_t column = cells.firstColumn; column <= cells.lastColumn; ++column) {
            const int32_t index = row * columns + column;
            if (index >= count)
                break;
            RECT r = ToRECT(layout.GetColorCellRect(zone, index, count));
            bevels.Add(r);
            r.right += 1;
            r.bottom += 1;
            if (const SPaletteColor *colour = model.GetColorItem(palette, index))
                fills.emplace_back(r, colour->colour);
        }
    }
    bevels.Draw(dc, tools);
    for (const auto &[r, colour] : fills) {
        const Brush brush = SolidBrush(colour);
        FillRect(dc, &r, brush);
    }
}

void PaintMenu(HDC dc, const RoleTools &tools, const GridLayout &layout, const PaletteModel &model, HFONT font,
               const Look &look) {
    const SavedDC saved(dc);
    SelectObject(dc, font);
    SelectObject(dc, tools.Pen(LineRole(look)));
    SelectObject(dc, tools.Brush(PALR_MenuBack));
    SetTextColor(dc, tools.Colour(LineRole(look)));
    SetBkColor(dc, tools.Colour(PALR_MenuBack));
    RECT r = ToRECT(layout.Menu());
    Rectangle(dc, r.left, r.top, r.right, r.bottom);
    Bevel(dc, r, tools);
    const int32_t lines = model.Counts().lines;
    for (int32_t i = 0; i < lines; ++i) {
        const SPaletteMenu *entry = model.GetMenuEntry(i);
        if (!entry || entry->text.empty())
            continue;
        RECT line = ToRECT(layout.GetMenuLineRect(i, lines));
        InflateRect(&line, -2, -2);
        DrawTextW(dc, reinterpret_cast<const wchar_t *>(entry->text.c_str()), static_cast<int>(entry->text.size()),
                  &line, DT_VCENTER | DT_SINGLELINE);
    }
}

void PaintFocus(HDC dc, const RoleTools &tools, const GridLayout &layout, const PaletteModel &model, const Look &look) {
    if (look.disabled || !(look.focused || look.keepSelection))
        return;
    const SavedDC saved(dc);
    RECT r = ToRECT(layout.GetCellRect(model.FocusZone(), model.FocusIndex(), model.Counts()));
    InflateRect(&r, 1, 1);
    Outline(dc, r, tools.Pen(PALR_FocusOuter));
    InflateRect(&r, -1, -1);
    Outline(dc, r, tools.Pen(PALR_FocusOuter));
    InflateRect(&r, -1, -1);
    Outline(dc, r, tools.Pen(PALR_FocusInner));
    InflateRect(&r, -1, -1);
    r.right += 1;
    r.bottom += 1;
    if (look.focused)
        DrawFocusRect(dc, &r);
}

} // namespace zk::pal
