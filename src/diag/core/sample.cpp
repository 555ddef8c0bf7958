#include "diag/core/sample.h"

#include <cstring>

namespace zk::diag {

void WriteSample(uint8_t *at, uint32_t hundredths, const HostDateTime &clock, const char16_t *label) {
    for (int i = 0; i < 4; ++i)
        at[i] = static_cast<uint8_t>(hundredths >> (8 * i));
    std::memcpy(at + kClockOffset, &clock, sizeof clock);
    uint8_t *field = at + kLabelOffset;
    std::memset(field, 0, 2 * kLabelChars);
    for (uint32_t i = 0; label && i < kLabelLimit && label[i]; ++i) {
        field[2 * i] = static_cast<uint8_t>(label[i]);
        field[2 * i + 1] = static_cast<uint8_t>(label[i] >> 8);
    }
}

Sample ReadSample(const uint8_t *at) {
    Sample sample;
    for (int i = 0; i < 4; ++i)
        sample.hundredths |= static_cast<uint32_t>(at[i]) << (8 * i);
    std::memcpy(&sample.clock, at + kClockOffset, sizeof sample.clock);
    const uint8_t *field = at + kLabelOffset;
    for (uint32_t i = 0; i < kLabelChars; ++i) {
        const auto c = static_cast<char16_t>(field[2 * i] | field[2 * i + 1] << 8);
        if (!c)
            break;
        sample.label += c;
    }
    return sample;
}

} // namespace zk::diag
