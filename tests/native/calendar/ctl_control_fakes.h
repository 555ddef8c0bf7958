// A window for the control's logic: records what the machine asks of it.
#pragma once

#include <string>
#include <vector>

#include "calendar/core/calendar_input.h"
#include "calendar_fakes.h"
#include "fake_effects.h"

namespace calctl {

// A created control showing year/month in a client of 140 x 100 with cells
// of 20 x 12, its focus on `focusDay` of that month.
struct Control {
    Control(int year, int month, int focusDay) : shown(year, month) {
        layout.Compute(140, 100, 8, 12);
        fx.namer = [this](const zk::Rect &r) { return caltest::PartName(layout, r); };
        shown.cal.SetFocusDate(zk::cal::CDateTime(year, month, focusDay), 0, 1);
        shown.window.Take();
    }
    zk::cal::CalendarModel &cal() { return shown.cal; }
    void Style(uint32_t bit, int32_t value) { shown.cal.AssignStyleFlag(bit, value); }
    // The centre of a cell, in client pixels.
    zk::Point Centre(int32_t cell) const {
        const auto r = layout.CellRect(cell);
        return {(r.left + r.right) / 2, (r.top + r.bottom) / 2};
    }
    caltest::Ymd Focus() { return caltest::Parts(shown.cal.GetFocusDate()); }

    caltest::Shown shown;
    zk::cal::MonthLayout layout;
    zkt::FakeEffects fx;
    uint16_t state = 0;
    zk::cal::Input input{shown.cal, layout, fx, state};
};

} // namespace calctl
