// The small controls on one window: a splitter between a list and a text
// pane, photographed before and after a drag with real mouse messages;
// three spin fields (whole numbers, two decimal places, a date written as
// yyyymmdd) stepped by their messages; meters at 0, 37 and 100 percent.
#include <windows.h>

#include <string>

#include "capture.h"
#include "pictures.h"
#include "pump.h"
#include "report.h"
#include "steps.h"
#include "zkhost.h"
#include "zkhostctl.h"
#include "zklib.h"

namespace gallery {

namespace {

constexpr int kWidth = 470, kHeight = 300;
uint8_t runTime[8] = {0, 0, 0, 0, 1, 0, 0, 0}; // as the host creates its forms' controls

LRESULT CALLBACK HolderProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return DefWindowProcW(window, message, wParam, lParam);
}

HWND MakeWindow(const wchar_t *className, int colour, const wchar_t *title, DWORD style, int x, int y, int width,
                int height, HWND parent) {
    WNDCLASSW wc{};
    wc.lpfnWndProc = HolderProc;
    wc.hInstance = GetModuleHandleW(nullptr);
    wc.hbrBackground = GetSysColorBrush(colour);
    wc.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    wc.lpszClassName = className;
    RegisterClassW(&wc);
    return CreateWindowExW(0, className, title, style, x, y, width, height, parent, nullptr, wc.hInstance, nullptr);
}

HWND Child(HWND parent, const wchar_t *className, const wchar_t *text, DWORD style, int x, int y, int width, int height,
           void *parameter = nullptr) {
    return CreateWindowExW(0, className, text, WS_CHILD | WS_VISIBLE | style, x, y, width, height, parent, nullptr,
                           GetModuleHandleW(nullptr), parameter);
}

void Label(HWND parent, const wchar_t *text, int x, int y) {
    HWND label = Child(parent, L"Static", text, 0, x, y, 145, 16);
    SendMessageW(label, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), 0);
}

std::wstring TextOf(HWND window) {
    wchar_t text[64] = {};
    GetWindowTextW(window, text, 64);
    return text;
}

std::wstring Extent(HWND window) {
    RECT r{};
    GetWindowRect(window, &r);
    MapWindowPoints(nullptr, GetParent(window), reinterpret_cast<POINT *>(&r), 2);
    return std::to_wstring(r.left) + L" to " + std::to_wstring(r.right);
}

HWND Spin(HWND parent, int y, int32_t minimum, int32_t maximum, int32_t increment, int32_t adjust, int32_t value) {
    HWND spin = Child(parent, L"ZK:cSpinField:10", L"", WS_TABSTOP, 160, y, 110, 22, runTime);
    SendMessageW(spin, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), 0);
    SendMessageW(spin, ZKM_SpinSetMin, 0, minimum);
    SendMessageW(spin, ZKM_SpinSetMax, 0, maximum);
    SendMessageW(spin, ZKM_SpinSetStep, static_cast<WPARAM>(adjust), increment);
    SendMessageW(spin, ZKM_SpinSetValue, 0, value);
    return spin;
}

void Photograph(Pictures &pictures, HWND holder, const std::wstring &name) {
    RedrawWindow(holder, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    PumpPending();
    if (pictures.Enabled())
        pictures.Save(name, CaptureTopLevel(holder));
}

} // namespace

void RunControlsSteps(Report &report, Pictures &pictures) {
    report.Section(L"Splitter, spin field, meter");
    HWND holder = MakeWindow(L"ZkGalleryControls", COLOR_BTNFACE, L"Small controls", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                             60, 60, kWidth, kHeight, nullptr);

    // The splitter between its two panes, in a frame of their own.
    HWND panes =
        MakeWindow(L"ZkGalleryPanes", COLOR_WINDOW, L"", WS_CHILD | WS_VISIBLE | WS_BORDER, 10, 10, 430, 110, holder);
    HWND list = Child(panes, L"ListBox", L"", LBS_NOINTEGRALHEIGHT | WS_VSCROLL, 0, 0, 120, 108);
    for (const wchar_t *row : {L"Accounts", L"Customers", L"Invoices", L"Orders", L"Products", L"Suppliers"})
        SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(row));
    SendMessageW(list, LB_SETCURSEL, 2, 0);
    HWND text = Child(panes, L"Edit",
                      L"The bar between the two panes moves when it is dragged; on release "
                      L"both panes are resized to fill the frame on either side of it.",
                      ES_MULTILINE | ES_READONLY, 126, 0, 302, 108);
    for (HWND w : {list, text})
        SendMessageW(w, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), 0);
    HWND bar = Child(panes, L"ZK:cSplitter:10", L"", 0, 150, 0, 6, 108, runTime);
    MSG m{};
    ZelSplitControl splitter = 0;
    if (bar && PeekMessageW(&m, bar, ZKM_ControlCreate, ZKM_ControlCreate, PM_REMOVE))
        splitter = static_cast<ZelSplitControl>(m.lParam);
    report.Check(L"ZK:cSplitter:10 announced its control", splitter ? L"a pointer" : L"nothing", splitter != 0);
    if (splitter) {
        SendMessageW(bar, ZKM_Refresh, 0, 0);
        report.Text(L"splitter children found: list", Extent(list), L"0 to 150");
        report.Text(L"splitter children found: text", Extent(text), L"156 to 428");
    }

    // Spin fields, stepped once each.
    Label(holder, L"Whole (0 to 100 by 5):", 10, 138);
    HWND whole = Spin(holder, 135, 0, 100, 5, 0, 35);
    Label(holder, L"Decimal (by 0.25):", 10, 166);
    HWND decimal = Spin(holder, 163, 0, 100000, 25, -2, 1234);
    Label(holder, L"Date (yyyymmdd, by a day):", 10, 194);
    HWND date = Spin(holder, 191, 20240101, 20241231, 1, 0, 20240314);
    SendMessageW(whole, ZKM_SpinUp, 0, 0);
    SendMessageW(decimal, ZKM_SpinUp, 0, 0);
    SendMessageW(date, ZKM_SpinUp, 0, 0);
    report.Text(L"whole-number spin field, one step up", TextOf(whole), L"40");
    report.Text(L"decimal spin field, one step up", TextOf(decimal), L"12.59");
    report.Text(L"date spin field, one step up", TextOf(date), L"20240315");

    // Meters.
    int y = 135;
    for (uint32_t percent : {0u, 37u, 100u}) {
        HWND meter = Child(holder, L"ZK:cMeter:10", L"", 0, 290, y, 150, 22, runTime);
        report.Number(L"ZelWinSetMeter " + std::to_wstring(percent) + L"%", ZelWinSetMeter(meter, percent), 0);
        y += 28;
    }
    report.Number(L"ZelWinSetMeter 101% refused", ZelWinSetMeter(holder, 101), -87);

    // The drag, with the mouse messages a user's drag sends.
    Photograph(pictures, holder, L"controls-before-drag");
    if (splitter) {
        SendMessageW(bar, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 50));
        SendMessageW(bar, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(60, 52));
        SendMessageW(bar, WM_LBUTTONUP, 0, MAKELPARAM(103, 55));
        report.Number(L"bar after a drag of 100 pixels", ZelSplitMoveToDragPos(splitter), 250);
        report.Text(L"list after the drop", Extent(list), L"0 to 250");
        report.Text(L"text after the drop", Extent(text), L"256 to 428");
    }
    Photograph(pictures, holder, L"controls-after-drag");
    PumpPending();
    DestroyWindow(holder);
}

} // namespace gallery
