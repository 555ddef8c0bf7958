// The BCD record and exact sums on it.
#include "decimal.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace zkh {
namespace detail {

namespace {

constexpr uint8_t kSignBit = 0x80;
constexpr int kExponentBias = 64;

// Widest aligned sum: exponents span -64..63, each side brings up to 46
// digits, plus a carry digit.
constexpr int kSumDigits = (kMaxExponent - kMinExponent + 1) + kMaxReadDigits + 2;

} // namespace

bool decode(const uint8_t *digits, int length, Decimal &out) {
    out = Decimal{};
    if (length <= 0 || length > kRecordBytes || digits == nullptr)
        return false;
    const bool negative = (digits[0] & kSignBit) != 0;
    int exponent = (digits[0] & 0x7F) - kExponentBias;
    int count = 0;
    for (int i = 1; i < length; ++i) {
        const uint8_t high = digits[i] >> 4, low = digits[i] & 0x0F;
        if (high > 9 || low > 9)
            return false;
        out.d[count++] = high;
        out.d[count++] = low;
    }
    // Tolerate records with leading zero digits: each one lowers the exponent.
    int first = 0;
    while (first < count && out.d[first] == 0)
        ++first;
    while (count > first && out.d[count - 1] == 0)
        --count;
    if (first == count)
        return true; // zero, whatever sign or exponent it was written with
    if (first > 0) {
        std::memmove(out.d, out.d + first, static_cast<size_t>(count - first));
        count -= first;
        exponent -= first;
    }
    if (exponent < kMinExponent) // only a malformed record gets here
        return true;
    out.negative = negative;
    out.exponent = exponent;
    out.count = count;
    return true;
}

int encode(bool negative, int exponent, const uint8_t *digits, int count, uint8_t *out) {
    int first = 0;
    while (first < count && digits[first] == 0)
        ++first;
    uint8_t kept[kMaxDigits + 1];
    int n = 0;
    if (first < count) {
        exponent -= first;
        n = std::min(count - first, kMaxDigits);
        std::memcpy(kept, digits + first, static_cast<size_t>(n));
        // Half away from zero: only the first dropped digit decides.
        if (count - first > kMaxDigits && digits[first + kMaxDigits] >= 5) {
            int i = n - 1;
            while (i >= 0 && kept[i] == 9)
                kept[i--] = 0;
            if (i >= 0) {
                ++kept[i];
            } else {
                kept[0] = 1;
                n = 1;
                ++exponent;
            }
        }
        while (n > 0 && kept[n - 1] == 0)
            --n;
    }
    if (n > 0 && exponent > kMaxExponent)
        return 0;
    if (n == 0 || exponent < kMinExponent) {
        negative = false;
        exponent = 0;
        n = 0;
    }
    std::memset(out, 0, kRecordBytes);
    out[0] = static_cast<uint8_t>((negative ? kSignBit : 0) | (exponent + kExponentBias));
    for (int i = 0; i < n; ++i)
        out[1 + i / 2] |= static_cast<uint8_t>(i % 2 == 0 ? kept[i] << 4 : kept[i]);
    return 1 + (n + 1) / 2;
}

int encode(const Decimal &value, uint8_t *out) {
    return encode(value.negative, value.exponent, value.d, value.count, out);
}

HostNumber MakeNumber(bool negative, int exponent, const uint8_t *digits, int count) {
    HostNumber n{};
    n.length = static_cast<uint8_t>(encode(negative, exponent, digits, count, n.digits));
    return n;
}

int CompareMagnitude(const Decimal &a, const Decimal &b) {
    if (a.count == 0 || b.count == 0)
        return (a.count != 0) - (b.count != 0);
    if (a.exponent != b.exponent)
        return a.exponent < b.exponent ? -1 : 1;
    const int n = std::min(a.count, b.count);
    for (int i = 0; i < n; ++i)
        if (a.d[i] != b.d[i])
            return a.d[i] < b.d[i] ? -1 : 1;
    return (a.count > b.count) - (a.count < b.count);
}

int AddDecimals(const Decimal &a, const Decimal &b, bool subtract, uint8_t *out) {
    const bool bNegative = b.count != 0 && (b.negative != subtract);
    if (b.count == 0)
        return encode(a, out);
    if (a.count == 0)
        return encode(bNegative, b.exponent, b.d, b.count, out);

    // Align both on one digit grid: index j weighs 10^(top - 1 - j).
    const int top = std::max(a.exponent, b.exponent) + 1;
    const int bottom = std::min(a.exponent - a.count, b.exponent - b.count);
    const int width = top - bottom;
    uint8_t x[kSumDigits] = {}, y[kSumDigits] = {};
    for (int i = 0; i < a.count; ++i)
        x[top - a.exponent + i] = a.d[i];
    for (int i = 0; i < b.count; ++i)
        y[top - b.exponent + i] = b.d[i];

    uint8_t sum[kSumDigits] = {};
    bool negative = a.negative;
    if (a.negative == bNegative) {
        int carry = 0;
        for (int j = width - 1; j >= 0; --j) {
            const int v = x[j] + y[j] + carry;
            sum[j] = static_cast<uint8_t>(v % 10);
            carry = v / 10;
        }
    } else {
        const uint8_t *big = x, *small = y;
        if (CompareMagnitude(a, b) < 0) {
            std::swap(big, small);
            negative = bNegative;
        }
        int borrow = 0;
        for (int j = width - 1; j >= 0; --j) {
            int v = big[j] - small[j] - borrow;
            borrow = v < 0;
            sum[j] = static_cast<uint8_t>(v + (borrow ? 10 : 0));
        }
    }
    return encode(negative, top, sum, width, out);
}

} // namespace detail

