// What the calendar window tests share: a form with a calendar made by the
// host's class, the pointer the control announced and its paint read back
// from a memory context.
#pragma once

#include <windows.h>
#include <gtest/gtest.h>

#include <vector>

#include "calendar/win/calendar_window.h"
#include "win_control.h"
#include "zkharness.h"
#include "zkhost.h"
#include "zkhostctl.h"
#include "zklib.h"

namespace ctltest {

inline HostDateTime Date(int year, int month, int day) {
    HostDateTime d{};
    HostDateConstruct(&d, year, month, day, 0, 0, 0);
    return d;
}

struct Ymd {
    int year, month, day;
    bool operator==(const Ymd &) const = default;
};
std::ostream &operator<<(std::ostream &out, const Ymd &d);

// The form's calendar: "ZK:cCalendar:10" on a test window, its announced
// pointer taken from the queue. The clock stands at 15 March 2024.
class FormCalendar : public zkt::ControlForm {
public:
    explicit FormCalendar(zkt::Box box = {10, 10, 240, 180}, void *parameter = nullptr)
        : ControlForm(L"ZK:cCalendar:10", box, parameter),
          object_(reinterpret_cast<zk::cal::CCalendar *>(announced())) {}

    ZelCalControl control() const { return reinterpret_cast<ZelCalControl>(object_); }
    zk::cal::CCalendar &object() const { return *object_; }
    const zk::cal::MonthLayout &layout() const { return object_->Layout(); }
    Ymd Focus() const;
    int FocusCell() const { return object_->Model().FocusCell(); }
    // The client area as the control paints it.
    zkt::Bitmap Paint() const { return zkt::PrintClient(hwnd()); }
    // A message to the control at a client point.
    void Mouse(UINT message, int x, int y, WPARAM keys = 0) const;
    void MouseAtCell(UINT message, int cell, WPARAM keys = 0) const;

private:
    zk::cal::CCalendar *object_ = nullptr;
};

// Pixels of a colour in a row or a column of a picture, between two bounds.
inline int RowCount(const zkt::Bitmap &b, COLORREF colour, int y, int x0, int x1) {
    return b.count(colour, RECT{x0, y, x1, y + 1});
}
inline int ColumnCount(const zkt::Bitmap &b, COLORREF colour, int x, int y0, int y1) {
    return b.count(colour, RECT{x, y0, x + 1, y1});
}
inline RECT Win(const zk::Rect &r) { return RECT{r.left, r.top, r.right, r.bottom}; }

} // namespace ctltest
