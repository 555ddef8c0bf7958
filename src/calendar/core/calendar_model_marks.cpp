// Marked dates, keyed by their canonical text: a mark is exact to the
// microsecond, so a date with a time of day is stored but no cell shows it.
#include <new>

#include "calendar/core/calendar_model.h"

namespace zk::cal {

int CalendarModel::IsMarked(const CDateTime &date) const {
    if (marks_.empty() || date.IsNull())
        return 0;
    return marks_.count(date.KeyText()) ? 1 : 0;
}

int CalendarModel::MarkDate(const CDateTime &date, int add, int updateNow, int invalidate) {
    if ((add != 0 && add != 1) || date.IsNull())
        return 0;
    try {
        std::u16string key = date.KeyText();
        if (add == 1) {
            // The store keeps its own copy; without memory it stays as it was.
            if (!marks_.try_emplace(std::move(key), date).second)
                return 0;
        } else if (marks_.erase(key) == 0) {
            return 0;
        }
    } catch (const std::bad_alloc &) {
        Notify(CALN_OutOfMemory);
        return 0;
    }
    if (Created() && invalidate == 1) {
        const int32_t cell = DateToCell(date);
        if (cell != -1) {
            InvalidateCell(cell);
            if (updateNow == 1)
                UpdateNow();
        }
    }
    return 1;
}

int CalendarModel::MarkRange(const CDateTime &dateA, const CDateTime &dateB, int add, int updateNow) {
    if (!dateA.IsNull() && !dateB.IsNull()) {
        std::u16string low = dateA.KeyText(), high = dateB.KeyText();
        CDateTime day = dateA;
        if (high < low) {
            low.swap(high);
            day = dateB;
        }
        // Every date of the range, on display or not. The keys rise with each
        // day; should the host's steps stop rising (the end of its years),
        // so does the walk.
        std::u16string key = low;
        while (key <= high) {
            MarkDate(day, add, 0, 1);
            day.Increment();
            std::u16string next = day.KeyText();
            if (next <= key)
                break;
            key.swap(next);
        }
    }
    if (updateNow == 1)
        UpdateNow();
    return 1;
}

int CalendarModel::ClearMarks(int updateNow) {
    const bool had = !marks_.empty();
    marks_.clear();
    if (had && Created()) {
        Invalidate(Area::Grid);
        if (updateNow == 1)
            UpdateNow();
    }
    return 1;
}

void CalendarModel::UnmarkExtraCells() {
    for (int32_t cell = 0; cell < kCellCount; ++cell) {
        if (cell >= firstCell_ && cell <= lastCell_)
            continue;
        if (MarkDate(CellToDate(cell), 0, 0, 1) == 1)
            InvalidateCell(cell);
    }
}

void CalendarModel::UnmarkSpecialCells() {
    for (int32_t cell = firstCell_ < 0 ? 0 : firstCell_; cell <= lastCell_ && cell < kCellCount; ++cell) {
        if (GetCellSpecial(cell, nullptr, nullptr, -1, -1, nullptr) == 1 && MarkDate(CellToDate(cell), 0, 0, 1) == 1)
            InvalidateCell(cell);
    }
}

} // namespace zk::cal
