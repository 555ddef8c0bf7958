// The window utilities as a form uses them: an order form whose OK button
// waits for its required fields, photographed before and after they are
// filled, and a message box with a picture and three buttons of the
// application's own, photographed while it waits for its answer.
#include <windows.h>

#include <string>

#include "capture.h"
#include "pictures.h"
#include "report.h"
#include "steps.h"
#include "zkhost.h"
#include "zklib.h"

namespace gallery {

namespace {

LRESULT CALLBACK OrderFormProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return DefWindowProcW(window, message, wParam, lParam);
}

struct OrderForm {
    HWND window = nullptr, customer = nullptr, product = nullptr, quantity = nullptr, ok = nullptr;
};

HWND Child(HWND parent, const wchar_t *cls, const wchar_t *text, DWORD style, int x, int y, int w, int h, int id) {
    HWND child =
        CreateWindowExW(cls[0] == L'E' ? WS_EX_CLIENTEDGE : 0, cls, text, WS_CHILD | WS_VISIBLE | style, x, y, w, h,
                        parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleW(nullptr), nullptr);
    SendMessageW(child, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), 0);
    return child;
}

OrderForm MakeOrderForm() {
    WNDCLASSW wc{};
    wc.lpfnWndProc = OrderFormProc;
    wc.hInstance = GetModuleHandleW(nullptr);
    wc.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    wc.lpszClassName = L"ZkGalleryOrderForm";
    RegisterClassW(&wc);
    OrderForm f;
    f.window = CreateWindowExW(0, wc.lpszClassName, L"Order entry", WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU, 60, 60,
                               330, 210, nullptr, nullptr, wc.hInstance, nullptr);
    Child(f.window, L"Static", L"Customer *", 0, 12, 16, 80, 16, 0);
    f.customer = Child(f.window, L"Edit", L"", ES_AUTOHSCROLL | WS_TABSTOP, 96, 12, 210, 22, 1);
    Child(f.window, L"Static", L"Product *", 0, 12, 46, 80, 16, 0);
    f.product = Child(f.window, L"ComboBox", L"", CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP, 96, 42, 210, 120, 2);
    Child(f.window, L"Static", L"Quantity *", 0, 12, 76, 80, 16, 0);
    f.quantity = Child(f.window, L"Edit", L"", ES_AUTOHSCROLL | WS_TABSTOP, 96, 72, 80, 22, 3);
    Child(f.window, L"Static", L"Notes", 0, 12, 106, 80, 16, 0);
    Child(f.window, L"Edit", L"", ES_AUTOHSCROLL | WS_TABSTOP, 96, 102, 210, 22, 4);
    f.ok = Child(f.window, L"Button", L"OK", BS_DEFPUSHBUTTON | WS_TABSTOP, 146, 140, 76, 26, IDOK);
    Child(f.window, L"Button", L"Cancel", WS_TABSTOP, 230, 140, 76, 26, IDCANCEL);
    for (const wchar_t *row : {L"Garden chair", L"Parasol", L"Folding table"})
        SendMessageW(f.product, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(row));
    return f;
}

void Type(HWND edit, const wchar_t *text) {
    for (; *text; ++text)
        SendMessageW(edit, WM_CHAR, *text, 1);
}

void Photograph(Pictures &pictures, HWND window, const wchar_t *name) {
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    pictures.Save(name, CaptureTopLevel(window));
}

void RunRequiredFieldSteps(Report &report, Pictures &pictures) {
    OrderForm f = MakeOrderForm();
    int32_t set = 0;
    for (HWND field : {f.customer, f.product, f.quantity})
        set += ZelWinSetFlags(field, WF_Required, 1);
    set += ZelWinSetFlags(f.ok, WF_RequiredButton, 1);
    report.Number(L"ZelWinSetFlags on three fields and OK", set, 4);
    ShowWindow(f.window, SW_SHOWNORMAL);
    SetForegroundWindow(f.window);

    Type(f.customer, L"Hollis & Daughters");
    report.Check(L"a required field still null: OK", IsWindowEnabled(f.ok) ? L"enabled" : L"disabled",
                 !IsWindowEnabled(f.ok), L"disabled");
    report.Check(L"ZelWinIsRequiredFieldNull", ZelWinIsRequiredFieldNull(f.window) == f.product ? L"Product" : L"?",
                 ZelWinIsRequiredFieldNull(f.window) == f.product, L"Product");
    Photograph(pictures, f.window, L"window-required-before");

    SetFocus(f.product);
    SendMessageW(f.product, WM_KEYDOWN, VK_DOWN, 0);
    SetFocus(f.quantity);
    Type(f.quantity, L"12");
    report.Check(L"every required field filled: OK", IsWindowEnabled(f.ok) ? L"enabled" : L"disabled",
                 IsWindowEnabled(f.ok) != FALSE, L"enabled");
    Photograph(pictures, f.window, L"window-required-after");
    report.Number(L"ZelWinClearAllFields", ZelWinClearAllFields(f.window), 4);
    DestroyWindow(f.window);
}

