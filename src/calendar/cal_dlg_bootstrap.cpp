// The form's calendar comes into being through the library's outer class
// "ZK:cCalendar:10": its bootstrap makes a CDlgCalendar at WM_NCCREATE.
#include "calendar/cal_control.h"
#include "designer/control_create.h"
#include "frame/registry.h"

namespace zk {

namespace {

struct CalendarBootstrap {
    using Object = CDlgCalendar;
    static constexpr const wchar_t *className = kDlgCalendarClass;
    static constexpr BootstrapForm form = BootstrapForm::AttachOrSubclass;
};

struct Install {
    Install() { SetControlBootstrap(CalendarBootstrap::className, &BootstrapProcedure<CalendarBootstrap>); }
};
const Install install;

} // namespace

} // namespace zk
