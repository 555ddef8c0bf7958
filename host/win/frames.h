// The host's frame windows: a frame ("Marlo:AccFrame"), an MDI frame
// ("Marlo:MDIFrame") with its MDI children, and host dialogs. A frame keeps
// the menu it was given (not attached to the window: GetMenu gives 0) and a
// structure of its own read from it, which its bar shows; an MDI frame may
// show a ribbon bar in place of the menu bar. What the frame operations did
// is logged per window for tests.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

#include "core/frame_menu.h"

namespace hostwin {

// The library's messages that reach a host window.
inline constexpr UINT kMenuCommandMessage = 0x6007; // an application's menu item was chosen
inline constexpr UINT kMenuClearMessage = 0x600F;   // the library forgets its menu records

// Command ids of an MDI frame: the Windows menu is the popup holding one of
// the window commands; MDI children are listed from the first child id on.
inline constexpr int32_t kWindowCommandFirst = 0xE130;
inline constexpr int32_t kWindowCommandLast = 0xE13F;
inline constexpr int32_t kFirstChildId = 0xFF00;

struct HostFrame {
    HWND window = nullptr;
    int32_t kind = 0; // HOST_FRAME_*
    HMENU ourMenu = nullptr;
    zkh::FrameMenu structure;
    HWND bar = nullptr; // menu bar, or ribbon bar when `ribbon`
    bool ribbon = false;
    HWND mdiClient = nullptr;
    std::wstring log;
};

// The frame record of a live host window, or null.
HostFrame *FindFrame(HWND window);
// A frame of one of the two frame classes (frame, MDI frame), or null.
HostFrame *FindMenuFrame(HWND window);
// Appends one line to the window's log.
void Log(HostFrame &frame, const std::wstring &line);

// Creates a host window of a kind (HOST_FRAME_*); null on failure.
HWND CreateFrame(int32_t kind, HWND parent, const wchar_t *title, HMENU menu, uint32_t options);

// The structure read again from the frame's menu.
void ReadStructure(HostFrame &frame);
// The platform menu as the structure reads it.
const zkh::MenuSource &PlatformMenus();

// ---- bars (frame_bar.cpp) ----------------------------------------------------
// Creates the frame's bar window: a menu bar, or a ribbon bar.
HWND CreateBar(HostFrame &frame, bool ribbon);
int BarHeight(const HostFrame &frame);
// The bar shows the structure again.
void RepaintBar(const HostFrame &frame);
// Opens the popup of a top-level item under the bar (modal); for a command
// item, posts its WM_COMMAND. False when there is no such item.
bool OpenBarItem(HostFrame &frame, int position);
// The text the Windows menu shows for an MDI child command id, or empty.
std::wstring WindowsMenuText(const HostFrame &frame, int32_t id);
// Whether a menu is the MDI frame's Windows menu.
bool IsWindowsMenu(const HostFrame &frame, HMENU menu);

} // namespace hostwin
