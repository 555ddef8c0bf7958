// The accelerators of the process: packed records in moveable local blocks,
// linked from AccelFirst to AccelLast, and the thread keyboard hook that
// lives while the list is not empty.
#pragma once

#include <windows.h>

#include <cstdint>

namespace zk::menu {

#pragma pack(push, 1)
struct AccelRecord {
    uint32_t modifiers;
    uint16_t key;
    HWND window;
    uint32_t message;
    uint32_t value;
    uint32_t sending; // nonzero while the message is being sent
    HLOCAL next;
    HLOCAL previous;
};
#pragma pack(pop)

// ZelWinLoadAccelerator: the record's handle, or null.
HLOCAL LoadAccelerator(HWND window, uint32_t message, uint32_t modifiers, uint16_t key, uint32_t value);
// ZelWinFreeAccelerator: false for a handle that is no accelerator's.
bool FreeAccelerator(HLOCAL accelerator);
// KeyboardHookProc.
LRESULT HookKey(int code, WPARAM key, LPARAM data);

} // namespace zk::menu
