// Network connections as the library lists them: the connected drives A: to
// Z: and, when there is one, the printer ports LPT0 to LPT2. The platform
// (drive types, the connection query, host strings and arrays) is reached
// through two small interfaces, so the walk runs natively against fakes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zk::os {

// The platform's codes that the walk tells apart.
inline constexpr uint32_t kNetMoreData = 234; // ERROR_MORE_DATA: the block is too small
inline constexpr int32_t kDriveRemote = 4;    // DRIVE_REMOTE
inline constexpr int32_t kNetNoMemory = -8;   // ERROR_NOT_ENOUGH_MEMORY, negated
// Characters of the first answer block, and of each step it grows by.
inline constexpr size_t kNetBlockStep = 256;

class NetPlatform {
public:
    virtual ~NetPlatform() = default;
    // The drive type of the root "X:\" (0 for a letter that is no drive).
    virtual int32_t DriveType(char16_t letter) = 0;
    // The remote name of `local` into `buffer` of *chars characters with the
    // terminator: 0, or the platform's error (kNetMoreData when it does not fit).
    virtual uint32_t Connection(const char16_t *local, char16_t *buffer, uint32_t *chars) = 0;
    // Makes the answer block anew at `chars` characters; false when there is
    // no memory, the block being empty then.
    virtual bool Allocate(std::vector<char16_t> &block, size_t chars) noexcept;
};

// Where the listing goes: two host string arrays.
class NetListing {
public:
    virtual ~NetListing() = default;
    // Puts a pair at `index` of both arrays; false when a string could not
    // be made (what was made by then stays in its array).
    virtual bool Add(int32_t index, std::u16string_view local, std::u16string_view remote) = 0;
    // Sets the bounds of both arrays to 0 and `last`.
    virtual void Finish(int32_t last) = 0;
};

// Lists the connections: the count, kNetNoMemory, or the negated error of
// the last remote drive's query. With no remote drive the result is 0 and
// nothing else is asked; the listing's bounds are set only with a count.
int32_t EnumNetConnections(NetPlatform &platform, NetListing &listing);

// The remote name of a local name, every backslash removed first ("C:\"
// asks for "C:"); nothing when it is not connected or memory runs out.
std::optional<std::u16string> NetName(NetPlatform &platform, std::u16string_view local);

} // namespace zk::os
