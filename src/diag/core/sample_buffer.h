// The stopwatch's samples: one moveable block per process, from the start
// of a run to its report. Capacities are kept to 16 bits as they always
// were, so a run holds at most 81 samples; a sample that the cut capacity
// cannot hold is refused instead of written past the block.
#pragma once

#include <cstdint>
#include <vector>

#include "diag/core/sample.h"
#include "diag/core/system.h"

namespace zk::diag {

inline constexpr uint32_t kSampleBufferStart = 512;  // bytes of a new buffer
inline constexpr uint32_t kSampleBufferGrowth = 512; // bytes added beyond the sample that needs room

class SampleBuffer {
public:
    explicit SampleBuffer(Blocks &memory) : memory_(memory) {}
    ~SampleBuffer() { Release(); }
    SampleBuffer(const SampleBuffer &) = delete;
    SampleBuffer &operator=(const SampleBuffer &) = delete;

    bool Exists() const { return block_ != nullptr; }
    uint32_t Count() const { return count_; }
    uint32_t Used() const { return used_; }
    uint32_t Capacity() const { return capacity_; }

    // A new run: a new zero-filled block of 512 bytes, or the one there
    // emptied. False when no block can be had.
    bool Start();
    // One more sample; false without a block, or when the block cannot grow
    // or be locked.
    bool Add(uint32_t hundredths, const HostDateTime &clock, const char16_t *label);
    // The samples in order; false without a block or when it cannot be locked.
    bool Read(std::vector<Sample> &samples) const;
    // Frees the block; the count and the bytes used go to 0.
    void Release();

private:
    Blocks &memory_;
    Blocks::Handle block_ = nullptr;
    uint32_t capacity_ = 0;
    uint32_t used_ = 0;
    uint32_t count_ = 0;
};

} // namespace zk::diag
