#include "text/win/code_page.h"

#include "frame/win/host.h"

namespace zk::text {
namespace {

const wchar_t *Wide(std::u16string_view text) { return reinterpret_cast<const wchar_t *>(text.data()); }

} // namespace

std::size_t WinCodePage::ByteLength(std::u16string_view text) {
    if (text.empty() || text.size() > INT32_MAX)
        return 0;
    const int n =
        WideCharToMultiByte(CP_ACP, 0, Wide(text), static_cast<int>(text.size()), nullptr, 0, nullptr, nullptr);
    return n > 0 ? static_cast<std::size_t>(n) : 0;
}

char *WinCodePage::AllocBytes(std::size_t size) {
    if (size > INT32_MAX)
        return nullptr;
    return static_cast<char *>(HostByteAlloc(static_cast<int32_t>(size)));
}

void WinCodePage::FreeBytes(char *block) { HostByteFree(block); }

void WinCodePage::ToBytes(std::u16string_view text, char *out, std::size_t size) {
    if (size == 0)
        return;
    int written = 0;
    if (!text.empty() && text.size() <= INT32_MAX && size - 1 <= INT32_MAX)
        written = WideCharToMultiByte(CP_ACP, 0, Wide(text), static_cast<int>(text.size()), out,
                                      static_cast<int>(size - 1), nullptr, nullptr);
    out[written > 0 ? written : 0] = 0;
}

bool WinCodePage::CopyBytes(char *destination, const char *source, std::size_t limit) {
    return HostMbcsCopy(destination, source, static_cast<int32_t>(limit)) != 0;
}

std::size_t WinCodePage::WideLength(const char *bytes) {
    const int m = MultiByteToWideChar(CP_ACP, 0, bytes, -1, nullptr, 0);
    return m > 0 ? static_cast<std::size_t>(m) : 0;
}

} // namespace zk::text
