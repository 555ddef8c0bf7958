// WM_DRAWITEM of an adopted list or combo box: the whole paint of a row.
#include "outline/win/lbx_paint_entry.h"

#include <string_view>

#include "frame/win/host.h"
#include "outline/core/paint_flow.h"
#include "outline/win/lbx_win.h"
#include "outline/win/paint_parts.h"
#include "outline/win/pic_sources.h"

namespace zk::lbx {

using namespace paint;

namespace {

// The DC's font and colours as the paint found them, put back on every path.
class DcState {
public:
    explicit DcState(HDC dc) : dc_(dc), text_(GetTextColor(dc)), back_(GetBkColor(dc)) {}
    ~DcState() {
        SetTextColor(dc_, text_);
        SetBkColor(dc_, back_);
        if (font_)
            SelectObject(dc_, font_);
    }
    DcState(const DcState &) = delete;
    DcState &operator=(const DcState &) = delete;
    void Select(HFONT font) {
        if (!font)
            return;
        HGDIOBJ old = SelectObject(dc_, font);
        if (!font_)
            font_ = old;
    }

private:
    HDC dc_;
    COLORREF text_, back_;
    HGDIOBJ font_ = nullptr;
};

COLORREF Resolve(TextColour c, const LbxItem &item) {
    return c == TextColour::Item ? (item.color & 0xFFFFFF) : GetSysColor(COLOR_HIGHLIGHTTEXT);
}

COLORREF Resolve(BackColour c, const LbxItem &item, COLORREF background) {
    switch (c) {
    case BackColour::Item:
        return item.color & 0xFFFFFF;
    case BackColour::Highlight:
        return GetSysColor(COLOR_HIGHLIGHT);
    case BackColour::Background:
        break;
    }
    return background;
}

const PIC *Choose(PictureChoice c, const LbxItem &item) {
    const PIC *pic = c == PictureChoice::Normal     ? item.picNormal
                     : c == PictureChoice::Selected ? item.picSelected
                     : item.picSelected             ? item.picSelected
                                                    : item.picNormal;
    // A picture freed behind the row's back is not followed.
    return PicIsLive(pic) ? pic : nullptr;
}

// A row of a list filled before adoption: its data word is taken as a text
// pointer, read only as far as memory is readable.
std::u16string_view ForeignText(const DRAWITEMSTRUCT &r) {
    const bool combo = r.CtlType == ODT_COMBOBOX;
    const LRESULT length = SendMessageW(r.hwndItem, combo ? CB_GETLBTEXTLEN : LB_GETTEXTLEN, r.itemID, 0);
    const auto *text = reinterpret_cast<const char16_t *>(r.itemData);
    if (!text || length <= 0)
        return {};
    const size_t readable = PicReadableBytes(text, static_cast<size_t>(length) * 2) / 2;
    return {text, readable};
}

void EmptyList(const DRAWITEMSTRUCT &r) {
    if ((r.itemAction & ODA_FOCUS) || (r.itemState & ODS_FOCUS))
        DrawFocusRect(r.hDC, &r.rcItem);
}

} // namespace

bool LbxDrawItem(HWND parent, const DRAWITEMSTRUCT *request, LRESULT *result) {
    if (!request || !result)
        return false;
    const DRAWITEMSTRUCT &r = *request;
    LbxChild child;
    if (!LbxGetChildCopy(r.hwndItem, &child))
        return false;
    *result = 0;
    if (r.itemID == static_cast<UINT>(-1) || r.itemData == static_cast<ULONG_PTR>(-1)) {
        EmptyList(r);
        return true;
    }
    HDC dc = r.hDC;
    LbxItem *item = LbxItemOf(r.itemData);
    DcState saved(dc);
    saved.Select(reinterpret_cast<HFONT>(SendMessageW(r.hwndItem, WM_GETFONT, 0, 0)));
    if (item)
        saved.Select(static_cast<HFONT>(item->font));
    TEXTMETRICW metrics{};
    GetTextMetricsW(dc, &metrics);
    child.bkColor = HostWinGetColor(r.hwndItem, 5);
    ChildEdit(r.hwndItem, [&](LbxChild &c) { c.bkColor = child.bkColor; });

    const LbxRect row = FromRect(r.rcItem);
    const PaintFlow flow = PlanPaint(child.style, r.itemAction, r.itemState, item != nullptr,
                                     item && LbxIsNode(item->node), item ? item->flags : 0, row);
    if (flow.fillRow && !FillSolid(dc, r.rcItem, child.bkColor))
        return false;

    RowInput in;
    in.row = row;
    in.style = child.style;
    in.indent = child.indent;
    in.ave = metrics.tmAveCharWidth;
    in.tmHeight = metrics.tmHeight;
    const PIC *pic = nullptr;
    std::u16string_view text;
    if (item) {
        const StateLook look = ChooseLook(child.style, item->flags, (r.itemState & ODS_SELECTED) != 0);
        SetTextColor(dc, Resolve(look.text, *item));
        SetBkColor(dc, Resolve(look.back, *item, child.bkColor));
        if (look.mark == SelectedMark::Set)
            item->flags |= LBX_ItemSelected;
        else if (look.mark == SelectedMark::Clear)
            item->flags &= ~LBX_ItemSelected;
        pic = Choose(look.picture, *item);
        in.hasNode = LbxIsNode(item->node);
        in.level = in.hasNode ? item->node->level : 0;
        in.disabled = (item->flags & LBX_ItemDisabled) != 0;
        in.hasPicture = pic != nullptr;
        in.picW = pic ? pic->width : 0;
        in.picH = pic ? pic->height : 0;
        text = item->text.view();
        in.textW = TextExtent(dc, child, text);
    } else {
        SetBkColor(dc, child.bkColor);
        text = ForeignText(r);
        SIZE size{};
        in.textW = GetTextExtentPoint32W(dc, reinterpret_cast<const wchar_t *>(text.data()),
                                         static_cast<int>(text.size()), &size)
                       ? size.cx
                       : r.rcItem.right - r.rcItem.left;
    }
    const RowLayout layout = LayoutRow(in);
    const RECT frame = ToRect(layout.frame);

    if (flow.focusOnFrame)
        DrawFocusRect(dc, &frame);
    if (flow.textAndPicture) {
        if (!item) {
            ExtTextOutW(dc, layout.textX, layout.textY, ETO_OPAQUE | ETO_CLIPPED, &frame,
                        reinterpret_cast<const wchar_t *>(text.data()), static_cast<UINT>(text.size()), nullptr);
        } else {
            if (!DrawRowText(dc, child, text, layout.textX, layout.textY, frame))
                return false;
            if (pic) {
                const COLORREF text = GetTextColor(dc), back = GetBkColor(dc);
                DrawRowPicture(dc, *pic, row, child.style, child.bkColor, layout.gap, layout.indentPx);
                SetTextColor(dc, text);
                SetBkColor(dc, back);
            }
        }
    }
    if (item) {
        if (flow.lines)
            DrawTreeLines(dc, row, child, *item, layout.step);
        if (flow.inactiveFrame) {
            FrameRect(dc, &frame, GetSysColorBrush(COLOR_HIGHLIGHT));
            item->flags &= ~LBX_ItemInactive;
        }
        if (flow.focusMarkFrame)
            DrawFocusRect(dc, &frame);
        if (flow.focusMarkClear)
            item->flags &= ~LBX_ItemFocusMark;
    }
    if (flow.focusOnFrameLate)
        DrawFocusRect(dc, &frame);
    if (flow.focusOnRow)
        DrawFocusRect(dc, &r.rcItem);
    if (flow.autoExtent && r.CtlType == ODT_LISTBOX) {
        const int32_t needed = ExtentNeeded(layout.textX, in.textW);
        if (needed > SendMessageW(r.hwndItem, LB_GETHORIZONTALEXTENT, 0, 0))
            SendMessageW(r.hwndItem, LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(needed), 0);
    }
    *result = 1;
    return true;
}

} // namespace zk::lbx
