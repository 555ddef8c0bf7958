#include "os/core/dos_listing.h"

#include "os/core/filesums.h"

namespace zk::os {

bool IsDotEntry(std::u16string_view name) { return name == u"." || name == u".."; }

bool TakesDirectory(std::u16string_view name, uint32_t attributes) {
    return (attributes & kAttrDirectory) && !IsDotEntry(name);
}

bool TakesFile(uint16_t mask, uint32_t attributes) {
    if (attributes & kAttrDirectory)
        return false;
    if (mask == 0)
        return (attributes & (kAttrHidden | kAttrSystem)) == 0;
    return (attributes & mask) == mask;
}

bool TakesFileInfo(uint16_t mask, uint32_t attributes) {
    if (attributes & kAttrDirectory)
        return false;
    return mask == 0 || (attributes & mask) != 0;
}

std::optional<DosWords> ToDosWords(const CivilTime &t) {
    if (t.year < 1980 || t.year > 2107)
        return std::nullopt;
    return DosWords{PackDosDate(t.year, t.month, t.day), PackDosTime(t.hour, t.minute, t.second)};
}

CivilTime FromDosWords(DosWords words) {
    return CivilTime{1980 + (words.date >> 9), (words.date >> 5) & 0xF,  words.date & 0x1F,
                     words.time >> 11,         (words.time >> 5) & 0x3F, (words.time & 0x1F) * 2};
}

std::optional<CivilTime> ListingTime(const CivilTime &t) {
    const std::optional<DosWords> words = ToDosWords(t);
    if (!words)
        return std::nullopt;
    return FromDosWords(*words);
}

} // namespace zk::os
