// What start-up takes from the header list (frame/win/startup.cpp).
#pragma once

#include <windows.h>

namespace zk::hdr {

// Binds the blocks' image lists to the platform's (ImageList_Read,
// ImageList_Write, the icon copy, the default icon).
void BindImageListsToPlatform();

// The procedure of the form's class "ZK:cListView:10": makes a
// CDlgHeaderLB at WM_NCCREATE.
LRESULT CALLBACK DlgHeaderLBBootstrap(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

} // namespace zk::hdr
