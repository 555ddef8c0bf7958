// Where the stopwatch's report goes: piece by piece to the debugger, or
// gathered in a moveable block for one message box.
//
// The gathered text keeps the arithmetic it always had: when the length of
// the text and the new piece in characters, cut to 16 bits, is above the
// capacity in bytes, the block is given up for a new one of (capacity + 512
// + 2 * piece length) bytes cut to 16 bits, and the text gathered so far is
// lost: only the new piece stands. Characters are compared with bytes, so
// the block is made large enough to hold `capacity` characters (and the text
// however long) and is never written past.
#pragma once

#include <cstdint>
#include <string>

#include "diag/core/system.h"

namespace zk::diag {

inline constexpr uint32_t kReportStart = 512;  // capacity of a new report
inline constexpr uint32_t kReportGrowth = 512; // added to the capacity for a new block

class ReportSink {
public:
    ReportSink(System &system, bool gather) : system_(system), gather_(gather) {}
    ~ReportSink() { Drop(); }
    ReportSink(const ReportSink &) = delete;
    ReportSink &operator=(const ReportSink &) = delete;

    bool Gathers() const { return gather_; }
    // Gathering: a block of capacity 512 holding no text. False when it
    // cannot be had. Going to the debugger needs nothing.
    bool Open();
    // One piece: to the debugger at once, or added to the gathered text; a
    // block that cannot be had drops the piece.
    void Put(const char16_t *piece);
    // Gathering: the text in a box captioned by string `captionId`, then the
    // block is freed.
    void Show(uint32_t captionId);

    uint32_t Capacity() const { return capacity_; }
    std::u16string Text() const;

private:
    void Append(const char16_t *piece, uint64_t length);
    void Restart(const char16_t *piece, uint64_t length);
    // Copies the piece after the text gathered so far, with a terminator.
    void Write(const char16_t *piece, uint64_t length);
    void Drop();

    System &system_;
    bool gather_;
    Blocks::Handle block_ = nullptr;
    uint64_t blockBytes_ = 0;
    uint32_t capacity_ = 0;
    uint64_t length_ = 0; // characters gathered
};

} // namespace zk::diag
