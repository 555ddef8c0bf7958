// The application's debug settings and the strings of the boxes they show.
// The flag values are the ones the host's include file carries.
#pragma once

#include <cstdint>

namespace zk::diag {

inline constexpr uint32_t kElapsed = 0x00010000;    // time since the previous sample
inline constexpr uint32_t kClockTime = 0x00020000;  // time of day
inline constexpr uint32_t kMessageBox = 0x00080000; // a box instead of the debugger
inline constexpr uint32_t kInitialFlags = kElapsed;

// String resources of the box captions.
inline constexpr uint32_t kAssertionCaption = 306;   // "Assertion Failure"
inline constexpr uint32_t kPerformanceCaption = 308; // "Performance Time"
inline constexpr uint32_t kDebugCaption = 309;       // "Debug"

} // namespace zk::diag
