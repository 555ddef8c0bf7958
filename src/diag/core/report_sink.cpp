#include "diag/core/report_sink.h"

#include <algorithm>
#include <cstring>

namespace zk::diag {
namespace {

// A block that holds `capacity` characters, or `chars` when there are more,
// and a terminator.
uint64_t BlockBytes(uint64_t capacity, uint64_t chars) { return 2 * std::max(capacity, chars) + 2; }

constexpr uint64_t kMaxBlock = UINT32_MAX;

} // namespace

bool ReportSink::Open() {
    if (!gather_)
        return true;
    Drop();
    const uint64_t bytes = BlockBytes(kReportStart, 0);
    block_ = system_.Memory().Alloc(static_cast<uint32_t>(bytes));
    if (!block_)
        return false;
    blockBytes_ = bytes;
    capacity_ = kReportStart;
    return true;
}

void ReportSink::Put(const char16_t *piece) {
    if (!piece)
        piece = u"";
    if (!gather_) {
        system_.Debug(piece);
        return;
    }
    const uint64_t length = std::char_traits<char16_t>::length(piece);
    if (!block_ || ((length_ + length) & 0xFFFF) > capacity_)
        Restart(piece, length);
    else
        Append(piece, length);
}

void ReportSink::Append(const char16_t *piece, uint64_t length) {
    // Only a sum that wrapped in 16 bits can need more than the block holds.
    const uint64_t bytes = BlockBytes(capacity_, length_ + length);
    if (bytes > blockBytes_) {
        if (bytes > kMaxBlock)
            return;
        Blocks::Handle moved = system_.Memory().ReAlloc(block_, static_cast<uint32_t>(bytes));
        if (!moved)
            return;
        block_ = moved;
        blockBytes_ = bytes;
    }
    Write(piece, length);
}

void ReportSink::Restart(const char16_t *piece, uint64_t length) {
    Drop();
    const uint32_t capacity = static_cast<uint32_t>((capacity_ + kReportGrowth + 2 * length) & 0xFFFF);
    const uint64_t bytes = BlockBytes(capacity, length);
    if (bytes > kMaxBlock)
        return;
    block_ = system_.Memory().Alloc(static_cast<uint32_t>(bytes));
    if (!block_)
        return;
    blockBytes_ = bytes;
    capacity_ = capacity;
    Write(piece, length);
}

void ReportSink::Write(const char16_t *piece, uint64_t length) {
    Locked locked(system_.Memory(), block_);
    if (!locked)
        return;
    std::memcpy(locked.text() + length_, piece, length * sizeof(char16_t));
    length_ += length;
    locked.text()[length_] = 0;
}

void ReportSink::Show(uint32_t captionId) {
    if (!gather_)
        return;
    {
        Locked locked(system_.Memory(), block_);
        system_.Box(locked ? locked.text() : u"", captionId);
    }
    Drop();
}

std::u16string ReportSink::Text() const {
    Locked locked(system_.Memory(), block_);
    return locked ? std::u16string(locked.text(), length_) : std::u16string();
}

void ReportSink::Drop() {
    if (block_)
        system_.Memory().Free(block_);
    block_ = nullptr;
    blockBytes_ = 0;
    length_ = 0;
}

} // namespace zk::diag
