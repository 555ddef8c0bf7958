#include "outline/win/lbx_metrics.h"

#include <cstring>

namespace zk::lbx {

namespace {

// Metrics by font description. A font's metrics in a client DC depend on
// what the font describes and on the screen, not on the handle, which the
// system may give to another font once this one is deleted; so the
// description is the key. Rows are measured one by one, thousands at a time
// with the same few fonts, and a DC for each would cost far more than the
// measure itself.
struct Entry {
    bool used = false;
    LOGFONTW font{};
    TEXTMETRICW metrics{};
};

constexpr int kEntries = 8;
Entry cache[kEntries];
int nextEntry = 0;

bool Describe(HFONT font, LOGFONTW *description) {
    std::memset(description, 0, sizeof *description);
    return font && GetObjectW(font, sizeof *description, description) == sizeof *description;
}

} // namespace

bool FontMetrics(HWND window, HFONT font, TEXTMETRICW *metrics) {
    LOGFONTW description;
    const bool described = Describe(font, &description);
    if (described) {
        for (const Entry &e : cache) {
            if (e.used && std::memcmp(&e.font, &description, sizeof description) == 0) {
                *metrics = e.metrics;
                return true;
            }
        }
    }
    HDC dc = GetDC(window);
    if (!dc) {
        return false;
    }
    HGDIOBJ old = font ? SelectObject(dc, font) : nullptr;
    const BOOL ok = GetTextMetricsW(dc, metrics);
    if (old) {
        SelectObject(dc, old);
    }
    ReleaseDC(window, dc);
    if (ok && described) {
        Entry &e = cache[nextEntry];
        nextEntry = (nextEntry + 1) % kEntries;
        e.used = true;
        e.font = description;
        e.metrics = *metrics;
    }
    return ok != 0;
}

bool IsWin32Platform() {
    static const DWORD platform = [] {
        OSVERSIONINFOW info{};
        info.dwOSVersionInfoSize = sizeof info;
        return GetVersionExW(&info) ? info.dwPlatformId : DWORD{0};
    }();
    return platform == 1 || platform == 2;
}

} // namespace zk::lbx
