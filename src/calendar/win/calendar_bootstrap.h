// What start-up takes from the calendar (frame/win/startup.cpp).
#pragma once

#include <windows.h>

namespace zk::cal {

// Binds the date classes to the host runtime's exports and to the
// library's resources and system colours.
void BindDatesToHost();

// The procedure of the form's calendar class "ZK:cCalendar:10": makes a
// CDlgCalendar at WM_NCCREATE.
LRESULT CALLBACK DlgCalendarBootstrap(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

} // namespace zk::cal
