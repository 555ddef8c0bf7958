// One stopwatch sample as it lies in the sample buffer, packed one after
// the other: the ticks in hundredths of a second (4 bytes, little-endian),
// the host's clock (a 25-byte date-time) and a label field of 384 wide
// characters holding at most 254 and a terminator.
#pragma once

#include <cstdint>
#include <string>

#include "zkrecord.h"

namespace zk::diag {

inline constexpr uint32_t kLabelChars = 384;
inline constexpr uint32_t kLabelLimit = 254;
inline constexpr uint32_t kClockOffset = 4;
inline constexpr uint32_t kLabelOffset = kClockOffset + sizeof(HostDateTime);
inline constexpr uint32_t kSampleBytes = kLabelOffset + 2 * kLabelChars; // 797

struct Sample {
    uint32_t hundredths = 0;
    HostDateTime clock{};
    std::u16string label;
};

// Writes a sample at `at` (kSampleBytes bytes); the label is cut to 254
// characters, a null label is empty, the rest of the field is zero.
void WriteSample(uint8_t *at, uint32_t hundredths, const HostDateTime &clock, const char16_t *label);

// Reads the sample at `at`; the label ends at its terminator or at the end of its field.
Sample ReadSample(const uint8_t *at);

} // namespace zk::diag
