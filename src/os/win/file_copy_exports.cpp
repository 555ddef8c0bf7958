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
    std::wstring outDir, outName;
    if (const int32_t code = AbsoluteTarget(destination, outDir, outName))
        return code;
    const std::wstring mask = outName.empty() ? std::wstring(L"*.*") : outName;

    // The space check is the copy's own estimate, in 32 bits; a drive that
    // cannot tell its free space gets nothing copied and no error.
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
        const std::wstring target = outDir + ZelPathApplyMask(entry.cFileName, mask);
        FileHandle to(CreateFileW(target.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                  CopyTargetAttributes(entry.dwFileAttributes), nullptr));
        if (!to.Valid())
            return LastErrorCode();
        if (const int32_t code = buffer.Move(from.get(), to.get(), FullSize(entry)))
            return code;
        FILETIME created, accessed, written;
        if (GetFileTime(from.get(), &created, &accessed, &written))
            SetFileTime(to.get(), &created, &accessed, &written);
    }
    return count;
}

} // namespace

int32_t ZKAPI ZelFileCopy(const wchar_t *source, const wchar_t *destination) {
    if (!source || !destination)
        return ZEL_INVALID_PARAMETER;
    return zk::Quietly([&] { return Copy(source, destination); }, [] { return ZEL_NOT_ENOUGH_MEMORY; });
}
