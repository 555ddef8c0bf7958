// Exports of the focus date, colours, style bits and the week start.
#include "calendar/core/calendar_ids.h"
#include "calendar/core/date_ops.h"
#include "calendar/win/calendar_exports.h"
#include "frame/core/errors.h"

using zk::GuardedControlText;
using zk::cal::CalendarModel;
using zk::cal::CalendarOf;
using zk::cal::CDateTime;

namespace {

bool IsWeekday(int32_t weekday) { return weekday >= 1 && weekday <= 7; }

} // namespace

extern "C" {

int32_t ZKAPI ZelCalGetFocusDate(ZelCalControl control, HostDateTime *date) {
    return GuardedControlText(L"ZelCalGetFocusDate()", L"Unable to retrieve current datetime.", 0, CalendarOf(control),
                              [&](CalendarModel &c) {
                                  if (!date)
                                      throw zk::InvalidArgException();
                                  c.GetFocusDate().GetRecord(date);
                                  return 1;
                              });
}

// Valid is what the host reads back from the canonical text of the date.
int32_t ZKAPI ZelCalSetFocusDate(ZelCalControl control, HostDateTime date) {
    return GuardedControlText(L"ZelCalSetFocusDate()", L"Unable to assign new focus by date.", 0, CalendarOf(control),
                              [&](CalendarModel &c) {
                                  const CDateTime value(date);
                                  const std::u16string text = value.KeyText();
                                  if (zk::cal::DateOps().isValidDateTime(text.c_str()) != 1)
                                      return 0;
                                  return c.SetFocusDate(value, 1, 1);
                              });
}

int32_t ZKAPI ZelCalGetColor(ZelCalControl control, int32_t role) {
    return GuardedControlText(L"ZelCalGetColor()", L"Unable to retrieve color for specified role.", -1,
                              CalendarOf(control),
                              [&](CalendarModel &c) { return static_cast<int32_t>(c.GetRoleColor(role)); });
}

int32_t ZKAPI ZelCalSetColor(ZelCalControl control, int32_t role, COLORREF color) {
    return GuardedControlText(L"ZelCalSetColor()", L"Unable to assign color to specified role.", -1,
                              CalendarOf(control),
                              [&](CalendarModel &c) { return static_cast<int32_t>(c.SetRoleColor(role, color, 1)); });
}

int32_t ZKAPI ZelCalGetStyle(ZelCalControl control) {
    return GuardedControlText(L"ZelCalGetStyle()", L"Unable to retrieve style bits.", 0, CalendarOf(control),
                              [](CalendarModel &c) { return static_cast<int32_t>(c.GetStyle()); });
}

int32_t ZKAPI ZelCalSetStyle(ZelCalControl control, int32_t mask, int32_t value) {
    return GuardedControlText(
        L"ZelCalSetStyle()", L"Unable to update style bits.", 0, CalendarOf(control),
        [&](CalendarModel &c) { return static_cast<int32_t>(c.SetStyle(static_cast<uint32_t>(mask), value)); });
}

// A weekday outside 1 to 7 is reported with the spin field's range text.
int32_t ZKAPI ZelCalWeekStartSet(ZelCalControl control, int32_t weekday) {
    const wchar_t *name = L"ZelCalWeekStartSet()";
    return GuardedControlText(name, L"Unable to set the starting weekday.", -1, CalendarOf(control),
                              [&](CalendarModel &c) {
                                  if (!IsWeekday(weekday)) {
                                      ZelReportError(IDS_CAL_WEEK_START_RANGE, name);
                                      return -1;
                                  }
                                  return c.SetWeekStart(weekday);
                              });
}

// Its handler writes nothing; a null control still shows string 48.
int32_t ZKAPI ZelCalWeekStartGet(ZelCalControl control) {
    const wchar_t *name = L"ZelCalWeekStartGet()";
    return zk::Quietly(
        [&]() -> int32_t {
            const CalendarModel *c = CalendarOf(control);
            if (!c) {
                zk::NullControlBox(name);
                return -1;
            }
            if (!IsWeekday(c->WeekStart())) {
                ZelReportError(IDS_CAL_WEEK_START_RANGE, name);
                return -1;
            }
            return c->WeekStart();
        },
        [] { return -1; });
}

} // extern "C"
