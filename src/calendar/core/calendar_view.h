// What the calendar model asks of its window once one exists. The model
// runs without a window; until one is attached and created these effects
// are simply not there. Rectangles are the window's: the model names areas
// and cells, the window knows where they lie.
#pragma once

#include <cstdint>

namespace zk::cal {

enum class CalArea {
    Window,          // the whole client area
    Grid,            // the 42 cells
    Caption,         // month and year
    WeekdayHeader,   // the weekday names
    CaptionAndHeader,
    Buttons,         // both month buttons
    Body,            // client width, from the grid's top down
};

class CalendarWindow {
public:
    virtual bool IsCreated() const = 0;
    virtual void Invalidate(CalArea area, bool erase) = 0;
    // The cell's rectangle, without erasing; cell -1 is an empty rectangle.
    virtual void InvalidateCell(int32_t cell) = 0;
    virtual void UpdateNow() = 0; // UpdateWindow
    // RedrawWindow with RDW_INVALIDATE, RDW_ERASE and RDW_UPDATENOW.
    virtual void RedrawAll() = 0;
    // ControlNotify: WM_COMMAND posted to the notify window.
    virtual void Notify(int32_t code) = 0;
    // A style flag was assigned, created or not. The control frame keeps
    // its own copy of the auto-size, pop-up and third to sixth flags, which
    // its window procedure reads.
    virtual void FlagAssigned(uint32_t /*bit*/, int32_t /*value*/) {}

protected:
    ~CalendarWindow() = default;
};

} // namespace zk::cal
