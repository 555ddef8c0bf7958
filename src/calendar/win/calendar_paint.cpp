// The frame of the month: background, caption, weekday band, the two month
// buttons and the gridlines.
#include <cstdio>

#include "calendar/win/calendar_paint.h"
#include "frame/win/bevel.h"

namespace zk::calpaint {

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

Kit::Kit(const cal::CCalendar &model) {
    for (int role = 0; role < cal::kRoleCount; ++role)
        colours_[role] = model.GetRoleColor(role);
}

HPEN Kit::Pen(int role) const {
    if (!pens_[role])
        pens_[role] = CreatePen(PS_SOLID, 1, colours_[role]);
    return pens_[role];
}

HBRUSH Kit::Brush(int role) const {
    if (!brushes_[role])
        brushes_[role] = CreateSolidBrush(colours_[role]);
    return brushes_[role];
}

Kit::~Kit() {
    for (int role = 0; role < cal::kRoleCount; ++role) {
        if (pens_[role])
            DeleteObject(pens_[role]);
        if (brushes_[role])
            DeleteObject(brushes_[role]);
    }
}

void Line(HDC dc, HPEN pen, int x1, int y1, int x2, int y2) {
    const HGDIOBJ previous = SelectObject(dc, pen);
    MoveToEx(dc, x1, y1, nullptr);
    LineTo(dc, x2, y2);
    SelectObject(dc, previous);
}

void CentredText(HDC dc, const std::u16string &text, const RECT &box, COLORREF textColour, COLORREF backColour) {
    if (text.empty())
        return;
    SetTextColor(dc, textColour);
    SetBkColor(dc, backColour);
    SetBkMode(dc, OPAQUE);
    RECT r = box;
    DrawTextW(dc, Wide(text), static_cast<int>(text.size()), &r, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}

void Background(HDC dc, const Kit &kit, const cal::CalLayout &layout) {
    const cal::CalRect &client = layout.Client();
    const HGDIOBJ pen = SelectObject(dc, kit.Pen(CALR_Background));
    const HGDIOBJ brush = SelectObject(dc, kit.Brush(CALR_Background));
    Rectangle(dc, client.left, client.top, client.right, client.bottom);
    SelectObject(dc, kit.Pen(CALR_HeaderBack));
    SelectObject(dc, kit.Brush(CALR_HeaderBack));
    Rectangle(dc, client.left, client.top, client.right, layout.WeekdayHeader().bottom);
    SelectObject(dc, brush);
    SelectObject(dc, pen);
}

void Caption(HDC dc, const Kit &kit, const cal::CalLayout &layout, const cal::CCalendar &model, const Look &look) {
    const RECT r = ToRect(layout.Caption());
    FillRect(dc, &r, kit.Brush(CALR_HeaderBack));
    char year[16];
    std::snprintf(year, sizeof year, "%04i", static_cast<int>(model.DisplayYear()));
    std::u16string text = cal::CDateTime::MonthName(model.DisplayMonth()) + u" ";
    for (const char *c = year; *c; ++c)
        text += static_cast<char16_t>(*c);
    const int textRole = look.disabled ? CALR_DisabledText : CALR_CaptionText;
    CentredText(dc, text, r, kit.Colour(textRole), kit.Colour(CALR_HeaderBack));
    FrameEdges(dc, kit.Pen(CALR_Frame), r);
    DrawBevel(dc, r, kit.Pen(CALR_ButtonLight), kit.Pen(CALR_ButtonFace), kit.Pen(CALR_ButtonFace),
              kit.Pen(CALR_ButtonFace));
}

void WeekdayBand(HDC dc, const Kit &kit, const cal::CalLayout &layout, const cal::CCalendar &model,
                 const Look &look) {
    const RECT band = ToRect(layout.WeekdayBand());
    FillRect(dc, &band, kit.Brush(CALR_HeaderBack));
    const int textRole = look.disabled ? CALR_DisabledText : CALR_WeekdayText;
    RECT box{layout.WeekdayHeader().left, band.top, layout.WeekdayHeader().left + layout.CellWidth(), band.bottom};
    for (int32_t column = 0; column < 7; ++column) {
        const std::u16string name = cal::CDateTime::WeekdayName(model.ColumnWeekday(column)).substr(0, 2);
        CentredText(dc, name, box, kit.Colour(textRole), kit.Colour(CALR_HeaderBack));
        OffsetRect(&box, layout.CellWidth() + 1, 0);
    }
    Line(dc, kit.Pen(CALR_Frame), band.left, band.bottom, band.right, band.bottom);
    DrawBevel(dc, band, kit.Pen(CALR_ButtonLight), kit.Pen(CALR_ButtonFace), kit.Pen(CALR_ButtonFace),
              kit.Pen(CALR_ButtonFace));
}

void Button(HDC dc, const Kit &kit, const cal::CalLayout &layout, const cal::CCalendar &model, const Look &look,
            bool left, bool down) {
    const cal::CalRect &area = left ? layout.LeftButton() : layout.RightButton();
    const RECT r = ToRect(area);
    const HGDIOBJ pen = SelectObject(dc, kit.Pen(CALR_ButtonFace));
    const HGDIOBJ brush = SelectObject(dc, kit.Brush(CALR_ButtonFace));
    Rectangle(dc, r.left, r.top, r.right, r.bottom);
    const bool live = On(model.Flags().enableButtons) && !look.disabled;
    if (down) {
        SelectObject(dc, kit.Pen(CALR_ButtonShadow));
        MoveToEx(dc, r.left, r.bottom - 1, nullptr);
        LineTo(dc, r.left, r.top);
        LineTo(dc, r.right, r.top);
    } else {
        const HPEN edge = kit.Pen(live ? CALR_ButtonShadow : CALR_ButtonFace);
        DrawBevel(dc, r, kit.Pen(CALR_ButtonLight), edge, kit.Pen(CALR_ButtonFace), edge);
    }
    Line(dc, kit.Pen(CALR_Frame), r.left, r.bottom, r.right, r.bottom);
    const int arrowRole = live ? CALR_ButtonArrow : CALR_DisabledText;
    const auto corners = cal::ArrowCorners(area, left, down, On(model.Flags().alternateButtons));
    POINT points[3];
    for (int i = 0; i < 3; ++i)
        points[i] = POINT{corners[static_cast<size_t>(i)].x, corners[static_cast<size_t>(i)].y};
    SelectObject(dc, kit.Pen(arrowRole));
    SelectObject(dc, kit.Brush(arrowRole));
    Polygon(dc, points, 3);
    SelectObject(dc, brush);
    SelectObject(dc, pen);
}

void Gridlines(HDC dc, const Kit &kit, const cal::CalLayout &layout, const cal::CCalendar &model) {
    const HPEN pen = kit.Pen(On(model.Flags().etchedLook) ? CALR_ButtonShadow : CALR_Frame);
    const cal::CalRect &body = layout.Body();
    for (int32_t i = 1; i <= 6; ++i)
        Line(dc, pen, layout.GridlineX(i), body.top, layout.GridlineX(i), body.bottom);
    for (int32_t j = 1; j <= 5; ++j)
        Line(dc, pen, body.left, layout.GridlineY(j), body.right, layout.GridlineY(j));
}

} // namespace zk::calpaint
