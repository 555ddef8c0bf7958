// Keyboard accelerators and their hook.
#include "frame/win/guard.h"
#include "menu/win/accelerator_list.h"

using namespace zk::menu;

extern "C" {

ZelAccelHandle ZKAPI ZelWinLoadAccelerator(HWND window, uint32_t message, uint32_t modifiers, uint16_t key,
                                           uint32_t value) {
    return zk::Quietly(
        [&] { return reinterpret_cast<ZelAccelHandle>(LoadAccelerator(window, message, modifiers, key, value)); },
        [] { return ZelAccelHandle{0}; });
}

int32_t ZKAPI ZelWinFreeAccelerator(ZelAccelHandle accelerator) {
    return zk::Quietly([&] { return FreeAccelerator(reinterpret_cast<HLOCAL>(accelerator)) ? 1 : 0; },
                       [] { return 0; });
}

LRESULT ZKAPI KeyboardHookProc(int code, WPARAM key, LPARAM data) {
    return zk::Quietly([&] { return HookKey(code, key, data); },
                       [&] { return CallNextHookEx(nullptr, code, key, data); });
}

} // extern "C"
