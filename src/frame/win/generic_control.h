// CGenericControl: the base of the calendar family. It holds what every
// such control has: six style flags, four colour roles that follow the
// system until set, a private font with the metrics taken from it, the
// frame rectangle, the notify window and two state bits.
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
// The object is made by the bootstrap (designer/control_create.h) or with
// CreateEx, and is deleted by its window after WM_NCDESTROY.
#pragma once

#include <windows.h>

#include <cstdint>

#include "frame/core/generic_block.h"
#include "frame/win/window.h"

namespace zk {

class CGenericControl : public Window {
public:
    static constexpr int kRoleCount = 4;
    // Bits of stateFlags.
    static constexpr uint16_t kStateDisabled = 0x0001;
    static constexpr uint16_t kStateHidden = 0x0002;
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
    HWND NotifyWindow() const { return notifyWindow; }
    // Ignores 0.
    void SetNotifyWindow(HWND window);
    // Posts WM_COMMAND to the notify window: wParam the control id (low
    // word) and code (high word), lParam the control's window.
    void ControlNotify(int code);
    // Style one to auto-size, two to the third flag, three to pop-up, four
    // to six to the fourth to sixth flags: the second and third swap places.
    void ApplyGenericBlock(const SPropGeneric &block);

    HFONT Font() const { return font; }
    bool IsCreated() const { return created == 1; }
    uint16_t StateFlags() const { return stateFlags; }

protected:
    // WM_CREATE, WM_GETFONT, WM_SETFONT, WM_ENABLE, WM_SHOWWINDOW,
    // WM_GETDLGCODE, WM_SYSKEYDOWN, WM_WINDOWPOSCHANGED, WM_ERASEBKGND;
    // everything else goes to Default().
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    // The system colour indices of the four roles: COLOR_WINDOW,
    // COLOR_WINDOWTEXT, COLOR_GRAYTEXT, COLOR_WINDOWFRAME.
    static uint16_t roleTable[kRoleCount];

    int32_t autoSize = 0;   // 1: resized to fit whenever the metrics change
    int32_t popUp = 0;      // 1: inside a drop-down; Alt+Up asks to close
    int32_t thirdFlag = 1;  // the calendar's Enable Buttons
    int32_t fourthFlag = 1; // Enable Keyboard
    int32_t fifthFlag = 0;  // Multiple Selection
    int32_t sixthFlag = 1;  // Show Focus
    int32_t created = 0;    // set to 1 by the derived class at the end of its creation
    int32_t useDefaultColor[kRoleCount] = {1, 1, 1, 1};
    HFONT font = nullptr; // the control's own copy, deleted with it
    COLORREF roleColors[kRoleCount] = {};
    RECT frame = {};
    HWND notifyWindow = nullptr; // the parent unless set
    int32_t rowHeight = 0;
    int32_t columnWidth = 0;
    uint16_t stateFlags = 0;

private:
    LRESULT OnCreate();
    LRESULT OnSetFont(HFONT given);
    static bool staticsDone;
};

} // namespace zk
