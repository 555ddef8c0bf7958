#include "diag/core/sample_buffer.h"

namespace zk::diag {

bool SampleBuffer::Start() {
    if (!block_) {
        block_ = memory_.Alloc(kSampleBufferStart);
        if (!block_)
            return false;
        capacity_ = kSampleBufferStart;
    }
    count_ = 0;
    used_ = 0;
    return true;
}

bool SampleBuffer::Add(uint32_t hundredths, const HostDateTime &clock, const char16_t *label) {
    if (!block_)
        return false;
    const uint64_t needed = uint64_t{used_} + kSampleBytes;
    if (needed > capacity_) {
        // The new capacity keeps its low 16 bits only. Past 64 KB that cut
        // falls below what the samples need: the sample is refused, and the
        // block keeps the samples it has.
        const auto grown = static_cast<uint32_t>((needed + kSampleBufferGrowth) & 0xFFFF);
        if (grown < needed)
            return false;
        Blocks::Handle moved = memory_.ReAlloc(block_, grown);
        if (!moved)
            return false;
        block_ = moved;
        capacity_ = grown;
    }
    Locked locked(memory_, block_);
    if (!locked)
        return false;
    WriteSample(locked.bytes() + used_, hundredths, clock, label);
    used_ += kSampleBytes;
    ++count_;
    return true;
}

bool SampleBuffer::Read(std::vector<Sample> &samples) const {
    samples.clear();
    Locked locked(memory_, block_);
    if (!locked)
        return false;
    samples.reserve(count_);
    for (uint32_t i = 0; i < count_; ++i)
        samples.push_back(ReadSample(locked.bytes() + uint64_t{i} * kSampleBytes));
    return true;
}

void SampleBuffer::Release() {
    if (block_)
        memory_.Free(block_);
    block_ = nullptr;
    capacity_ = 0;
    used_ = 0;
    count_ = 0;
}

} // namespace zk::diag
