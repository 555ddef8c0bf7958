// The frame of the month: background, caption, weekday band, the two month
// buttons and the gridlines.
#include <cstdio>
#include <vector>

#include "calendar/win/calendar_paint.h"
#include "frame/win/draw.h"

namespace zk::cal {

namespace {

bool On(int32_t flag) { return flag > 0; }

// The edges of a part that lie in the gaps around it: the row below, the
// column to its right and the one to its left.
void FrameEdges(HDC dc, HPEN pen, const RECT &r) {
    Line(dc, pen, r.left - 1, r.top, r.left - 1, r.bottom);
    Line(dc, pen, r.left - 1, r.bottom, r.right, r.bottom);
    Line(dc, pen, r.right, r.bottom, r.right, r.top - 1);
}

} // namespace

RoleTools PaintTools(const CalendarModel &model) {
    return RoleTools::ForRoles(kRoleCount, [&](int role) { return model.GetRoleColor(role); });
}

void PaintBackground(HDC dc, const RoleTools &kit, const MonthLayout &layout) {
    const Rect &client = layout.Client();
    {
        const Selected pen(dc, kit.Pen(CALR_Background)), brush(dc, kit.Brush(CALR_Background));
        Rectangle(dc, client.left, client.top, client.right, client.bottom);
    }
    const Selected pen(dc, kit.Pen(CALR_HeaderBack)), brush(dc, kit.Brush(CALR_HeaderBack));
    Rectangle(dc, client.left, client.top, client.right, layout.WeekdayHeader().bottom);
}

void PaintCaption(HDC dc, const RoleTools &kit, const MonthLayout &layout, const CalendarModel &model,
                  const Look &look) {
    const RECT r = ToRECT(layout.Caption());
    FillRect(dc, &r, kit.Brush(CALR_HeaderBack));
    char year[16];
    std::snprintf(year, sizeof year, "%04i", static_cast<int>(model.DisplayYear()));
    std::u16string text = CDateTime::MonthName(model.DisplayMonth()) + u" ";
    for (const char *c = year; *c; ++c)
        text += static_cast<char16_t>(*c);
    const int textRole = look.disabled ? CALR_DisabledText : CALR_CaptionText;
    CentredText(dc, text, r, kit.Colour(textRole), kit.Colour(CALR_HeaderBack));
    FrameEdges(dc, kit.Pen(CALR_Frame), r);
    DrawBevel(dc, r, kit.Pen(CALR_ButtonLight), kit.Pen(CALR_ButtonFace), kit.Pen(CALR_ButtonFace),
              kit.Pen(CALR_ButtonFace));
}

void PaintWeekdayBand(HDC dc, const RoleTools &kit, const MonthLayout &layout, const CalendarModel &model,
                      const Look &look) {
    const RECT band = ToRECT(layout.WeekdayBand());
    FillRect(dc, &band, kit.Brush(CALR_HeaderBack));
    const int textRole = look.disabled ? CALR_DisabledText : CALR_WeekdayText;
    RECT box{layout.WeekdayHeader().left, band.top, layout.WeekdayHeader().left + layout.CellWidth(), band.bottom};
    for (int32_t column = 0; column < 7; ++column) {
        const std::u16string name = CDateTime::WeekdayName(model.ColumnWeekday(column)).substr(0, 2);
        CentredText(dc, name, box, kit.Colour(textRole), kit.Colour(CALR_HeaderBack));
        OffsetRect(&box, layout.CellWidth() + 1, 0);
    }
    Line(dc, kit.Pen(CALR_Frame), band.left, band.bottom, band.right, band.bottom);
    DrawBevel(dc, band, kit.Pen(CALR_ButtonLight), kit.Pen(CALR_ButtonFace), kit.Pen(CALR_ButtonFace),
              kit.Pen(CALR_ButtonFace));
}

void PaintButton(HDC dc, const RoleTools &kit, const MonthLayout &layout, const CalendarModel &model, const Look &look,
                 bool left, bool down) {
    const Rect &area = left ? layout.LeftButton() : layout.RightButton();
    const RECT r = ToRECT(area);
    {
        const Selected pen(dc, kit.Pen(CALR_ButtonFace)), brush(dc, kit.Brush(CALR_ButtonFace));
        Rectangle(dc, r.left, r.top, r.right, r.bottom);
    }
    const bool live = On(model.Flags().enableButtons) && !look.disabled;
    if (down) {
        const Selected pen(dc, kit.Pen(CALR_ButtonShadow));
        MoveToEx(dc, r.left, r.bottom - 1, nullptr);
        LineTo(dc, r.left, r.top);
        LineTo(dc, r.right, r.top);
    } else {
        const HPEN edge = kit.Pen(live ? CALR_ButtonShadow : CALR_ButtonFace);
        DrawBevel(dc, r, kit.Pen(CALR_ButtonLight), edge, kit.Pen(CALR_ButtonFace), edge);
    }
    Line(dc, kit.Pen(CALR_Frame), r.left, r.bottom, r.right, r.bottom);
    const int arrowRole = live ? CALR_ButtonArrow : CALR_DisabledText;
    const auto corners = ArrowCorners(area, left, down, On(model.Flags().alternateButtons));
    POINT points[3];
    for (int i = 0; i < 3; ++i)
        points[i] = POINT{corners[static_cast<size_t>(i)].x, corners[static_cast<size_t>(i)].y};
    const Selected pen(dc, kit.Pen(arrowRole)), brush(dc, kit.Brush(arrowRole));
    Polygon(dc, points, 3);
}

void PaintGridlines(HDC dc, const RoleTools &kit, const MonthLayout &layout, const CalendarModel &model) {
    const HPEN pen = kit.Pen(On(model.Flags().etchedLook) ? CALR_ButtonShadow : CALR_Frame);
    const Rect &body = layout.Body();
    for (int32_t i = 1; i <= 6; ++i)
        Line(dc, pen, layout.GridlineX(i), body.top, layout.GridlineX(i), body.bottom);
    for (int32_t j = 1; j <= 5; ++j)
        Line(dc, pen, body.left, layout.GridlineY(j), body.right, layout.GridlineY(j));
}

} // namespace zk::cal
