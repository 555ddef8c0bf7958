// The month on its grid: which cell holds the first of the month, and the
// steps between cells and dates.
#include "calendar/core/calendar_model.h"

namespace zk::cal {

namespace {

// Steps from `from` to `to` counting upward through the weekdays, 8
// wrapping to 1: 0 to 6.
int32_t WeekdaySteps(int64_t from, int64_t to) {
    const int64_t steps = (to - from) % 7;
    return static_cast<int32_t>(steps < 0 ? steps + 7 : steps);
}

} // namespace

CalendarModel::CalendarModel() : roles_(RoleTable()) {}

CDateTime CalendarModel::SwapAnchorDate(const CDateTime &date) {
    CDateTime old = anchorDate_;
    anchorDate_ = date;
    return old;
}

int32_t CalendarModel::ColumnWeekday(int32_t column) const { return WeekdaySteps(int64_t{1} - column, weekStart_) + 1; }

void CalendarModel::RecalcCells(int32_t year, int32_t month) {
    const int32_t first = CDateTime(year, month, 1, 0, 0, 0).GetWeekday();
    firstCell_ = WeekdaySteps(weekStart_, first);
    lastCell_ = CDateTime::DaysInMonth(year, month) + firstCell_ - 1;
}

CDateTime CalendarModel::CellToDate(int32_t cell) const {
    if (month_ == 0)
        return CDateTime(HostDateTime{});
    return CDateTime(year_, month_, 1, 0, 0, 0) + CDateTimeSpan(cell - firstCell_, 0, 0, 0);
}

int32_t CalendarModel::DateToCell(const CDateTime &date) const {
    if (month_ == 0)
        return -1;
    const int64_t cell = int64_t{(date - CDateTime(year_, month_, 1, 0, 0, 0)).GetDays()} + firstCell_;
    const bool inRange =
        flags_.showExtra == 1 ? cell >= 0 && cell < kCellCount : cell >= firstCell_ && cell <= lastCell_;
    return inRange ? static_cast<int32_t>(cell) : -1;
}

int CalendarModel::IsExtraCell(int32_t cell, int32_t first, int32_t last) const {
    if (first == -1 || last == -1) {
        first = firstCell_;
        last = lastCell_;
    }
    return cell < first || cell > last ? 1 : 0;
}

void CalendarModel::SetDisplayMonth(int32_t year, int32_t month, int redraw) {
    if (year == year_ && month == month_)
        return;
    year_ = year;
    month_ = month;
    focusCell_ = -1;
    RecalcCells(year, month);
    if (!Created())
        return;
    if (redraw == 1) {
        Invalidate(Area::Caption);
        Invalidate(Area::Grid);
    }
    Notify(CALN_MonthChange);
}

int32_t CalendarModel::SetWeekStart(int32_t weekday) {
    const int32_t old = weekStart_;
    weekStart_ = weekday;
    // The focus cell keeps its number until the focus next moves.
    if (Created()) {
        RecalcCells(year_, month_);
        effects_->Redraw();
    }
    return old;
}

void CalendarModel::Invalidate(Area area, bool erase) {
    if (!Created())
        return;
    if (area == Area::Window)
        effects_->InvalidateAll(erase);
    else if (layout_)
        effects_->Invalidate(layout_->AreaRect(area), erase);
}

void CalendarModel::InvalidateCell(int32_t cell) {
    if (Created() && layout_ && cell >= 0 && cell < kCellCount)
        effects_->Invalidate(layout_->CellRect(cell), false);
}

void CalendarModel::UpdateNow() {
    if (Created())
        effects_->Update();
}

void CalendarModel::Notify(int32_t code) {
    if (effects_)
        effects_->Notify(code);
}

} // namespace zk::cal
