// Date-times as numbers: whole days plus the time of day as an exact decimal
// fraction, kept to the microsecond.
#include <climits>

#include "datetime.h"
#include "decimal.h"

namespace zkh {
namespace detail {

namespace {

constexpr int kLengthMask = 0x0F;
// Long division of a day's microseconds: 28 significant digits plus the
// rounding digit, after at most ten leading zeros.
constexpr int kFractionDigits = 40;

int64_t FloorDiv(int64_t a, int64_t b) { return a / b - ((a % b != 0) && ((a < 0) != (b < 0))); }
int64_t FloorMod(int64_t a, int64_t b) { return a - FloorDiv(a, b) * b; }

// The days whose year fits an int.
int64_t FirstDay() {
    static const int64_t day = DaysFromCivil(INT_MIN, 1, 1);
    return day;
}
int64_t LastDay() {
    static const int64_t day = DaysFromCivil(INT_MAX, 12, 31);
    return day;
}

int AppendDigits(uint64_t value, uint8_t *out) {
    uint8_t reversed[20];
    int n = 0;
    while (value != 0) {
        reversed[n++] = static_cast<uint8_t>(value % 10);
        value /= 10;
    }
    for (int i = 0; i < n; ++i)
        out[i] = reversed[n - 1 - i];
    return n;
}

} // namespace

HostDateTime DateFromDayMicros(int64_t days, int64_t micros) {
    if (days < FirstDay() || days > LastDay() || micros < 0 || micros >= kMicrosPerDay)
        return HostDateTime{};
    // Magnitude whole + part / kMicrosPerDay: before day 0 the fraction counts
    // back from the next whole day.
    bool negative = days < 0;
    uint64_t whole = static_cast<uint64_t>(negative ? -days : days);
    int64_t part = micros;
    if (negative && micros != 0) {
        --whole;
        part = kMicrosPerDay - micros;
    }
    uint8_t digits[20 + kFractionDigits];
    const int wholeDigits = AppendDigits(whole, digits);
    int count = wholeDigits;
    for (int i = 0; i < kFractionDigits; ++i) {
        part *= 10;
        digits[count++] = static_cast<uint8_t>(part / kMicrosPerDay);
        part %= kMicrosPerDay;
    }
    return MakeNumber(negative, wholeDigits, digits, count);
}

bool DateToDayMicros(const HostDateTime &d, int64_t &days, int64_t &micros) {
    days = micros = 0;
    Decimal v;
    if (!decode(d.digits, d.length & kLengthMask, v))
        return false;
    if (v.count == 0)
        return true;
    // Beyond 10^13 days no year fits an int.
    if (v.exponent > 13)
        return false;
    int64_t whole = 0;
    for (int i = 0; i < v.exponent; ++i)
        whole = whole * 10 + (i < v.count ? v.d[i] : 0);
    // The fraction's digits times the microseconds of a day, from the last
    // digit up: the carry ends as the whole microseconds, the last remainder
    // is the first digit after them.
    const int fractionStart = v.exponent; // index of the first fraction digit; may be negative
    int64_t carry = 0;
    int roundingDigit = 0;
    for (int i = v.count - 1; i >= fractionStart && i >= 0; --i) {
        const int64_t c = v.d[i] * kMicrosPerDay + carry;
        carry = c / 10;
        roundingDigit = static_cast<int>(c % 10);
    }
    // Leading zeros of a fraction below 0.1 shift it further down.
    for (int i = -1; i >= fractionStart; --i) {
        roundingDigit = static_cast<int>(carry % 10);
        carry /= 10;
    }
    const int64_t rounded = carry + (roundingDigit >= 5);
    days = v.negative ? -whole : whole;
    micros = v.negative ? -rounded : rounded;
    days += FloorDiv(micros, kMicrosPerDay);
    micros = FloorMod(micros, kMicrosPerDay);
    if (days < FirstDay() || days > LastDay()) {
        days = micros = 0;
        return false;
    }
    return true;
}

bool DatePartsOf(const HostDateTime &d, DateParts &parts) {
    parts = DateParts{};
    int64_t days = 0, micros = 0;
    if (DateIsNull(d) || !DateToDayMicros(d, days, micros))
        return false;
    int64_t year = 0;
    CivilFromDays(days, year, parts.month, parts.day);
    parts.year = static_cast<int>(year);
    parts.hour = static_cast<int>(micros / 3600000000);
    parts.minute = static_cast<int>(micros / 60000000 % 60);
    parts.second = static_cast<int>(micros / 1000000 % 60);
    parts.microsecond = static_cast<int>(micros % 1000000);
    parts.weekday = static_cast<int>(FloorMod(days, 7)); // day 0 was a Saturday
    return true;
}

} // namespace detail

bool DateIsNull(const HostDateTime &d) { return (d.length & 0x0F) == 0; }

HostDateTime DateFromParts(int year, int month, int day, int hour, int minute, int second, int microsecond) {
    using detail::kMicrosPerDay;
    const int64_t monthIndex = static_cast<int64_t>(month) - 1;
    const int64_t fullYear = year + detail::FloorDiv(monthIndex, 12);
    const int normalMonth = static_cast<int>(detail::FloorMod(monthIndex, 12)) + 1;
    // Each product stays below 2^63 even for extreme ints, and so does the sum.
    const int64_t micros =
        hour * int64_t{3600000000} + minute * int64_t{60000000} + second * int64_t{1000000} + microsecond;
    if (fullYear < INT_MIN - int64_t{1} || fullYear > INT_MAX + int64_t{1})
        return HostDateTime{};
    const int64_t days = detail::DaysFromCivil(fullYear, normalMonth, day) + detail::FloorDiv(micros, kMicrosPerDay);
    return detail::DateFromDayMicros(days, detail::FloorMod(micros, kMicrosPerDay));
}

DateParts DateToParts(const HostDateTime &d) {
    DateParts parts;
    detail::DatePartsOf(d, parts);
    return parts;
}

} // namespace zkh
