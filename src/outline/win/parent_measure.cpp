// WM_MEASUREITEM at the parent: a row is as high as its font, or its
// pictures where they are higher.
#include "frame/win/host.h"
#include "outline/win/host_optional.h"
#include "outline/win/lbx_metrics.h"
#include "outline/win/lbx_procs.h"
#include "outline/win/parent_parts.h"
#include "outline/win/pic.h"

namespace zk::lbx {

namespace {

// The height a picture asks of its row.
LONG PictureMinimum(const PIC *pic, uint32_t style, LONG textHeight, bool hasText) {
    if (style & LBX_StylePictureAbove) {
        return pic->height + (hasText ? textHeight : 0);
    }
    return pic->height + 2;
}

} // namespace

bool ParentMeasure(HWND parent, MEASUREITEMSTRUCT *request) {
    if (!request) {
        return false;
    }
    HWND control = ControlInHandFor(parent, static_cast<int>(request->CtlID));
    if (!control) {
        control = LbxHostDlgItem(parent, static_cast<int>(request->CtlID));
    }
    zk::LocalPin<LbxChild> child(ChildHandle(control));
    if (!child) {
        return false;
    }
    LbxItem *item = LbxItemOf(request->itemData);
    if (item) {
        child->bkColor = HostWinGetColor(control, 5);
        if (request->CtlType == ODT_COMBOBOX) {
            if (!child->bkBrush) {
                child->bkBrush = CreateSolidBrush(child->bkColor);
            }
            if (!child->editWindow) {
                child->editWindow = GetDlgItem(control, 1001);
            }
        }
    }
    HFONT font = item ? static_cast<HFONT>(item->font) : nullptr;
    if (!font) {
        font = reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0));
        if (!font) {
            font = static_cast<HFONT>(GetStockObject(SYSTEM_FONT));
        }
        if (item) {
            item->font = font;
        }
    }
    TEXTMETRICW metrics{};
    if (!FontMetrics(control, font, &metrics)) {
        return false;
    }
    if (!item) {
        request->itemHeight = static_cast<UINT>(IsWin32Platform() ? metrics.tmHeight - 4 : metrics.tmHeight + 1);
        return true;
    }
    child->textHeight = metrics.tmHeight;
    LONG height = metrics.tmHeight;
    for (const PIC *pic : {item->picNormal, item->picSelected}) {
        if (pic && PicIsLive(pic)) {
            const LONG minimum = PictureMinimum(pic, child->style, metrics.tmHeight, !item->text.empty());
            if (minimum > height) {
                height = minimum;
            }
        }
    }
    request->itemHeight = static_cast<UINT>(height);
    return true;
}

} // namespace zk::lbx
