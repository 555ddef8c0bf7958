// The text rectangle of a row (LbxTextRect), for hit tests, the text
// rectangle export and the horizontal extent.
#include "outline/win/paint_textrect.h"

#include "outline/win/paint_parts.h"

namespace zk::lbx {

using namespace paint;

void LbxTextRect(HWND window, const LbxItem *item, const LbxChild *child, HDC dc, RECT *rect) {
    if (!dc || !rect || !child)
        return;
    HFONT font = item && item->font ? static_cast<HFONT>(item->font)
                                    : reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0));
    HGDIOBJ old = font ? SelectObject(dc, font) : nullptr;
    TEXTMETRICW metrics{};
    GetTextMetricsW(dc, &metrics);
    RowInput in;
    in.row = FromRect(*rect);
    in.style = child->style;
    in.indent = child->indent;
    in.ave = metrics.tmAveCharWidth;
    in.tmHeight = metrics.tmHeight;
    if (item) {
        in.textW = TextExtent(dc, *child, item->text.view());
        in.hasNode = LbxIsNode(item->node);
        in.level = in.hasNode ? item->node->level : 0;
        const PIC *pic = (item->flags & LBX_ItemSelected) && item->picSelected ? item->picSelected : item->picNormal;
        if (PicIsLive(pic)) {
            in.hasPicture = true;
            in.picW = pic->width;
            in.picH = pic->height;
        }
    }
    *rect = ToRect(TextRectangle(in));
    if (old)
        SelectObject(dc, old);
}

} // namespace zk::lbx
