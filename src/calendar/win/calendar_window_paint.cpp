// One paint of the calendar: only the parts that meet the clip box, into
// the frame's off-screen buffer, which then copies the clip box once.
#include "calendar/win/calendar_paint.h"
#include "calendar/win/calendar_window.h"

namespace zk::cal {

namespace {

bool On(int32_t flag) { return flag > 0; }

} // namespace

void CCalendar::TakePaintColours(HDC dc) {
    if (On(model_.Flags().etchedLook)) {
        model_.SetRoleColor(CALR_CellBack, GetSysColor(COLOR_BTNFACE), 0);
        model_.SetRoleColor(CALR_Background, GetSysColor(COLOR_BTNFACE), 0);
        model_.SetRoleColor(CALR_CellText, GetSysColor(COLOR_BTNTEXT), 0);
        return;
    }
    // The kept context starts each paint as a new one would: a window that
    // does not answer leaves black on white.
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

void CCalendar::Paint(HDC dc, const Rect &clip) {
    TakePaintColours(dc);
    const RoleTools tools = PaintTools(model_);
    const Selected selectedFont(dc, font);
    PaintBackground(dc, tools, layout_);
    Look look;
    look.disabled = (stateFlags & kStateDisabled) != 0;
    look.focusMark = On(model_.Flags().showFocus) && HasFocus() && !look.disabled;
    if (layout_.Caption().Intersects(clip))
        PaintCaption(dc, tools, layout_, model_, look);
    if (layout_.WeekdayBand().Intersects(clip))
        PaintWeekdayBand(dc, tools, layout_, model_, look);
    const bool outside = (stateFlags & CALF_Outside) != 0;
    if (layout_.LeftButton().Intersects(clip))
        PaintButton(dc, tools, layout_, model_, look, true, (stateFlags & CALF_LeftDown) && !outside);
    if (layout_.RightButton().Intersects(clip))
        PaintButton(dc, tools, layout_, model_, look, false, (stateFlags & CALF_RightDown) && !outside);
    if (layout_.Grid().Intersects(clip))
        PaintCells(dc, tools, layout_, model_, look, layout_.CellRange(clip));
    if (On(model_.Flags().showGridlines))
        PaintGridlines(dc, tools, layout_, model_);
}

} // namespace zk::cal
