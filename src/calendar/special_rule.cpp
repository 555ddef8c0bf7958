#include "calendar/special_rule.h"

#include <cstdio>

namespace zk::cal {

namespace {

constexpr uint32_t kYear = 1, kMonth = 2, kDay = 4, kWeekday = 8, kWeek = 16;

uint32_t KeyFields(int32_t type) {
    switch (type) {
    case SPECIAL_Date:
        return kYear | kMonth | kDay;
    case SPECIAL_Weekly:
        return kWeekday;
    case SPECIAL_MonthDay:
        return kDay;
    case SPECIAL_MonthWeekday:
        return kWeekday | kWeek;
    case SPECIAL_YearDay:
        return kMonth | kDay;
    case SPECIAL_YearWeekday:
        return kMonth | kWeekday | kWeek;
    default:
        return 0;
    }
}

} // namespace

SSpecialRule::SSpecialRule(int32_t type_, const CDateTime &date, int32_t weekday_, int32_t week_,
                           uint32_t textColor_, uint32_t backColor_)
    : type(type_), month(date.GetMonth()), day(date.GetDay()), year(date.GetYear()), weekday(weekday_),
      week(week_), backColor(backColor_), textColor(textColor_) {}

std::string SSpecialRule::Key() const {
    const uint32_t fields = KeyFields(type);
    auto pick = [fields](uint32_t field, int32_t value) { return (fields & field) ? value : 0; };
    char key[64];
    // "%04.4d%02.2d..." in the rule's own words: with a precision the 0
    // flag changes nothing, so the plain precision writes the same text.
    std::snprintf(key, sizeof key, "%.4d%.2d%.2d%.2d%.2d", pick(kYear, year), pick(kMonth, month),
                  pick(kDay, day), pick(kWeekday, weekday), pick(kWeek, week));
    return key;
}

bool IsEmptyKey(const std::string &key) { return key == "000000000000"; }

} // namespace zk::cal
