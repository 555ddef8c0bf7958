// Target names the way the command shell's copy makes them: a source name
// through a name mask, and a destination text split into the folder to
// write into and the mask to apply. Pure text sums; what the file system
// answers comes in through PathProbe.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace zk::os {

// The mask that stands for an empty one.
inline constexpr std::u16string_view kAllFiles = u"*.*";

// The target name that `mask` makes of the source `name`. An empty mask
// makes an empty name; callers put kAllFiles in its place first.
std::u16string ApplyMask(std::u16string_view name, std::u16string_view mask);

// The path up to and with its last backslash; with none, "X:" of a drive
// prefix, else nothing. Forward slashes are not separators here.
std::u16string PathDir(std::u16string_view path);

// What splitting a target asks of the file system.
class PathProbe {
public:
    virtual ~PathProbe() = default;
    // Whether the path names an existing directory (ZelPathIsDir).
    virtual bool IsDir(std::u16string_view path) const = 0;
    // 1 for drive A up to 26 for Z when the path starts with a present drive, else 0.
    virtual int DriveNumber(std::u16string_view path) const = 0;
};

struct SplitResult {
    int32_t code = 0;    // 0, -15 unknown drive, -3 unknown directory
    std::u16string dir;  // with its final backslash, or empty
    std::u16string name; // name mask, or empty
};

// Splits a destination. An existing directory written without a final
// backslash takes every name ("*.*"). A bare name gives an empty folder and
// an empty mask: the caller decides what it is relative to.
SplitResult SplitTarget(std::u16string_view target, const PathProbe &probe);

} // namespace zk::os
