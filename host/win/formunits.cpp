// Form units are inches: pixels over the screen's logical pixels per inch on
// the axis. Positions are in the parent's client area, as SetWindowPos
// takes them for a child window.
#include <cmath>
#include <cstdint>

#include "core/hostnum.h"
#include "guard.h"
#include "zkhost.h"

using namespace hostwin;

namespace {

int PixelsPerInch(bool vertical) {
    HDC screen = GetDC(nullptr);
    int dpi = screen ? GetDeviceCaps(screen, vertical ? LOGPIXELSY : LOGPIXELSX) : 0;
    if (screen)
        ReleaseDC(nullptr, screen);
    return dpi > 0 ? dpi : 96;
}

// Form units back to whole pixels; false for a null or unreadable number.
bool ToPixels(const HostNumber &units, bool vertical, int &pixels) {
    if (units.length == 0 || units.length > sizeof(units.digits))
        return false;
    double value = std::round(zkh::NumberToDouble(units) * PixelsPerInch(vertical));
    if (!(value >= INT32_MIN && value <= INT32_MAX))
        return false;
    pixels = static_cast<int>(value);
    return true;
}

} // namespace

extern "C" {

HostNumber *ZKAPI HostPixelsToFormUnits(HostNumber *out, HWND window, int32_t pixels, int32_t axis) {
    if (!out)
        return out;
    *out = Guard(HostNumber{}, [&] {
        if (axis != 0 && axis != 1)
            return HostNumber{};
        return zkh::NumberFromDouble(double(pixels) / PixelsPerInch(axis == 1));
    });
    return out;
}

int32_t ZKAPI HostWinSetLocation(HWND window, HostNumber x, HostNumber y) {
    int px = 0, py = 0;
    if (!IsWindow(window) || !ToPixels(x, false, px) || !ToPixels(y, true, py))
        return 0;
    return SetWindowPos(window, nullptr, px, py, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE) ? 1 : 0;
}

int32_t ZKAPI HostWinSetSize(HWND window, HostNumber width, HostNumber height) {
    int cx = 0, cy = 0;
    if (!IsWindow(window) || !ToPixels(width, false, cx) || !ToPixels(height, true, cy) || cx < 0 || cy < 0)
        return 0;
    return SetWindowPos(window, nullptr, 0, 0, cx, cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE) ? 1 : 0;
}

} // extern "C"
