// What start-up takes from the small controls (frame/win/startup.cpp).
#pragma once

#include <windows.h>

namespace zk::ctl {

// New splitter blocks take the system's colours.
void BindControlsToHost();

// "ZK:cSplitter:10": makes a CDlgSplitter at WM_NCCREATE.
LRESULT CALLBACK DlgSplitterBootstrap(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
// "ZK:cSpinField:10": the spin field, a plain window procedure.
LRESULT CALLBACK SpinFieldProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
// "ZK:cMeter:10": the meter, a plain window procedure.
LRESULT CALLBACK MeterProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

} // namespace zk::ctl
