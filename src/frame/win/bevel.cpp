#include "frame/win/bevel.h"

namespace zk {

namespace {

void Ring(HDC dc, RECT &r, HPEN topLeft, HPEN bottomRight) {
    SelectObject(dc, bottomRight);
    MoveToEx(dc, r.right, r.top, nullptr);
    LineTo(dc, r.right, r.bottom);
    LineTo(dc, r.left - 1, r.bottom);
    SelectObject(dc, topLeft);
    MoveToEx(dc, r.left, r.bottom - 1, nullptr);
    LineTo(dc, r.left, r.top);
    LineTo(dc, r.right, r.top);
    InflateRect(&r, -1, -1);
}

} // namespace

void DrawBevel(HDC dc, const RECT &rect, COLORREF outerTopLeft, COLORREF outerBottomRight, COLORREF innerTopLeft,
               COLORREF innerBottomRight) {
    if (!dc)
        return;
    const COLORREF colours[4] = {outerTopLeft, outerBottomRight, innerTopLeft, innerBottomRight};
    HPEN pens[4] = {};
    for (int i = 0; i < 4; ++i)
        pens[i] = CreatePen(PS_SOLID, 1, colours[i]);
    if (pens[0] && pens[1] && pens[2] && pens[3])
        DrawBevel(dc, rect, pens[0], pens[1], pens[2], pens[3]);
    for (HPEN pen : pens)
        if (pen)
            DeleteObject(pen);
}

void DrawBevel(HDC dc, const RECT &rect, HPEN outerTopLeft, HPEN outerBottomRight, HPEN innerTopLeft,
               HPEN innerBottomRight) {
    if (!dc || !outerTopLeft || !outerBottomRight || !innerTopLeft || !innerBottomRight)
        return;
    const HGDIOBJ previous = SelectObject(dc, outerTopLeft);
    POINT at{};
    MoveToEx(dc, 0, 0, &at);
    RECT r{rect.left, rect.top, rect.right - 1, rect.bottom - 1};
    Ring(dc, r, outerTopLeft, outerBottomRight);
    Ring(dc, r, innerTopLeft, innerBottomRight);
    MoveToEx(dc, at.x, at.y, nullptr);
    SelectObject(dc, previous);
}

} // namespace zk
