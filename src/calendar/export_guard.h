// What the calendar exports share: the control pointer as the model it
// stands for, and date arguments as the model holds them. Each export runs
// under zk::GuardedControlText with its own literal failure words.
#pragma once

#include "calendar/calendar_model.h"
#include "designer/control_guard.h"

namespace zk::cal {

// The one place that reads a control pointer: the pointer that
// ZKM_ControlCreate announced is taken as the calendar model itself.
inline CCalendar *CalendarOf(ZelCalControl control) { return reinterpret_cast<CCalendar *>(control); }

// A date argument as the calendar holds it: the low four bits of its length.
inline CDateTime DateArg(const HostDateTime &record) { return CDateTime(record); }

} // namespace zk::cal
