// What the directory listings decide without the file system: which
// entries each listing takes, and the two-second DOS form their dates pass
// through. Platform-free.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace zk::os {

// Attribute bits as the file system reports them.
inline constexpr uint32_t kAttrHidden = 0x2;
inline constexpr uint32_t kAttrSystem = 0x4;
inline constexpr uint32_t kAttrDirectory = 0x10;

// "." and "..": links of the listing, not entries of it.
bool IsDotEntry(std::u16string_view name);

// The folder listings take every directory but the two links.
bool TakesDirectory(std::u16string_view name, uint32_t attributes);

// The plain file listing: no directory, and with mask 0 neither hidden nor
// system, with any other mask every bit of the mask set.
bool TakesFile(uint16_t mask, uint32_t attributes);

// The detailed file listing: no directory, and with mask 0 anything, with
// any other mask at least one bit of the mask set. Different from TakesFile
// on purpose: a mask of 0 shows hidden and system files here.
bool TakesFileInfo(uint16_t mask, uint32_t attributes);

// A moment as its calendar and clock fields.
struct CivilTime {
    int32_t year, month, day, hour, minute, second;
    bool operator==(const CivilTime &) const = default;
};

// DOS date word ((year - 1980) << 9 | month << 5 | day) and time word
// (hour << 11 | minute << 5 | second / 2) of a moment in 1980 to 2107;
// nothing for one outside those years, which the form cannot hold.
struct DosWords {
    uint16_t date, time;
};
std::optional<DosWords> ToDosWords(const CivilTime &t);
CivilTime FromDosWords(DosWords words);

// The moment as a listing shows it: through the DOS form and back, so odd
// seconds go down to the even one before; nothing outside 1980 to 2107.
std::optional<CivilTime> ListingTime(const CivilTime &t);

} // namespace zk::os
