// The keyboard. Page Up goes forward in time and Page Down back: that is
// how the control has always turned its pages, and applications rely on it.
#include "calendar/core/calendar_input.h"
#include "calendar/core/calendar_nav.h"

namespace zk::cal {

namespace {

CDateTime MonthEnd(const CalendarModel &model, bool last) {
    const int32_t year = model.DisplayYear(), month = model.DisplayMonth();
    return CDateTime(year, month, last ? CDateTime::DaysInMonth(year, month) : 1);
}

} // namespace

bool Input::KeyDown(uint32_t key) {
    if (!FlagOn(model_.Flags().enableKeyboard))
        return false;
    const bool ctrl = fx_.KeyDown(kKeyControl);
    const bool shift = fx_.KeyDown(kKeyShift);
    const bool multiple = FlagOn(model_.Flags().multipleSelection);
    switch (key) {
    case kKeyReturn:
    case kKeyEscape:
        // Only a pop-up closes: as a release at the corner, then the request.
        if (PopUp()) {
            LButtonUp(0, 0, 0);
            fx_.Notify(CALN_CloseUp);
        }
        return true;
    case kKeySpace:
        if (multiple)
            SelectToggle(model_, ctrl, shift);
        return true;
    case kKeyInsert:
        if (multiple)
            SelectAdd(model_, ctrl, shift);
        return true;
    case kKeyDelete:
        if (multiple)
            SelectRemove(model_, ctrl, shift);
        return true;
    case kKeyPrior:
    case kKeyNext: {
        const bool forward = key == kKeyPrior;
        if (ctrl)
            model_.SetFocusDate(YearStepDate(model_, forward), 0, 1);
        else
            StepMonth(model_, forward, 1);
        fx_.PaintNow(layout_.Caption());
        return true;
    }
    case kKeyHome:
    case kKeyEnd: {
        const bool end = key == kKeyEnd;
        if (ctrl && shift)
            model_.SetFocusDate(CDateTime(model_.DisplayYear(), end ? 12 : 1, end ? 31 : 1), 0, 1);
        else if (ctrl)
            model_.SetFocusDate(MonthEnd(model_, end), 0, 1);
        else
            model_.SetFocusCell(end ? RowEndCell(model_) : RowStartCell(model_), 0);
        return true;
    }
    case kKeyLeft:
        MoveFocus(model_, -1);
        return true;
    case kKeyRight:
        MoveFocus(model_, 1);
        return true;
    case kKeyUp:
        MoveFocus(model_, -7);
        return true;
    case kKeyDown:
        MoveFocus(model_, 7);
        return true;
    default:
        return false;
    }
}

bool Input::Char(uint32_t character) {
    if (!FlagOn(model_.Flags().enableKeyboard))
        return false;
    switch (character) {
    case u'+':
        MoveFocus(model_, 1);
        return true;
    case u'-':
        MoveFocus(model_, -1);
        return true;
    case u'T':
    case u't':
        model_.SetFocusDate(CDateTime(), 0, 1);
        return true;
    default:
        return false;
    }
}

} // namespace zk::cal
