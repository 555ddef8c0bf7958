// Special rules: the first kind that matches a date gives its colours, in
// the order date, weekly, day of month, weekday of month, day of year,
// weekday of year.
#include <new>

#include "calendar/core/calendar_model.h"

namespace zk::cal {

int CalendarModel::GetCellSpecial(int32_t cell, uint32_t *textColor, uint32_t *backColor, int32_t, int32_t,
                                  const CDateTime *date) const {
    if (textColor)
        *textColor = 0;
    if (backColor)
        *backColor = 0;
    // Paint asks for every cell: an empty store answers before any date is made.
    if (flags_.showSpecial != 1 || rules_.empty())
        return 0;
    const CDateTime day = date ? *date : CellToDate(cell);
    const int32_t weekday = day.GetWeekday();
    const int32_t dayOfMonth = day.GetDay();
    const int32_t week = dayOfMonth > 0 ? (dayOfMonth - 1) / 7 + 1 : 0;
    return MatchSpecial(SSpecialRule(0, day, weekday, week, 0, 0), textColor, backColor);
}

int CalendarModel::GetDaySpecial(int32_t year, int32_t month, int32_t day, int32_t weekday, uint32_t *textColor,
                                 uint32_t *backColor) const {
    if (textColor)
        *textColor = 0;
    if (backColor)
        *backColor = 0;
    if (flags_.showSpecial != 1 || rules_.empty())
        return 0;
    SSpecialRule probe;
    probe.year = year;
    probe.month = month;
    probe.day = day;
    probe.weekday = weekday;
    probe.week = day > 0 ? (day - 1) / 7 + 1 : 0;
    return MatchSpecial(probe, textColor, backColor);
}

int CalendarModel::MatchSpecial(const SSpecialRule &rule, uint32_t *textColor, uint32_t *backColor) const {
    if (textColor)
        *textColor = 0;
    if (backColor)
        *backColor = 0;
    if (rules_.empty())
        return 0;
    // The caller's type plays no part: every kind is tried in turn.
    SSpecialRule probe = rule;
    for (int32_t type = SPECIAL_Date; type <= SPECIAL_YearWeekday; ++type) {
        probe.type = type;
        const std::string key = probe.Key();
        if (IsEmptyKey(key))
            continue;
        const auto found = rules_.find(key);
        if (found != rules_.end()) {
            if (textColor)
                *textColor = found->second.textColor;
            if (backColor)
                *backColor = found->second.backColor;
            return 1;
        }
    }
    return 0;
}

int CalendarModel::SetSpecialRule(const SSpecialRule &rule, int add) {
    if (add != 0 && add != 1)
        return 0;
    try {
        std::string key = rule.Key();
        if (add == 1)
            // A second rule of the same key replaces the first: a colour change.
            rules_.insert_or_assign(std::move(key), rule);
        else if (rules_.erase(key) == 0)
            return 0;
    } catch (const std::bad_alloc &) {
        Notify(CALN_OutOfMemory);
        return 0;
    }
    if (Created()) {
        if (rule.type == SPECIAL_Date)
            InvalidateCell(DateToCell(CDateTime(rule.year, rule.month, rule.day, 0, 0, 0)));
        else
            Invalidate(Area::Grid);
        UpdateNow();
    }
    return 1;
}

int CalendarModel::ClearSpecials(int updateNow) {
    const bool had = !rules_.empty();
    rules_.clear();
    if (had && Created()) {
        Invalidate(Area::Grid);
        if (updateNow == 1)
            UpdateNow();
    }
    return 1;
}

} // namespace zk::cal
