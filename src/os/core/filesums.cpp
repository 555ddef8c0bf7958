#include "os/core/filesums.h"

namespace zk::os {

uint32_t TransferSize(uint64_t fileSize) {
    return fileSize >= kTransferLimit ? kTransferLimit : static_cast<uint32_t>(fileSize + 1);
}

uint16_t PackDosDate(int32_t year, int32_t month, int32_t day) {
    const uint32_t y = static_cast<uint32_t>(year - 1980);
    return static_cast<uint16_t>(((y << 4 | static_cast<uint32_t>(month)) << 5) | static_cast<uint32_t>(day));
}

uint16_t PackDosTime(int32_t hour, int32_t minute, int32_t second) {
    const uint32_t h = static_cast<uint32_t>(hour), m = static_cast<uint32_t>(minute);
    return static_cast<uint16_t>(((h << 6 | m) << 5) | static_cast<uint32_t>(second / 2));
}

uint32_t CopyTargetAttributes(uint32_t sourceAttributes) {
    constexpr uint32_t kReadOnly = 0x1, kHidden = 0x2, kSystem = 0x4;
    if (sourceAttributes & kReadOnly)
        return 1;
    if (sourceAttributes & kHidden)
        return 2;
    if (sourceAttributes & kSystem)
        return 3;
    return 0;
}

uint32_t FreeBytes32(uint32_t sectorsPerCluster, uint32_t bytesPerSector, uint32_t freeClusters) {
    return sectorsPerCluster * bytesPerSector * freeClusters;
}

std::u16string TildeName(std::u16string_view path) {
    if (path.empty() || path.size() > 259)
        return {};
    // The file name starts after the last separator or a drive's colon,
    // where the runtime's path splitter puts it.
    size_t start = path.find_last_of(u"\\/");
    if (start == std::u16string_view::npos)
        start = path.size() >= 2 && path[1] == u':' ? 2 : 0;
    else
        ++start;
    const std::u16string_view file = path.substr(start);
    const size_t dot = file.rfind(u'.');
    const size_t baseLength = dot == std::u16string_view::npos ? file.size() : dot;
    if (baseLength >= 256 || (!file.empty() && file.front() == u'~'))
        return {};
    std::u16string out(path.substr(0, start));
    out += u'~';
    out += file;
    return out;
}

bool ProgramExtensionListed(std::u16string_view upperName, std::u16string_view upperPrograms) {
    const size_t dot = upperName.find(u'.');
    if (dot == std::u16string_view::npos || dot + 1 == upperName.size())
        return false;
    return upperPrograms.find(upperName.substr(dot + 1)) != std::u16string_view::npos;
}

} // namespace zk::os
