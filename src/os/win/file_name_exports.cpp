// ZelFileCreateTemp and ZelFileFind: file names as host strings.
#include "frame/win/guard.h"
#include "os/core/filesums.h"
#include "os/win/file_walk.h"

namespace {

using namespace zk::os;

HostStr CreateTemp(const wchar_t *prefix) {
    wchar_t folder[MAX_PATH] = {};
    const DWORD length = GetTempPathW(MAX_PATH, folder);
    if (length == 0 || length >= MAX_PATH)
        lstrcpyW(folder, L".");
    wchar_t name[MAX_PATH] = {};
    if (!GetTempFileNameW(folder, prefix, 0, name))
        return ZelStrEmpty();
    // The file made is renamed with a "~" in front of its name, the mark of
    // a temporary file; if that name is taken the first one stands.
    const std::u16string tilde = TildeName(reinterpret_cast<const char16_t *>(name));
    if (!tilde.empty()) {
        const auto *renamed = reinterpret_cast<const wchar_t *>(tilde.c_str());
        if (MoveFileW(name, renamed))
            return zk::StrFromView(renamed);
    }
    return zk::StrFromView(name);
}

HostStr Find(const wchar_t *name) {
    wchar_t found[MAX_PATH] = {};
    if (ZelFileOpenEx(name, found, MAX_PATH, OF_EXIST) == INVALID_HANDLE_VALUE)
        return ZelStrEmpty();
    return zk::StrFromView(found);
}

} // namespace

HostStr ZKAPI ZelFileCreateTemp(const wchar_t *prefix) {
    return zk::StringResult([&] { return prefix ? CreateTemp(prefix) : ZelStrEmpty(); });
}

HostStr ZKAPI ZelFileFind(const wchar_t *name) {
    return zk::StringResult([&] { return name ? Find(name) : ZelStrEmpty(); });
}
