#include "outline/win/paint_parts.h"

#include <vector>

#include "frame/win/localblock.h"
#include "outline/core/paint_lines.h"
#include "outline/core/paint_tabs.h"

namespace zk::lbx::paint {
namespace {

const wchar_t *W(std::u16string_view text) { return reinterpret_cast<const wchar_t *>(text.data()); }

int32_t Width(HDC dc, std::u16string_view text) {
    SIZE size{};
    if (text.empty() || !GetTextExtentPoint32W(dc, W(text), static_cast<int>(text.size()), &size))
        return 0;
    return size.cx;
}

struct Pen {
    HDC dc;
    COLORREF colour;
    bool dotted;
};

void CALLBACK PlotPoint(int x, int y, LPARAM data) {
    const auto *pen = reinterpret_cast<const Pen *>(data);
    if (!pen->dotted || DottedPointDrawn(x, y))
        SetPixel(pen->dc, x, y, pen->colour);
}

void Plot(const Pen &pen, const Segment &s) {
    LineDDA(s.x0, s.y0, s.x1, s.y1, PlotPoint, reinterpret_cast<LPARAM>(&pen));
}

void Bar(HDC dc, const Segment &s) {
    MoveToEx(dc, s.x0, s.y0, nullptr);
    LineTo(dc, s.x1, s.y1);
}

} // namespace

bool FillSolid(HDC dc, const RECT &rect, COLORREF colour) {
    HBRUSH brush = CreateSolidBrush(colour);
    if (!brush)
        return false;
    FillRect(dc, &rect, brush);
    DeleteObject(brush);
    return true;
}

int32_t TextExtent(HDC dc, const LbxChild &child, std::u16string_view text) {
    if (child.tabCount == 0)
        return Width(dc, text);
    LocalPin<int32_t> stops(static_cast<HLOCAL>(child.tabStops));
    if (!stops)
        return 0;
    return Width(dc, TextAfterLastTab(text));
}

bool DrawRowText(HDC dc, const LbxChild &child, std::u16string_view text, int32_t textX, int32_t textY,
                 const RECT &frame) {
    const UINT opaque = ETO_OPAQUE | ETO_CLIPPED;
    if (child.tabCount == 0) {
        ExtTextOutW(dc, textX, textY, opaque, &frame, W(text), static_cast<UINT>(text.size()), nullptr);
        return true;
    }
    ExtTextOutW(dc, textX, textY, opaque, &frame, L"", 0, nullptr);
    const int32_t unit = LOWORD(GetDialogBaseUnits()) / 4;
    // Cleared stops (-1) have no array: such a list paints no item text.
    LocalPin<int32_t> stops(static_cast<HLOCAL>(child.tabStops));
    if (!stops)
        return false;
    for (const TextRun &run : LayoutTabs(text, textX, child.tabCount, stops.get(), unit)) {
        ExtTextOutW(dc, run.x, textY, ETO_CLIPPED, &frame, W(text.substr(run.start, run.length)),
                    static_cast<UINT>(run.length), nullptr);
    }
    return true;
}

void DrawRowPicture(HDC dc, const PIC &pic, const LbxRect &row, uint32_t style, COLORREF background, int32_t gap,
                    int32_t indentPx) {
    const bool bitmap = pic.type == PIC_TypeBitmap && pic.bitmap;
    const bool icon = (pic.type == PIC_TypeIcon || pic.type == PIC_TypeMemoryIcon) && pic.icon;
    if (!bitmap && !icon)
        return;
    const PicturePlace at = bitmap ? PlaceBitmap(row, style, pic.width, pic.height, gap, indentPx)
                                   : PlaceIcon(row, style, pic.width, pic.height, gap, indentPx);
    if (at.fillColumn) {
        // No highlight shows behind the picture.
        const RECT column{at.left, row.top, at.left + pic.width, row.bottom};
        if (!FillSolid(dc, column, background))
            return;
    }
    if (icon) {
        DrawIconEx(dc, at.left, at.top, pic.icon, pic.width, pic.height, 0, nullptr, DI_NORMAL);
        return;
    }
    HDC image = CreateCompatibleDC(dc);
    HDC mask = pic.mask ? CreateCompatibleDC(dc) : nullptr;
    if (image && (mask || !pic.mask)) {
        HGDIOBJ oldImage = SelectObject(image, pic.bitmap);
        HGDIOBJ oldMask = mask ? SelectObject(mask, pic.mask) : nullptr;
        // The mask's bits become white (keep) and black (clear) on the way in.
        const COLORREF oldBack = SetBkColor(dc, RGB(255, 255, 255));
        const COLORREF oldText = SetTextColor(dc, RGB(0, 0, 0));
        if (mask) {
            BitBlt(dc, at.left, at.top, pic.width, at.height, image, 0, at.sourceTop, SRCINVERT);
            BitBlt(dc, at.left, at.top, pic.width, at.height, mask, 0, at.sourceTop, SRCAND);
            BitBlt(dc, at.left, at.top, pic.width, at.height, image, 0, at.sourceTop, SRCINVERT);
        } else {
            BitBlt(dc, at.left, at.top, pic.width, at.height, image, 0, at.sourceTop, SRCCOPY);
        }
        SetTextColor(dc, oldText);
        SetBkColor(dc, oldBack);
        if (mask)
            SelectObject(mask, oldMask);
        SelectObject(image, oldImage);
    }
    if (mask)
        DeleteDC(mask);
    if (image)
        DeleteDC(image);
}

void DrawTreeLines(HDC dc, const LbxRect &row, const LbxChild &child, const LbxItem &item, int32_t step) {
    const LbxNode *node = item.node;
    if (!LbxIsNode(node) || node->level <= 0)
        return;
    LineInput in;
    in.row = row;
    in.step = step;
    in.level = node->level;
    in.outline = (child.style & LBX_StyleOutline) != 0;
    in.boxShown = node->firstChild != nullptr || (item.flags & LBX_ItemPlus);
    in.expanded = (item.flags & LBX_ItemExpanded) != 0;
    const LbxNode *cur = node;
    for (int32_t lvl = node->level; lvl >= 1 && cur->parent; --lvl) {
        in.lastChild.push_back(cur->parent->lastChild == cur);
        cur = cur->parent;
    }
    const TreeLines plan = PlanTreeLines(in);
    const Pen pen{dc, plan.colour, plan.dotted};
    for (const Segment &s : plan.lines)
        Plot(pen, s);
    if (!plan.hasBox)
        return;
    if (!FillSolid(dc, ToRect(plan.box.rect), child.bkColor))
        return;
    const Pen solid{dc, plan.colour, false};
    for (const Segment &s : plan.box.sides)
        Plot(solid, s);
    Bar(dc, plan.box.across);
    if (plan.box.down)
        Bar(dc, plan.box.downBar);
}

} // namespace zk::lbx::paint
