// Sums on the digit arrays of numbers and date-times. The operands are
// copied first, so the result may overwrite either of them.
#include <cmath>
#include <cstdint>
#include <cstring>

#include "core/hostnum.h"
#include "zkhost.h"

namespace {

constexpr int kDigitBytes = sizeof(HostNumber{}.digits);

// Copies an operand; false when its length does not fit the digits.
bool Operand(const uint8_t *digits, int32_t length, uint8_t (&copy)[kDigitBytes]) {
    std::memset(copy, 0, sizeof copy);
    if (length < 0 || length > kDigitBytes || (length > 0 && !digits))
        return false;
    if (length > 0)
        std::memcpy(copy, digits, size_t(length));
    return true;
}

} // namespace

extern "C" {

int32_t ZKAPI HostNumberAdd(uint8_t *out, const uint8_t *a, int32_t aLength, const uint8_t *b, int32_t bLength) {
    uint8_t x[kDigitBytes], y[kDigitBytes];
    if (!out || !Operand(a, aLength, x) || !Operand(b, bLength, y))
        return 0;
    return zkh::NumberAdd(out, x, aLength, y, bLength);
}

int32_t ZKAPI HostNumberSubtract(uint8_t *out, const uint8_t *a, int32_t aLength, const uint8_t *b, int32_t bLength) {
    uint8_t x[kDigitBytes], y[kDigitBytes];
    if (!out || !Operand(a, aLength, x) || !Operand(b, bLength, y))
        return 0;
    return zkh::NumberSubtract(out, x, aLength, y, bLength);
}

int32_t ZKAPI HostNumberAddDouble(uint8_t *out, const uint8_t *a, int32_t aLength, double b) {
    uint8_t x[kDigitBytes];
    if (!out || !std::isfinite(b) || !Operand(a, aLength, x))
        return 0;
    return zkh::NumberAddDouble(out, x, aLength, b);
}

} // extern "C"
