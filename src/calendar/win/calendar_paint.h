// The pieces of the calendar's off-screen paint. Every piece draws into a
// memory context with the pens and brushes of the sixteen colour roles,
// made once per paint (frame/win/role_tools.h).
#pragma once

#include <windows.h>

#include "calendar/core/calendar_layout.h"
#include "calendar/core/calendar_model.h"
#include "frame/win/gdi.h"
#include "frame/win/role_tools.h"

namespace zk::cal {

// The roles' colours in force for a paint.
RoleTools PaintTools(const CalendarModel &model);

// What the pieces need to know of the control besides model and layout.
struct Look {
    bool disabled = false;
    bool focusMark = false; // the focus cell shows its mark
};

void PaintBackground(HDC dc, const RoleTools &tools, const MonthLayout &layout);
void PaintCaption(HDC dc, const RoleTools &tools, const MonthLayout &layout, const CalendarModel &model,
                  const Look &look);
void PaintWeekdayBand(HDC dc, const RoleTools &tools, const MonthLayout &layout, const CalendarModel &model,
                      const Look &look);
// One month button; down when its press flag is set and the pointer is on it.
void PaintButton(HDC dc, const RoleTools &tools, const MonthLayout &layout, const CalendarModel &model,
                 const Look &look, bool left, bool down);
// The cells from span.first to span.last.
void PaintCells(HDC dc, const RoleTools &tools, const MonthLayout &layout, const CalendarModel &model, const Look &look,
                CellSpan span);
void PaintGridlines(HDC dc, const RoleTools &tools, const MonthLayout &layout, const CalendarModel &model);

} // namespace zk::cal
