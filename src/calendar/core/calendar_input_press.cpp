// The press state machine. A press in a month button steps at once and
// repeats while held; a press in the grid focuses the cell under the
// pointer and follows it, scrolling a week per tick past the top or the
// bottom. Releasing where the press began completes it: a button brings
// the grid up to date shortly after, the grid tells the application.
// Losing the focus cancels at the next tick.
#include "calendar/core/calendar_input.h"
#include "calendar/core/calendar_nav.h"

namespace zk::cal {

void Input::RefreshButton(bool left) {
    fx_.Invalidate(left ? layout_.LeftButton() : layout_.RightButton(), false);
    fx_.Update();
}

void Input::RefreshCell(int32_t cell, bool update) {
    fx_.Invalidate(layout_.CellRect(cell), false);
    if (update)
        fx_.Update();
}

namespace {

constexpr uint32_t kAllTimers[] = {kTimerScrollDown, kTimerScrollUp, kTimerCatchUp, kTimerMonthOn,
                                   kTimerMonthBack,  kTimerYearOn,   kTimerYearBack};

} // namespace

void Input::StopAllTimers() {
    for (uint32_t id : kAllTimers)
        fx_.StopTimer(id);
}

// A timer the platform cannot give is made up for by one tick at once.
void Input::StartOrRun(uint32_t id, uint32_t period) {
    if (!fx_.StartTimer(id, period))
        Timer(id);
}

void Input::PressButton(bool left, bool ctrl) {
    state_ =
        static_cast<uint16_t>((state_ & ~(CALF_LeftDown | CALF_RightDown)) | (left ? CALF_LeftDown : CALF_RightDown));
    RefreshButton(left);
    if (!PopUp())
        fx_.TakeCapture();
    const bool forward = !left;
    ButtonStep(model_, forward, ctrl);
    const uint32_t id = ctrl ? (forward ? kTimerYearOn : kTimerYearBack) : (forward ? kTimerMonthOn : kTimerMonthBack);
    fx_.StartTimer(id, kRepeatPeriod);
}

void Input::LButtonDown(int32_t x, int32_t y, uint32_t keys) {
    cancelPending_ = 0;
    if (PopUp() && !layout_.Client().Contains(x, y)) {
        // A press beside the pop-up asks to close it; the press still counts.
        fx_.DropCapture();
        fx_.Notify(CALN_CloseUp);
    }
    if (!fx_.HasFocus()) {
        if (fx_.FieldValidate(1) == 0)
            return;
        fx_.TakeFocus();
    }
    const bool ctrl = (keys & kMouseControl) != 0;
    const bool inLeft = layout_.LeftButton().Contains(x, y);
    const bool inRight = layout_.RightButton().Contains(x, y);
    if (inLeft || inRight) {
        if (ButtonsEnabled())
            PressButton(inLeft, ctrl);
        return;
    }
    if (!layout_.Grid().Contains(x, y))
        return;
    state_ = static_cast<uint16_t>((state_ & ~(CALF_LeftDown | CALF_RightDown)) | CALF_GridDown);
    const StyleFlags &f = model_.Flags();
    const int32_t cell = layout_.HitTestCell(x, y, model_.FocusCell(), f.showExtra == 1 && FlagOn(f.selectExtra),
                                             model_.FirstCell(), model_.LastCell());
    if (cell != -1) {
        model_.SetFocusCell(cell, 0);
        if (FlagOn(f.multipleSelection))
            SelectToggle(model_, ctrl, (keys & kMouseShift) != 0);
    }
    if (!PopUp())
        fx_.TakeCapture();
}

void Input::LButtonDblClk(int32_t x, int32_t y, uint32_t keys) {
    LButtonDown(x, y, keys);
    if (layout_.Grid().Contains(x, y))
        fx_.PostToSelf(kHostMsgDoubleClick, model_.FocusCell(), 0);
}

void Input::DragOutsideGrid(int32_t y) {
    state_ |= CALF_Outside;
    if (y >= layout_.Client().bottom) {
        fx_.StopTimer(kTimerScrollUp);
        StartOrRun(kTimerScrollDown, kScrollPeriod);
    } else if (y < layout_.Client().top) {
        fx_.StopTimer(kTimerScrollDown);
        StartOrRun(kTimerScrollUp, kScrollPeriod);
    } else {
        fx_.StopTimer(kTimerScrollDown);
        fx_.StopTimer(kTimerScrollUp);
    }
}

void Input::MouseMove(int32_t x, int32_t y, uint32_t) {
    if (!(state_ & kPressFlags))
        return;
    if (state_ & CALF_GridDown) {
        if (!layout_.Grid().Contains(x, y)) {
            DragOutsideGrid(y);
            return;
        }
        const StyleFlags &f = model_.Flags();
        model_.SetFocusCell(layout_.HitTestCell(x, y, model_.FocusCell(), f.showExtra == 1 && FlagOn(f.selectExtra),
                                                model_.FirstCell(), model_.LastCell()),
                            0);
        fx_.StopTimer(kTimerScrollDown);
        fx_.StopTimer(kTimerScrollUp);
        state_ &= static_cast<uint16_t>(~CALF_Outside);
        return;
    }
    const bool left = (state_ & CALF_LeftDown) != 0;
    const uint16_t before = state_;
    if ((left ? layout_.LeftButton() : layout_.RightButton()).Contains(x, y)) {
        state_ &= static_cast<uint16_t>(~CALF_Outside);
    } else {
        // Leaving stops the repeat for good: coming back only looks pressed.
        state_ |= CALF_Outside;
        fx_.StopTimer(left ? kTimerMonthBack : kTimerMonthOn);
        fx_.StopTimer(left ? kTimerYearBack : kTimerYearOn);
    }
    if (state_ != before)
        RefreshButton(left);
}

void Input::LButtonUp(int32_t, int32_t, uint32_t) {
    if (!PopUp())
        fx_.DropCapture();
    StopAllTimers();
    if ((state_ & kPressFlags) && !(state_ & CALF_Outside)) {
        if (state_ & (CALF_LeftDown | CALF_RightDown)) {
            const bool left = (state_ & CALF_LeftDown) != 0;
            state_ &= static_cast<uint16_t>(~(CALF_Outside | kPressFlags));
            RefreshButton(left);
            fx_.PaintNow(layout_.Caption());
            StartOrRun(kTimerCatchUp, kCatchUpPeriod);
        } else {
            fx_.PostToSelf(kHostMsgSelect, model_.FocusCell(), 0);
            if (PopUp())
                fx_.Notify(CALN_CloseUp);
        }
    }
    state_ &= static_cast<uint16_t>(~(CALF_Outside | kPressFlags));
}

void Input::ButtonTick(bool forward, bool byYear) {
    ButtonStep(model_, forward, byYear);
    fx_.PaintNow(layout_.Caption());
}

bool Input::Timer(uint32_t id) {
    if (cancelPending_) {
        cancelPending_ = 0;
        CancelMode();
        fx_.InvalidateAll(false);
        return true;
    }
    switch (id) {
    case kTimerScrollDown:
        // Through the key handler, so that without the keyboard a drag does not scroll.
        KeyDown(kKeyDown);
        return true;
    case kTimerScrollUp:
        KeyDown(kKeyUp);
        return true;
    case kTimerCatchUp:
        fx_.InvalidateAll(false);
        fx_.StopTimer(kTimerCatchUp);
        return true;
    case kTimerMonthOn:
        ButtonTick(true, false);
        return true;
    case kTimerMonthBack:
        ButtonTick(false, false);
        return true;
    case kTimerYearOn:
        ButtonTick(true, true);
        return true;
    case kTimerYearBack:
        ButtonTick(false, true);
        return true;
    default:
        return false;
    }
}

void Input::CancelMode() {
    state_ &= static_cast<uint16_t>(~(CALF_LeftDown | CALF_RightDown));
    fx_.DropCapture();
    StopAllTimers();
}

void Input::FocusGained() {
    if (FlagOn(model_.Flags().showFocus))
        RefreshCell(model_.FocusCell(), true);
}

void Input::FocusLost() {
    cancelPending_ = 1;
    if (!PopUp()) {
        RefreshCell(model_.FocusCell(), false);
    } else {
        fx_.DropCapture();
        fx_.Hide();
        fx_.Notify(CALN_CloseUp);
    }
    fx_.Notify(CALN_KillFocus);
}

} // namespace zk::cal
