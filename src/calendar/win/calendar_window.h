// CCalendar as a window: the month model of calendar_model.h shown in the
// client area, painted off screen and driven by mouse, keyboard and
// timers through CalInput. CDlgCalendar is the form's wrapper that the
// host creates through "ZK:cCalendar:10" and that loads its property block;
// a plain CCalendar is the pop-up of the calendar drop-down.
//
// The pointer that ZKM_ControlCreate announces is the window object; the
// exports reach the model through Model().
#pragma once

#include <windows.h>

#include "calendar/core/calendar_block.h"
#include "calendar/core/calendar_input.h"
#include "calendar/core/calendar_layout.h"
#include "calendar/core/calendar_model.h"
#include "frame/win/generic_control.h"

namespace zk {

inline constexpr const wchar_t *kCalendarClass = L"ZK:Calendar:10";
inline constexpr const wchar_t *kDlgCalendarClass = L"ZK:cCalendar:10";
// CS_GLOBALCLASS | CS_BYTEALIGNWINDOW | CS_SAVEBITS | CS_PARENTDC.
inline constexpr UINT kCalendarClassStyle = 0x6880;
// WS_POPUP | WS_CLIPCHILDREN | WS_BORDER.
inline constexpr DWORD kCalendarPopupStyle = 0x82800000;

class CCalendar : public CGenericControl, public cal::CalendarWindow, public cal::CalControlEffects {
public:
    CCalendar();
    ~CCalendar() override;

    cal::CCalendar &Model() { return model_; }
    const cal::CCalendar &Model() const { return model_; }
    const cal::CalLayout &Layout() const { return layout_; }
    uint16_t State() const { return stateFlags; }

    // A pop-up without parent; the notify window is kept when not 0.
    bool CreatePopup(const RECT &rect, HWND notifyWindow);
    // The block's flags, through the model's setters, and its initial date.
    // 0 when something failed on the way, else 1.
    int ApplyProperties(const SPropCalendar &block);
    // The whole client area painted into dc, as WM_PAINT would show it.
    void PaintTo(HDC dc);

    // ---- the frame's virtual operations, on the model's sixteen roles ----
    COLORREF GetRoleColor(int role) override;
    COLORREF SetRoleColor(int role, COLORREF colour, int redraw) override;
    void InitClassStatics() override {}
    int IsDerivedRoleColor(int role) override;
    void SizeToFit(int autoSizeFlag) override;
    void RecalcMetrics() override;
    void RecalcFrame() override;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT OnCreate();
    // WM_KILLFOCUS: the plain calendar's focus handling.
    virtual LRESULT OnKillFocus();

private:
    // ---- cal::CalendarWindow: what the model asks of its window ----
    bool IsCreated() const override { return created == 1; }
    void Invalidate(cal::CalArea area, bool erase) override;
    void InvalidateCell(int32_t cell) override;
    void UpdateNow() override;
    void RedrawAll() override;
    void Notify(int32_t code) override { ControlNotify(code); }
    void FlagAssigned(uint32_t bit, int32_t value) override;

    // ---- cal::CalControlEffects: what the input machine asks ----
    bool StartTimer(uint32_t id, uint32_t period) override;
    void StopTimer(uint32_t id) override;
    void TakeCapture() override;
    void DropCapture() override;
    bool HasFocus() const override;
    void TakeFocus() override;
    int32_t FieldValidate(int32_t flag) override;
    void PostToSelf(uint32_t message, int32_t wParam) override;
    void NotifyParent(int32_t code) override { ControlNotify(code); }
    void RefreshButton(bool left) override;
    void RepaintCaption() override;
    void InvalidateWindow() override;
    void InvalidateCell(int32_t cell, bool update) override;
    void HideWindow() override;
    bool CtrlDown() const override;
    bool ShiftDown() const override;

    LRESULT OnPaint();
    LRESULT OnSetFocus();
    void InvalidateArea(const cal::CalRect &rect, bool erase);
    // Paints the parts of the client area that meet `clip` into dc, which
    // holds a bitmap of the client's size.
    void PaintOffscreen(HDC dc, const cal::CalRect &clip);
    // The memory context with a bitmap of the client's size, kept from one
    // paint to the next and made again when the size changes; null when
    // none can be had, and then nothing is painted.
    HDC Offscreen(HDC target);
    void FreeOffscreen();
    // Paints `area` off screen and copies it to dc in one block.
    void PaintThrough(HDC dc, const cal::CalRect &area);

    cal::CCalendar model_;
    cal::CalLayout layout_;
    cal::CalInput input_;
    HDC offDc_ = nullptr;
    HBITMAP offBitmap_ = nullptr;
    HGDIOBJ offPrevious_ = nullptr;
    int offWidth_ = 0, offHeight_ = 0;
};

class CDlgCalendar : public CCalendar {
protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    // On a form the focus handling of the plain calendar does not run.
    LRESULT OnKillFocus() override { return Default(); }
};

} // namespace zk
