// One paint of the calendar: off screen into a bitmap of the client size,
// only the parts that meet the clip box, then one copy of the clip box.
#include "calendar/win/calendar_window.h"
#include "calendar/win/calendar_paint.h"

namespace zk {

namespace {

bool On(int32_t flag) { return flag > 0; }

} // namespace

HDC CCalendar::Offscreen(HDC) {
    const cal::CalRect &client = layout_.Client();
    if (client.Width() <= 0 || client.Height() <= 0)
        return nullptr;
    if (offBitmap_ && offWidth_ == client.Width() && offHeight_ == client.Height())
        return offDc_;
    FreeOffscreen();
    // Made like the window's own context, whatever context a print hands
    // in: a memory context may hold a one-bit bitmap.
    HDC window = GetDC(GetSafeHwnd());
    if (!window)
        return nullptr;
    offDc_ = CreateCompatibleDC(window);
    offBitmap_ = offDc_ ? CreateCompatibleBitmap(window, client.Width(), client.Height()) : nullptr;
    ReleaseDC(GetSafeHwnd(), window);
    if (!offBitmap_) {
        FreeOffscreen();
        return nullptr;
    }
    offPrevious_ = SelectObject(offDc_, offBitmap_);
    offWidth_ = client.Width();
    offHeight_ = client.Height();
    return offDc_;
}

void CCalendar::FreeOffscreen() {
    if (offPrevious_)
        SelectObject(offDc_, offPrevious_);
    if (offBitmap_)
        DeleteObject(offBitmap_);
    if (offDc_)
        DeleteDC(offDc_);
    offDc_ = nullptr;
    offBitmap_ = nullptr;
    offPrevious_ = nullptr;
    offWidth_ = offHeight_ = 0;
}

void CCalendar::PaintThrough(HDC dc, const cal::CalRect &area) {
    const cal::CalRect clip = area.Intersect(layout_.Client());
    HDC off = clip.Empty() ? nullptr : Offscreen(dc);
    if (!off)
        return;
    PaintOffscreen(off, clip);
    BitBlt(dc, clip.left, clip.top, clip.Width(), clip.Height(), off, clip.left, clip.top, SRCCOPY);
}

void CCalendar::PaintOffscreen(HDC dc, const cal::CalRect &clip) {
    // The colours of this run: etched, or what the notify window's answer
    // for a list box says. They stand until the next paint.
    if (On(model_.Flags().etchedLook)) {
        model_.SetRoleColor(CALR_CellBack, GetSysColor(COLOR_BTNFACE), 0);
        model_.SetRoleColor(CALR_Background, GetSysColor(COLOR_BTNFACE), 0);
        model_.SetRoleColor(CALR_CellText, GetSysColor(COLOR_BTNTEXT), 0);
    } else {
        // The kept context starts each paint as a new one would: a window
        // that does not answer leaves black on white.
        SetTextColor(dc, RGB(0, 0, 0));
        SetBkColor(dc, RGB(255, 255, 255));
        const auto brush = reinterpret_cast<HBRUSH>(SendMessageW(
            notifyWindow, WM_CTLCOLORLISTBOX, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(GetSafeHwnd())));
        LOGBRUSH described{};
        if (brush && GetObjectW(brush, sizeof described, &described) == sizeof described) {
            model_.SetRoleColor(CALR_CellBack, described.lbColor, 0);
            model_.SetRoleColor(CALR_Background, described.lbColor, 0);
        }
        model_.SetRoleColor(CALR_CellText, GetTextColor(dc), 0);
    }
    calpaint::Kit kit(model_);
    const HGDIOBJ oldFont = font ? SelectObject(dc, font) : nullptr;
    calpaint::Background(dc, kit, layout_);
    calpaint::Look look;
    look.disabled = (stateFlags & cal::kStateDisabled) != 0;
    look.focusMark = On(model_.Flags().showFocus) && HasFocus() && !look.disabled;
    if (layout_.Caption().Intersects(clip))
        calpaint::Caption(dc, kit, layout_, model_, look);
    if (layout_.WeekdayBand().Intersects(clip))
        calpaint::WeekdayBand(dc, kit, layout_, model_, look);
    const bool outside = (stateFlags & cal::CALF_Outside) != 0;
    if (layout_.LeftButton().Intersects(clip))
        calpaint::Button(dc, kit, layout_, model_, look, true, (stateFlags & cal::CALF_LeftDown) && !outside);
    if (layout_.RightButton().Intersects(clip))
        calpaint::Button(dc, kit, layout_, model_, look, false, (stateFlags & cal::CALF_RightDown) && !outside);
    if (layout_.Grid().Intersects(clip))
        calpaint::Cells(dc, kit, layout_, model_, look, layout_.CellRange(clip));
    if (On(model_.Flags().showGridlines))
        calpaint::Gridlines(dc, kit, layout_, model_);
    if (oldFont)
        SelectObject(dc, oldFont);
}

LRESULT CCalendar::OnPaint() {
    PAINTSTRUCT ps{};
    HDC dc = BeginPaint(GetSafeHwnd(), &ps);
    if (!dc)
        return 0;
    RECT box{};
    GetClipBox(dc, &box);
    PaintThrough(dc, cal::CalRect{box.left, box.top, box.right, box.bottom});
    EndPaint(GetSafeHwnd(), &ps);
    return 0;
}

void CCalendar::PaintTo(HDC dc) {
    if (dc)
        PaintThrough(dc, layout_.Client());
}

void CCalendar::RepaintCaption() {
    HWND window = GetSafeHwnd();
    HDC dc = window ? GetDC(window) : nullptr;
    if (!dc)
        return;
    PaintThrough(dc, layout_.Caption());
    ReleaseDC(window, dc);
}

} // namespace zk
