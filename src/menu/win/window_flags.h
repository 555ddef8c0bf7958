// The field flags: a small store of flag bits on each field ("ZK:WinFlags",
// a moveable local block beside the field's subclass), the form's subclass
// that keeps default buttons disabled while a required field is null
// ("ZK:ParentWinFlags"), and the form-wide walks over fields by host type.
#pragma once

#include <windows.h>

#include <cstdint>

namespace zk::menu {

inline constexpr wchar_t kWinFlagsProp[] = L"ZK:WinFlags";
inline constexpr wchar_t kParentWinFlagsProp[] = L"ZK:ParentWinFlags";
// On a read-only check box or radio button, value 1.
inline constexpr wchar_t kReadOnlyProp[] = L"ES_READONLY";

// The block of "ZK:WinFlags": what the field's subclass replaced, and the bits.
struct WinFlagsBlock {
    WNDPROC oldProc;
    uint32_t flags;
};

// The block of "ZK:ParentWinFlags": what the form's subclass replaced.
struct ParentWinFlagsBlock {
    WNDPROC oldProc;
};

// The flags of a window, 0 without the block.
uint32_t FlagsOf(HWND window);

// ZelWinSetFlags: true, or false when a block or subclass could not be had.
bool SetFlags(HWND window, uint32_t flags, bool set);

// Puts the parent procedure on a window that does not have it yet; false
// when its block or subclass could not be had.
bool EnsureParentProcedure(HWND window);

// Whether a required child counts as null by its type. `strictMultiple`: a
// multiple-selection list with selected rows must also have a first
// selection (the parent procedure's test).
bool IsNullField(HWND child, uint32_t type, bool strictMultiple);

// ZelWinIsRequiredFieldNull: the first required child that is null, in Z
// order, frames and frame children searched first; or null.
HWND FirstRequiredNull(HWND form);

// ZelWinClearAllFields and ZelWinClearAllEditFlags on a window: the count.
int32_t ClearAllFields(HWND form);
int32_t ClearAllEditFlags(HWND form);

} // namespace zk::menu
