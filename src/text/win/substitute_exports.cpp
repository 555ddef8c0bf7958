// ZelStrSubstitute: the plain one of the string family, it never asks the
// user; a refused allocation gives 0.
#include "text/core/substitute.h"
#include "text/win/host_text.h"

namespace {

HostStr AllocNoRetry(std::u16string_view text, uint64_t bytes) {
    HostStr slot = 0;
    if (!zk::text::HostSizeFits(bytes) || !HostStrAlloc(&slot, static_cast<int32_t>(bytes)))
        return 0;
    zk::StrWrite(slot, zk::text::WideText(text), text.size());
    return slot;
}

} // namespace

HostStr ZKAPI ZelStrSubstitute(const wchar_t *text, const wchar_t *search, const wchar_t *replacement) {
    return zk::Quietly(
        [&]() -> HostStr {
            const std::u16string_view source = zk::text::ArgText(text);
            if (source.empty())
                return AllocNoRetry({}, 2);
            const std::u16string result =
                zk::text::Substitute(source, zk::text::ArgText(search), zk::text::ArgText(replacement));
            // (replacement - search) * count + length characters and a terminator.
            return AllocNoRetry(result, 2 * static_cast<uint64_t>(result.size()) + 2);
        },
        [] { return HostStr{0}; });
}
