// What the small controls' window tests share: the host's creation
// parameter, a form with a splitter between two panes, spin fields and
// meters made by the host's classes, and pixels read back from a memory
// context or from the screen.
#pragma once

#include <windows.h>
#include <gtest/gtest.h>

#include <string>

#include "controls/win/splitter_window.h"
#include "win_control.h"
#include "zkharness.h"
#include "zkhost.h"
#include "zkhostctl.h"
#include "zklib.h"

namespace ctltest {

// The creation parameter of a host window with stored properties: the
// run-time bit, bit 0 of byte 4.
inline uint8_t runTime[8] = {0, 0, 0, 0, 1, 0, 0, 0};

// A window's rectangle in its parent's client coordinates.
RECT InParent(HWND window);

// A form 400 by 300 with two bordered panes and a run-time splitter of the
// host's class, 3 pixels wide at x 100, its announced pointer taken from the
// queue. The panes are not set as children yet.
class SplitterForm {
public:
    explicit SplitterForm(void *parameter = runTime, int x = 100);
    ~SplitterForm();

    HWND bar() const { return bar_; }
    ZelSplitControl control() const { return reinterpret_cast<ZelSplitControl>(object_); }
    zk::ctl::CSplitter &object() const { return *object_; }
    void SetChildren() const;
    // A mouse message to the bar at a point of its client area.
    void Mouse(UINT message, int x, int y) const;

    zkt::TestWindow form{400, 300};
    HWND left = nullptr, right = nullptr;

private:
    HWND bar_ = nullptr;
    zk::ctl::CSplitter *object_ = nullptr;
};

// What the screen shows in a rectangle of screen coordinates.
zkt::Bitmap Screen(const RECT &area);
bool SamePixels(const zkt::Bitmap &a, const zkt::Bitmap &b);

std::wstring Text(HWND window);

} // namespace ctltest
