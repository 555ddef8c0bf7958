// Date-time values over the host's record. Every conversion between the
// record and years, months, days, weekdays or text is the host's; these
// classes add a copyable value that steps by days, the length of a month,
// the process-wide month and weekday names, and the canonical key text.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "zkrecord.h"

namespace zk::cal {

// The canonical text of a date: fixed-width fields from the year down, so
// that the ordinal order of two texts is the order of the dates.
inline constexpr char16_t kDefaultPicture[] = u"yyyy-MM-dd-hh.mm.ss.mmmmmm";

class CDateTimeSpan;

class CDateTime {
public:
    CDateTime();                           // the present moment
    CDateTime(const HostDateTime &record); // length byte cleaned to its low four bits
    CDateTime(const CDateTime &other);
    // Always midnight: hour, minute and second are accepted and dropped.
    CDateTime(int32_t year, int32_t month, int32_t day, int32_t hour = 0, int32_t minute = 0, int32_t second = 0);

    CDateTime &operator=(const HostDateTime &record);
    CDateTime &operator=(const CDateTime &other);

    static CDateTime Now();
    void SetNow(); // the host's record as it comes, length byte and all

    int32_t GetYear() const;
    int32_t GetMonth() const;
    int32_t GetDay() const;
    int32_t GetWeekday() const; // 1 Sunday .. 7 Saturday
    void GetRecord(HostDateTime *out) const;
    const HostDateTime &Record() const { return value_; }
    bool IsNull() const { return (value_.length & 0x0F) == 0; }

    std::u16string Format(const char16_t *picture) const;
    std::u16string KeyText() const { return Format(kDefaultPicture); }
    // 1 and the new value, or 0 and the old one when the text is no date.
    int Parse(const char16_t *text);

    CDateTime NextDay() const;
    CDateTime PreviousDay() const;
    CDateTime &Increment();
    CDateTime &Decrement();
    CDateTime &operator++();
    // Hands back the advanced value, as the prefix form does.
    CDateTime operator++(int);

    CDateTime operator+(const CDateTimeSpan &span) const;
    CDateTime &operator+=(const CDateTimeSpan &span);
    CDateTimeSpan operator-(const CDateTime &other) const;

    // The name tables: index 0 holds "NULL WEEKDAY" and "NULL MONTH"; an
    // index outside a table raises InvalidArgException.
    static std::u16string WeekdayName(int32_t index);
    static std::u16string MonthName(int32_t index);
    // Gregorian for every year, negative ones included. Month 1 to 12; any
    // other month answers 0.
    static int32_t DaysInMonth(int32_t year, int32_t month);
    // At least 12 (7) names replace table indices 1 to 12 (1 to 7): 1. Fewer
    // names, or no memory: 0, and the table as it was.
    static int SetMonthNames(const std::vector<std::u16string> &names);
    static int SetWeekdayNames(const std::vector<std::u16string> &names);

private:
    struct Raw {};
    CDateTime(Raw, const HostDateTime &record) : value_(record) {}
    int32_t DigitsLength() const { return value_.length & 0x0F; }
    CDateTime Plus(double days) const;

    HostDateTime value_{};
};

class CDateTimeSpan {
public:
    CDateTimeSpan() = default; // all 25 bytes zero
    CDateTimeSpan(const CDateTimeSpan &other) = default;
    // `days` days in the host's own form; hours, minutes and seconds are
    // accepted and dropped.
    CDateTimeSpan(int32_t days, int32_t hours, int32_t minutes, int32_t seconds);
    CDateTimeSpan &operator=(const CDateTimeSpan &other) = default;

    CDateTimeSpan &AddDays(int32_t count);
    int32_t GetDays() const;
    void GetRecord(HostNumber *out) const;
    const HostNumber &Record() const { return value_; }

private:
    friend class CDateTime;
    HostNumber value_{};
};

namespace detail {
// Fills the name tables once per process; the first CDateTime built calls it.
void EnsureNameTables();
} // namespace detail

} // namespace zk::cal
