// The base of every control window object of the library: the window
// object, its notify window and created flag, ControlNotify, the paint by
// the library's rule (off screen, one copy of the clip box; see
// paint_buffer.h), and the Win32 side of ControlEffects, which a control
// hands to its portable model and input.
//
// A control derives from it (or from CGenericControl, which does), gives
// Paint() its painter and ClientArea() where it paints, and passes the
// messages it does not handle to the base's WindowProc. WM_PAINT and
// WM_PRINTCLIENT come to Paint() through the buffer; WM_DESTROY drops the
// buffer and clears `created`.
#pragma once

#include <windows.h>

#include <cstdint>

#include "frame/core/effects.h"
#include "frame/win/paint_buffer.h"
#include "frame/win/window.h"

namespace zk {

class ControlWindow : public Window, public ControlEffects {
public:
    HWND NotifyWindow() const { return notifyWindow; }
    // Ignores 0.
    void SetNotifyWindow(HWND window);
    // Posts WM_COMMAND to the notify window: wParam the control id (low
    // word) and code (high word), lParam the control's window. Without a
    // notify window nothing is posted: posting to no window would put the
    // command in the thread's own queue.
    void ControlNotify(int code);

    // The whole client area painted into dc, as WM_PAINT would show it.
    void PaintTo(HDC dc);

    // ---- ControlEffects ----
    bool IsCreated() const override { return created == 1; }
    void Invalidate(const Rect &area, bool erase) override;
    void InvalidateAll(bool erase) override;
    void Update() override;
    void Redraw() override;
    void PaintNow(const Rect &area) override;
    void Notify(int32_t code) override { ControlNotify(code); }
    void PostToSelf(uint32_t message, uintptr_t wParam, intptr_t lParam) override;
    bool StartTimer(uint32_t id, uint32_t period) override;
    void StopTimer(uint32_t id) override;
    void TakeCapture() override;
    void DropCapture() override;
    bool HasCapture() const override;
    bool HasFocus() const override;
    void TakeFocus() override;
    int32_t FieldValidate(int32_t flag) override;
    void Hide() override;
    bool KeyDown(uint32_t virtualKey) const override;

protected:
    // Paints the parts of the client area that meet `clip` into dc, a
    // context holding a bitmap of the client's size.
    virtual void Paint(HDC dc, const Rect &clip) {}
    // The client area (GetClientRect).
    virtual Rect ClientArea() const;

    // WM_PAINT, WM_PRINTCLIENT, WM_DESTROY; everything else to Default().
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    // WM_SETFOCUS of a control with an input machine: refused while the
    // host's field validation holds the focus elsewhere; otherwise the
    // default first, then the machine.
    template <class Input>
    LRESULT FocusGained(Input &input) {
        if (FieldValidate(0) == 0)
            return 0;
        const LRESULT result = Default();
        input.FocusGained();
        return result;
    }
    // WM_CANCELMODE: the default first, then the machine lets go.
    template <class Input>
    LRESULT CancelMode(Input &input) {
        const LRESULT result = Default();
        input.CancelMode();
        return result;
    }

    int32_t created = 0;         // 1 once the control's own creation is finished
    HWND notifyWindow = nullptr; // receives the notifications; the parent unless set

private:
    void PaintArea(HDC dc, const Rect &area);
    PaintBuffer buffer_;
};

} // namespace zk
