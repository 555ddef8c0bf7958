#include "frame/win/draw.h"

#include "frame/win/gdi.h"

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
    const Pen pens[4] = {SolidPen(outerTopLeft), SolidPen(outerBottomRight), SolidPen(innerTopLeft),
                         SolidPen(innerBottomRight)};
    DrawBevel(dc, rect, pens[0], pens[1], pens[2], pens[3]);
}

void DrawBevel(HDC dc, const RECT &rect, HPEN outerTopLeft, HPEN outerBottomRight, HPEN innerTopLeft,
               HPEN innerBottomRight) {
    if (!dc || !outerTopLeft || !outerBottomRight || !innerTopLeft || !innerBottomRight)
        return;
    const Selected selected(dc, outerTopLeft);
    POINT at{};
    MoveToEx(dc, 0, 0, &at);
    RECT r{rect.left, rect.top, rect.right - 1, rect.bottom - 1};
    Ring(dc, r, outerTopLeft, outerBottomRight);
    Ring(dc, r, innerTopLeft, innerBottomRight);
    MoveToEx(dc, at.x, at.y, nullptr);
}

void Line(HDC dc, HPEN pen, int x1, int y1, int x2, int y2) {
    const Selected selected(dc, pen);
    MoveToEx(dc, x1, y1, nullptr);
    LineTo(dc, x2, y2);
}

void CentredText(HDC dc, std::u16string_view text, const RECT &box, COLORREF textColour, COLORREF backColour) {
    if (text.empty())
        return;
    SetTextColor(dc, textColour);
    SetBkColor(dc, backColour);
    SetBkMode(dc, OPAQUE);
    RECT r = box;
    DrawTextW(dc, reinterpret_cast<const wchar_t *>(text.data()), static_cast<int>(text.size()), &r,
              DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}

} // namespace zk
