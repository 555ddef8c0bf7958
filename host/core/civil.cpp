// The day-count calendar: proleptic Gregorian, any year, day 0 = 1899-12-30.
#include "datetime.h"

namespace zkh {
namespace detail {

namespace {

// 1970-01-01, where the era arithmetic below is anchored, is day 25569.
constexpr int64_t kUnixEpochDay = 25569;

int64_t FloorDiv(int64_t a, int64_t b) { return a / b - ((a % b != 0) && ((a < 0) != (b < 0))); }

} // namespace

// Eras of 400 years repeat exactly (146097 days); within an era the year is
// counted from March so that the leap day falls last.
int64_t DaysFromCivil(int64_t year, int month, int64_t day) {
    year -= month <= 2;
    const int64_t era = FloorDiv(year, 400);
    const int64_t yearOfEra = year - era * 400;
    const int64_t dayOfYear = (153 * (month > 2 ? month - 3 : month + 9) + 2) / 5 + day - 1;
    const int64_t dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return era * 146097 + dayOfEra - 719468 + kUnixEpochDay;
}

void CivilFromDays(int64_t days, int64_t &year, int &month, int &day) {
    const int64_t z = days - kUnixEpochDay + 719468;
    const int64_t era = FloorDiv(z, 146097);
    const int64_t dayOfEra = z - era * 146097;
    const int64_t yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const int64_t shiftedMonth = (5 * dayOfYear + 2) / 153;
    day = static_cast<int>(dayOfYear - (153 * shiftedMonth + 2) / 5 + 1);
    month = static_cast<int>(shiftedMonth < 10 ? shiftedMonth + 3 : shiftedMonth - 9);
    year = yearOfEra + era * 400 + (month <= 2);
}

std::u16string_view MonthName(int month) {
    static constexpr std::u16string_view names[] = {u"January",   u"February", u"March",    u"April",
                                                    u"May",       u"June",     u"July",     u"August",
                                                    u"September", u"October",  u"November", u"December"};
    return month >= 1 && month <= 12 ? names[month - 1] : std::u16string_view{};
}

std::u16string_view WeekdayName(int weekday) {
    static constexpr std::u16string_view names[] = {u"Saturday",  u"Sunday",   u"Monday", u"Tuesday",
                                                    u"Wednesday", u"Thursday", u"Friday"};
    return weekday >= 0 && weekday <= 6 ? names[weekday] : std::u16string_view{};
}

} // namespace detail

int DaysInMonth(int year, int month) {
    static constexpr int lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (month < 1 || month > 12)
        return 0;
    if (month != 2)
        return lengths[month - 1];
    // Mathematical divisibility: the remainder test is sign-blind for zero.
    const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    return leap ? 29 : 28;
}

} // namespace zkh
