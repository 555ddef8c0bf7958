// The form's calendar comes into being through the library's outer class
// "ZK:cCalendar:10": its bootstrap makes a CDlgCalendar at WM_NCCREATE.
#include "calendar/win/calendar_bootstrap.h"

#include "calendar/win/calendar_window.h"
#include "frame/win/control_create.h"

namespace zk::cal {

namespace {

struct CalendarBootstrap {
    using Object = CDlgCalendar;
    static constexpr const wchar_t *className = kDlgCalendarClass;
    static constexpr BootstrapForm form = BootstrapForm::AttachOrSubclass;
};

} // namespace

LRESULT CALLBACK DlgCalendarBootstrap(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return BootstrapProcedure<CalendarBootstrap>(window, message, wParam, lParam);
}

} // namespace zk::cal
