// ZelStrScanReverse: a caseless search backwards with the platform's
// character steps.
#include <cwchar>

#include "frame/win/guard.h"
#include "text/core/scan_reverse.h"
#include "text/win/host_text.h"

namespace {

class WinReverseScanner final : public zk::text::ReverseScanner {
public:
    std::size_t Previous(std::u16string_view text, std::size_t position) override {
        const wchar_t *start = reinterpret_cast<const wchar_t *>(text.data());
        return static_cast<std::size_t>(CharPrevW(start, start + position) - start);
    }
    bool EqualNoCase(const char16_t *a, const char16_t *b, std::size_t count) override {
        return _wcsnicmp(reinterpret_cast<const wchar_t *>(a), reinterpret_cast<const wchar_t *>(b), count) == 0;
    }
};

} // namespace

int32_t ZKAPI ZelStrScanReverse(const wchar_t *text, int32_t start, const wchar_t *search) {
    return zk::Guarded(L"ZelStrScanReverse()", 52, int32_t{-1}, [&]() -> int32_t {
        if (!text || !search)
            return -1;
        WinReverseScanner scanner;
        return zk::text::ScanReverse(zk::text::ArgText(text), start, zk::text::ArgText(search), scanner);
    });
}
