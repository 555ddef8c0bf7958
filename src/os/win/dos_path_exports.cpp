// Paths made and taken apart: a nested folder creation, the four parts of
// a path joined, and split again into the caller's string slots.
#include <climits>
#include <cwchar>

#include "frame/win/guard.h"
#include "os/core/dos_pathtext.h"
#include "os/win/dos_support.h"

namespace {

using namespace zk::dos;
namespace core = zk::os;

int32_t MakeAllDir(std::wstring_view path) {
    if (path.size() >= kPathLimit)
        return kNameTooLong; // nothing is made of a path the platform cannot take whole
    const std::vector<std::u16string> steps = core::MakeAllDirSteps(U16(path));
    if (steps.empty())
        return ZEL_INVALID_PARAMETER;
    // The handle of each new folder may be inherited; the descriptor is the default.
    SECURITY_ATTRIBUTES security{sizeof security, nullptr, TRUE};
    // Folders higher up usually exist already: only the last step's answer counts.
    int32_t result = 0;
    for (const std::u16string &step : steps)
        result = CreateDirectoryW(std::wstring(Wide(step)).c_str(), &security) ? 0 : LastError();
    return result;
}

size_t LengthOf(const wchar_t *text) { return text ? std::wcslen(text) : 0; }

HostStr MakePath(const wchar_t *drive, const wchar_t *directory, const wchar_t *name, const wchar_t *extension) {
    const wchar_t *parts[] = {drive, directory, name, extension};
    size_t total = 0;
    for (const wchar_t *part : parts)
        total += LengthOf(part);
    if (total > (INT_MAX - 2) / 2)
        return ZelStrEmpty();
    HostStr result = 0;
    if (!AllocOnce(&result, static_cast<int32_t>(total * 2 + 2)))
        return ZelStrEmpty();
    wchar_t *out = zk::StrBuffer(result);
    if (!out)
        return result;
    for (const wchar_t *part : parts) {
        const size_t length = LengthOf(part);
        if (length)
            std::wmemcpy(out, part, length);
        out += length;
    }
    *out = 0;
    return result;
}

// One part into the caller's slot, through a buffer of the classic size.
int32_t StorePart(HostStr *slot, int32_t bytes, std::u16string_view part) {
    if (!AllocOnce(slot, bytes))
        return 0;
    wchar_t *buffer = zk::StrBuffer(*slot);
    if (!buffer)
        return 0;
    if (!part.empty())
        std::wmemcpy(buffer, Wide(part).data(), part.size());
    buffer[part.size()] = 0;
    return HostStrSetLength(slot, static_cast<int32_t>(part.size() + 1));
}

int32_t SplitPath(const wchar_t *path, HostStr *const (&slots)[4]) {
    if (!path) {
        for (HostStr *slot : slots) {
            if (slot) {
                zk::StrAllocRetry(slot, 2);
                zk::StrWrite(*slot, L"", 0);
            }
        }
        return 0;
    }
    const core::PathParts parts = core::SplitPathParts(U16(path));
    const std::u16string_view texts[4] = {parts.drive, parts.dir, parts.name, parts.ext};
    static constexpr int32_t kBytes[4] = {8, 514, 514, 514};
    int32_t result = 0;
    for (int i = 0; i < 4; ++i) {
        if (slots[i])
            result = StorePart(slots[i], kBytes[i], texts[i]);
    }
    return result;
}

} // namespace

extern "C" {

int32_t ZKAPI ZelDosMakeAllDir(const wchar_t *path) {
    if (!path || !*path)
        return ZEL_INVALID_PARAMETER;
    return zk::Quietly([&] { return MakeAllDir(path); }, [] { return ZEL_NOT_ENOUGH_MEMORY; });
}

HostStr ZKAPI ZelDosMakePath(const wchar_t *drive, const wchar_t *directory, const wchar_t *name,
                             const wchar_t *extension) {
    return zk::StringResult([&] { return MakePath(drive, directory, name, extension); });
}

int32_t ZKAPI ZelDosSplitPath(const wchar_t *path, HostStr *drive, HostStr *directory, HostStr *name,
                              HostStr *extension) {
    HostStr *const slots[4] = {drive, directory, name, extension};
    return zk::Quietly([&] { return SplitPath(path, slots); }, [] { return 0; });
}

} // extern "C"
