// CGenericControl: the base of the calendar family. On top of the control
// base (control_window.h: window object, notify window, created flag,
// ControlNotify, off-screen paint, effects) it holds six style flags, four
// colour roles that follow the system until set, a private font with the
// metrics taken from it, the frame rectangle and two state bits.
//
// How a derived control uses it:
//   - derive, and override WindowProc for the messages of the control; pass
//     everything else (and WM_CREATE first of all) to
//     CGenericControl::WindowProc. WM_CREATE answers -1 when creation is to end.
//   - override the virtual operations below as the control needs, and
//     implement SizeToFit and RecalcFrame;
//   - set `created` to 1 once the control's own creation is finished: most
//     queries answer -1 before, and WM_SETFONT resizes only after;
//   - notify with ControlNotify(code), which posts WM_COMMAND.
// The object is made by the bootstrap (frame/win/control_create.h) or with
// CreateEx, and is deleted by its window after WM_NCDESTROY.
#pragma once

#include <windows.h>

#include <cstdint>

#include "frame/core/generic_block.h"
#include "frame/core/roles.h"
#include "frame/win/control_window.h"

namespace zk {

class CGenericControl : public ControlWindow {
public:
    static constexpr int kRoleCount = 4;
    // Code of ControlNotify that asks a drop-down to close its pop-up.
    static constexpr int kNotifyClosePopup = 8;

    CGenericControl();
    ~CGenericControl() override;

    // ---- virtual operations, in the order of the frame ----
    // The colour in force for a role; CLR_INVALID outside 0 to 3.
    virtual COLORREF GetRoleColor(int role);
    // Stores an explicit colour and clears the role's default flag. Gives the
    // colour in force before, as GetRoleColor gave it (CLR_INVALID outside 0 to 3). With
    // redraw 1 the whole window is invalidated with erase.
    virtual COLORREF SetRoleColor(int role, COLORREF colour, int redraw);
    // Fills the class's static role table, once per process (a static flag
    // guards it). The constructor calls the base's; a derived class with a
    // table of its own calls its own from its constructor.
    virtual void InitClassStatics();
    // 0 if the role has an explicit colour, else whether its table entry
    // is 0xFFFF (the role derives its colour from another one).
    virtual int IsDerivedRoleColor(int role);
    // The derived class resizes its window to fit its content.
    virtual void SizeToFit(int autoSize) = 0;
    // Text metrics of the font: columnWidth = ave + (6 * ave) / 10,
    // rowHeight = height + height / 3. Derived classes call this first and
    // then lay themselves out.
    virtual void RecalcMetrics();
    // The derived class computes the frame rectangle.
    virtual void RecalcFrame() = 0;

    // Frame extents; -1 until created.
    int FrameHeight() const;
    int FrameWidth() const;
    // Style one to auto-size, two to the third flag, three to pop-up, four
    // to six to the fourth to sixth flags: the second and third swap places.
    void ApplyGenericBlock(const SPropGeneric &block);

    HFONT Font() const { return font; }
    uint16_t StateFlags() const { return stateFlags; }

protected:
    // WM_CREATE, WM_GETFONT, WM_SETFONT, WM_ENABLE, WM_SHOWWINDOW,
    // WM_GETDLGCODE, WM_SYSKEYDOWN, WM_WINDOWPOSCHANGED, WM_ERASEBKGND;
    // everything else goes to Default().
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    // WM_SETFONT's first step: the private font replaced by a copy of the
    // given one (SYSTEM_FONT for 0), made through its LOGFONT.
    void ReplaceFont(HFONT given);

    int32_t autoSize = 0;   // 1: resized to fit whenever the metrics change
    int32_t popUp = 0;      // 1: inside a drop-down; Alt+Up asks to close
    int32_t thirdFlag = 1;  // the calendar's Enable Buttons
    int32_t fourthFlag = 1; // Enable Keyboard
    int32_t fifthFlag = 0;  // Multiple Selection
    int32_t sixthFlag = 1;  // Show Focus
    // The four roles; the system colour indices of the table are
    // COLOR_WINDOW, COLOR_WINDOWTEXT, COLOR_GRAYTEXT, COLOR_WINDOWFRAME,
    // filled once per process by InitClassStatics.
    RoleColors<kRoleCount> roles{{}};
    HFONT font = nullptr; // the control's own copy, deleted with it
    RECT frame = {};
    int32_t rowHeight = 0;
    int32_t columnWidth = 0;
    uint16_t stateFlags = 0;

private:
    LRESULT OnCreate();
    LRESULT OnSetFont(HFONT given);
};

} // namespace zk
