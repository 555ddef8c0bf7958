// The procedure that sits on a frame window once the library has added a
// menu item to it: owner drawing and measuring, mnemonics of owner-drawn
// items, the host's notice of chosen items, forgetting the records on the
// host's request and taking everything down with the window.
#pragma once

#include <windows.h>

namespace zk::menu {

LRESULT CALLBACK MenuSubclassProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

} // namespace zk::menu
