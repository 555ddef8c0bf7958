// The calendar as a model: a month on a grid of 42 cells, a focus date, a
// set of marked dates and a set of rules that colour dates as special, the
// colour roles and the style flags. It needs no window; the window of the
// control attaches its effects and layout and from then on receives the
// model's invalidations and notifications.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <unordered_map>

#include "calendar/core/calendar_layout.h"
#include "calendar/core/datetime.h"
#include "calendar/core/special_rule.h"
#include "frame/core/effects.h"
#include "frame/core/roles.h"
#include "zklib/calendar.h"

namespace zk::cal {

inline constexpr int32_t kCellCount = 42; // 6 rows of 7 columns
inline constexpr int32_t kRoleCount = CALR_Count;

// The style flags, stored as given. The first six are the control frame's
// (auto-size, pop-up and its third to sixth flags); the others the
// calendar's own. A flag counts as set above 0, auto-size when not 0.
struct StyleFlags {
    int32_t autoSize = 0;
    int32_t popUp = 0;
    int32_t enableButtons = 1;
    int32_t enableKeyboard = 1;
    int32_t multipleSelection = 0;
    int32_t showFocus = 1;
    int32_t alternateButtons = 0;
    int32_t etchedLook = 0;
    int32_t selectExtra = 1;
    int32_t selectSpecial = 1;
    int32_t showExtra = 1;
    int32_t showGridlines = 0;
    int32_t showSpecial = 0;
};

// Key text of a date to the date; rule key to the rule. Both own their values.
using MarkStore = std::unordered_map<std::u16string, CDateTime>;
using RuleStore = std::unordered_map<std::string, SSpecialRule>;

class CalendarModel {
public:
    CalendarModel();
    CalendarModel(const CalendarModel &) = delete;
    CalendarModel &operator=(const CalendarModel &) = delete;

    // The window that shows the model, as its effects and the layout that
    // tells where each area lies; null for none. The model owns neither.
    void AttachView(ControlEffects *effects, const MonthLayout *layout) {
        effects_ = effects;
        layout_ = layout;
    }
    bool Created() const { return effects_ && effects_->IsCreated(); }
    // Told of every style flag assigned, created or not: the control frame
    // keeps its own copy of the auto-size, pop-up and third to sixth flags,
    // which its window procedure reads.
    void OnFlagAssigned(std::function<void(uint32_t bit, int32_t value)> listener) {
        flagAssigned_ = std::move(listener);
    }

    // ---- dates and cells ----------------------------------------------------
    CDateTime GetFocusDate() const { return focusDate_; }
    CDateTime GetAnchorDate() const { return anchorDate_; }
    CDateTime SwapAnchorDate(const CDateTime &date);
    int32_t DisplayYear() const { return year_; }
    int32_t DisplayMonth() const { return month_; }
    int32_t FocusCell() const { return focusCell_; }
    int32_t FirstCell() const { return firstCell_; }
    int32_t LastCell() const { return lastCell_; }
    int32_t WeekStart() const { return weekStart_; }

    void RecalcCells(int32_t year, int32_t month);
    void SetDisplayMonth(int32_t year, int32_t month, int redraw);
    int SetFocusDate(const CDateTime &date, int updateNow, int invalidate);
    void SetFocusCell(int32_t cell, int updateNow);
    // Until a month is on display there is no grid: CellToDate gives a null
    // date and DateToCell -1.
    CDateTime CellToDate(int32_t cell) const;
    int32_t DateToCell(const CDateTime &date) const;
    int32_t ColumnWeekday(int32_t column) const;
    int IsExtraCell(int32_t cell, int32_t first = -1, int32_t last = -1) const;
    int IsSelectableCell(int32_t cell) const;
    // The old value; the cells follow at once only on a created control.
    int32_t SetWeekStart(int32_t weekday);

    // ---- marks --------------------------------------------------------------
    int IsMarked(const CDateTime &date) const;
    int MarkDate(const CDateTime &date, int add, int updateNow, int invalidate);
    int MarkRange(const CDateTime &dateA, const CDateTime &dateB, int add, int updateNow);
    int ClearMarks(int updateNow);
    const MarkStore &Marks() const { return marks_; }
    void UnmarkExtraCells();
    void UnmarkSpecialCells();

    // ---- special rules ------------------------------------------------------
    int GetCellSpecial(int32_t cell, uint32_t *textColor, uint32_t *backColor, int32_t first, int32_t last,
                       const CDateTime *date) const;
    int MatchSpecial(const SSpecialRule &rule, uint32_t *textColor, uint32_t *backColor) const;
    // GetCellSpecial for a day given as numbers, with its weekday: what
    // painting asks for every cell. Show Special off or no rules answer 0.
    int GetDaySpecial(int32_t year, int32_t month, int32_t day, int32_t weekday, uint32_t *textColor,
                      uint32_t *backColor) const;
    int SetSpecialRule(const SSpecialRule &rule, int add);
    int ClearSpecials(int updateNow);
    const RuleStore &Rules() const { return rules_; }

    // ---- colour roles: 0 to 15, another role raises InvalidArgException ---------
    uint32_t GetRoleColor(int32_t role) const;
    // The colour in force before, as GetRoleColor gave it.
    uint32_t SetRoleColor(int32_t role, uint32_t color, int redraw);
    int IsDerivedRoleColor(int32_t role) const;
    // The system colour index of each role, 0xFFFF for a derived one.
    static uint16_t RoleTableEntry(int32_t role);
    static const std::array<uint16_t, kRoleCount> &RoleTable();

    // ---- style --------------------------------------------------------------
    const StyleFlags &Flags() const { return flags_; }
    uint32_t GetStyle() const;
    // Assigns value to the flag of every bit in mask, in the fixed order,
    // with each flag's effects; unknown bits are ignored. The old bits.
    uint32_t SetStyle(uint32_t mask, int32_t value);
    // One flag by its bit, with its effects.
    void AssignStyleFlag(uint32_t bit, int32_t value);

    // ---- names --------------------------------------------------------------
    // The process-wide names changed: the caption or the weekday header
    // shows them again.
    void MonthNamesChanged();
    void WeekdayNamesChanged();

private:
    void Invalidate(Area area, bool erase = false);
    void InvalidateCell(int32_t cell);
    void UpdateNow();
    void Notify(int32_t code);
    void CheckRole(int32_t role) const;
    void MoveFocusIntoMonth();

    StyleFlags flags_;
    RoleColors<kRoleCount> roles_;
    CDateTime anchorDate_;
    CDateTime focusDate_;
    MarkStore marks_;
    RuleStore rules_;
    int32_t month_ = 0;
    int32_t year_ = 0;
    int32_t focusCell_ = -1;
    int32_t firstCell_ = 0;
    int32_t lastCell_ = -1;
    int32_t weekStart_ = 1;
    ControlEffects *effects_ = nullptr;
    const MonthLayout *layout_ = nullptr;
    std::function<void(uint32_t, int32_t)> flagAssigned_;
};

} // namespace zk::cal
