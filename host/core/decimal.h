// Internal to the core: the decoded form of a number record and the one path
// that turns a digit string into a canonical record.
#pragma once

#include <cstdint>

#include "hostnum.h"

namespace zkh::detail {

inline constexpr int kRecordBytes = 24;
// A record may hold up to 23 mantissa bytes when its length is above the
// canonical 15; reading keeps all of them.
inline constexpr int kMaxReadDigits = 2 * (kRecordBytes - 1);
inline constexpr int kMinExponent = -64;
inline constexpr int kMaxExponent = 63;

// value = (negative ? -1 : 1) * 0.d[0] d[1] ... d[count-1] * 10^exponent.
// After decode: d[0] != 0, d[count-1] != 0; zero has count 0, exponent 0 and
// is never negative.
struct Decimal {
    bool negative = false;
    int exponent = 0;
    int count = 0;
    uint8_t d[kMaxReadDigits] = {};
};

// False for null: length 0, above 24, or a nibble that is no decimal digit
// (a record nobody wrote with these routines).
bool decode(const uint8_t *digits, int length, Decimal &out);
inline bool decode(const HostNumber &n, Decimal &out) { return decode(n.digits, n.length, out); }

// Writes the canonical record of (negative, 0.digits * 10^exponent) to the 24
// bytes at out: leading zeros dropped, rounded half away from zero to
// kMaxDigits significant digits, trailing zeros dropped, unused bytes zeroed.
// Values too small for the exponent become zero. Returns the length, or 0 when
// the value is too large for the format (nothing is written then).
// `digits` holds values 0..9; any count is allowed.
int encode(bool negative, int exponent, const uint8_t *digits, int count, uint8_t *out);
int encode(const Decimal &value, uint8_t *out);

// Decimal value of the record's magnitude compared with b's: <0, 0, >0.
int CompareMagnitude(const Decimal &a, const Decimal &b);

// Exact a + b (b negated when `subtract`), then encode into out.
int AddDecimals(const Decimal &a, const Decimal &b, bool subtract, uint8_t *out);

// A record made by encode, as a HostNumber.
HostNumber MakeNumber(bool negative, int exponent, const uint8_t *digits, int count);

} // namespace zkh::detail
