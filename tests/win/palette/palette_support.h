// What the palette window tests share: a form with a palette made by the
// host's class, the pointer the control announced, its paint read back from
// a memory context, and the messages it posts.
#pragma once

#include <windows.h>
#include <gtest/gtest.h>

#include <vector>

#include "palette/win/palette_window.h"
#include "win_control.h"
#include "zkharness.h"
#include "zkhost.h"
#include "zkhostctl.h"
#include "zklib.h"

namespace paltest {

// The form's palette: "ZK:cPalette:10" on a test window, its announced
// pointer taken from the queue, the default font of the library.
class FormPalette : public zkt::ControlForm {
public:
    explicit FormPalette(zkt::Box box = {10, 10, 200, 160}, void *parameter = nullptr)
        : ControlForm(L"ZK:cPalette:10", box, parameter),
          object_(reinterpret_cast<zk::pal::CColorPalette *>(announced())) {}

    ZelPalControl control() const { return reinterpret_cast<ZelPalControl>(object_); }
    zk::pal::CColorPalette &object() const { return *object_; }
    const zk::pal::GridLayout &layout() const { return object_->Layout(); }
    zk::pal::Hit Focus() const;
    // The client area as the control paints it.
    zkt::Bitmap Paint() const { return zkt::PrintClient(hwnd()); }
    // A cell's rectangle, and a message at its centre.
    zk::Rect Cell(int zone, int index) const;
    void Mouse(UINT message, int x, int y) const;
    void MouseAt(UINT message, int zone, int index) const;
    // WM_COMMAND codes posted to the form by the control.
    std::vector<int> Notifications(const std::vector<zkt::Posted> &posted) const {
        return zkt::NotificationCodes(posted, form.hwnd(), hwnd());
    }

private:
    zk::pal::CColorPalette *object_ = nullptr;
};

inline RECT Win(const zk::Rect &r) { return RECT{r.left, r.top, r.right, r.bottom}; }

} // namespace paltest
