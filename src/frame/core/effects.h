// What a control's portable logic (model, layout, input) asks of its
// window, so that the logic runs and is tested without one. The Win32
// implementation is zk::WindowEffects (frame/win/window_effects.h), which
// every control window has; native tests use the recording fake of
// tests/support.
#pragma once

#include <cstdint>

#include "frame/core/geometry.h"

namespace zk {

class ControlEffects {
public:
    // Whether the control has finished its creation (most of its painting
    // and notifying waits for it).
    virtual bool IsCreated() const = 0;

    // Painting: an area or the whole client area marked for the next paint
    // (an empty rectangle marks nothing), the marked part painted now, the
    // whole window redrawn at once with its background, an area painted at
    // once through a client context without waiting for the next paint.
    virtual void Invalidate(const Rect &area, bool erase) = 0;
    virtual void InvalidateAll(bool erase) = 0;
    virtual void Update() = 0;
    virtual void Redraw() = 0;
    virtual void PaintNow(const Rect &area) = 0;

    // ControlNotify: WM_COMMAND posted to the notify window with the code.
    virtual void Notify(int32_t code) = 0;
    // A message posted to the control's own window.
    virtual void PostToSelf(uint32_t message, uintptr_t wParam, intptr_t lParam) = 0;

    // Timers of the control's window; false when the platform gives none.
    virtual bool StartTimer(uint32_t id, uint32_t period) = 0;
    virtual void StopTimer(uint32_t id) = 0;

    // Mouse capture (dropped only when the control holds it) and focus.
    virtual void TakeCapture() = 0;
    virtual void DropCapture() = 0;
    virtual bool HasCapture() const = 0;
    virtual bool HasFocus() const = 0;
    virtual void TakeFocus() = 0;
    // HostFieldValidate(window, flag, 0): 0 keeps the focus where it is.
    virtual int32_t FieldValidate(int32_t flag) = 0;

    virtual void Hide() = 0;
    // A key held down now (GetKeyState below 0), by virtual-key code.
    virtual bool KeyDown(uint32_t virtualKey) const = 0;

protected:
    ~ControlEffects() = default;
};

// Virtual-key codes the controls' input tables use.
inline constexpr uint32_t kKeyBack = 0x08, kKeyTab = 0x09, kKeyReturn = 0x0D, kKeyShift = 0x10, kKeyControl = 0x11,
                          kKeyMenu = 0x12, kKeyEscape = 0x1B, kKeySpace = 0x20, kKeyPrior = 0x21, kKeyNext = 0x22,
                          kKeyEnd = 0x23, kKeyHome = 0x24, kKeyLeft = 0x25, kKeyUp = 0x26, kKeyRight = 0x27,
                          kKeyDown = 0x28, kKeyInsert = 0x2D, kKeyDelete = 0x2E, kKeyF4 = 0x73;
// Mouse-key bits of the mouse messages.
inline constexpr uint32_t kMouseLeft = 0x0001, kMouseRight = 0x0002, kMouseShift = 0x0004, kMouseControl = 0x0008;
// Messages the controls post for the application.
inline constexpr uint32_t kHostMsgSelect = 0x2006, kHostMsgDoubleClick = 0x2009;

// Bits of the control frame's state word; a control adds its own above them.
inline constexpr uint16_t kStateDisabled = 0x0001;
inline constexpr uint16_t kStateHidden = 0x0002;

} // namespace zk
