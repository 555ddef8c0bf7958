// What tests and the gallery tell the host about windows: a host type and
// class, and a name in the application's source. Entries of destroyed
// windows are dropped when met and swept now and then, so a handle value
// that the system reuses does not inherit an old mark.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

namespace hostwin {

struct WinMark {
    bool typed = false;
    uint32_t type = 0;
    uint32_t cls = 0;
    bool named = false;
    std::wstring name;
    int32_t frameKind = 0;
};

// The mark of a live window, or null.
const WinMark *FindMark(HWND window);
// Type 0 forgets the type and class. Can throw std::bad_alloc.
void MarkType(HWND window, uint32_t type, uint32_t cls);
void MarkName(HWND window, const wchar_t *name);
void MarkFrameKind(HWND window, int32_t kind);

} // namespace hostwin
