// What start-up takes from the palette (frame/win/startup.cpp).
#pragma once

#include <windows.h>

namespace zk::pal {

// The procedure of the form's palette class "ZK:cPalette:10": makes a
// CDlgPalette at WM_NCCREATE and stays the window's procedure.
LRESULT CALLBACK DlgPaletteBootstrap(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

} // namespace zk::pal
