#include "controls/win/spin_paint.h"

#include <array>
#include <initializer_list>
#include <iterator>

#include "frame/win/gdi.h"

namespace zk::ctl {

namespace {

void Polyline(HDC dc, HPEN pen, std::initializer_list<POINT> points) {
    const Selected selected(dc, pen);
    const POINT *p = std::begin(points);
    MoveToEx(dc, p->x, p->y, nullptr);
    for (++p; p != std::end(points); ++p)
        LineTo(dc, p->x, p->y);
}

void Fill(HDC dc, const Rect &area, HBRUSH brush) {
    const RECT r = ToRECT(area);
    FillRect(dc, &r, brush);
}

void Arrow(HDC dc, const std::array<Point, 3> &points, bool pressed) {
    const int shift = pressed ? 1 : 0;
    POINT corners[3];
    for (size_t i = 0; i < 3; ++i)
        corners[i] = POINT{points[i].x + shift, points[i].y + shift};
    const Selected pen(dc, GetStockObject(BLACK_PEN));
    const Selected brush(dc, GetStockObject(BLACK_BRUSH));
    Polygon(dc, corners, 3);
}

} // namespace

void PaintSpin(HDC dc, const SpinLayout &l, uint16_t flags, bool design, COLORREF designBack) {
    const Rect &c = l.client;
    const bool upPressed = (flags & (SPF_UpDown | SPF_UpClicked)) != 0;
    const bool downPressed = (flags & (SPF_DownDown | SPF_DownClicked)) != 0;
    const Brush face = SolidBrush(GetSysColor(COLOR_BTNFACE));
    if (design) {
        const Brush back = SolidBrush(designBack);
        Fill(dc, Rect{c.left, c.top, l.a, c.bottom}, back);
    }
    // The face. On the screen a pressed button's paint renews only its own
    // half and the other half keeps the face it had; a fresh buffer has
    // none, so it takes the face over the whole strip.
    Fill(dc, Rect{l.q, c.top, c.right, c.bottom}, face);

    const HPEN black = static_cast<HPEN>(GetStockObject(BLACK_PEN));
    const HPEN white = static_cast<HPEN>(GetStockObject(WHITE_PEN));
    const Pen shadow = SolidPen(GetSysColor(COLOR_BTNSHADOW));
    Polyline(dc, black, {{l.a, c.top}, {l.a, c.bottom}});
    Polyline(dc, black, {{l.a, l.my}, {c.right, l.my}});

    if (upPressed)
        Polyline(dc, shadow, {{l.q, l.my - 1}, {l.q, c.top}, {c.right, c.top}});
    else
        Polyline(dc, shadow, {{l.q, l.my - 1}, {c.right - 1, l.my - 1}, {c.right - 1, c.top - 1}});
    if (downPressed)
        Polyline(dc, shadow, {{l.q, c.bottom - 1}, {l.q, l.my + 1}, {c.right, l.my + 1}});
    else
        Polyline(dc, shadow, {{l.q, c.bottom - 1}, {c.right - 1, c.bottom - 1}, {c.right - 1, l.my}});

    if (!upPressed)
        Polyline(dc, white, {{l.q, l.my - 2}, {l.q, c.top}, {c.right - 1, c.top}});
    if (!downPressed)
        Polyline(dc, white, {{l.q, c.bottom - 2}, {l.q, l.my + 1}, {c.right - 1, l.my + 1}});

    Arrow(dc, l.upArrow, upPressed);
    Arrow(dc, l.downArrow, downPressed);
}

} // namespace zk::ctl
