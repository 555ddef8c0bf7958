// A rule that colours the dates it matches: one date, a weekday of every
// week, a day or a weekday-of-week of every month or of one month a year.
#pragma once

#include <cstdint>
#include <string>

#include "calendar/core/datetime.h"
#include "zklib/calendar.h" // the kinds: SPECIAL_Date ..

namespace zk::cal {

struct SSpecialRule {
    int32_t type = 0; // SPECIAL_Date .. SPECIAL_YearWeekday
    int32_t month = 0;
    int32_t day = 0;
    int32_t year = 0;
    int32_t weekday = 0; // 1 Sunday .. 7 Saturday
    int32_t week = 0;    // 1 for days 1 to 7, 2 for days 8 to 14, ...
    uint32_t backColor = 0;
    uint32_t textColor = 0;

    SSpecialRule() = default;
    // Month, day and year come from the date.
    SSpecialRule(int32_t type, const CDateTime &date, int32_t weekday, int32_t week, uint32_t textColor,
                 uint32_t backColor);

    // "%04.4d%02.2d%02.2d%02.2d%02.2d" of year, month, day, weekday and week,
    // each field 0 unless the kind keys on it. The kinds key on different
    // sets of fields, so the type itself need not be in the key; a type
    // outside the six kinds keys on nothing.
    std::string Key() const;
};

// Whether a key is the one of no kind: such a rule never matches a date.
bool IsEmptyKey(const std::string &key);

} // namespace zk::cal