using detail::Decimal;

bool IsNull(const HostNumber &n) { return n.length == 0; }

HostNumber NumberZero() { return detail::MakeNumber(false, 0, nullptr, 0); }

HostNumber NumberFromInt64(int64_t value) {
    uint64_t magnitude = value < 0 ? 0 - static_cast<uint64_t>(value) : static_cast<uint64_t>(value);
    uint8_t digits[20];
    int n = 0;
    uint8_t reversed[20];
    do {
        reversed[n++] = static_cast<uint8_t>(magnitude % 10);
        magnitude /= 10;
    } while (magnitude != 0);
    for (int i = 0; i < n; ++i)
        digits[i] = reversed[n - 1 - i];
    return detail::MakeNumber(value < 0, n, digits, n);
}

bool NumberToInt64(const HostNumber &n, int64_t &out) {
    out = 0;
    Decimal v;
    if (!detail::decode(n, v))
        return false;
    if (v.count == 0 || v.exponent <= 0)
        return true;
    if (v.exponent > 19)
        return false;
    const uint64_t limit = v.negative ? uint64_t{1} << 63 : (uint64_t{1} << 63) - 1;
    uint64_t magnitude = 0;
    for (int i = 0; i < v.exponent; ++i) {
        const unsigned digit = i < v.count ? v.d[i] : 0;
        if (magnitude > (limit - digit) / 10)
            return false;
        magnitude = magnitude * 10 + digit;
    }
    out = v.negative ? static_cast<int64_t>(0 - magnitude) : static_cast<int64_t>(magnitude);
    return true;
}

int NumberCompare(const HostNumber &a, const HostNumber &b) {
    Decimal x, y;
    const bool hasX = detail::decode(a, x), hasY = detail::decode(b, y);
    if (!hasX || !hasY)
        return hasX - hasY;
    const int signX = x.count == 0 ? 0 : (x.negative ? -1 : 1);
    const int signY = y.count == 0 ? 0 : (y.negative ? -1 : 1);
    if (signX != signY)
        return signX < signY ? -1 : 1;
    const int magnitude = detail::CompareMagnitude(x, y);
    return signX < 0 ? -magnitude : magnitude;
}

namespace {

int SumRecords(uint8_t *out, const uint8_t *a, int aLength, const uint8_t *b, int bLength, bool subtract) {
    if (out == nullptr)
        return 0;
    Decimal x, y; // null (and unreadable) operands stay zero
    detail::decode(a, aLength, x);
    detail::decode(b, bLength, y);
    return detail::AddDecimals(x, y, subtract, out);
}

} // namespace

int NumberAdd(uint8_t *out, const uint8_t *a, int aLength, const uint8_t *b, int bLength) {
    return SumRecords(out, a, aLength, b, bLength, false);
}

int NumberSubtract(uint8_t *out, const uint8_t *a, int aLength, const uint8_t *b, int bLength) {
    return SumRecords(out, a, aLength, b, bLength, true);
}

} // namespace zkh
