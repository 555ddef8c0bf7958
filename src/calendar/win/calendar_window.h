// CCalendar as a window: the month model of calendar_model.h shown in the
// client area, painted off screen by the frame's rule and driven by mouse,
// keyboard and timers through Input. CDlgCalendar is the form's wrapper
// that the host creates through "ZK:cCalendar:10" and that loads its
// property block; a plain CCalendar is the pop-up of the calendar drop-down.
//
// The pointer that ZKM_ControlCreate announces is the window object; the
// exports reach the model through Model(). Model and input get the window
// as their effects (the control base, frame/win/control_window.h) and the
// layout that says where each part lies.
#pragma once

#include <windows.h>

#include "calendar/core/calendar_block.h"
#include "calendar/core/calendar_input.h"
#include "calendar/core/calendar_layout.h"
#include "calendar/core/calendar_model.h"
#include "frame/win/generic_control.h"

namespace zk::cal {

inline constexpr const wchar_t *kCalendarClass = L"ZK:Calendar:10";
inline constexpr const wchar_t *kDlgCalendarClass = L"ZK:cCalendar:10";
// WS_POPUP | WS_CLIPCHILDREN | WS_BORDER.
inline constexpr DWORD kCalendarPopupStyle = 0x82800000;

class CCalendar : public CGenericControl {
public:
    CCalendar();
    ~CCalendar() override;

    CalendarModel &Model() { return model_; }
    const CalendarModel &Model() const { return model_; }
    const MonthLayout &Layout() const { return layout_; }
    uint16_t State() const { return stateFlags; }

    // A pop-up without parent; the notify window is kept when not 0.
    bool CreatePopup(const RECT &rect, HWND notifyWindow);
    // The block's flags, through the model's setters, and its initial date.
    // 0 when something failed on the way, else 1.
    int ApplyProperties(const SPropCalendar &block);

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
    void Paint(HDC dc, const Rect &clip) override;

private:
    // The colours of a paint: etched, or what the notify window's answer
    // for a list box says; they stand until the next paint.
    void TakePaintColours(HDC dc);
    // The frame keeps its own copy of the generic flags.
    void FlagAssigned(uint32_t bit, int32_t value);

    CalendarModel model_;
    MonthLayout layout_;
    Input input_;
};

class CDlgCalendar : public CCalendar {
protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    // On a form the focus handling of the plain calendar does not run.
    LRESULT OnKillFocus() override { return Default(); }
};

} // namespace zk::cal
