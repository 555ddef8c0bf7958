// Number exports over the core's decimal arithmetic: conversions to and
// from machine values with range checks, text, comparison.
#include <cmath>
#include <cstdint>
#include <limits>

#include "core/hostnum.h"
#include "guard.h"
#include "text16.h"
#include "zkhost.h"

using namespace hostwin;

namespace {

// A record that the core may read: its length lies within the digits.
bool Readable(const HostNumber *n) { return n && n->length <= sizeof(n->digits); }

HostNumber *Store(HostNumber *out, int64_t value) {
    if (out)
        *out = zkh::NumberFromInt64(value);
    return out;
}

template <class T>
int32_t ToInteger(const HostNumber *number, T *value) {
    int64_t v = 0;
    bool ok = Readable(number) && !zkh::IsNull(*number) && zkh::NumberToInt64(*number, v) &&
              v >= std::numeric_limits<T>::min() && v <= std::numeric_limits<T>::max();
    if (value)
        *value = ok ? static_cast<T>(v) : T(0);
    return ok ? 1 : 0;
}

} // namespace

extern "C" {

HostNumber *ZKAPI HostNumberFromShort(int32_t value, HostNumber *out) {
    return Store(out, static_cast<int16_t>(value));
}

HostNumber *ZKAPI HostNumberFromUShort(uint32_t value, HostNumber *out) {
    return Store(out, static_cast<uint16_t>(value));
}

HostNumber *ZKAPI HostNumberFromLong(int32_t value, HostNumber *out) { return Store(out, value); }

HostNumber *ZKAPI HostNumberFromULong(uint32_t value, HostNumber *out) { return Store(out, value); }

// Infinities and NaN have no decimal form: they give the null number.
HostNumber *ZKAPI HostNumberFromDouble(double value, HostNumber *out) {
    if (out)
        *out = Guard(HostNumber{}, [&] { return std::isfinite(value) ? zkh::NumberFromDouble(value) : HostNumber{}; });
    return out;
}

int32_t ZKAPI HostNumberToShort(const HostNumber *number, int16_t *value) { return ToInteger(number, value); }

int32_t ZKAPI HostNumberToUShort(const HostNumber *number, uint16_t *value) { return ToInteger(number, value); }

int32_t ZKAPI HostNumberToLong(const HostNumber *number, int32_t *value) { return ToInteger(number, value); }

int32_t ZKAPI HostNumberToULong(const HostNumber *number, uint32_t *value) { return ToInteger(number, value); }

int32_t ZKAPI HostNumberToDouble(const HostNumber *number, double *value) {
    bool ok = Readable(number) && !zkh::IsNull(*number);
    if (value)
        *value = ok ? zkh::NumberToDouble(*number) : 0.0;
    return ok ? 1 : 0;
}

int32_t ZKAPI HostNumberFromText(HostNumber *number, const wchar_t *text) {
    return Guard<int32_t>(0, [&] {
        if (!number)
            return 0;
        HostNumber parsed{};
        bool ok = text && zkh::NumberFromText(ToCore(text), parsed);
        *number = ok ? parsed : HostNumber{};
        return ok ? 1 : 0;
    });
}

// Unreadable records and null pointers compare as the null number.
int32_t ZKAPI HostNumberCompare(const HostNumber *a, const HostNumber *b) {
    const HostNumber null{};
    return zkh::NumberCompare(Readable(a) ? *a : null, Readable(b) ? *b : null);
}

HostNumber *ZKAPI HostStrToNumber(HostNumber *out, const wchar_t *text) {
    HostNumberFromText(out, text);
    return out;
}

int32_t ZKAPI HostStrIsValidNumber(const wchar_t *text) {
    return Guard<int32_t>(0, [&] {
        HostNumber parsed{};
        return text && zkh::NumberFromText(ToCore(text), parsed) ? 1 : 0;
    });
}

} // extern "C"
