// The calendar window: its class, its messages, and what the model and
// the input machine ask of a window.
#include "calendar/win/calendar_window.h"

#include "frame/win/startup.h"
#include "zkhost.h"

namespace zk {

namespace {

bool KeyDown(int key) { return GetKeyState(key) < 0; }

} // namespace

CCalendar::CCalendar() : input_(model_, layout_, *this, stateFlags) { model_.AttachWindow(this); }

CCalendar::~CCalendar() {
    FreeOffscreen();
    model_.AttachWindow(nullptr);
}

bool CCalendar::CreatePopup(const RECT &rect, HWND notify) {
    if (notify)
        SetNotifyWindow(notify);
    EnsureClass(kCalendarClass);
    return CreateEx(0, kCalendarClass, L"", kCalendarPopupStyle, rect.left, rect.top, rect.right - rect.left,
                    rect.bottom - rect.top, nullptr, nullptr) != nullptr;
}

LRESULT CCalendar::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const int x = static_cast<short>(LOWORD(lParam)), y = static_cast<short>(HIWORD(lParam));
    const auto keys = static_cast<uint32_t>(wParam);
    switch (message) {
    case WM_CREATE:
        return OnCreate();
    case WM_DESTROY:
        created = 0;
        FreeOffscreen();
        return Default();
    case WM_PAINT:
        return OnPaint();
    case WM_PRINTCLIENT:
        PaintTo(reinterpret_cast<HDC>(wParam));
        return 0;
    case WM_ERASEBKGND:
        return 1;
    case WM_KEYDOWN:
        return input_.KeyDown(static_cast<uint32_t>(wParam)) ? 0 : Default();
    case WM_CHAR:
        return input_.Char(static_cast<uint32_t>(wParam)) ? 0 : Default();
    case WM_LBUTTONDOWN:
        input_.LButtonDown(x, y, keys);
        return 0;
    case WM_LBUTTONDBLCLK:
        input_.LButtonDblClk(x, y, keys);
        return 0;
    case WM_MOUSEMOVE:
        input_.MouseMove(x, y, keys);
        return 0;
    case WM_LBUTTONUP:
        input_.LButtonUp(x, y, keys);
        return 0;
    case WM_TIMER:
        return input_.Timer(static_cast<uint32_t>(wParam)) ? 0 : Default();
    case WM_CANCELMODE: {
        const LRESULT result = Default();
        input_.CancelMode();
        return result;
    }
    case WM_SETFOCUS:
        return OnSetFocus();
    case WM_KILLFOCUS:
        return OnKillFocus();
    default:
        return CGenericControl::WindowProc(message, wParam, lParam);
    }
}

LRESULT CCalendar::OnSetFocus() {
    if (HostFieldValidate(GetSafeHwnd(), 0, 0) == 0)
        return 0;
    const LRESULT result = Default();
    input_.FocusGained();
    return result;
}

LRESULT CCalendar::OnKillFocus() {
    const LRESULT result = Default();
    input_.FocusLost();
    return result;
}

// ---- what the model asks ----------------------------------------------------

void CCalendar::InvalidateArea(const cal::CalRect &rect, bool erase) {
    if (!GetSafeHwnd() || rect.Empty())
        return;
    const RECT r{rect.left, rect.top, rect.right, rect.bottom};
    InvalidateRect(GetSafeHwnd(), &r, erase ? TRUE : FALSE);
}

void CCalendar::Invalidate(cal::CalArea area, bool erase) {
    switch (area) {
    case cal::CalArea::Window:
        if (GetSafeHwnd())
            InvalidateRect(GetSafeHwnd(), nullptr, erase ? TRUE : FALSE);
        return;
    case cal::CalArea::Grid:
        return InvalidateArea(layout_.Grid(), erase);
    case cal::CalArea::Caption:
        return InvalidateArea(layout_.Caption(), erase);
    case cal::CalArea::WeekdayHeader:
        return InvalidateArea(layout_.WeekdayHeader(), erase);
    case cal::CalArea::CaptionAndHeader:
        return InvalidateArea(layout_.Caption().Union(layout_.WeekdayHeader()), erase);
    case cal::CalArea::Buttons:
        InvalidateArea(layout_.LeftButton(), erase);
        return InvalidateArea(layout_.RightButton(), erase);
    case cal::CalArea::Body:
        return InvalidateArea(layout_.Body(), erase);
    }
}

void CCalendar::InvalidateCell(int32_t cell) { InvalidateArea(layout_.CellRect(cell), false); }

void CCalendar::UpdateNow() {
    if (GetSafeHwnd())
        UpdateWindow(GetSafeHwnd());
}

void CCalendar::RedrawAll() {
    if (GetSafeHwnd())
        RedrawWindow(GetSafeHwnd(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
}

void CCalendar::FlagAssigned(uint32_t bit, int32_t value) {
    switch (bit) {
    case CALS_AutoSize:
        autoSize = value;
        break;
    case CALS_PopUp:
        popUp = value;
        break;
    case CALS_EnableButtons:
        thirdFlag = value;
        break;
    case CALS_EnableKeyboard:
        fourthFlag = value;
        break;
    case CALS_MultipleSelection:
        fifthFlag = value;
        break;
    case CALS_ShowFocus:
        sixthFlag = value;
        break;
    default:
        break;
    }
}

// ---- what the input machine asks --------------------------------------------

bool CCalendar::StartTimer(uint32_t id, uint32_t period) {
    return GetSafeHwnd() && SetTimer(GetSafeHwnd(), id, period, nullptr) != 0;
}

void CCalendar::StopTimer(uint32_t id) {
    if (GetSafeHwnd())
        KillTimer(GetSafeHwnd(), id);
}

void CCalendar::TakeCapture() {
    if (GetSafeHwnd())
        SetCapture(GetSafeHwnd());
}

void CCalendar::DropCapture() {
    // Only a capture of this window's: another window's stays.
    if (GetSafeHwnd() && GetCapture() == GetSafeHwnd())
        ReleaseCapture();
}

bool CCalendar::HasFocus() const { return GetSafeHwnd() && GetFocus() == GetSafeHwnd(); }

void CCalendar::TakeFocus() {
    if (GetSafeHwnd())
        SetFocus(GetSafeHwnd());
}

int32_t CCalendar::FieldValidate(int32_t flag) { return HostFieldValidate(GetSafeHwnd(), flag, 0); }

void CCalendar::PostToSelf(uint32_t message, int32_t wParam) {
    if (GetSafeHwnd())
        PostMessageW(GetSafeHwnd(), message, static_cast<WPARAM>(wParam), 0);
}

void CCalendar::RefreshButton(bool left) {
    InvalidateArea(left ? layout_.LeftButton() : layout_.RightButton(), false);
    UpdateNow();
}

void CCalendar::InvalidateWindow() { Invalidate(cal::CalArea::Window, false); }

void CCalendar::InvalidateCell(int32_t cell, bool update) {
    InvalidateCell(cell);
    if (update)
        UpdateNow();
}

void CCalendar::HideWindow() {
    if (GetSafeHwnd())
        ShowWindow(GetSafeHwnd(), SW_HIDE);
}

bool CCalendar::CtrlDown() const { return KeyDown(VK_CONTROL); }

bool CCalendar::ShiftDown() const { return KeyDown(VK_SHIFT); }

} // namespace zk
