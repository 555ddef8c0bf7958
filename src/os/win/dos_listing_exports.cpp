// The listings: folders and files of a pattern, the drives of the machine,
// the folders of the search path, each into host arrays from index 0.
#include "frame/win/guard.h"
#include "os/core/dos_pathtext.h"
#include "os/win/dos_support.h"
#include "os/win/files.h"

namespace {

using namespace zk::dos;
namespace core = zk::os;

// A listing that runs out of memory halfway reports it; what it wrote
// stays, as the host's arrays cannot be put back.
template <class Body>
int32_t Listing(Body &&body) {
    return zk::Quietly(std::forward<Body>(body), [] { return ZEL_NOT_ENOUGH_MEMORY; });
}

bool TakeDirectory(const WIN32_FIND_DATAW &entry) {
    return core::TakesDirectory(NameOf(entry), entry.dwFileAttributes);
}

int32_t EnumDrives(HostArray names) {
    int32_t last = -1;
    wchar_t root[] = L"A:\\";
    for (wchar_t letter = L'A'; letter <= L'Z'; ++letter) {
        root[0] = letter;
        if (ZelPathDriveNumber(root))
            SetName(names, ++last, root);
    }
    CloseListing({names}, last);
    return last + 1;
}

int32_t EnumPath(HostArray names) {
    const std::optional<std::wstring> path = ReadVariable(L"PATH");
    if (!path || path->empty())
        return 0;
    int32_t last = -1;
    for (const std::u16string &piece : core::SearchPathPieces(U16(*path))) {
        const std::wstring_view dir = Wide(piece);
        if (ZelPathIsDir(dir))
            SetName(names, ++last, std::wstring(dir).c_str());
    }
    CloseListing({names}, last);
    return last + 1;
}

} // namespace

extern "C" {

int32_t ZKAPI ZelDosEnumDrives(HostArray names) {
    return Listing([&] { return EnumDrives(names); });
}

int32_t ZKAPI ZelDosEnumDirs(const wchar_t *pattern, HostArray names) {
    return Listing([&] {
        return Enumerate(pattern, {names}, TakeDirectory,
                         [&](const WIN32_FIND_DATAW &entry, int32_t index) { SetName(names, index, entry.cFileName); });
    });
}

int32_t ZKAPI ZelDosEnumDirInfo(const wchar_t *pattern, HostArray names, HostArray dates, HostArray attributes) {
    return Listing([&] {
        return Enumerate(pattern, {names, dates, attributes}, TakeDirectory,
                         [&](const WIN32_FIND_DATAW &entry, int32_t index) {
                             SetName(names, index, entry.cFileName);
                             SetDate(dates, index, entry.ftCreationTime);
                             SetAttributes(attributes, index, entry.dwFileAttributes);
                         });
    });
}

int32_t ZKAPI ZelDosEnumFiles(const wchar_t *pattern, uint16_t mask, HostArray names) {
    return Listing([&] {
        return Enumerate(
            pattern, {names},
            [&](const WIN32_FIND_DATAW &entry) { return core::TakesFile(mask, entry.dwFileAttributes); },
            [&](const WIN32_FIND_DATAW &entry, int32_t index) { SetName(names, index, entry.cFileName); });
    });
}

int32_t ZKAPI ZelDosEnumFileInfo(const wchar_t *pattern, uint16_t mask, HostArray names, HostArray sizes,
                                 HostArray dates, HostArray attributes) {
    return Listing([&] {
        return Enumerate(
            pattern, {names, sizes, dates, attributes},
            [&](const WIN32_FIND_DATAW &entry) { return core::TakesFileInfo(mask, entry.dwFileAttributes); },
            [&](const WIN32_FIND_DATAW &entry, int32_t index) {
                SetName(names, index, entry.cFileName);
                SetSize(sizes, index, entry.nFileSizeLow);
                SetDate(dates, index, entry.ftCreationTime);
                SetAttributes(attributes, index, entry.dwFileAttributes);
            });
    });
}

int32_t ZKAPI ZelDosEnumPath(HostArray names) {
    return Listing([&] { return EnumPath(names); });
}

} // extern "C"
