// ZelFileExpand: expands the files a pattern matches, compressed by the
// classic compress program or not, through the platform's LZ functions.
#include <windows.h>
#include <lzexpand.h>

#include "frame/win/guard.h"
#include "os/win/file_walk.h"

namespace {

using namespace zk::os;

// An LZ handle, closed when it goes out of scope.
class LzFile {
public:
    LzFile(std::wstring name, WORD style) {
        OFSTRUCT info{};
        info.cBytes = sizeof info;
        handle_ = LZOpenFileW(name.data(), &info, style);
    }
    ~LzFile() {
        if (handle_ >= 0)
            LZClose(handle_);
    }
    LzFile(const LzFile &) = delete;
    LzFile &operator=(const LzFile &) = delete;
    bool Valid() const { return handle_ >= 0; }
    INT get() const { return handle_; }

    // The platform's reason when there is one; otherwise the LZ error
    // itself, which is negative too.
    int32_t Error() const { return GetLastError() ? LastErrorCode() : handle_; }

private:
    INT handle_ = LZERROR_BADINHANDLE;
};

// The LZ open, when it cannot open a file, opens the file's compressed name
// instead (a.tx_ for a.txt): it would expand another file than the match,
// or create and empty another file than the target. Both are therefore
// opened here first, the target made: what cannot be opened fails before
// the LZ functions see it, and theirs then find what is there.
int32_t CheckOpens(HANDLE file) {
    if (file == INVALID_HANDLE_VALUE)
        return LastErrorCode();
    CloseHandle(file);
    return 0;
}

int32_t CheckSource(const std::wstring &source) {
    return CheckOpens(ZelFileOpenEx(source.c_str(), nullptr, 0, OF_SHARE_DENY_WRITE));
}

int32_t MakeTarget(const std::wstring &target) {
    return CheckOpens(CreateFileW(target.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                  OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
}

int32_t Expand(const wchar_t *source, const wchar_t *destination) {
    FileWalk walk(source);
    if (!walk.Found())
        return walk.error();
    TargetMask targets;
    if (const int32_t code = targets.Read(destination))
        return code;

    int32_t count = 0;
    while (walk.Next()) {
        if (walk.IsDirectory())
            continue;
        ++count;
        const std::wstring target = targets.For(walk.entry().cFileName);
        if (const int32_t code = CheckSource(walk.Path()))
            return code;
        SetLastError(0);
        const LzFile from(walk.Path(), OF_SHARE_DENY_WRITE);
        if (!from.Valid())
            return from.Error();
        if (const int32_t code = MakeTarget(target))
            return code;
        SetLastError(0);
        const LzFile to(target, OF_CREATE | OF_SHARE_DENY_WRITE | OF_WRITE);
        if (!to.Valid())
            return to.Error();
        SetLastError(0);
        const LONG copied = LZCopy(from.get(), to.get());
        if (copied < 0) {
            // Not a plain negated code: the platform's error times -100 tells
            // a failed expansion from a failed search. With no platform error
            // to scale, the LZ error stands, so that a failure never reads as
            // a count.
            const DWORD error = GetLastError();
            return error ? -100 * static_cast<int32_t>(error) : static_cast<int32_t>(copied);
        }
    }
    return count;
}

} // namespace

int32_t ZKAPI ZelFileExpand(const wchar_t *source, const wchar_t *destination) {
    return PatternExport(source, destination, Expand);
}
