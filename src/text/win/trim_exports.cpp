// ZelStrTrim, ZelStrLeftTrim, ZelStrRightTrim.
#include <cwctype>

#include "text/core/trim.h"
#include "text/win/host_text.h"

namespace {

bool IsWhiteSpace(char16_t c) { return std::iswspace(static_cast<wint_t>(c)) != 0; }

HostStr Trimmed(const wchar_t *text, std::u16string_view (*trim)(std::u16string_view, zk::text::SpaceTest)) noexcept {
    return zk::StringResult([&]() -> HostStr {
        if (!text)
            return ZelStrEmpty();
        return zk::text::TextResult(trim(zk::text::ArgText(text), IsWhiteSpace));
    });
}

} // namespace

HostStr ZKAPI ZelStrTrim(const wchar_t *text) { return Trimmed(text, zk::text::Trim); }
HostStr ZKAPI ZelStrLeftTrim(const wchar_t *text) { return Trimmed(text, zk::text::TrimLeft); }
HostStr ZKAPI ZelStrRightTrim(const wchar_t *text) { return Trimmed(text, zk::text::TrimRight); }
