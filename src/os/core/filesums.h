// The small sums of the file operations: transfer sizes, DOS date and time
// words, target attributes, the free space as the copy counts it, the name
// of a temporary file, the program-extension test. Platform-free.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace zk::os {

// Largest transfer in one read. Chosen by measurement (bench_files): under
// Wine a copy in transfers below 64 KB, or not a multiple of it, runs at
// about two thirds of the platform's speed, and transfers of 512 KB to 1 MB
// run fastest. The results do not depend on it: the same bytes are written
// and the same values returned whatever the transfer size.
inline constexpr uint32_t kTransferLimit = 1u << 20;

// Bytes to read at a time for a file of `fileSize` bytes: one more than the
// file, so that a small file comes in one short read, up to the limit.
uint32_t TransferSize(uint64_t fileSize);

// DOS date word ((year - 1980) << 9 | month << 5 | day) and time word
// (hour << 11 | minute << 5 | second / 2). Out-of-range parts are packed as
// they are and wrap into the neighbouring fields; a year before 1980 comes
// out 128 years late.
uint16_t PackDosDate(int32_t year, int32_t month, int32_t day);
uint16_t PackDosTime(int32_t hour, int32_t minute, int32_t second);

// Attribute bits for a copy's target: read-only 1, else hidden 2, else
// system 3 (read-only and hidden), else 0.
uint32_t CopyTargetAttributes(uint32_t sourceAttributes);

// Free bytes as the copy counts them, in 32 bits: a disk with more than
// 4 GB free wraps around.
uint32_t FreeBytes32(uint32_t sectorsPerCluster, uint32_t bytesPerSector, uint32_t freeClusters);

// The temporary file's final name: its file name with "~" in front. Empty
// when it keeps the name it has: a path outside 1 to 259 characters, a file
// name (without extension) of 256 characters or more, or one that already
// starts with "~".
std::u16string TildeName(std::u16string_view path);

// Whether the extension of a name, everything after its first dot, occurs
// in the text of program extensions. Both come in upper case. A name
// without an extension, or with an empty one, is no program.
bool ProgramExtensionListed(std::u16string_view upperName, std::u16string_view upperPrograms);

} // namespace zk::os
