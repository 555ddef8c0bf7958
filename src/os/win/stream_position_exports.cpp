// ZelFileSeek and ZelFileTell: straight to the C runtime under the host's
// stream.
//
// A FILE * means something only to the C runtime that made it: its buffer,
// its descriptor table and its lock live in that runtime's private state.
// The library and the reference host (zkhost.dll) are both built by
// MinGW-w64 against the system's msvcrt.dll, which the process loads once,
// so _fileno, _lseek and ftell here work on the very stream the host opened
// with _fdopen. A host adapter built against another runtime (a UCRT or a
// static one) would have to be matched by a library built against the same.
#include <io.h>

#include <cstdio>

#include "frame/win/host.h"
#include "os/win/stream_flags.h"

int32_t ZKAPI ZelFileSeek(HostFile file, int32_t offset, int32_t origin) {
    if (!file)
        return ZEL_INVALID_PARAMETER;
    // The descriptor moves, the stream's buffer stays as it is: bytes already
    // buffered are still read first, and ftell reckons from the descriptor.
    const long position = _lseek(_fileno(file), offset, origin);
    // The runtime's errno is not what the caller is told: the platform's
    // last error is (a negative position gives ERROR_NEGATIVE_SEEK).
    return position == -1 ? zk::os::NegatedLastError() : static_cast<int32_t>(position);
}

int32_t ZKAPI ZelFileTell(HostFile file) {
    if (!file)
        return ZEL_INVALID_PARAMETER;
    const long position = std::ftell(file);
    return position == -1 ? zk::os::NegatedLastError() : static_cast<int32_t>(position);
}
