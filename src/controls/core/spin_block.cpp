#include "controls/core/spin_block.h"

namespace zk {

namespace {

void Put(uint8_t *at, int32_t value) {
    const auto v = static_cast<uint32_t>(value);
    for (int i = 0; i < 4; ++i)
        at[i] = static_cast<uint8_t>(v >> (8 * i));
}

} // namespace

std::array<uint8_t, kSpinImageBytes> SpinBlockImage(const SpinBlock &block) {
    std::array<uint8_t, kSpinImageBytes> image{};
    Put(&image[0], block.minimum);
    Put(&image[4], block.maximum);
    Put(&image[8], block.increment);
    Put(&image[12], block.decimalAdjust);
    return image; // bytes 16 and 17 stay zero
}

bool SpinBlockApply(const uint8_t *bytes, int64_t lockedLength, SpinBlock &block) {
    if (!bytes || lockedLength != kSpinStoredLength)
        return false;
    // The record as it lies in memory, overwritten byte by byte from the start.
    uint8_t record[16];
    Put(&record[0], block.minimum);
    Put(&record[4], block.maximum);
    Put(&record[8], block.increment);
    Put(&record[12], block.decimalAdjust);
    for (int i = 0; i < kSpinCopiedBytes; ++i)
        record[i] = bytes[i];
    auto get = [&](int at) {
        return static_cast<int32_t>(static_cast<uint32_t>(record[at]) | static_cast<uint32_t>(record[at + 1]) << 8 |
                                    static_cast<uint32_t>(record[at + 2]) << 16 |
                                    static_cast<uint32_t>(record[at + 3]) << 24);
    };
    block.minimum = get(0);
    block.maximum = get(4);
    block.increment = get(8);
    block.decimalAdjust = get(12);
    return true;
}

} // namespace zk
