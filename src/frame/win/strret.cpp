// The string-return idiom: every string result is made by the host, and an
// allocation the host refuses goes to the user, never back to the caller.
#include "frame/win/host.h"

#include <cstring>

namespace zk {

void StrAllocRetry(HostStr *slot, int32_t bytes) {
    // No count and no delay: the user decides between Retry and Halt. Halt
    // does not come back in normal use; if the host lets it return, the same
    // allocation is simply tried again.
    while (!HostStrAlloc(slot, bytes)) {
        if (ZelErrorRecovery(kRecoveryCaption) == ZEL_RECOVERY_HALT)
            HostHalt();
    }
}

void StrWrite(HostStr handle, const wchar_t *text, size_t count, bool terminate) {
    if (wchar_t *buffer = StrBuffer(handle)) {
        if (count)
            std::memcpy(buffer, text, 2 * count);
        if (terminate)
            buffer[count] = 0;
    }
}

HostStr StrFromChars(const wchar_t *text, size_t count) {
    HostStr handle = 0;
    StrAllocRetry(&handle, static_cast<int32_t>(2 * count + 2));
    StrWrite(handle, text, count);
    return handle;
}

} // namespace zk

HostStr ZelStrFromText(const wchar_t *text) {
    if (!text)
        text = L"";
    const size_t count = static_cast<size_t>(lstrlenW(text));
    HostStr handle = 0;
    if (!HostStrAlloc(&handle, static_cast<int32_t>(2 * count + 2)))
        return 0;
    zk::StrWrite(handle, text, count);
    return handle;
}

HostStr ZelStrEmpty() { return zk::StrFromChars(L"", 0); }
