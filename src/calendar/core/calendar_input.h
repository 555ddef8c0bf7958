// The calendar's input as logic: keys, the press state machine of mouse
// and month buttons, the seven timers, cancel mode and losing the focus.
// What it needs of its window (timers, capture, focus, posting, painting
// parts at once, the host's field validation, key states) comes through
// the control's effects, so that the machine runs without one.
#pragma once

#include <cstdint>

#include "calendar/core/calendar_layout.h"
#include "calendar/core/calendar_model.h"

namespace zk::cal {

// Bits the calendar adds to the control frame's state word (bit 0 is
// disabled, bit 1 hidden).
inline constexpr uint16_t CALF_Outside = 0x0004;   // the pointer has left the pressed area
inline constexpr uint16_t CALF_LeftDown = 0x0008;  // left month button pressed
inline constexpr uint16_t CALF_RightDown = 0x0010; // right month button pressed
inline constexpr uint16_t CALF_GridDown = 0x0020;  // grid pressed
inline constexpr uint16_t kPressFlags = CALF_LeftDown | CALF_RightDown | CALF_GridDown;

// Timers of the control's own window.
enum TimerId : uint32_t {
    kTimerScrollDown = 500, // dragging below the client area: as the down key, every 75 ms
    kTimerScrollUp = 501,   // dragging above it: as the up key
    kTimerCatchUp = 502,    // 100 ms after a month button's release: the whole window again
    kTimerMonthOn = 503,    // right button held: a month on every 250 ms
    kTimerMonthBack = 504,  // left button held
    kTimerYearOn = 505,     // right button held with Ctrl: a year on
    kTimerYearBack = 506,   // left button held with Ctrl
};
inline constexpr uint32_t kScrollPeriod = 75, kCatchUpPeriod = 100, kRepeatPeriod = 250;

class Input {
public:
    Input(CalendarModel &model, const MonthLayout &layout, ControlEffects &effects, uint16_t &state)
        : model_(model), layout_(layout), fx_(effects), state_(state) {}

    // WM_KEYDOWN and WM_CHAR: false when the default procedure is to have
    // the message (Enable Keyboard off, or a key the calendar leaves alone).
    bool KeyDown(uint32_t key);
    bool Char(uint32_t character);

    void LButtonDown(int32_t x, int32_t y, uint32_t keys);
    void LButtonDblClk(int32_t x, int32_t y, uint32_t keys);
    void MouseMove(int32_t x, int32_t y, uint32_t keys);
    void LButtonUp(int32_t x, int32_t y, uint32_t keys);
    // False for a timer that is not the calendar's.
    bool Timer(uint32_t id);
    // After the default procedure's handling of WM_CANCELMODE.
    void CancelMode();
    // WM_SETFOCUS after the framework's handler (the window validated first).
    void FocusGained();
    // WM_KILLFOCUS of the plain calendar, after the default procedure.
    void FocusLost();

    bool CancelPending() const { return cancelPending_ != 0; }
    uint16_t State() const { return state_; }

private:
    bool PopUp() const { return FlagOn(model_.Flags().popUp); }
    bool ButtonsEnabled() const { return FlagOn(model_.Flags().enableButtons); }
    static bool FlagOn(int32_t flag) { return flag > 0; }
    void PressButton(bool left, bool ctrl);
    void ButtonTick(bool forward, bool byYear);
    void DragOutsideGrid(int32_t y);
    void StartOrRun(uint32_t id, uint32_t period);
    void StopAllTimers();
    // A month button painted again at once.
    void RefreshButton(bool left);
    // A cell marked for painting; with update also painted at once.
    void RefreshCell(int32_t cell, bool update);

    CalendarModel &model_;
    const MonthLayout &layout_;
    ControlEffects &fx_;
    uint16_t &state_;
    uint8_t cancelPending_ = 0;
};

} // namespace zk::cal
