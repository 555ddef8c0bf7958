// Byte blocks and the code-page copy that ZelStrPadB uses.
#include "mbcscopy.h"
#include "zkhost.h"

namespace {

bool IsLeadOfSystemCodePage(unsigned char byte) { return IsDBCSLeadByte(byte) != FALSE; }

} // namespace

extern "C" {

void *ZKAPI HostByteAlloc(int32_t size) {
    if (size < 0)
        return nullptr;
    return HeapAlloc(GetProcessHeap(), 0, static_cast<SIZE_T>(size));
}

int32_t ZKAPI HostByteFree(void *block) { return block && HeapFree(GetProcessHeap(), 0, block) ? 1 : 0; }

int32_t ZKAPI HostMbcsCopy(char *destination, const char *source, int32_t limit) {
    return hostwin::CopyWholeCharacters(destination, source, limit, IsLeadOfSystemCodePage) ? 1 : 0;
}

} // extern "C"
