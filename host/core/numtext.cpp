// Numbers to and from text and doubles.
#include <charconv>
#include <cmath>
#include <string>

#include "decimal.h"

namespace zkh {

using detail::Decimal;

namespace {

bool IsSpace(char16_t c) { return c == u' ' || c == u'\t'; }
bool IsDigit(char16_t c) { return c >= u'0' && c <= u'9'; }

// Exponents beyond this are far outside the format whatever the digits;
// clamping keeps the sum of the parts from overflowing.
constexpr long kExponentClamp = 100000;

} // namespace

bool NumberFromText(std::u16string_view text, HostNumber &out) {
    out = HostNumber{};
    size_t i = 0, end = text.size();
    while (i < end && IsSpace(text[i]))
        ++i;
    while (end > i && IsSpace(text[end - 1]))
        --end;
    bool negative = false;
    if (i < end && (text[i] == u'+' || text[i] == u'-'))
        negative = text[i++] == u'-';

    // Only the first kMaxDigits + 1 significant digits are kept: rounding half
    // away from zero looks at no further digit.
    uint8_t digits[kMaxDigits + 1];
    int kept = 0;
    long integerDigits = 0; // significant digits before the point
    long leadingFractionZeros = 0;
    bool anyDigit = false, seenPoint = false;
    for (; i < end; ++i) {
        const char16_t c = text[i];
        if (c == u'.' && !seenPoint) {
            seenPoint = true;
            continue;
        }
        if (!IsDigit(c))
            break;
        anyDigit = true;
        const uint8_t digit = static_cast<uint8_t>(c - u'0');
        if (kept == 0 && digit == 0) {
            if (seenPoint && leadingFractionZeros < kExponentClamp)
                ++leadingFractionZeros;
            continue;
        }
        if (kept < kMaxDigits + 1)
            digits[kept++] = digit;
        if (!seenPoint && integerDigits < kExponentClamp)
            ++integerDigits;
    }
    if (!anyDigit)
        return false;

    long exponent = 0;
    if (i < end && (text[i] == u'e' || text[i] == u'E')) {
        ++i;
        bool negativeExponent = false;
        if (i < end && (text[i] == u'+' || text[i] == u'-'))
            negativeExponent = text[i++] == u'-';
        if (i == end || !IsDigit(text[i]))
            return false;
        for (; i < end && IsDigit(text[i]); ++i)
            if (exponent < kExponentClamp)
                exponent = exponent * 10 + (text[i] - u'0');
        if (negativeExponent)
            exponent = -exponent;
    }
    if (i != end)
        return false;
    if (kept == 0) {
        out = NumberZero();
        return true;
    }
    // Value is 0.digits * 10^(integerDigits - leadingFractionZeros + exponent).
    long scale = integerDigits - leadingFractionZeros + exponent;
    if (scale > detail::kMaxExponent + 1)
        return false; // even after rounding it cannot fit
    if (scale < detail::kMinExponent - 1) {
        out = NumberZero();
        return true;
    }
    out = detail::MakeNumber(negative, static_cast<int>(scale), digits, kept);
    return out.length != 0;
}

std::u16string NumberToText(const HostNumber &n) {
    Decimal v;
    if (!detail::decode(n, v))
        return {};
    if (v.count == 0)
        return u"0";
    std::u16string text;
    if (v.negative)
        text += u'-';
    auto digit = [&](int i) { return static_cast<char16_t>(u'0' + (i < v.count ? v.d[i] : 0)); };
    if (v.exponent <= 0) {
        text += u"0.";
        text.append(static_cast<size_t>(-v.exponent), u'0');
        for (int i = 0; i < v.count; ++i)
            text += digit(i);
        return text;
    }
    for (int i = 0; i < v.exponent; ++i)
        text += digit(i);
    if (v.count > v.exponent) {
        text += u'.';
        for (int i = v.exponent; i < v.count; ++i)
            text += digit(i);
    }
    return text;
}

double NumberToDouble(const HostNumber &n) {
    Decimal v;
    if (!detail::decode(n, v) || v.count == 0)
        return 0.0;
    // "-0.ddd...e±xx": from_chars rounds correctly, whatever the C runtime.
    char text[kMaxDigits * 2 + 16];
    char *p = text;
    if (v.negative)
        *p++ = '-';
    *p++ = '0';
    *p++ = '.';
    for (int i = 0; i < v.count; ++i)
        *p++ = static_cast<char>('0' + v.d[i]);
    *p++ = 'e';
    p = std::to_chars(p, text + sizeof text, v.exponent).ptr;
    double result = 0.0;
    std::from_chars(text, p, result);
    return result;
}

HostNumber NumberFromDouble(double value) {
    if (!std::isfinite(value))
        return HostNumber{};
    if (value == 0.0)
        return NumberZero();
    // Fifteen significant digits: every decimal of up to fifteen digits comes
    // back as itself, which is what users typed.
    char text[40];
    const auto result = std::to_chars(text, text + sizeof text, value, std::chars_format::scientific, 14);
    if (result.ec != std::errc{})
        return HostNumber{};
    const char *p = text;
    const bool negative = *p == '-';
    if (negative)
        ++p;
    uint8_t digits[15];
    int count = 0;
    for (; p < result.ptr && *p != 'e'; ++p)
        if (*p >= '0' && *p <= '9' && count < 15)
            digits[count++] = static_cast<uint8_t>(*p - '0');
    int exponent = 0;
    if (p < result.ptr) {
        ++p;
        if (*p == '+')
            ++p;
        std::from_chars(p, result.ptr, exponent);
    }
    // d.ddd * 10^e is 0.dddd * 10^(e + 1).
    return detail::MakeNumber(negative, exponent + 1, digits, count);
}

int NumberAddDouble(uint8_t *out, const uint8_t *a, int aLength, double b) {
    if (out == nullptr)
        return 0;
    const HostNumber addend = NumberFromDouble(b);
    if (IsNull(addend))
        return 0; // not a number, or beyond the format
    Decimal x, y;
    detail::decode(a, aLength, x);
    detail::decode(addend, y);
    return detail::AddDecimals(x, y, false, out);
}

} // namespace zkh
