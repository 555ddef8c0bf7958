// The popup menu being tracked: the platform draws its popups in windows of
// class "#32768", which keep showing an item's old text until they paint
// again.
#pragma once

#include <windows.h>

#include <cstdint>

namespace zk::menu {

// A visible popup menu window of this thread, or null.
HWND GetTrackingMenu();
// Every open popup of this thread that shows `menu` paints its items again,
// so a changed item text shows while the popup is open.
void UpdatePopupItemText(HWND tracking, HMENU menu, int32_t selector);

} // namespace zk::menu
