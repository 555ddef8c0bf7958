// Decimal numbers and date-times of the reference host, on the 25-byte
// record. Portable: the Win32 exports of zkhost.dll are thin layers over this.
//
// Number format (the 24 digit bytes; `length` counts the significant ones):
//   digits[0]  bit 7: sign (1 negative); bits 0-6: decimal exponent + 64
//   digits[1..] packed BCD mantissa, two digits a byte, high nibble first,
//              value = 0.d1 d2 d3 ... * 10^(exponent), d1 != 0,
//              trailing zero digits dropped (a last odd digit leaves a 0 nibble).
//   Zero is length 1, digits[0] = 0x40 (exponent 0, no mantissa): a value, not null.
// So equal values have equal bytes, and the longest record, 28 significant
// digits, is 15 bytes long: it fits the four-bit length of a date-time.
//
// Date-times are numbers of days since 1899-12-30 00:00 (a Saturday), the
// time of day as the fraction, kept to the microsecond.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "zkrecord.h"

namespace zkh {

inline constexpr int kMaxDigits = 28;

// ---- numbers ---------------------------------------------------------------
bool IsNull(const HostNumber &n); // length 0
HostNumber NumberZero();
HostNumber NumberFromInt64(int64_t value);
HostNumber NumberFromDouble(double value); // rounded to 15 significant digits
// False (and out null) for no number, and for 10^63 and beyond.
bool NumberFromText(std::u16string_view text, HostNumber &out);
std::u16string NumberToText(const HostNumber &n); // plain notation, "" for null
double NumberToDouble(const HostNumber &n);       // null gives 0
// Truncates toward zero; false when null or out of the int64 range.
bool NumberToInt64(const HostNumber &n, int64_t &out);
// <0, 0, >0. Null equals null and orders below every value.
int NumberCompare(const HostNumber &a, const HostNumber &b);
// Exact sums on the digit arrays (null reads as 0); results rounded to
// kMaxDigits significant digits. They return the new length: 0 (null) when the
// result reaches 10^63, the top of the exponent range; results below 10^-65
// become zero.
int NumberAdd(uint8_t *out, const uint8_t *a, int aLength, const uint8_t *b, int bLength);
int NumberSubtract(uint8_t *out, const uint8_t *a, int aLength, const uint8_t *b, int bLength);
int NumberAddDouble(uint8_t *out, const uint8_t *a, int aLength, double b);

// ---- date-times --------------------------------------------------------------
struct DateParts {
    int year = 0, month = 0, day = 0;
    int hour = 0, minute = 0, second = 0, microsecond = 0;
    int weekday = 0; // 0 Saturday, 1 Sunday .. 6 Friday
};

// The length byte of a date-time counts in its low four bits only.
bool DateIsNull(const HostDateTime &d);
// Any field out of its range rolls over into the next larger one
// (day 32 of January is the 1st of February). The Gregorian rule holds for every year;
// null when the resulting year does not fit an int.
HostDateTime DateFromParts(int year, int month, int day, int hour, int minute, int second, int microsecond = 0);
DateParts DateToParts(const HostDateTime &d); // null (or a year beyond int) gives all zero
int DaysInMonth(int year, int month);         // 0 for a month outside 1..12

// Pictures: yyyy yy MMMM MMM MM M dddd ddd dd d hh h HH mm ss mmmmmm AMPM;
// hh is the 12-hour clock when AMPM is present. Other characters are copied;
// text in double quotes is copied without the quotes.
std::u16string DateFormat(const HostDateTime &d, std::u16string_view picture);
bool PictureIsValid(std::u16string_view picture);
// The usual date texts: "yyyy-MM-dd[-hh.mm.ss[.ffffff]]", ISO with a space or
// T and colons, "MM/dd/yyyy [hh:mm[:ss] [AM|PM]]", "d MMMM yyyy", "MMMM d, yyyy",
// and a time alone. Colon times are h[h]:mm[:ss[.ffffff]] [AM|PM] and may follow
// the last three forms too; month names are English, full or three letters, in
// any case. A time alone falls on day 0. False (and a null date) for anything
// else or an invalid date.
bool DateParse(std::u16string_view text, HostDateTime &out);

} // namespace zkh
