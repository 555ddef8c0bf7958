// Creation, the property block, metrics and size, and the colour roles of
// the frame answered by the model.
#include "calendar/win/calendar_window.h"

#include "frame/win/gdi.h"
#include "frame/win/prop_block.h"

namespace zk::cal {

namespace {

// The generic six in the block's order, then the calendar's own.
struct Assignment {
    uint32_t bit;
    int32_t SPropCalendar::*field;
};
constexpr Assignment kAssignOrder[] = {
    {CALS_AutoSize, &SPropCalendar::style1},
    {CALS_EnableButtons, &SPropCalendar::style2},
    {CALS_PopUp, &SPropCalendar::style3},
    {CALS_EnableKeyboard, &SPropCalendar::style4},
    {CALS_MultipleSelection, &SPropCalendar::style5},
    {CALS_ShowFocus, &SPropCalendar::style6},
    {CALS_AlternateButtons, &SPropCalendar::alternateButtons},
    {CALS_EtchedLook, &SPropCalendar::etchedLook},
    {CALS_SelectExtra, &SPropCalendar::selectExtra},
    {CALS_SelectSpecial, &SPropCalendar::selectSpecial},
    {CALS_ShowExtra, &SPropCalendar::showExtra},
    {CALS_ShowGridlines, &SPropCalendar::showGridlines},
    {CALS_ShowSpecial, &SPropCalendar::showSpecial},
};

bool IsRole(int role) { return role >= 0 && role < kRoleCount; }

} // namespace

LRESULT CCalendar::OnCreate() {
    if (CGenericControl::WindowProc(WM_CREATE, CurrentMessage().wParam, CurrentMessage().lParam) == -1)
        return -1;
    ApplyProperties(SPropCalendar());
    SizeToFit(autoSize);
    created = 1;
    const CDateTime today;
    model_.SetDisplayMonth(today.GetYear(), today.GetMonth(), 1);
    model_.SetFocusDate(today, 0, 1);
    return 0;
}

int CCalendar::ApplyProperties(const SPropCalendar &block) {
    try {
        for (const Assignment &a : kAssignOrder)
            model_.AssignStyleFlag(a.bit, block.*a.field);
        CDateTime date;
        if (block.initialDateMode == 1) {
            CDateTime given;
            if (given.Parse(block.initialDate.c_str()) == 1)
                date = given;
        }
        model_.SetDisplayMonth(date.GetYear(), date.GetMonth(), 1);
        model_.SetFocusDate(date, 0, 1);
        return 1;
    } catch (...) {
        return 0;
    }
}

void CCalendar::SizeToFit(int autoSizeFlag) {
    if (autoSizeFlag != 1 || !GetSafeHwnd())
        return;
    SetWindowPos(GetSafeHwnd(), nullptr, 0, 0, layout_.FitWidth(), layout_.FitHeight(),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    // Before creation ends the frame does not lay out again on its own.
    RecalcFrame();
}

void CCalendar::RecalcMetrics() {
    CGenericControl::RecalcMetrics();
    RecalcFrame();
}

void CCalendar::RecalcFrame() {
    const Rect client = ClientArea();
    layout_.Compute(client.Width(), client.Height(), columnWidth, rowHeight);
    frame = ToRECT(layout_.Frame());
}

COLORREF CCalendar::GetRoleColor(int role) { return IsRole(role) ? model_.GetRoleColor(role) : CLR_INVALID; }

COLORREF CCalendar::SetRoleColor(int role, COLORREF colour, int redraw) {
    return IsRole(role) ? model_.SetRoleColor(role, colour, redraw) : CLR_INVALID;
}

int CCalendar::IsDerivedRoleColor(int role) { return IsRole(role) ? model_.IsDerivedRoleColor(role) : 0; }

// ---- the form's wrapper ----------------------------------------------------------

LRESULT CDlgCalendar::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_CREATE)
        return CCalendar::WindowProc(message, wParam, lParam);
    if (CCalendar::WindowProc(message, wParam, lParam) == -1)
        return -1;
    // A block that does not read to its end leaves the defaults in place.
    const auto *create = reinterpret_cast<const CREATESTRUCTW *>(lParam);
    if (!HasStoredProperties(create))
        return 0;
    const HostItem item = HostDesignGetItem(GetSafeHwnd());
    if (!item)
        return 0;
    CMemFile file;
    SPropCalendar block;
    if (PropBlockLoad(HostDesignGetOutline(GetSafeHwnd()), item, kPropCalendar, file) != 1)
        return 0;
    file.SeekToBegin();
    if (LoadBlock(file, block))
        ApplyProperties(block);
    return 0;
}

} // namespace zk::cal
