// Which window a menu call is about: the host frame that owns a menu, the
// window that carries the menu block, and the opening step every function
// with a window and a menu starts with. Host frames are told apart by the
// host's frame kind (HostFrameKind) where the framework tested run-time
// classes.
#pragma once

#include <windows.h>

#include <cstdint>

#include "menu/core/menu_tree.h"

namespace zk::menu {

// The platform's menus as a MenuTree.
const MenuTree &PlatformTree();

// The host's frame kind of a window (HOST_FRAME_*).
int32_t FrameKind(HWND window);
// A frame of the two frame classes: "Marlo:AccFrame" or "Marlo:MDIFrame".
bool IsMenuFrame(HWND window);
// The nearest frame window above a window (frame, MDI frame or MDI child).
HWND ParentFrame(HWND window);
// The menu of a frame: GetMenu, else the host frame's own menu.
HMENU FrameMenuOf(HWND frame);

// The host frame whose system menu or menu tree holds a menu, for the
// functions that get no window; 0 when none does.
HWND ZelMenuFindHostFrame(HMENU menu);
// Whether the window is a frame of the two classes with a menu of its own,
// and the menu is that menu or lies below it.
bool ZelMenuInFrame(HWND window, HMENU menu);
// The window that carries the menu block for a window, or 0.
HWND ZelMenuFindFrame(HWND window, bool systemMenu);

// ZelMenuGetHandle: the window's menu, its parent's, or its host frame's
// own; the parent's GetMenu value as it stands when none of those applies.
HMENU MenuHandleOf(HWND window);
HMENU SystemMenuOf(HWND window);

// The opening step: a menu and a window that go together, and the frame.
// `parentFrameTest`: the parent may also qualify by holding the menu in its
// frame's tree.
struct Opening {
    HWND frame = nullptr;
    bool systemMenu = false;
};
bool Open(HWND window, HMENU menu, bool parentFrameTest, Opening &out);

// The bar of a frame shows its structure again: the ribbon bar's refresh on
// an MDI frame that uses one, else UpdateMenuBar. Nothing for other windows.
void RefreshBar(HWND frame);

// The position of a command id in a menu, or -1.
int32_t PositionOf(HMENU menu, int32_t id);

} // namespace zk::menu
