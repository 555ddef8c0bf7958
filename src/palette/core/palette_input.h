// The palette's input as logic: the key table, the mouse drag with its
// state bits, double-click, cancel mode and the focus messages. What it
// needs of the window (capture, focus, posting to itself, hiding, the
// host's field validation) comes through the control's effects, so that the
// machine runs without one.
#pragma once

#include <cstdint>

#include "palette/core/palette_layout.h"
#include "palette/core/palette_model.h"

namespace zk::pal {

// Bits the palette adds to the control frame's state word (bit 0 is
// disabled, bit 1 hidden).
inline constexpr uint16_t PALF_Outside = 0x0004;    // the pointer left the frame during a drag
inline constexpr uint16_t PALF_DragMain = 0x0008;   // a drag began in zone 0
inline constexpr uint16_t PALF_DragMenu = 0x0010;   // in zone 1
inline constexpr uint16_t PALF_DragRecent = 0x0020; // in zone 2
inline constexpr uint16_t kDragFlags = PALF_DragMain | PALF_DragMenu | PALF_DragRecent;

class Input {
public:
    Input(PaletteModel &model, const GridLayout &layout, ControlEffects &effects, PaletteView &view, uint16_t &state)
        : model_(model), layout_(layout), fx_(effects), view_(view), state_(state) {}

    // WM_KEYDOWN and WM_SYSKEYDOWN: false when the default procedure is to
    // have the message.
    bool KeyDown(uint32_t key);
    bool SysKeyDown(uint32_t key);

    void LButtonDown(int32_t x, int32_t y);
    void MouseMove(int32_t x, int32_t y);
    void LButtonUp(int32_t x, int32_t y);
    void LButtonDblClk(int32_t x, int32_t y);
    // After the default procedure's handling of WM_CANCELMODE.
    void CancelMode();
    // WM_SETFOCUS once the field validated and the default procedure ran.
    void FocusGained();
    // WM_KILLFOCUS after the default procedure.
    void FocusLost();

private:
    // VK_RETURN: the entry under the focus chosen, in the menu zone.
    void ChooseEntry();

    PaletteModel &model_;
    const GridLayout &layout_;
    ControlEffects &fx_;
    PaletteView &view_;
    uint16_t &state_;
};

} // namespace zk::pal