// Photographs the box once it has painted and presses one of its buttons;
// a box still there after a few seconds is ended.
struct BoxAnswer {
    int button = 0;
    int ticks = 0;
    bool seen = false;
    Picture picture;
};
BoxAnswer *boxAnswer = nullptr;

BOOL CALLBACK FindBox(HWND window, LPARAM found) {
    wchar_t cls[16] = {};
    GetClassNameW(window, cls, 16);
    if (IsWindowVisible(window) && lstrcmpW(cls, L"#32770") == 0 && GetDlgItem(window, 303)) {
        *reinterpret_cast<HWND *>(found) = window;
        return FALSE;
    }
    return TRUE;
}

void CALLBACK AnswerBox(HWND, UINT, UINT_PTR, DWORD) {
    HWND box = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), FindBox, reinterpret_cast<LPARAM>(&box));
    if (!box || !boxAnswer)
        return;
    if (++boxAnswer->ticks == 3) {
        boxAnswer->seen = true;
        boxAnswer->picture = CaptureTopLevel(box);
        PostMessageW(box, WM_COMMAND, MAKEWPARAM(boxAnswer->button, BN_CLICKED), 0);
    } else if (boxAnswer->ticks > 250) {
        EndDialog(box, 0);
    }
}

void RunMessageBoxSteps(Report &report, Pictures &pictures) {
    const ZelPicHandle icon = ZelPicLoad(PIC_LoadModule | PIC_FormatIcon, L"ZKLIB.dll", L"ZK");
    const ZelMsgButton save = ZelMessageLoadButton(L"&Save", 101);
    const ZelMsgButton discard = ZelMessageLoadButton(L"&Discard", 102);
    const ZelMsgButton cancel = ZelMessageLoadButton(L"Cancel", 2);
    const HostArray row = HostArrayCreate(HOST_TYPE_NUMBER);
    const ZelMsgButton words[] = {save + 1, discard, cancel};
    for (int i = 0; i < 3; ++i) {
        HostNumber number{};
        HostNumberFromDouble(static_cast<double>(words[i]), &number);
        HostArraySetNumber(row, &number, i);
    }
    ZelMessageSetBkgdColor(RGB(250, 246, 228));
    BoxAnswer answer;
    answer.button = 3; // the first place: Save
    boxAnswer = &answer;
    const UINT_PTR timer = SetTimer(nullptr, 0, 20, AnswerBox);
    const int32_t result = ZelMessageBox(L"The order for Hollis & Daughters has changes that are not saved yet.\n\n"
                                         L"Save them before the form closes?",
                                         L"Order entry", icon, row, 3);
    KillTimer(nullptr, timer);
    boxAnswer = nullptr;
    ZelMessageSetBkgdColor(0x00FFFFFF);

    report.Check(L"message box icon from ZKLIB.dll", icon ? L"loaded" : L"none", icon != 0, L"loaded");
    report.Number(L"ZelMessageBox answered with Save", result, 101);
    if (answer.seen)
        pictures.Save(L"window-message-box", answer.picture);
    else
        report.LogCheck(L"message box shown", L"not seen", false, L"seen");
    HostArrayDestroy(row);
    for (ZelMsgButton b : {save, discard, cancel})
        ZelMessageFreeButton(b);
    ZelPicFree(icon);
}

} // namespace

void RunWindowSteps(Report &report, Pictures &pictures) {
    report.Section(L"Window utilities");
    RunRequiredFieldSteps(report, pictures);
    RunMessageBoxSteps(report, pictures);
}

} // namespace gallery
