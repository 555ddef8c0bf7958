// The open flags that ZelFileOpen hands to the host.
#pragma once

#include <windows.h>

#include <cstdint>

namespace zk::os {

// Creating a file is writing it: OF_CREATE without OF_EXIST gains OF_WRITE,
// whatever access was asked besides. A mere test for the file (OF_EXIST)
// keeps its flags as they are.
constexpr int32_t StreamOpenFlags(int32_t flags) {
    return (flags & OF_CREATE) && !(flags & OF_EXIST) ? flags | OF_WRITE : flags;
}

// The platform's reason for a failure, negated; a failure that the platform
// left no reason for is -1.
inline int32_t NegatedLastErrorOrFailed() {
    const DWORD error = GetLastError();
    return error ? -static_cast<int32_t>(error) : -1;
}

inline int32_t NegatedLastError() { return -static_cast<int32_t>(GetLastError()); }

} // namespace zk::os
