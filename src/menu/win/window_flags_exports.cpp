// The field flags and the form-wide operations over fields.
#include "frame/win/guard.h"
#include "menu/win/window_flags.h"

using namespace zk::menu;

extern "C" {

int32_t ZKAPI ZelWinGetFlags(HWND window) {
    return zk::Quietly([&] { return static_cast<int32_t>(FlagsOf(window)); }, [] { return 0; });
}

int32_t ZKAPI ZelWinSetFlags(HWND window, uint32_t flags, int32_t set) {
    return zk::Quietly([&] { return SetFlags(window, flags, set != 0) ? 1 : 0; }, [] { return 0; });
}

HWND ZKAPI ZelWinIsRequiredFieldNull(HWND form) {
    return zk::Quietly([&] { return IsWindow(form) ? FirstRequiredNull(form) : nullptr; },
                       []() -> HWND { return nullptr; });
}

int32_t ZKAPI ZelWinClearAllFields(HWND form) {
    return zk::Quietly([&] { return IsWindow(form) ? ClearAllFields(form) : ZEL_INVALID_PARAMETER; },
                       [] { return ZEL_INVALID_PARAMETER; });
}

int32_t ZKAPI ZelWinClearAllEditFlags(HWND form) {
    return zk::Quietly([&] { return IsWindow(form) ? ClearAllEditFlags(form) : ZEL_INVALID_PARAMETER; },
                       [] { return ZEL_INVALID_PARAMETER; });
}

} // extern "C"
