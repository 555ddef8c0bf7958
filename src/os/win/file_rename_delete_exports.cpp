// ZelFileRename and ZelFileDelete.
#include "frame/win/guard.h"
#include "os/win/file_walk.h"

namespace {

using namespace zk::os;

int32_t Rename(const wchar_t *source, const wchar_t *destination) {
    // The matches are counted first, directories too: a file renamed within
    // its folder may come up again later in the same search, and must not
    // be renamed twice.
    int32_t total = 0;
    {
        FileWalk count(source);
        if (!count.Found())
            return count.error();
        while (count.Next())
            ++total;
    }
    FileWalk walk(source);
    if (!walk.Found())
        return walk.error();
    TargetMask targets;
    if (const int32_t code = targets.Read(destination, false))
        return code;

    int32_t renamed = 0;
    while (renamed < total && walk.Next()) {
        if (walk.IsDirectory())
            continue;
        const std::wstring target = targets.For(walk.entry().cFileName);
        if (!MoveFileW(walk.Path().c_str(), target.c_str()))
            return LastErrorCode();
        ++renamed;
    }
    return renamed;
}

int32_t Delete(const wchar_t *pattern) {
    FileWalk walk(pattern);
    if (!walk.Found())
        return walk.error();
    int32_t count = 0;
    while (walk.Next()) {
        if (walk.IsDirectory())
            continue;
        if (!DeleteFileW(walk.Path().c_str()))
            return LastErrorCode();
        ++count;
    }
    return count;
}

} // namespace

int32_t ZKAPI ZelFileRename(const wchar_t *source, const wchar_t *destination) {
    return PatternExport(source, destination, Rename);
}

int32_t ZKAPI ZelFileDelete(const wchar_t *pattern) {
    if (!pattern)
        return ZEL_INVALID_PARAMETER;
    return zk::Quietly([&] { return Delete(pattern); }, [] { return ZEL_NOT_ENOUGH_MEMORY; });
}
