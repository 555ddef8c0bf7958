#include "text/win/host_text.h"

namespace zk::text {

HostStr SizedResult(std::u16string_view text, uint64_t bytes) {
    const uint64_t textBytes = 2 * static_cast<uint64_t>(text.size());
    if (!HostSizeFits(bytes) || bytes < textBytes)
        return ZelStrEmpty();
    HostStr slot = 0;
    StrAllocRetry(&slot, static_cast<int32_t>(bytes));
    StrWrite(slot, WideText(text), text.size(), bytes >= textBytes + 2);
    return slot;
}

HostStr TextResult(std::u16string_view text) {
    if (text.empty())
        return ZelStrEmpty();
    return SizedResult(text, 2 * static_cast<uint64_t>(text.size()) + 2);
}

} // namespace zk::text
