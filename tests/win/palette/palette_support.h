// What the palette window tests share: a form with a palette made by the
// host's class, the pointer the control announced, its paint read back from
// a memory context, and the messages it posts.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <vector>

#include "palette/win/palette_window.h"
#include "zkharness.h"
#include "zkhost.h"
#include "zkhostctl.h"
#include "zklib.h"

namespace paltest {

struct Posted {
    HWND hwnd;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
};

// The form's palette: "ZK:cPalette:10" on a test window, its announced
// pointer taken from the queue, the default font of the library.
class FormPalette {
public:
    explicit FormPalette(zkt::Box box = {10, 10, 200, 160}, void *parameter = nullptr);
    ~FormPalette();

    HWND hwnd() const { return hwnd_; }
    ZelPalControl control() const { return reinterpret_cast<ZelPalControl>(object_); }
    zk::pal::CColorPalette &object() const { return *object_; }
    const zk::pal::PalLayout &layout() const { return object_->Layout(); }
    zk::pal::PalHit Focus() const;
    // The client area as the control paints it.
    zkt::Bitmap Paint() const;
    // A cell's rectangle, and a message at its centre.
    zk::Rect Cell(int zone, int index) const;
    void Mouse(UINT message, int x, int y) const;
    void MouseAt(UINT message, int zone, int index) const;
    // Takes what is queued on this thread, in order, and dispatches it.
    static std::vector<Posted> Drain();
    // WM_COMMAND codes posted to the form by the control.
    std::vector<int> Notifications(const std::vector<Posted> &posted) const;

    zkt::TestWindow form{420, 320};
    HBRUSH listBrush = nullptr; // the form's answer to WM_CTLCOLORLISTBOX, when set
    COLORREF listText = 0;

private:
    HWND hwnd_ = nullptr;
    zk::pal::CColorPalette *object_ = nullptr;
};

inline RECT Win(const zk::Rect &r) { return RECT{r.left, r.top, r.right, r.bottom}; }

} // namespace paltest
