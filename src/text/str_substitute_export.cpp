// ZelStrSubstitute: the plain one of the string family, it never asks the
// user; a refused allocation gives 0.
#include <cstring>

#include "text/substitute.h"
#include "text/win_text.h"

namespace {

HostStr AllocNoRetry(std::u16string_view text, uint64_t bytes) {
    HostStr slot = 0;
    if (!zk::text::HostSizeFits(bytes) || !HostStrAlloc(&slot, static_cast<int32_t>(bytes)))
        return 0;
    if (wchar_t *buffer = zk::StrBuffer(slot)) {
        if (!text.empty())
            std::memcpy(buffer, text.data(), 2 * text.size());
        buffer[text.size()] = 0;
    }
    return slot;
}

} // namespace

HostStr ZKAPI ZelStrSubstitute(const wchar_t *text, const wchar_t *search, const wchar_t *replacement) {
    try {
        const std::u16string_view source = zk::text::ArgText(text);
        if (source.empty())
            return AllocNoRetry({}, 2);
        const std::u16string result =
            zk::text::Substitute(source, zk::text::ArgText(search), zk::text::ArgText(replacement));
        // (replacement - search) * count + length characters and a terminator.
        return AllocNoRetry(result, 2 * static_cast<uint64_t>(result.size()) + 2);
    } catch (...) {
        return 0;
    }
}
