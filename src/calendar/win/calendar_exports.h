// What the calendar exports share: the control pointer as the model it
// stands for, and date arguments as the model holds them. Each export runs
// under zk::GuardedControlText with its own literal failure words.
#pragma once

#include "calendar/core/calendar_model.h"
#include "calendar/win/calendar_window.h"
#include "frame/win/guard.h"

namespace zk::cal {

// The one place that reads a control pointer: the pointer that
// ZKM_ControlCreate announced is the calendar window object (a drop-down
// hands out its pop-up's), and the exports work on its model. Null stays
// null, for the guard's message.
inline CalendarModel *CalendarOf(ZelCalControl control) {
    auto *window = reinterpret_cast<CCalendar *>(control);
    return window ? &window->Model() : nullptr;
}

// A date argument as the calendar holds it: the low four bits of its length.
inline CDateTime DateArg(const HostDateTime &record) { return CDateTime(record); }

} // namespace zk::cal
