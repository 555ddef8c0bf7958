// Version and system queries.
#include "frame/win/host.h"
#include "resource.h"

#include <memory>

namespace {

struct LocalBlock {
    HLOCAL handle;
    explicit LocalBlock(SIZE_T size) : handle(LocalAlloc(LMEM_ZEROINIT, size)) {}
    ~LocalBlock() {
        if (handle)
            LocalFree(handle);
    }
    LocalBlock(const LocalBlock &) = delete;
    LocalBlock &operator=(const LocalBlock &) = delete;
};

// A value of the library file's version block, found the way the host finds
// the library: by searching for "ZKLIB.dll".
HostStr VersionValue(UINT pathId) {
    wchar_t file[260];
    if (!SearchPathW(nullptr, L"ZKLIB.dll", nullptr, 260, file, nullptr))
        return ZelStrEmpty();
    DWORD unused = 0;
    const DWORD size = GetFileVersionInfoSizeW(file, &unused);
    if (!size)
        return ZelStrEmpty();
    LocalBlock block(size);
    if (!block.handle)
        return ZelStrEmpty();
    wchar_t path[100];
    void *value = nullptr;
    UINT length = 0;
    if (!GetFileVersionInfoW(file, 0, size, block.handle) || !LoadStringW(zk::ModuleInstance, pathId, path, 100) ||
        !VerQueryValueW(block.handle, path, &value, &length) || !value)
        return ZelStrEmpty();
    const wchar_t *text = static_cast<const wchar_t *>(value);
    return zk::StrFromChars(text, static_cast<size_t>(lstrlenW(text)));
}

} // namespace

extern "C" {

HostStr ZKAPI ZelGetVersion(void) { return VersionValue(IDS_PRODUCTVERSION_PATH); }

HostStr ZKAPI ZelGetCopyright(void) { return VersionValue(IDS_COPYRIGHT_PATH); }

HostNumber ZKAPI ZelGetWinVersion(void) {
    const DWORD version = GetVersion();
    const int major = LOBYTE(LOWORD(version));
    const int minor = HIBYTE(LOWORD(version));
    // An integer division: a minor version below 10 adds nothing, so 6.1
    // reports 6. Applications compare against these values as they are.
    HostNumber result{};
    HostNumberFromDouble(static_cast<double>(major + minor / 10), &result);
    return result;
}

int32_t ZKAPI ZelGetWinFlags(void) { return 0; }

int32_t ZKAPI ZelGetKeyState(int32_t virtualKey) { return static_cast<int16_t>(GetKeyState(virtualKey)); }

int32_t ZKAPI ZelGetSystemMetrics(int32_t index) { return GetSystemMetrics(index); }

int32_t ZKAPI ZelSendMsgString(HWND window, UINT message, WPARAM wParam, const wchar_t *text) {
    return static_cast<int32_t>(SendMessageW(window, message, wParam, reinterpret_cast<LPARAM>(text)));
}

} // extern "C"
