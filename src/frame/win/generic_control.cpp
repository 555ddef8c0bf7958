#include "frame/win/generic_control.h"

namespace zk {

uint16_t CGenericControl::roleTable[kRoleCount] = {};
bool CGenericControl::staticsDone = false;

CGenericControl::CGenericControl() { CGenericControl::InitClassStatics(); }

CGenericControl::~CGenericControl() {
    if (font)
        DeleteObject(font);
}

void CGenericControl::InitClassStatics() {
    if (staticsDone)
        return;
    roleTable[0] = COLOR_WINDOW;
    roleTable[1] = COLOR_WINDOWTEXT;
    roleTable[2] = COLOR_GRAYTEXT;
    roleTable[3] = COLOR_WINDOWFRAME;
    staticsDone = true;
}

int CGenericControl::IsDerivedRoleColor(int role) {
    if (role < 0 || role >= kRoleCount || useDefaultColor[role] == 0)
        return 0;
    return roleTable[role] == 0xFFFF ? 1 : 0;
}

COLORREF CGenericControl::GetRoleColor(int role) {
    if (role < 0 || role >= kRoleCount)
        return CLR_INVALID;
    if (useDefaultColor[role] != 1)
        return roleColors[role];
    if (!IsDerivedRoleColor(role))
        return GetSysColor(roleTable[role]);
    return GetSysColor(role == 1 ? COLOR_WINDOWTEXT : COLOR_WINDOW);
}

COLORREF CGenericControl::SetRoleColor(int role, COLORREF colour, int redraw) {
    if (role < 0 || role >= kRoleCount)
        return CLR_INVALID;
    const COLORREF old = GetRoleColor(role); // in force, not the stored explicit colour
    roleColors[role] = colour;
    useDefaultColor[role] = 0;
    if (redraw == 1 && GetSafeHwnd())
        InvalidateRect(GetSafeHwnd(), nullptr, TRUE);
    return old;
}

void CGenericControl::RecalcMetrics() {
    HWND window = GetSafeHwnd();
    HDC dc = window ? GetDC(window) : nullptr;
    if (!dc)
        return;
    HGDIOBJ previous = font ? SelectObject(dc, font) : nullptr;
    TEXTMETRICW metrics{};
    const BOOL measured = GetTextMetricsW(dc, &metrics);
    if (previous)
        SelectObject(dc, previous);
    ReleaseDC(window, dc);
    if (!measured)
        return;
    columnWidth = metrics.tmAveCharWidth + (6 * metrics.tmAveCharWidth) / 10;
    rowHeight = metrics.tmHeight + metrics.tmHeight / 3;
}

int CGenericControl::FrameHeight() const { return created == 1 ? frame.bottom - frame.top : -1; }

int CGenericControl::FrameWidth() const { return created == 1 ? frame.right - frame.left : -1; }

void CGenericControl::SetNotifyWindow(HWND window) {
    if (window)
        notifyWindow = window;
}

void CGenericControl::ControlNotify(int code) {
    HWND window = GetSafeHwnd();
    // A pop-up made without a notify window has nobody to tell; posting to
    // no window would put the command in the thread's own queue.
    if (!window || !notifyWindow)
        return;
    const auto id = static_cast<WORD>(GetDlgCtrlID(window) & 0xFFFF);
    PostMessageW(notifyWindow, WM_COMMAND, MAKEWPARAM(id, static_cast<WORD>(code)),
                 reinterpret_cast<LPARAM>(window));
}

void CGenericControl::ApplyGenericBlock(const SPropGeneric &block) {
    autoSize = block.style1;
    thirdFlag = block.style2;
    popUp = block.style3;
    fourthFlag = block.style4;
    fifthFlag = block.style5;
    sixthFlag = block.style6;
}

} // namespace zk
