// Questions about folders, the process and the system: existence, the
// current directory, environment variables, the system version, a file
// beside a module, and the flags old applications still set.
#include "frame/win/guard.h"
#include "os/core/dos_pathtext.h"
#include "os/win/dos_support.h"
#include "os/win/files.h"

namespace {

using namespace zk::dos;
namespace core = zk::os;

int32_t Exist(std::wstring_view path) {
    if (path.size() >= kPathLimit)
        return 0;
    // A drive is answered from the drive list: no disk is asked, so an
    // empty floppy or a sleeping network drive costs nothing.
    if (path.back() == L':')
        return ZelPathDriveNumber(path) ? 1 : 0;
    if (ZelPathIsDir(path))
        return 1;
    WIN32_FIND_DATAW entry;
    const Search search(std::wstring(path).c_str(), entry);
    return search.Found() ? 1 : 0;
}

int32_t IsParent(std::wstring_view directory) {
    std::wstring pattern(Wide(core::WithBackslash(U16(directory))));
    pattern += L"*.*";
    if (pattern.size() >= kPathLimit)
        return 0;
    WIN32_FIND_DATAW entry;
    const Search search(pattern.c_str(), entry);
    if (!search.Found())
        return 0;
    do {
        if (core::TakesDirectory(NameOf(entry), entry.dwFileAttributes))
            return 1;
    } while (FindNextFileW(search.get(), &entry));
    return 0;
}

HostStr CurrentDirectory() {
    std::wstring buffer(kPathLimit, L'\0');
    DWORD length = GetCurrentDirectoryW(static_cast<DWORD>(buffer.size()), buffer.data());
    // Too small: the answer is the size needed; the directory may change
    // between the calls, so ask until it fits.
    while (length >= buffer.size()) {
        buffer.assign(length, L'\0');
        length = GetCurrentDirectoryW(static_cast<DWORD>(buffer.size()), buffer.data());
    }
    if (length == 0)
        return ZelStrEmpty();
    return zk::StrFromChars(buffer.data(), length);
}

HostStr Variable(const wchar_t *name) {
    const std::optional<std::wstring> value = ReadVariable(name);
    return value ? zk::StrFromView(*value) : ZelStrEmpty();
}

class LocalBlock {
public:
    explicit LocalBlock(SIZE_T bytes) : handle_(LocalAlloc(LMEM_FIXED | LMEM_ZEROINIT, bytes)) {}
    ~LocalBlock() {
        if (handle_)
            LocalFree(handle_);
    }
    LocalBlock(const LocalBlock &) = delete;
    LocalBlock &operator=(const LocalBlock &) = delete;
    wchar_t *text() const { return static_cast<wchar_t *>(handle_); }

private:
    HLOCAL handle_;
};

HostStr BuildFullName(const wchar_t *module, const wchar_t *file) {
    const HMODULE handle = GetModuleHandleW(module);
    if (!handle)
        return ZelStrEmpty();
    const LocalBlock block(kPathLimit * sizeof(wchar_t));
    if (!block.text())
        return ZelStrEmpty();
    const DWORD length = GetModuleFileNameW(handle, block.text(), kPathLimit);
    if (length == 0 || length >= kPathLimit) // none, or cut short
        return ZelStrEmpty();
    return zk::StrFromView(Wide(core::BesideModule(U16(std::wstring_view(block.text(), length)), U16(file))));
}

} // namespace

extern "C" {

int32_t ZKAPI ZelDosExist(const wchar_t *path) {
    if (!path || !*path)
        return 0;
    return zk::Quietly([&] { return Exist(path); }, [] { return 0; });
}

int32_t ZKAPI ZelDosIsParent(const wchar_t *directory) {
    if (!directory || !*directory)
        return 0;
    return zk::Quietly([&] { return IsParent(directory); }, [] { return 0; });
}

HostStr ZKAPI ZelDosGetCurDir(const wchar_t *) {
    return zk::StringResult([] { return CurrentDirectory(); });
}

HostStr ZKAPI ZelDosGetEnvString(const wchar_t *name) {
    return zk::StringResult([&] { return name && *name ? Variable(name) : ZelStrEmpty(); });
}

HostNumber ZKAPI ZelDosGetVersion(void) {
    OSVERSIONINFOW info{};
    info.dwOSVersionInfoSize = sizeof info;
    GetVersionExW(&info);
    // An integer division, as ZelGetWinVersion: 6.1 reports 6.
    HostNumber result{};
    HostNumberFromDouble(static_cast<double>(info.dwMajorVersion + info.dwMinorVersion / 10), &result);
    return result;
}

HostStr ZKAPI ZelDosBuildFullName(const wchar_t *module, const wchar_t *file) {
    return zk::StringResult([&] { return file ? BuildFullName(module, file) : ZelStrEmpty(); });
}

int32_t ZKAPI ZelDosGetFlags(void) { return 0; }

int32_t ZKAPI ZelDosSetFlags(int32_t, int32_t) { return 0; }

} // extern "C"
