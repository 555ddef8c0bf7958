// ZelProfileEnumStrings and ZelProfileDelete: the two INI operations the
// host lacks, listing the keys of a section and deleting a key or a section.
#include <vector>

#include "frame/win/guard.h"
#include "os/win/profile_find.h"

namespace {

constexpr DWORD kStep = 256;

// The section's key names (the file's section names for a null section),
// each ended by a NUL, the list by a second one.
// The platform cuts a list that does not fit two characters short of the
// size, so an answer that close to the size is asked for again, larger.
std::vector<wchar_t> KeyNames(const wchar_t *section, const wchar_t *path, DWORD &length) {
    std::vector<wchar_t> names;
    DWORD size = kStep;
    for (;;) {
        names.assign(size, L'\0');
        length = GetPrivateProfileStringW(section, nullptr, L"", names.data(), size, path);
        if (length + 3 < size)
            return names;
        size += kStep;
    }
}

// A host string of a name, asking the user once when the host has no
// memory; then the name stands as no string.
HostStr NameString(const wchar_t *name) {
    const HostStr handle = ZelStrFromText(name);
    if (!handle && ZelErrorRecovery(zk::kRecoveryCaption) == ZEL_RECOVERY_HALT)
        HostHalt();
    return handle;
}

int32_t EnumStrings(const wchar_t *file, const wchar_t *section, HostArray keys) {
    wchar_t path[MAX_PATH] = {};
    if (!zk::os::FindProfile(file, path))
        return ZEL_FILE_NOT_FOUND;
    // A null section asks the platform for the file's section names.
    DWORD length = 0;
    const std::vector<wchar_t> names = KeyNames(section, path, length);
    if (length == 0)
        return 0; // the array stays as it was
    int32_t count = 0;
    for (const wchar_t *name = names.data(); name < names.data() + length && *name; name += lstrlenW(name) + 1)
        HostArraySetString(keys, NameString(name), count++);
    HostArraySetBounds(keys, 0, count - 1);
    return count;
}

} // namespace

int32_t ZKAPI ZelProfileEnumStrings(const wchar_t *file, const wchar_t *section, HostArray keys) {
    return zk::Quietly([&] { return EnumStrings(file, section, keys); }, [] { return int32_t{ZEL_NOT_ENOUGH_MEMORY}; });
}

int32_t ZKAPI ZelProfileDelete(const wchar_t *file, const wchar_t *section, const wchar_t *key) {
    wchar_t path[MAX_PATH] = {};
    if (!zk::os::FindProfile(file, path))
        return ZEL_FILE_NOT_FOUND;
    // The platform writes nothing without a section: a failed write. (All
    // three arguments null would only flush its cache, deleting nothing.)
    if (!section)
        return 0;
    // No key, or an empty one, deletes the whole section.
    const wchar_t *const which = key && *key ? key : nullptr;
    return WritePrivateProfileStringW(section, which, nullptr, path);
}
