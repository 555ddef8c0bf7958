// Style bits and the effects of assigning each flag. Effects other than
// storing wait for a created control, but for Multiple Selection, which acts
// at once.
#include "calendar/core/calendar_model.h"

namespace zk::cal {

namespace {

// The order in which SetStyle assigns the flags.
constexpr uint32_t kAssignOrder[] = {
    CALS_AlternateButtons, CALS_AutoSize,          CALS_PopUp,       CALS_EnableButtons, CALS_EnableKeyboard,
    CALS_EtchedLook,       CALS_MultipleSelection, CALS_SelectExtra, CALS_SelectSpecial, CALS_ShowExtra,
    CALS_ShowFocus,        CALS_ShowGridlines,     CALS_ShowSpecial,
};

bool On(int32_t flag) { return flag > 0; }

} // namespace

uint32_t CalendarModel::GetStyle() const {
    const StyleFlags &f = flags_;
    uint32_t bits = 0;
    if (f.autoSize != 0)
        bits |= CALS_AutoSize;
    const struct {
        int32_t flag;
        uint32_t bit;
    } rest[] = {
        {f.popUp, CALS_PopUp},
        {f.enableButtons, CALS_EnableButtons},
        {f.enableKeyboard, CALS_EnableKeyboard},
        {f.etchedLook, CALS_EtchedLook},
        {f.multipleSelection, CALS_MultipleSelection},
        {f.selectExtra, CALS_SelectExtra},
        {f.selectSpecial, CALS_SelectSpecial},
        {f.showExtra, CALS_ShowExtra},
        {f.showFocus, CALS_ShowFocus},
        {f.showGridlines, CALS_ShowGridlines},
        {f.showSpecial, CALS_ShowSpecial},
        {f.alternateButtons, CALS_AlternateButtons},
    };
    for (const auto &r : rest)
        if (On(r.flag))
            bits |= r.bit;
    return bits;
}

uint32_t CalendarModel::SetStyle(uint32_t mask, int32_t value) {
    const uint32_t old = GetStyle();
    for (uint32_t bit : kAssignOrder)
        if (mask & bit)
            AssignStyleFlag(bit, value);
    return old;
}

void CalendarModel::AssignStyleFlag(uint32_t bit, int32_t value) {
    StyleFlags &f = flags_;
    const bool created = Created();
    switch (bit) {
    case CALS_AutoSize:
        f.autoSize = value;
        break;
    case CALS_PopUp:
        f.popUp = value;
        break;
    case CALS_EnableKeyboard:
        f.enableKeyboard = value;
        break;
    case CALS_EnableButtons:
        f.enableButtons = value;
        Invalidate(Area::Buttons);
        break;
    case CALS_AlternateButtons:
        f.alternateButtons = value;
        Invalidate(Area::Buttons);
        break;
    case CALS_EtchedLook:
        f.etchedLook = value;
        Invalidate(Area::Window);
        break;
    case CALS_MultipleSelection:
        f.multipleSelection = value;
        if (!On(value)) {
            ClearMarks(0);
            MarkDate(focusDate_, 1, 0, 1);
        }
        break;
    case CALS_SelectExtra:
        f.selectExtra = value;
        if (created && !On(value))
            UnmarkExtraCells();
        break;
    case CALS_SelectSpecial:
        f.selectSpecial = value;
        if (created && !On(value))
            UnmarkSpecialCells();
        break;
    case CALS_ShowExtra:
        f.showExtra = value;
        if (created) {
            if (!On(value))
                MoveFocusIntoMonth();
            else if (!On(f.selectExtra))
                UnmarkExtraCells();
            Invalidate(Area::Grid);
        }
        break;
    case CALS_ShowFocus:
        f.showFocus = value;
        Invalidate(Area::Grid);
        break;
    case CALS_ShowGridlines:
        f.showGridlines = value;
        Invalidate(Area::Body);
        break;
    case CALS_ShowSpecial:
        f.showSpecial = value;
        if (created) {
            if (On(value) && !On(f.selectSpecial))
                UnmarkSpecialCells();
            Invalidate(Area::Grid);
        }
        break;
    default: // not a style bit: ignored
        return;
    }
    if (flagAssigned_)
        flagAssigned_(bit, value);
}

void CalendarModel::MoveFocusIntoMonth() {
    if (focusCell_ < firstCell_)
        SetFocusCell(firstCell_, 0);
    else if (focusCell_ > lastCell_)
        SetFocusCell(lastCell_, 0);
}

void CalendarModel::MonthNamesChanged() {
    if (Created()) {
        Invalidate(Area::Caption);
        UpdateNow();
    }
}

void CalendarModel::WeekdayNamesChanged() {
    if (Created()) {
        Invalidate(Area::WeekdayHeader);
        UpdateNow();
    }
}

} // namespace zk::cal
