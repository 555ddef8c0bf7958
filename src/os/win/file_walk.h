// What the pattern-driven file exports have in common: the walk over the
// files a pattern matches, handles and the transfer buffer that close and
// free themselves on every path, the error code of a failed platform call,
// the destination made absolute, the free space of its drive.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

#include "frame/win/guard.h"
#include "os/win/files.h"

namespace zk::os {

// -GetLastError(), or -1 for a failure that left no error number (a count
// of 0 must not stand for a failure).
int32_t LastErrorCode();

// The matches of a pattern, one at a time. The directory's own entries "."
// and ".." are passed over: they are links of the listing, not matches.
class FileWalk {
public:
    explicit FileWalk(const wchar_t *pattern);
    ~FileWalk();
    FileWalk(const FileWalk &) = delete;
    FileWalk &operator=(const FileWalk &) = delete;

    // Whether the first search found something; otherwise error() tells why.
    bool Found() const { return search_ != INVALID_HANDLE_VALUE; }
    int32_t error() const { return error_; }

    // Moves to the first match, then to each next one; false at the end of
    // the search, whatever ended it.
    bool Next();

    const WIN32_FIND_DATAW &entry() const { return entry_; }
    bool IsDirectory() const { return (entry_.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0; }
    // The match's path: the pattern's folder and the name found.
    std::wstring Path() const { return dir_ + entry_.cFileName; }
    const std::wstring &dir() const { return dir_; }

private:
    HANDLE search_ = INVALID_HANDLE_VALUE;
    WIN32_FIND_DATAW entry_{};
    std::wstring dir_;
    int32_t error_ = 0;
    bool pending_ = false; // the first search's entry has not been handed out
};

// A file handle closed when it goes out of scope.
class FileHandle {
public:
    explicit FileHandle(HANDLE handle = INVALID_HANDLE_VALUE) : handle_(handle) {}
    ~FileHandle() { Close(); }
    FileHandle(const FileHandle &) = delete;
    FileHandle &operator=(const FileHandle &) = delete;
    bool Valid() const { return handle_ != INVALID_HANDLE_VALUE && handle_ != nullptr; }
    HANDLE get() const { return handle_; }
    void Close() {
        if (Valid())
            CloseHandle(handle_);
        handle_ = INVALID_HANDLE_VALUE;
    }

private:
    HANDLE handle_;
};

// The call's one transfer buffer, freed at the end of the call.
class TransferBuffer {
public:
    TransferBuffer() = default;
    ~TransferBuffer() {
        if (block_)
            GlobalFree(block_);
    }
    TransferBuffer(const TransferBuffer &) = delete;
    TransferBuffer &operator=(const TransferBuffer &) = delete;

    // Copies the rest of source to destination; 0 or a negative code.
    int32_t Move(HANDLE source, HANDLE destination, uint64_t fileSize);

private:
    HGLOBAL block_ = nullptr;
};

// The destination of a copy or a rename: its folder and the mask each
// match's name goes through ("*.*" when it names no file).
class TargetMask {
public:
    // 0 or the negative code of ZelPathSplitTarget. A destination without a
    // folder is taken in the current directory, made absolute for a copy;
    // a rename keeps it relative (`absolute` false).
    int32_t Read(const wchar_t *destination, bool absolute = true);
    std::wstring For(const wchar_t *name) const { return dir_ + ZelPathApplyMask(name, mask_); }

private:
    std::wstring dir_, mask_;
};

// The copy's own estimate of the space left on the destination's drive (the
// current drive if it names none): free bytes counted in 32 bits, from which
// each file's low 32 bits of size are taken.
class SpaceBudget {
public:
    // False when the drive cannot tell its free space.
    bool Read(const wchar_t *destination);
    // Takes the file's share; false (and nothing taken) when it does not fit.
    bool Take(const WIN32_FIND_DATAW &entry) {
        if (entry.nFileSizeLow > freeBytes_)
            return false;
        freeBytes_ -= entry.nFileSizeLow;
        return true;
    }

private:
    uint32_t freeBytes_ = 0;
};

inline uint64_t FullSize(const WIN32_FIND_DATAW &entry) {
    return static_cast<uint64_t>(entry.nFileSizeHigh) << 32 | entry.nFileSizeLow;
}

// The loop that the copy and the append share: each file the walk finds
// (folders passed over) is counted, takes its share of the space budget and
// is opened for reading; then `write(entry, from, buffer)` puts it in place.
// The count, or the first negative code.
template <class Write>
int32_t TransferEach(FileWalk &walk, SpaceBudget &space, Write write) {
    TransferBuffer buffer;
    int32_t count = 0;
    while (walk.Next()) {
        if (walk.IsDirectory())
            continue;
        ++count;
        const WIN32_FIND_DATAW &entry = walk.entry();
        if (!space.Take(entry))
            return ZEL_DISK_FULL;
        FileHandle from(ZelFileOpenEx(walk.Path().c_str(), nullptr, 0, OF_SHARE_DENY_WRITE));
        if (!from.Valid())
            return LastErrorCode();
        if (const int32_t code = write(entry, from, buffer))
            return code;
    }
    return count;
}

// The pattern exports' one answer to a missing argument and to running out
// of memory half-way.
template <class Body>
int32_t PatternExport(const wchar_t *source, const wchar_t *destination, Body body) {
    if (!source || !destination)
        return ZEL_INVALID_PARAMETER;
    return zk::Quietly([&] { return body(source, destination); }, [] { return ZEL_NOT_ENOUGH_MEMORY; });
}

} // namespace zk::os
