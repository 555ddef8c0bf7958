// The INI file of the profile exports, found the way the library finds any
// file: on the search path, so that a bare name is not taken for a file in
// the Windows folder.
#pragma once

#include <windows.h>

#include "os/win/files.h"

namespace zk::os {

// The full path of the file into `path` (MAX_PATH characters); false when
// it is not found.
inline bool FindProfile(const wchar_t *file, wchar_t (&path)[MAX_PATH]) {
    return ZelFileOpenEx(file, path, MAX_PATH, OF_EXIST) != INVALID_HANDLE_VALUE;
}

} // namespace zk::os
