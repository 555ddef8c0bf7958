// The process-wide month and weekday names and the month lengths. The
// tables are filled once, by the first CDateTime built, and shared by every
// calendar of the process; nothing guards them: only the user-interface
// thread comes here.
#include <new>

#include "calendar/core/calendar_ids.h"
#include "calendar/core/date_ops.h"
#include "calendar/core/datetime.h"
#include "frame/core/errors.h"

namespace zk::cal {

namespace {

constexpr int32_t kWeekdayCount = 8, kMonthCount = 13;
constexpr int32_t kDaysInMonth[kMonthCount] = {0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

struct NameTables {
    bool filled = false;
    std::vector<std::u16string> weekdays, months;
};

NameTables &Tables() {
    static NameTables tables;
    return tables;
}

std::u16string Lookup(const std::vector<std::u16string> &table, int32_t index) {
    if (index < 0 || index >= static_cast<int32_t>(table.size()))
        throw InvalidArgException();
    return table[static_cast<size_t>(index)];
}

// Elements 0 to count - 1 of names replace indices 1 to count. The new
// table is built aside, so that running out of memory changes nothing.
int Replace(std::vector<std::u16string> &table, const std::vector<std::u16string> &names, size_t count) {
    try {
        if (names.size() < count)
            throw UserException();
        std::vector<std::u16string> updated = table;
        for (size_t i = 0; i < count; ++i) {
            if (i + 1 >= updated.size())
                throw InvalidArgException();
            updated[i + 1] = names[i];
        }
        table.swap(updated);
        return 1;
    } catch (const std::bad_alloc &) {
        return 0;
    } catch (const UserException &) {
        return 0;
    }
}

} // namespace

namespace detail {

void EnsureNameTables() {
    NameTables &t = Tables();
    if (t.filled)
        return;
    // Tried once only: a table that ran out of memory stays as far as it got.
    t.filled = true;
    try {
        t.weekdays.resize(kWeekdayCount);
        t.weekdays[0] = u"NULL WEEKDAY";
        for (int32_t i = 1; i < kWeekdayCount; ++i)
            t.weekdays[static_cast<size_t>(i)] = Platform().loadText(IDS_CAL_SUNDAY + i - 1);
        t.months.resize(kMonthCount);
        t.months[0] = u"NULL MONTH";
        for (int32_t i = 1; i < kMonthCount; ++i)
            t.months[static_cast<size_t>(i)] = Platform().loadText(IDS_CAL_JANUARY + i - 1);
    } catch (const std::bad_alloc &) {
    }
}

} // namespace detail

std::u16string CDateTime::WeekdayName(int32_t index) { return Lookup(Tables().weekdays, index); }

std::u16string CDateTime::MonthName(int32_t index) { return Lookup(Tables().months, index); }

int32_t CDateTime::DaysInMonth(int32_t year, int32_t month) {
    if (month < 1 || month >= kMonthCount)
        return 0;
    if (month != 2)
        return kDaysInMonth[month];
    // A zero remainder does not depend on the sign: negative years follow too.
    const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    return leap ? 29 : 28;
}

int CDateTime::SetMonthNames(const std::vector<std::u16string> &names) {
    return Replace(Tables().months, names, kMonthCount - 1);
}

int CDateTime::SetWeekdayNames(const std::vector<std::u16string> &names) {
    return Replace(Tables().weekdays, names, kWeekdayCount - 1);
}

} // namespace zk::cal
