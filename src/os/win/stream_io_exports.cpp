// ZelFileOpen, ZelFileClose and the reads and writes of stream files: the
// host's own file operations with the library's return codes on top. A null
// handle never reaches the host.
#include "frame/win/host.h"
#include "os/win/stream_flags.h"

using zk::os::NegatedLastError;

namespace {

constexpr int32_t kInvalid = ZEL_INVALID_PARAMETER;

int32_t Read(HostFile file, void *buffer, int32_t bytes) { return file ? HostFileRead(file, buffer, bytes) : kInvalid; }

int32_t Write(HostFile file, const void *buffer, int32_t bytes) {
    if (!file)
        return kInvalid;
    const int32_t written = HostFileWrite(file, buffer, bytes);
    // Nothing written is a failure too: a caller that asks for 0 bytes gets
    // whatever reason the platform holds, never a count of 0.
    return written > 0 ? written : NegatedLastError();
}

} // namespace

int32_t ZKAPI ZelFileOpen(HostFile *file, const wchar_t *name, int32_t flags) {
    if (HostFileOpen(file, name, zk::os::StreamOpenFlags(flags)) > 0)
        return 0;
    return zk::os::NegatedLastErrorOrFailed();
}

int32_t ZKAPI ZelFileClose(HostFile file) {
    if (!file)
        return kInvalid;
    return HostFileClose(file) ? 0 : NegatedLastError();
}

int32_t ZKAPI ZelFileRead(HostFile file, void *buffer, int32_t bytes) { return Read(file, buffer, bytes); }

int32_t ZKAPI ZelFileReadBinary(HostFile file, void *buffer, int32_t bytes) { return Read(file, buffer, bytes); }

int32_t ZKAPI ZelFileWrite(HostFile file, const void *buffer, int32_t bytes) { return Write(file, buffer, bytes); }

int32_t ZKAPI ZelFileWriteBinary(HostFile file, const void *buffer, int32_t bytes) {
    return Write(file, buffer, bytes);
}

int32_t ZKAPI ZelFileReadString(HostFile file, HostStr *slot) {
    if (!file)
        return kInvalid;
    // -1: the whole line, however long. Whatever stopped the host, the
    // caller's loop ends on the one code for the end of the file.
    return HostFileReadString(file, slot, -1) ? 0 : ZEL_NO_MORE_FILES;
}

int32_t ZKAPI ZelFileWriteString(HostFile file, const wchar_t *text) {
    if (!file)
        return kInvalid;
    return HostFileWriteString(file, text) ? 0 : NegatedLastError();
}
