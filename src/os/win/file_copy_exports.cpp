// ZelFileCopy: copies the files a pattern matches, as the shell's copy does.
#include "frame/win/guard.h"
#include "os/core/filesums.h"
#include "os/win/file_walk.h"

namespace {

using namespace zk::os;

int32_t Copy(const wchar_t *source, const wchar_t *destination) {
    FileWalk walk(source);
    if (!walk.Found())
        return walk.error();
    TargetMask target;
    if (const int32_t code = target.Read(destination))
        return code;

    // The space check is the copy's own estimate, in 32 bits; a drive that
    // cannot tell its free space gets nothing copied and no error.
    SpaceBudget space;
    if (!space.Read(destination))
        return 0;
    return TransferEach(walk, space, [&](const WIN32_FIND_DATAW &entry, FileHandle &from, TransferBuffer &buffer) {
        FileHandle to(CreateFileW(target.For(entry.cFileName).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                  CopyTargetAttributes(entry.dwFileAttributes), nullptr));
        if (!to.Valid())
            return LastErrorCode();
        if (const int32_t code = buffer.Move(from.get(), to.get(), FullSize(entry)))
            return code;
        FILETIME created, accessed, written;
        if (GetFileTime(from.get(), &created, &accessed, &written))
            SetFileTime(to.get(), &created, &accessed, &written);
        return 0;
    });
}

} // namespace

int32_t ZKAPI ZelFileCopy(const wchar_t *source, const wchar_t *destination) {
    return PatternExport(source, destination, Copy);
}
