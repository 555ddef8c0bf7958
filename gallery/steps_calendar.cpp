// The calendar control as a form shows it: the default look, the etched
// look, a selection of several dates, special-day rules, a disabled
// calendar and the pop-up form, each photographed from its own paint.
// The host's clock stands at 15 March 2024 for these steps, so that the
// pictures are the same from run to run.
#include <windows.h>

#include <string>
#include <vector>

#include "capture.h"
#include "holder.h"
#include "pictures.h"
#include "report.h"
#include "steps.h"
#include "zkhost.h"
#include "zkhostctl.h"
#include "zklib.h"

namespace gallery {

namespace {

constexpr int kWidth = 210, kHeight = 150;

HostDateTime Date(int year, int month, int day) {
    HostDateTime d{};
    HostDateConstruct(&d, year, month, day, 0, 0, 0);
    return d;
}

using Calendar = HostControl;

Calendar MakeCalendar(HWND parent, int x, int y, DWORD style) {
    return MakeHostControl(L"ZK:cCalendar:10", parent, x, y, kWidth, kHeight, style, 100);
}

void Show(Report &report, Pictures &pictures, const Calendar &c, const std::wstring &name) {
    ShowControl(report, pictures, c, L"calendar", name);
}

} // namespace

void RunCalendarSteps(Report &report, Pictures &pictures) {
    report.Section(L"Calendar");
    const HostDateTime today = [] {
        HostDateTime d{};
        HostDateConstruct(&d, 2024, 3, 15, 9, 0, 0);
        return d;
    }();
    ZkHostSetClock(&today);
    HWND holder = MakeHolder(L"ZkGalleryCalendars", L"Calendars", 3 * (kWidth + 10) + 30, 2 * (kHeight + 10) + 60);
    const DWORD child = WS_CHILD | WS_VISIBLE;

    Calendar plain = MakeCalendar(holder, 10, 10, child);
    report.Check(L"ZK:cCalendar:10 announced its control", plain.control ? L"a pointer" : L"nothing",
                 plain.control != 0);
    if (!plain.control) {
        DestroyWindow(holder);
        ZkHostSetClock(nullptr);
        return;
    }
    report.Hex(L"ZelCalGetStyle, as created", static_cast<uint32_t>(ZelCalGetStyle(plain.control)), 0x03CC);
    HostDateTime focus{};
    ZelCalGetFocusDate(plain.control, &focus);
    report.Number(L"focus date: today's day", HostDateDay(focus), 15);
    Show(report, pictures, plain, L"calendar-default");

    Calendar etched = MakeCalendar(holder, kWidth + 20, 10, child);
    ZelCalSetStyle(etched.control, CALS_EtchedLook | CALS_ShowGridlines, 1);
    report.Hex(L"etched look with gridlines", static_cast<uint32_t>(ZelCalGetStyle(etched.control)) & 0x0410, 0x0410);
    Show(report, pictures, etched, L"calendar-etched");

    Calendar marked = MakeCalendar(holder, 2 * kWidth + 30, 10, child);
    ZelCalSetStyle(marked.control, CALS_MultipleSelection, 1);
    int changed = 0;
    for (int day : {4, 5, 6, 7, 8, 18, 22, 27})
        changed += ZelCalMarkDate(marked.control, Date(2024, 3, day), 1);
    report.Number(L"ZelCalMarkDate: new marks", changed, 8);
    report.Number(L"ZelCalIsDateMarked 22 March", ZelCalIsDateMarked(marked.control, Date(2024, 3, 22)), 1);
    Show(report, pictures, marked, L"calendar-marked");

    Calendar special = MakeCalendar(holder, 10, kHeight + 20, child);
    ZelCalSetStyle(special.control, CALS_ShowSpecial, 1);
    ZelCalSpecialDate(special.control, SPECIAL_Weekly, Date(2024, 3, 3), 1, 0, RGB(192, 0, 0), RGB(255, 230, 230), 1);
    ZelCalSpecialDate(special.control, SPECIAL_Date, Date(2024, 3, 29), 0, 0, RGB(255, 255, 255), RGB(0, 128, 0), 1);
    ZelCalSpecialDate(special.control, SPECIAL_MonthWeekday, Date(2024, 3, 1), 4, 2, RGB(0, 0, 160), RGB(220, 230, 255),
                      1);
    report.Number(L"ZelCalIsDateSpecial a Sunday", ZelCalIsDateSpecial(special.control, 0, Date(2024, 3, 10), 1, 2), 1);
    report.Number(L"ZelCalIsDateSpecial a Monday", ZelCalIsDateSpecial(special.control, 0, Date(2024, 3, 11), 2, 2), 0);
    Show(report, pictures, special, L"calendar-special");

    Calendar disabled = MakeCalendar(holder, kWidth + 20, kHeight + 20, child);
    ZelCalSetStyle(disabled.control, CALS_ShowSpecial, 1);
    ZelCalSpecialDate(disabled.control, SPECIAL_Weekly, Date(2024, 3, 3), 1, 0, RGB(192, 0, 0), RGB(255, 230, 230), 1);
    EnableWindow(disabled.window, FALSE);
    report.Check(L"disabled calendar", IsWindowEnabled(disabled.window) ? L"enabled" : L"disabled",
                 !IsWindowEnabled(disabled.window));
    Show(report, pictures, disabled, L"calendar-disabled");

    // The pop-up form: a bordered top-level calendar in pop-up mode, with
    // the alternate buttons.
    Calendar popup = MakeCalendar(nullptr, 0, 0, WS_POPUP | WS_BORDER);
    if (popup.control) {
        ZelCalSetStyle(popup.control, CALS_PopUp | CALS_AlternateButtons | CALS_AutoSize, 1);
        SendMessageW(popup.window, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), 0);
        RECT place{};
        GetWindowRect(holder, &place);
        SetWindowPos(popup.window, HWND_TOP, place.left + 2 * kWidth + 40, place.top + kHeight + 60, 0, 0,
                     SWP_NOSIZE | SWP_SHOWWINDOW | SWP_NOACTIVATE);
        report.Hex(L"pop-up style bits", static_cast<uint32_t>(ZelCalGetStyle(popup.control)) & 0x1003, 0x1003);
        Show(report, pictures, popup, L"calendar-popup");
        DestroyWindow(popup.window);
    }

    MSG m{};
    while (PeekMessageW(&m, nullptr, 0, 0, PM_REMOVE))
        DispatchMessageW(&m);
    DestroyWindow(holder);
    ZkHostSetClock(nullptr);
}

} // namespace gallery
