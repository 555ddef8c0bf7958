// Internal to the core: date-times as (day, microsecond of the day) pairs.
#pragma once

#include <cstdint>
#include <string_view>

#include "hostnum.h"

namespace zkh::detail {

inline constexpr int64_t kMicrosPerDay = 86400000000;

// Proleptic Gregorian calendar, days counted from 1899-12-30 (day 0).
// month 1..12; day may run past the month, it simply counts on.
int64_t DaysFromCivil(int64_t year, int month, int64_t day);
void CivilFromDays(int64_t days, int64_t &year, int &month, int &day);

// The record of day + micros / kMicrosPerDay; micros in [0, kMicrosPerDay).
// Null when the year of that day does not fit an int.
HostDateTime DateFromDayMicros(int64_t days, int64_t micros);
// False for a null record and for values whose year does not fit an int.
bool DateToDayMicros(const HostDateTime &d, int64_t &days, int64_t &micros);
// dateToParts with a verdict: false (and all zero) when the record is null or
// out of range.
bool DatePartsOf(const HostDateTime &d, DateParts &parts);

// English names; month 1..12, weekday 0 Saturday .. 6 Friday.
std::u16string_view MonthName(int month);
std::u16string_view WeekdayName(int weekday);

} // namespace zkh::detail
