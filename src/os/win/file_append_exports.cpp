// ZelFileAppend: adds the files a pattern matches to the end of one file.
#include "frame/win/guard.h"
#include "os/win/file_walk.h"

namespace {

using namespace zk::os;

// The destination opened for writing at its end; made with the first
// source's attributes as they stand when it does not exist yet.
HANDLE OpenDestination(const wchar_t *destination, DWORD sourceAttributes) {
    HANDLE handle = ZelFileOpenEx(destination, nullptr, 0, OF_WRITE);
    if (handle == INVALID_HANDLE_VALUE && GetLastError() == ERROR_FILE_NOT_FOUND)
        handle = CreateFileW(destination, GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, CREATE_NEW,
                             sourceAttributes & ~FILE_ATTRIBUTE_DIRECTORY, nullptr);
    return handle;
}

int32_t Append(const wchar_t *source, const wchar_t *destination) {
    FileWalk walk(source);
    if (!walk.Found())
        return walk.error();
    SpaceBudget space;
    if (!space.Read(destination))
        return 0;
    return TransferEach(walk, space, [&](const WIN32_FIND_DATAW &entry, FileHandle &from, TransferBuffer &buffer) {
        FileHandle to(OpenDestination(destination, entry.dwFileAttributes));
        if (!to.Valid())
            return LastErrorCode();
        if (!SetFilePointerEx(to.get(), LARGE_INTEGER{}, nullptr, FILE_END))
            return LastErrorCode();
        return buffer.Move(from.get(), to.get(), FullSize(entry));
    });
}

} // namespace

int32_t ZKAPI ZelFileAppend(const wchar_t *source, const wchar_t *destination) {
    return PatternExport(source, destination, Append);
}
