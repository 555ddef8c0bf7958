// ZelStrPad (width in characters) and ZelStrPadB (width in bytes of the
// system code page).
#include "text/core/pad.h"
#include "text/win/code_page.h"
#include "text/win/host_text.h"

HostStr ZKAPI ZelStrPad(const wchar_t *text, int32_t width) {
    return zk::StringResult([&]() -> HostStr {
        const uint64_t bytes = 2 * static_cast<uint64_t>(width > 0 ? width : 0) + 2;
        if (!text || width <= 0 || !zk::text::HostSizeFits(bytes))
            return ZelStrEmpty();
        return zk::text::SizedResult(zk::text::Pad(zk::text::ArgText(text), static_cast<std::size_t>(width)), bytes);
    });
}

HostStr ZKAPI ZelStrPadB(const wchar_t *text, int32_t width) {
    return zk::StringResult([&]() -> HostStr {
        if (!text || width <= 0)
            return ZelStrEmpty();
        zk::text::WinCodePage codePage;
        const auto padded = zk::text::PadBytes(zk::text::ArgText(text), static_cast<std::size_t>(width), codePage);
        if (!padded)
            return ZelStrEmpty();
        return zk::text::SizedResult(padded->text, padded->allocBytes);
    });
}
