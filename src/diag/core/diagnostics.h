// The application's diagnostics: assertion box, debug output gated by a
// level, and the stopwatch. One object per process holds the flags, the
// level and the samples; nothing here is reentrant, by design.
#pragma once

#include <cstdint>

#include "diag/core/debug_flags.h"
#include "diag/core/sample_buffer.h"
#include "diag/core/system.h"

namespace zk::diag {

class Diagnostics {
public:
    explicit Diagnostics(System &system) : system_(system), samples_(system.Memory()) {}

    // A zero condition shows "name: text" (the active window's name) in a
    // box captioned "Assertion Failure", or the name alone when the block
    // for the text cannot be had. Always 1.
    int32_t Assert(int32_t condition, const char16_t *text);
    // 0 when the level is above the debug level; else the text to the box
    // captioned "Debug", or to the debugger with a line feed, and 1.
    int32_t String(const char16_t *text, uint16_t level);
    // Adds (set nonzero) or removes the bits; the flags as they are then.
    uint32_t SetFlags(uint32_t flags, int32_t set);
    uint32_t Flags() const { return flags_; }
    int32_t SetLevel(uint16_t level);
    uint16_t Level() const { return level_; }

    // A new run with its first sample, of no label: 1, or 0.
    int32_t BeginTime();
    // One more sample: 1, or 0 (no run, or no room).
    int32_t SetTime(const char16_t *text);
    // Reports the run and ends it: 1, or 0 with the samples kept (level too
    // high, no run, or a block that cannot be had).
    int32_t EndTime(const char16_t *text, uint16_t level);

    const SampleBuffer &Samples() const { return samples_; }

private:
    bool Record(const char16_t *label);

    System &system_;
    uint32_t flags_ = kInitialFlags;
    uint16_t level_ = 0;
    SampleBuffer samples_;
};

} // namespace zk::diag
