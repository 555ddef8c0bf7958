// The spin field's record: a moveable, zero-initialised local block, found
// through the window property "ZK:SpinParent" on the spin window and on its
// edit, and locked only for the length of each access. Packed: 50 bytes
// where handles are 32 bits.
#pragma once

#include <windows.h>

#include <cstdint>

#include "controls/core/spin_block.h"
#include "controls/core/spin_model.h"
#include "frame/win/propcache.h"

namespace zk::ctl {

inline constexpr const wchar_t *kSpinParentProperty = L"ZK:SpinParent";

#pragma pack(push, 1)
struct SpinRecord {
    SpinValues values; // value, minimum, maximum, increment, decimalAdjust
    HWND edit;         // the child edit
    HWND self;         // the spin window
    HWND lastFocus;    // the window that gave the spin window the focus
    HFONT font;
    WNDPROC editProc;   // the edit's former procedure
    uint16_t flags;     // SPF_...
    uint32_t timer;     // timer id
    uint32_t pressTick; // GetTickCount at the press
};
#pragma pack(pop)

static_assert(sizeof(void *) != 4 || sizeof(SpinRecord) == 50);

// What a designer may give as the creation parameter in place of the
// item's property: a size word of 16 and, in the next word, a global
// memory handle to the 16-byte record (SpinBlock's four values). Words are
// pointer-sized; on 32-bit Windows the run-time bit (bit 0 of byte 4) falls
// in the handle, which is never odd, so such a window is in design mode.
struct SpinDesignParameter {
    uintptr_t size;
    HGLOBAL record;
};
inline constexpr uintptr_t kSpinDesignParameterSize = 16;

// The record's handle, from the property of the spin window or its edit.
// The spin window's extra word holds it as well, whole where handles are
// 32 bits; the library reads the property, which holds it whole everywhere.
inline HLOCAL SpinHandle(HWND window) { return static_cast<HLOCAL>(PropGet(window, kSpinParentProperty)); }

// Puts a design-time record's four values into a spin field (the designer's
// apply step); false when the window has no record.
bool ApplySpinBlock(HWND spin, const SpinBlock &block);

} // namespace zk::ctl
