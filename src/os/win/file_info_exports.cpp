// ZelFileGetAttribute, ZelFileSetAttribute, ZelFileGetSize, ZelFileGetType.
#include <windows.h>
#include <shellapi.h>

#include <cwchar>
#include <string>

#include "frame/win/guard.h"
#include "os/core/filesums.h"
#include "os/win/file_walk.h"

namespace {

using namespace zk::os;

int32_t SetAttribute(const wchar_t *pattern, uint16_t mask, int32_t set) {
    FileWalk walk(pattern);
    if (!walk.Found())
        return walk.error();
    int32_t count = 0;
    while (walk.Next()) {
        ++count;
        const std::wstring path = walk.Path();
        const DWORD attributes = GetFileAttributesW(path.c_str());
        if (attributes == INVALID_FILE_ATTRIBUTES)
            return LastErrorCode();
        const DWORD changed = set ? attributes | mask : attributes & ~static_cast<DWORD>(mask);
        if (!SetFileAttributesW(path.c_str(), changed))
            return LastErrorCode();
    }
    return count;
}

std::u16string Upper(std::wstring text) {
    if (!text.empty())
        CharUpperBuffW(text.data(), static_cast<DWORD>(text.size()));
    return {reinterpret_cast<const char16_t *>(text.data()), text.size()};
}

int32_t FileType(const wchar_t *name) {
    const int32_t attributes = ZelFileGetAttribute(name);
    if (attributes < 0)
        return attributes;
    if (attributes & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM))
        return 3;
    wchar_t programs[256] = {};
    GetProfileStringW(L"Windows", L"Programs", L"", programs, 255);
    if (ProgramExtensionListed(Upper(name), Upper(programs)))
        return 1;
    wchar_t application[MAX_PATH] = {};
    const auto found = reinterpret_cast<INT_PTR>(FindExecutableW(name, L"", application));
    return found > 32 ? 2 : 4;
}

} // namespace

int32_t ZKAPI ZelFileGetAttribute(const wchar_t *name) {
    if (!name)
        return ZEL_INVALID_PARAMETER;
    const DWORD attributes = GetFileAttributesW(name);
    return attributes == INVALID_FILE_ATTRIBUTES ? LastErrorCode() : static_cast<int32_t>(attributes);
}

int32_t ZKAPI ZelFileSetAttribute(const wchar_t *pattern, uint16_t mask, int32_t set) {
    if (!pattern)
        return ZEL_INVALID_PARAMETER;
    return zk::Quietly([&] { return SetAttribute(pattern, mask, set); }, [] { return ZEL_NOT_ENOUGH_MEMORY; });
}

int32_t ZKAPI ZelFileGetSize(const wchar_t *name) {
    // A pattern would answer for whichever file came first: refuse it.
    if (!name || std::wcspbrk(name, L"*?"))
        return ZEL_INVALID_PARAMETER;
    WIN32_FIND_DATAW found;
    const HANDLE search = FindFirstFileW(name, &found);
    if (search == INVALID_HANDLE_VALUE)
        return LastErrorCode();
    FindClose(search);
    return static_cast<int32_t>(found.nFileSizeLow);
}

int32_t ZKAPI ZelFileGetType(const wchar_t *name) {
    if (!name)
        return ZEL_INVALID_PARAMETER;
    return zk::Quietly([&] { return FileType(name); }, [] { return ZEL_NOT_ENOUGH_MEMORY; });
}
