// A file in memory: the medium of property blocks between a control and the
// design item that stores them. It grows in steps of a fixed size and reads
// and writes at one position, as a disk file would.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace zk {

// A memory file cannot seek before its start, nor grow past what can be
// addressed or allocated.
struct FileException {
    enum Cause { badSeek, diskFull };
    Cause cause;
};

class CMemFile {
public:
    enum SeekFrom { begin, current, end };

    explicit CMemFile(size_t growBytes = 1024);

    size_t GetLength() const { return data_.size(); }
    size_t GetPosition() const { return position_; }
    void SeekToBegin() { position_ = 0; }
    // A position past the end is allowed; writing there fills the gap with zeros.
    size_t Seek(int64_t offset, SeekFrom from);

    // Up to count bytes from the position; fewer (or none) at the end.
    size_t Read(void *buffer, size_t count);
    // Bytes at the position, growing the file as needed.
    void Write(const void *bytes, size_t count);
    void SetLength(size_t length);

    // All bytes of the file, and those from the position on.
    const uint8_t *Data() const { return data_.data(); }
    size_t Remaining() const { return position_ < data_.size() ? data_.size() - position_ : 0; }

private:
    void Reserve(size_t length);

    std::vector<uint8_t> data_;
    size_t position_ = 0;
    size_t growBytes_;
};

} // namespace zk
