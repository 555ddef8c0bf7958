#include "calendar/core/calendar_nav.h"

#include <algorithm>
#include <string>

namespace zk::cal {

namespace {

bool ShowExtra(const CalendarModel &model) { return FlagOn(model.Flags().showExtra); }

void PreviousMonth(int32_t &year, int32_t &month) {
    if (--month < 1) {
        month = 12;
        --year;
    }
}

void NextMonth(int32_t &year, int32_t &month) {
    if (++month > 12) {
        month = 1;
        ++year;
    }
}

// Marks or unmarks the focus date, the anchor moving to it.
void MarkFocus(CalendarModel &model, int add, bool ctrl, bool shift) {
    if (!ctrl)
        model.ClearMarks(0);
    const CDateTime focus = model.GetFocusDate();
    if (shift) {
        model.MarkRange(focus, model.GetAnchorDate(), add, 0);
        return;
    }
    model.SwapAnchorDate(focus);
    model.MarkDate(focus, add, 0, 1);
}

} // namespace

void MoveFocus(CalendarModel &model, int32_t delta) {
    const int32_t target = model.FocusCell() + delta;
    const int32_t first = model.FirstCell();
    const bool inGrid = target >= 0 && target < kCellCount;
    if (inGrid && (ShowExtra(model) || (target >= first && target <= model.LastCell()))) {
        model.SetFocusCell(target, 1);
        return;
    }
    int32_t year = model.DisplayYear(), month = model.DisplayMonth();
    int32_t day;
    if (target < 0 || (target < first && !ShowExtra(model))) {
        PreviousMonth(year, month);
        day = CDateTime::DaysInMonth(year, month) + target - first + 1;
    } else {
        day = target - first - CDateTime::DaysInMonth(year, month) + 1;
        NextMonth(year, month);
    }
    model.SetDisplayMonth(year, month, 1);
    model.SetFocusDate(CDateTime(year, month, day), 1, 1);
}

void StepMonth(CalendarModel &model, bool forward, int redraw) {
    int32_t day = model.GetFocusDate().GetDay();
    int32_t year = model.DisplayYear(), month = model.DisplayMonth();
    if (forward)
        NextMonth(year, month);
    else
        PreviousMonth(year, month);
    day = std::min(day, CDateTime::DaysInMonth(year, month));
    model.SetDisplayMonth(year, month, redraw);
    model.SetFocusDate(CDateTime(year, month, day), 0, redraw);
}

CDateTime YearStepDate(const CalendarModel &model, bool forward) {
    const int32_t year = model.DisplayYear() + (forward ? 1 : -1);
    return CDateTime(year, model.DisplayMonth(), model.GetFocusDate().GetDay());
}

void ButtonStep(CalendarModel &model, bool forward, bool byYear) {
    if (byYear) {
        model.SetFocusDate(YearStepDate(model, forward), 0, 0);
        return;
    }
    const int32_t day = model.GetFocusDate().GetDay();
    StepMonth(model, forward, 0);
    model.SetFocusDate(CDateTime(model.DisplayYear(), model.DisplayMonth(), day), 0, 0);
}

int32_t RowStartCell(const CalendarModel &model) {
    const int32_t cell = model.FocusCell() / 7 * 7;
    return ShowExtra(model) ? cell : std::max(cell, model.FirstCell());
}

int32_t RowEndCell(const CalendarModel &model) {
    const int32_t cell = model.FocusCell() / 7 * 7 + 6;
    return ShowExtra(model) ? cell : std::min(cell, model.LastCell());
}

void SelectAdd(CalendarModel &model, bool ctrl, bool shift) { MarkFocus(model, 1, ctrl, shift); }

void SelectRemove(CalendarModel &model, bool ctrl, bool shift) { MarkFocus(model, 0, ctrl, shift); }

void SelectToggle(CalendarModel &model, bool ctrl, bool shift) {
    if (shift) {
        const int add = model.IsMarked(model.GetAnchorDate()) ? 1 : 0;
        if (!ctrl)
            model.ClearMarks(0);
        model.MarkRange(model.GetFocusDate(), model.GetAnchorDate(), add, 0);
        return;
    }
    const CDateTime focus = model.GetFocusDate();
    model.SwapAnchorDate(focus);
    const bool wasMarked = model.IsMarked(focus) == 1;
    if (!ctrl)
        model.ClearMarks(0);
    if (wasMarked)
        model.MarkDate(focus, 0, 0, 1);
    else if (model.IsSelectableCell(model.FocusCell()) == 1)
        model.MarkDate(focus, 1, 0, 1);
}

GridDay DayOfCell(const CalendarModel &model, int32_t cell) {
    GridDay d{model.DisplayYear(), model.DisplayMonth(), 0};
    int32_t offset = cell - model.FirstCell();
    while (offset < 0) {
        PreviousMonth(d.year, d.month);
        const int32_t length = CDateTime::DaysInMonth(d.year, d.month);
        if (length <= 0)
            break; // no month on display
        offset += length;
    }
    for (int32_t length = CDateTime::DaysInMonth(d.year, d.month); length > 0 && offset >= length;
         length = CDateTime::DaysInMonth(d.year, d.month)) {
        offset -= length;
        NextMonth(d.year, d.month);
    }
    d.day = offset + 1;
    return d;
}

GridDay NextGridDay(GridDay d) {
    if (++d.day > CDateTime::DaysInMonth(d.year, d.month)) {
        d.day = 1;
        NextMonth(d.year, d.month);
    }
    return d;
}

std::u16string MidnightKey(const GridDay &d) {
    // yyyy-MM-dd-hh.mm.ss.mmmmmm at midnight.
    std::u16string key = u"0000-00-00-00.00.00.000000";
    auto put = [&key](size_t at, int32_t value, int digits) {
        for (int i = digits - 1; i >= 0; --i, value /= 10)
            key[at + static_cast<size_t>(i)] = static_cast<char16_t>(u'0' + value % 10);
    };
    put(0, d.year, 4);
    put(5, d.month, 2);
    put(8, d.day, 2);
    return key;
}

} // namespace zk::cal
