#include "os/win/file_walk.h"

#include "os/core/filesums.h"
#include "zklib.h"

namespace zk::os {

int32_t LastErrorCode() {
    const DWORD error = GetLastError();
    return error ? -static_cast<int32_t>(error) : -1;
}

FileWalk::FileWalk(const wchar_t *pattern) : dir_(ZelPathGetDir(pattern)) {
    search_ = FindFirstFileW(pattern, &entry_);
    if (search_ == INVALID_HANDLE_VALUE)
        error_ = LastErrorCode();
    else
        pending_ = true;
}

FileWalk::~FileWalk() {
    if (search_ != INVALID_HANDLE_VALUE)
        FindClose(search_);
}

bool FileWalk::Next() {
    if (search_ == INVALID_HANDLE_VALUE)
        return false;
    for (;;) {
        if (pending_)
            pending_ = false;
        else if (!FindNextFileW(search_, &entry_))
            return false;
        const wchar_t *name = entry_.cFileName;
        const bool dotEntry = name[0] == L'.' && (name[1] == 0 || (name[1] == L'.' && name[2] == 0));
        if (!dotEntry)
            return true;
    }
}

int32_t TransferBuffer::Move(HANDLE source, HANDLE destination, uint64_t fileSize) {
    uint32_t size = 0;
    if (const int32_t code = ZelFileBufferEnsure(fileSize, block_, size))
        return code;
    void *bytes = GlobalLock(block_);
    if (!bytes)
        return ZEL_NOT_ENOUGH_MEMORY;
    const int32_t code = ZelFileCopyData(source, destination, bytes, size);
    GlobalUnlock(block_);
    return code;
}

int32_t TargetMask::Read(const wchar_t *destination, bool absolute) {
    int32_t code = ZelPathSplitTarget(destination, dir_, mask_);
    if (!code && dir_.empty() && absolute) {
        const DWORD length = GetCurrentDirectoryW(0, nullptr);
        std::wstring absolute(length, L'\\');
        absolute.resize(GetCurrentDirectoryW(length, absolute.data()));
        // The root of a drive already ends in a backslash.
        if (absolute.empty() || absolute.back() != L'\\')
            absolute += L'\\';
        absolute += destination;
        code = ZelPathSplitTarget(absolute, dir_, mask_);
    }
    if (!code && mask_.empty())
        mask_ = L"*.*";
    return code;
}

bool SpaceBudget::Read(const wchar_t *destination) {
    // The drive as the destination gives it, as the runtime's path splitter
    // finds it: the two characters of "X:", or none for the current drive.
    std::wstring root;
    if (destination[0] && destination[1] == L':')
        root.assign(destination, 2);
    root += L'\\';
    DWORD sectorsPerCluster = 0, bytesPerSector = 0, freeClusters = 0, clusters = 0;
    if (!GetDiskFreeSpaceW(root.c_str(), &sectorsPerCluster, &bytesPerSector, &freeClusters, &clusters))
        return false;
    freeBytes_ = FreeBytes32(sectorsPerCluster, bytesPerSector, freeClusters);
    return true;
}

} // namespace zk::os
