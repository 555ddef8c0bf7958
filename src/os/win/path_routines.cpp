// The path routines on the real file system: the sums of os/pathmask with
// the directory test and the drive list of this machine.
#include "os/core/pathmask.h"
#include "os/win/files.h"

namespace {

// wchar_t is 16 bits on Windows: the core's text is the same code units.
std::u16string_view Core(std::wstring_view text) {
    return {reinterpret_cast<const char16_t *>(text.data()), text.size()};
}
std::wstring_view WideView(std::u16string_view text) {
    return {reinterpret_cast<const wchar_t *>(text.data()), text.size()};
}
std::wstring Wide(std::u16string_view text) { return std::wstring(WideView(text)); }

class FileSystemProbe final : public zk::os::PathProbe {
public:
    bool IsDir(std::u16string_view path) const override { return ZelPathIsDir(WideView(path)); }
    int DriveNumber(std::u16string_view path) const override { return ZelPathDriveNumber(WideView(path)); }
};

bool IsDirectory(const std::wstring &path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

} // namespace

std::wstring ZelPathGetDir(std::wstring_view path) { return Wide(zk::os::PathDir(Core(path))); }

int32_t ZelPathSplitTarget(std::wstring_view target, std::wstring &outDir, std::wstring &outName) {
    outDir.clear();
    outName.clear();
    const zk::os::SplitResult split = zk::os::SplitTarget(Core(target), FileSystemProbe());
    if (split.code == 0) {
        outDir = Wide(split.dir);
        outName = Wide(split.name);
    }
    return split.code;
}

std::wstring ZelPathApplyMask(std::wstring_view name, std::wstring_view mask) {
    return Wide(zk::os::ApplyMask(Core(name), Core(mask)));
}

bool ZelPathIsDir(std::wstring_view path) {
    const size_t first = path.find_first_not_of(L' ');
    if (first == std::wstring_view::npos)
        return false;
    std::wstring copy(path.substr(first, path.find_last_not_of(L' ') - first + 1));
    const DWORD attributes = GetFileAttributesW(copy.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return false;
    if (attributes & FILE_ATTRIBUTE_DIRECTORY)
        return true;
    if (copy.back() != L'\\')
        return false;
    copy.pop_back();
    return IsDirectory(copy);
}

int ZelPathDriveNumber(std::wstring_view path) {
    if (path.empty())
        return 0;
    wchar_t letter = path.front();
    if (letter >= L'a' && letter <= L'z')
        letter = static_cast<wchar_t>(letter - L'a' + L'A');
    if (letter < L'A' || letter > L'Z')
        return 0;
    const int number = letter - L'A' + 1;
    return (GetLogicalDrives() >> (number - 1)) & 1 ? number : 0;
}
