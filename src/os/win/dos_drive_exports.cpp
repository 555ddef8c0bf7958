// Drives: their type, size and label.
#include "frame/win/guard.h"
#include "os/core/dos_pathtext.h"
#include "os/win/dos_support.h"
#include "os/win/files.h"

namespace {

using namespace zk::dos;
namespace core = zk::os;

std::wstring RootOf(const wchar_t *path) { return std::wstring(Wide(core::WithBackslash(U16(path)))); }

int32_t DriveType(const wchar_t *root) {
    if (!ZelPathDriveNumber(root))
        return 0;
    const std::wstring full = RootOf(root);
    const QuietDriveErrors quiet;
    return static_cast<int32_t>(GetDriveTypeW(full.c_str()));
}

// A byte count as the host's number, through its decimal text: a double or
// a 32-bit word would lose the low digits of a large disk.
void StoreBytes(HostNumber *out, ULONGLONG bytes) {
    if (out)
        HostNumberFromText(out, std::to_wstring(static_cast<long long>(bytes)).c_str());
}

int32_t DriveSize(const wchar_t *root, HostNumber *totalBytes, HostNumber *freeBytes) {
    if (totalBytes)
        totalBytes->length = 0;
    if (freeBytes)
        freeBytes->length = 0;
    if (!ZelPathDriveNumber(root))
        return ZEL_INVALID_DRIVE;
    const std::wstring full = RootOf(root);
    ULARGE_INTEGER callerFree{}, total{}, totalFree{};
    const QuietDriveErrors quiet;
    if (!GetDiskFreeSpaceExW(full.c_str(), &callerFree, &total, &totalFree))
        return LastError();
    StoreBytes(totalBytes, total.QuadPart);
    StoreBytes(freeBytes, totalFree.QuadPart);
    return 0;
}

HostStr VolumeLabel(const wchar_t *root) {
    wchar_t label[MAX_PATH + 1] = {};
    const QuietDriveErrors quiet;
    if (!GetVolumeInformationW(root, label, MAX_PATH + 1, nullptr, nullptr, nullptr, nullptr, 0))
        return ZelStrEmpty();
    return zk::StrFromView(label);
}

} // namespace

extern "C" {

int32_t ZKAPI ZelDosGetDriveType(const wchar_t *root) {
    if (!root)
        return 0;
    return zk::Quietly([&] { return DriveType(root); }, [] { return 0; });
}

int32_t ZKAPI ZelDosGetDriveSize(const wchar_t *root, HostNumber *totalBytes, HostNumber *freeBytes) {
    if (!root)
        return ZEL_INVALID_DRIVE;
    return zk::Quietly([&] { return DriveSize(root, totalBytes, freeBytes); }, [] { return ZEL_NOT_ENOUGH_MEMORY; });
}

HostStr ZKAPI ZelDosGetVolumeLabel(const wchar_t *root) {
    return zk::StringResult([&] { return root ? VolumeLabel(root) : ZelStrEmpty(); });
}

int32_t ZKAPI ZelDosSetVolumeLabel(const wchar_t *root, const wchar_t *label) {
    if (!root)
        return ZEL_INVALID_PARAMETER;
    const QuietDriveErrors quiet;
    return SetVolumeLabelW(root, label) ? 0 : LastError();
}

} // extern "C"
