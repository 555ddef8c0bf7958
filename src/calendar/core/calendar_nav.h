// How keys and buttons move the calendar: by cells (into the next or the
// previous month at the edges), by month, by year, to the ends of a row or
// of the month, and the three selection operations of Multiple Selection.
// Operations on the model alone; the window decides when they run.
#pragma once

#include <cstdint>

#include "calendar/core/calendar_model.h"

namespace zk::cal {

// Show Extra and the other flags of the control count as on above 0.
inline bool FlagOn(int32_t flag) { return flag > 0; }

// The focus delta cells on, with the month turning at the edges of what
// may be focused (the grid, or the month alone without Show Extra).
void MoveFocus(CalendarModel &model, int32_t delta);
// A month on or back from the month on display, the focus day cut to the
// new month's length.
void StepMonth(CalendarModel &model, bool forward, int redraw);
// The focus date a year on or back: the day is not cut, so a 29 February
// reaches the host as it is.
CDateTime YearStepDate(const CalendarModel &model, bool forward);
// What a held month button does at the press and at each tick: a month
// (with the focus day kept as it was, not cut) or, with Ctrl, a year.
// Nothing is redrawn; the caller repaints the caption.
void ButtonStep(CalendarModel &model, bool forward, bool byYear);

// Home and End within the focus cell's row; without Show Extra they stop
// at the first and last cell of the month.
int32_t RowStartCell(const CalendarModel &model);
int32_t RowEndCell(const CalendarModel &model);

// Space, Insert and Delete with Multiple Selection; ctrl keeps the other
// marks, shift takes the range from the anchor.
void SelectToggle(CalendarModel &model, bool ctrl, bool shift);
void SelectAdd(CalendarModel &model, bool ctrl, bool shift);
void SelectRemove(CalendarModel &model, bool ctrl, bool shift);

// A day of the grid as plain numbers: what painting walks cell by cell
// without asking the host for each date.
struct GridDay {
    int32_t year = 0, month = 0, day = 0;
};
// The day shown in a cell of the month on display.
GridDay DayOfCell(const CalendarModel &model, int32_t cell);
GridDay NextGridDay(GridDay d);
// The key text a midnight of that day has in the mark store, for years 0
// to 9999; the caller checks once against the host's own text.
std::u16string MidnightKey(const GridDay &d);

} // namespace zk::cal
