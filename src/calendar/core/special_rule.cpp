#include "calendar/core/special_rule.h"

#include <cstdint>
#include <string>

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

// "%.Nd" of value: a sign when negative, then at least `precision` digits.
void AppendField(std::string &out, int32_t value, int precision) {
    int64_t magnitude = value;
    if (magnitude < 0) {
        out += '-';
        magnitude = -magnitude;
    }
    char digits[16];
    int count = 0;
    do {
        digits[count++] = static_cast<char>('0' + magnitude % 10);
        magnitude /= 10;
    } while (magnitude > 0);
    for (int pad = count; pad < precision; ++pad)
        out += '0';
    while (count > 0)
        out += digits[--count];
}

} // namespace

SSpecialRule::SSpecialRule(int32_t type_, const CDateTime &date, int32_t weekday_, int32_t week_, uint32_t textColor_,
                           uint32_t backColor_)
    : type(type_), month(date.GetMonth()), day(date.GetDay()), year(date.GetYear()), weekday(weekday_), week(week_),
      backColor(backColor_), textColor(textColor_) {}

std::string SSpecialRule::Key() const {
    const uint32_t fields = KeyFields(type);
    auto pick = [fields](uint32_t field, int32_t value) { return (fields & field) ? value : 0; };
    // "%04.4d%02.2d%02.2d%02.2d%02.2d": with a precision the 0 flag changes
    // nothing, so each field is its digits, at least the precision of them,
    // after a minus sign when negative. Painting builds keys for every
    // cell, so they are written here rather than through the C library.
    std::string key;
    key.reserve(24);
    AppendField(key, pick(kYear, year), 4);
    AppendField(key, pick(kMonth, month), 2);
    AppendField(key, pick(kDay, day), 2);
    AppendField(key, pick(kWeekday, weekday), 2);
    AppendField(key, pick(kWeek, week), 2);
    return key;
}

bool IsEmptyKey(const std::string &key) { return key == "000000000000"; }

} // namespace zk::cal
