#include "outline/core/paint_layout.h"

#include <algorithm>

namespace zk::lbx::paint {

RowLayout LayoutRow(const RowInput &in) {
    RowLayout out;
    const LbxRect &r = in.row;
    out.half = in.ave / 2;
    out.step = in.indent * out.half;
    out.indentPx = in.hasNode ? in.level * in.indent * out.half : 0;
    const int32_t picW = in.hasPicture ? in.picW : 0;
    const int32_t picH = in.hasPicture ? in.picH : 0;
    out.gap = in.hasPicture ? (in.hasNode ? in.ave : 5) : 0;
    if (in.style & LBX_StylePictureAbove) {
        out.textY = r.top + picH;
        out.textX = std::max((r.right - r.left - in.textW) / 2, r.left);
    } else {
        out.textY = (r.bottom - r.top - in.tmHeight) / 2 + r.top;
        out.textX = out.gap + r.left + picW + out.indentPx;
    }
    if (in.disabled && r.left >= 1) {
        // A disabled row is redrawn with a margin around it.
        out.frame = {r.left - 1, r.top - 1, r.right + 2, r.bottom + 2};
        return out;
    }
    out.frame = r;
    if (in.style & LBX_StylePictureAbove)
        return out;
    if (in.style & LBX_StyleTextSelect) {
        out.frame.left = out.textX - 2;
        out.frame.right = std::min(out.frame.left + in.textW + 4, r.right);
    } else if (in.style & LBX_StyleIndentSelect) {
        out.frame.left = r.left + out.indentPx;
        out.frame.right = std::min(out.frame.left + in.textW + out.gap + picW + 4, r.right);
    }
    return out;
}

LbxRect TextRectangle(const RowInput &in) {
    const LbxRect &r = in.row;
    const int32_t half = in.ave / 2;
    const int32_t indentPx = in.hasNode ? in.level * in.indent * half : 0;
    const int32_t picW = in.hasPicture ? in.picW : 0;
    const int32_t picH = in.hasPicture ? in.picH : 0;
    const int32_t gap = in.hasPicture ? in.ave : 0;
    LbxRect out{};
    if (in.style & LBX_StylePictureAbove) {
        out.left = std::max(r.left, (r.right - r.left - in.textW) / 2);
        out.top = r.top + picH;
    } else {
        out.left = r.left + gap + picW + indentPx;
        out.top = r.top + (r.bottom - r.top - in.tmHeight) / 2;
    }
    out.right = out.left + in.textW + 4;
    out.bottom = out.top + std::max(in.tmHeight, picH);
    return out;
}

StateLook ChooseLook(uint32_t style, uint32_t itemFlags, bool odsSelected) {
    StateLook look;
    if (itemFlags & LBX_ItemInactive) {
        // An owed inactive frame: item colours, the picture of the state.
        look.picture = odsSelected ? PictureChoice::SelectedElseNormal : PictureChoice::Normal;
        return look;
    }
    if (odsSelected && !(itemFlags & LBX_ItemDisabled)) {
        look.text =
            (style & (LBX_StyleKeepTextColor | LBX_StyleNoHighlight)) ? TextColour::Item : TextColour::HighlightText;
        look.back = (style & LBX_StyleNoHighlight)     ? BackColour::Background
                    : (style & LBX_StyleItemColorBack) ? BackColour::Item
                                                       : BackColour::Highlight;
        look.picture = PictureChoice::Selected;
        look.mark = SelectedMark::Set;
        return look;
    }
    look.mark = SelectedMark::Clear;
    return look;
}

PicturePlace PlaceBitmap(const LbxRect &row, uint32_t style, int32_t picW, int32_t picH, int32_t gap,
                         int32_t indentPx) {
    PicturePlace p;
    const int32_t rowH = row.bottom - row.top;
    if (style & LBX_StylePictureAbove) {
        p.sourceTop = 0;
        p.top = row.top;
        p.left = std::max((row.right - picW - row.left) / 2 + 1, row.left);
    } else {
        // A picture taller than the row shows its middle lines.
        p.sourceTop = std::max((picH - rowH) / 2, 0);
        p.top = std::max(row.top, (row.bottom - picH - row.top) / 2 + row.top);
        p.left = gap / 2 + row.left + indentPx;
        p.fillColumn = (style & LBX_StyleTextSelect) != 0;
    }
    p.height = std::min(rowH, picH);
    return p;
}

PicturePlace PlaceIcon(const LbxRect &row, uint32_t style, int32_t picW, int32_t picH, int32_t gap, int32_t indentPx) {
    PicturePlace p;
    if (style & LBX_StylePictureAbove) {
        p.top = row.top;
        p.left = std::max((row.right - picW - row.left) / 2 + 1, row.left);
    } else {
        p.top = (row.bottom - picH - row.top) / 2 + row.top;
        p.left = gap / 2 + row.left + indentPx;
        p.fillColumn = (style & LBX_StyleTextSelect) != 0;
    }
    p.height = picH;
    return p;
}

} // namespace zk::lbx::paint
