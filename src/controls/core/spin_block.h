// The spin field's design-time record: the one block without an archive.
// Four i32 in a row, stored on the design item as an 18-byte host buffer:
// the 16 bytes of the record and a 16-bit zero after them.
#pragma once

#include <array>
#include <cstdint>

namespace zk {

struct SpinBlock {
    int32_t minimum = 1;
    int32_t maximum = 0x7FFFFFFF;
    int32_t increment = 1;
    int32_t decimalAdjust = 0;
};

inline constexpr int32_t kSpinImageBytes = 18;
// What the host gives back for an image of 18 bytes (one byte less).
inline constexpr int32_t kSpinStoredLength = 17;
// Bytes taken from a stored record: the top byte of decimalAdjust is not.
inline constexpr int32_t kSpinCopiedBytes = 15;

// The buffer handed to the host: the record, little-endian, then two zeros.
std::array<uint8_t, kSpinImageBytes> SpinBlockImage(const SpinBlock &block);

// Copies the first 15 bytes of a stored record over block when the host's
// locked length is exactly 17; any other length copies nothing. True when
// bytes were copied. The top byte of decimalAdjust keeps what block held.
bool SpinBlockApply(const uint8_t *bytes, int64_t lockedLength, SpinBlock &block);

} // namespace zk
