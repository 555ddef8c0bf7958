// Exports that replace the process-wide month and weekday names; only the
// calendar at hand is repainted.
#include <cwchar>
#include <vector>

#include "calendar/win/calendar_exports.h"
#include "frame/core/errors.h"

using zk::GuardedControlText;
using zk::cal::CalendarModel;
using zk::cal::CalendarOf;
using zk::cal::CDateTime;

namespace {

// Exactly `count` names from a host string array; any other count, or a
// string the host cannot lock, fails the export.
std::vector<std::u16string> Names(HostArray array, int32_t count) {
    int32_t low = 0, high = -1;
    if (HostArrayGetBounds(array, &low, &high) != count)
        throw zk::UserException();
    std::vector<std::u16string> names;
    names.reserve(static_cast<size_t>(count));
    for (int32_t i = 0; i < count; ++i) {
        HostStr handle = 0;
        HostArrayGetString(array, &handle, low + i);
        int32_t size = 0;
        const wchar_t *text = handle ? HostStrLock(handle, &size) : nullptr;
        if (!text)
            throw zk::UserException();
        const size_t length = size > 0 ? wcsnlen(text, static_cast<size_t>(size) / sizeof(wchar_t)) : 0;
        names.emplace_back(reinterpret_cast<const char16_t *>(text), length);
    }
    // The tables exist before any name replaces one of theirs.
    zk::cal::detail::EnsureNameTables();
    return names;
}

} // namespace

extern "C" {

int32_t ZKAPI ZelCalSetMonths(ZelCalControl control, HostArray names) {
    return GuardedControlText(L"ZelCalSetMonths()", L"Unable to assign text for month names.", 0, CalendarOf(control),
                              [&](CalendarModel &c) {
                                  const int result = CDateTime::SetMonthNames(Names(names, 12));
                                  c.MonthNamesChanged();
                                  return result;
                              });
}

int32_t ZKAPI ZelCalSetWeekDays(ZelCalControl control, HostArray names) {
    return GuardedControlText(L"ZelCalSetWeekDays()", L"Unable to assign text for weekday names.", 0,
                              CalendarOf(control), [&](CalendarModel &c) {
                                  const int result = CDateTime::SetWeekdayNames(Names(names, 7));
                                  c.WeekdayNamesChanged();
                                  return result;
                              });
}

} // extern "C"
