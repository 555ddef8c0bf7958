#include "frame/core/memfile.h"

#include <cstring>
#include <limits>

namespace zk {

CMemFile::CMemFile(size_t growBytes) : growBytes_(growBytes ? growBytes : 1) {}

void CMemFile::Reserve(size_t length) {
    if (length <= data_.capacity())
        return;
    // Whole steps, so a file written piece by piece is moved seldom.
    const size_t steps = length / growBytes_ + (length % growBytes_ ? 1 : 0);
    if (steps > std::numeric_limits<size_t>::max() / growBytes_ || steps * growBytes_ > data_.max_size())
        throw FileException{FileException::diskFull};
    try {
        data_.reserve(steps * growBytes_);
    } catch (...) {
        throw FileException{FileException::diskFull};
    }
}

size_t CMemFile::Seek(int64_t offset, SeekFrom from) {
    int64_t base = 0;
    if (from == current)
        base = static_cast<int64_t>(position_);
    else if (from == end)
        base = static_cast<int64_t>(data_.size());
    if ((offset < 0 && base + offset < 0) || (offset > 0 && base > std::numeric_limits<int64_t>::max() - offset))
        throw FileException{FileException::badSeek};
    const int64_t target = base + offset;
    if (static_cast<uint64_t>(target) > std::numeric_limits<size_t>::max())
        throw FileException{FileException::badSeek};
    position_ = static_cast<size_t>(target);
    return position_;
}

size_t CMemFile::Read(void *buffer, size_t count) {
    const size_t n = count < Remaining() ? count : Remaining();
    if (n) {
        std::memcpy(buffer, data_.data() + position_, n);
        position_ += n;
    }
    return n;
}

void CMemFile::Write(const void *bytes, size_t count) {
    if (!count)
        return;
    if (count > std::numeric_limits<size_t>::max() - position_)
        throw FileException{FileException::diskFull};
    const size_t last = position_ + count;
    if (last > data_.size()) {
        Reserve(last);
        data_.resize(last); // a gap after a seek past the end reads as zeros
    }
    std::memcpy(data_.data() + position_, bytes, count);
    position_ = last;
}

void CMemFile::SetLength(size_t length) {
    if (length > data_.size())
        Reserve(length);
    data_.resize(length);
    if (position_ > length)
        position_ = length;
}

} // namespace zk
