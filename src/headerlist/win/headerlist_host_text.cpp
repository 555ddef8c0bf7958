#include <algorithm>

#include "headerlist/win/headerlist_exports.h"

namespace zk::hdr {

int32_t FillHostString(HostStr *slot, std::wstring_view text) {
    const int32_t answer = HostStrAlloc(slot, static_cast<int32_t>(2 * text.size() + 2));
    int32_t size = 0;
    wchar_t *buffer = HostStrLock(*slot, &size);
    if (!buffer)
        throw MemoryException();
    std::copy(text.begin(), text.end(), buffer);
    buffer[text.size()] = L'\0';
    return answer;
}

} // namespace zk::hdr
