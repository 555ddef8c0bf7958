// Bit and byte helpers on 32-bit words for a host whose numbers are decimal.
#pragma once

#include <cstdint>

namespace zk::text {

constexpr uint32_t BitSet(uint32_t word, uint32_t mask) { return word | mask; }
constexpr uint32_t BitClear(uint32_t word, uint32_t mask) { return word & ~mask; }
// All 24 bits above the low byte, not just the second byte.
constexpr uint32_t HighByte(uint32_t value) { return value >> 8; }
constexpr uint8_t LowByte(uint32_t value) { return static_cast<uint8_t>(value & 0xFFu); }
// Only the low 16 bits of each half count.
constexpr uint32_t MakeLong(uint32_t low, uint32_t high) { return ((high & 0xFFFFu) << 16) | (low & 0xFFFFu); }

} // namespace zk::text
