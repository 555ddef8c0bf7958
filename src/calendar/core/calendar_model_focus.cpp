// The focus: by date (which may bring another month on display) and by cell.
// Without Multiple Selection the focus date is the one marked date.
#include "calendar/core/calendar_model.h"

namespace zk::cal {

int CalendarModel::SetFocusDate(const CDateTime &date, int updateNow, int invalidate) {
    // The time of day falls away: the grid's dates are midnights.
    const CDateTime day(date.GetYear(), date.GetMonth(), date.GetDay(), 0, 0, 0);
    const bool single = !(flags_.multipleSelection > 0);
    if (single)
        MarkDate(focusDate_, 0, 0, invalidate);
    focusDate_ = day;
    int32_t cell = DateToCell(day);
    if (cell == -1) {
        SetDisplayMonth(day.GetYear(), day.GetMonth(), invalidate);
        cell = DateToCell(day);
    }
    focusCell_ = cell;
    if (single) {
        const bool blockedExtra = IsExtraCell(cell, -1, -1) && !(flags_.selectExtra > 0);
        const bool blockedSpecial =
            !(flags_.selectSpecial > 0) && GetCellSpecial(cell, nullptr, nullptr, -1, -1, nullptr) == 1;
        if (!blockedExtra && !blockedSpecial)
            MarkDate(focusDate_, 1, 0, invalidate);
    }
    if (Created()) {
        if (updateNow == 1)
            UpdateNow();
        Notify(CALN_FocusChange);
    }
    return 1;
}

void CalendarModel::SetFocusCell(int32_t cell, int updateNow) {
    if (cell < 0 || cell >= kCellCount || cell == focusCell_)
        return;
    const CDateTime oldDate = focusDate_;
    const int32_t oldCell = focusCell_;
    focusDate_ = CellToDate(cell);
    focusCell_ = cell;
    InvalidateCell(oldCell);
    const bool single = !(flags_.multipleSelection > 0);
    if (single)
        MarkDate(oldDate, 0, 1, 1);
    else
        UpdateNow();
    if (single && IsSelectableCell(cell)) {
        SwapAnchorDate(focusDate_);
        MarkDate(focusDate_, 1, 0, 1);
    } else {
        InvalidateCell(cell);
    }
    if (Created()) {
        if (updateNow == 1)
            UpdateNow();
        Notify(CALN_FocusChange);
    }
}

int CalendarModel::IsSelectableCell(int32_t cell) const {
    if (!(flags_.selectExtra > 0) && IsExtraCell(cell, -1, -1))
        return 0;
    if (flags_.selectSpecial > 0)
        return 1;
    return GetCellSpecial(cell, nullptr, nullptr, -1, -1, nullptr) == 0 ? 1 : 0;
}

} // namespace zk::cal
