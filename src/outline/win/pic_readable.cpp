// How far memory can be read from an address on: the bound of a picture
// load from memory, whose length the caller does not give.
#include "outline/win/pic_sources.h"

namespace zk::lbx {

size_t PicReadableBytes(const void *pointer, size_t want) noexcept {
    const auto *at = static_cast<const uint8_t *>(pointer);
    size_t got = 0;
    while (at && got < want) {
        MEMORY_BASIC_INFORMATION info{};
        if (VirtualQuery(at + got, &info, sizeof(info)) != sizeof(info))
            break;
        const DWORD readable = PAGE_READONLY | PAGE_READWRITE | PAGE_WRITECOPY | PAGE_EXECUTE_READ |
                               PAGE_EXECUTE_READWRITE | PAGE_EXECUTE_WRITECOPY;
        if (info.State != MEM_COMMIT || !(info.Protect & readable) || (info.Protect & (PAGE_GUARD | PAGE_NOACCESS)))
            break;
        const auto *end = static_cast<const uint8_t *>(info.BaseAddress) + info.RegionSize;
        got = static_cast<size_t>(end - at);
    }
    return got < want ? got : want;
}

} // namespace zk::lbx
