// Bit and byte exports of the number family.
#include "frame/win/host.h"
#include "text/core/number_bits.h"

uint32_t ZKAPI ZelNumberBitSet(uint32_t *word, uint32_t mask) {
    if (!word)
        return 0;
    *word = zk::text::BitSet(*word, mask);
    return *word;
}

uint32_t ZKAPI ZelNumberBitClear(uint32_t *word, uint32_t mask) {
    if (!word)
        return 0;
    *word = zk::text::BitClear(*word, mask);
    return *word;
}

uint32_t ZKAPI ZelNumberHighByte(uint32_t value) { return zk::text::HighByte(value); }
uint8_t ZKAPI ZelNumberLowByte(uint32_t value) { return zk::text::LowByte(value); }
uint32_t ZKAPI ZelNumberMakeLong(uint16_t low, uint16_t high) { return zk::text::MakeLong(low, high); }
