// The calendar window: its messages, unpacked and handed to the input
// machine and the model.
#include "calendar/win/calendar_window.h"

#include "frame/win/crack.h"
#include "frame/win/startup.h"

namespace zk::cal {

CCalendar::CCalendar() : input_(model_, layout_, *this, stateFlags) {
    model_.AttachView(this, &layout_);
    model_.OnFlagAssigned([this](uint32_t bit, int32_t value) { FlagAssigned(bit, value); });
}

CCalendar::~CCalendar() {
    model_.AttachView(nullptr, nullptr);
    model_.OnFlagAssigned(nullptr);
}

bool CCalendar::CreatePopup(const RECT &rect, HWND notify) {
    if (notify)
        SetNotifyWindow(notify);
    EnsureClass(kCalendarClass);
    return CreateEx(0, kCalendarClass, L"", kCalendarPopupStyle, rect.left, rect.top, rect.right - rect.left,
                    rect.bottom - rect.top, nullptr, nullptr) != nullptr;
}

LRESULT CCalendar::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const Point at = MousePoint(lParam);
    const uint32_t keys = MouseKeys(wParam);
    switch (message) {
    case WM_CREATE:
        return OnCreate();
    case WM_KEYDOWN:
        return input_.KeyDown(KeyCode(wParam)) ? 0 : Default();
    case WM_CHAR:
        return input_.Char(KeyCode(wParam)) ? 0 : Default();
    case WM_LBUTTONDOWN:
        input_.LButtonDown(at.x, at.y, keys);
        return 0;
    case WM_LBUTTONDBLCLK:
        input_.LButtonDblClk(at.x, at.y, keys);
        return 0;
    case WM_MOUSEMOVE:
        input_.MouseMove(at.x, at.y, keys);
        return 0;
    case WM_LBUTTONUP:
        input_.LButtonUp(at.x, at.y, keys);
        return 0;
    case WM_TIMER:
        return input_.Timer(static_cast<uint32_t>(wParam)) ? 0 : Default();
    case WM_CANCELMODE:
        return CancelMode(input_);
    case WM_SETFOCUS:
        return FocusGained(input_);
    case WM_KILLFOCUS:
        return OnKillFocus();
    default:
        return CGenericControl::WindowProc(message, wParam, lParam);
    }
}

LRESULT CCalendar::OnKillFocus() {
    const LRESULT result = Default();
    input_.FocusLost();
    return result;
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

} // namespace zk::cal
