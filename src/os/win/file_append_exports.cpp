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
        FileHandle to(OpenDestination(destination, entry.dwFileAttributes));
        if (!to.Valid())
            return LastErrorCode();
        if (!SetFilePointerEx(to.get(), LARGE_INTEGER{}, nullptr, FILE_END))
            return LastErrorCode();
        if (const int32_t code = buffer.Move(from.get(), to.get(), FullSize(entry)))
            return code;
    }
    return count;
}

} // namespace

int32_t ZKAPI ZelFileAppend(const wchar_t *source, const wchar_t *destination) {
    if (!source || !destination)
        return ZEL_INVALID_PARAMETER;
    return zk::Quietly([&] { return Append(source, destination); }, [] { return ZEL_NOT_ENOUGH_MEMORY; });
}
