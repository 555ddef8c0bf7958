// Wide text of the Win32 side and the char16_t text of the portable core
// are the same code units on Windows.
#pragma once

#include <cwchar>
#include <string>
#include <string_view>

namespace hostwin {

static_assert(sizeof(wchar_t) == sizeof(char16_t), "UTF-16 wide characters");

inline std::u16string_view ToCore(const wchar_t *text) {
    return text ? std::u16string_view(reinterpret_cast<const char16_t *>(text), std::wcslen(text))
                : std::u16string_view();
}

inline std::wstring_view ToWide(const std::u16string &text) {
    return std::wstring_view(reinterpret_cast<const wchar_t *>(text.data()), text.size());
}

} // namespace hostwin
