// The colour palette as a form shows it: the default palette, one with
// menu entries and recent colours, a disabled one, and one that keeps its
// focus frame after losing the focus, each photographed from its own paint.
// Recent colours come the one way there is: the other-colour entry's
// dialog, answered here with a colour typed into it.
#include <windows.h>

#include <string>
#include <vector>

#include "capture.h"
#include "holder.h"
#include "pictures.h"
#include "report.h"
#include "steps.h"
#include "zkhost.h"
#include "zkhostctl.h"
#include "zklib.h"

namespace gallery {

namespace {

constexpr int kWidth = 200, kHeight = 150;

using Palette = HostControl;

Palette MakePalette(HWND parent, int x, int y) {
    return MakeHostControl(L"ZK:cPalette:10", parent, x, y, kWidth, kHeight, WS_CHILD | WS_VISIBLE, 200);
}

// The colour the next dialog is to answer with; the thread timer that
// finds the dialog types it into the red, green and blue fields and
// presses OK. The dialog's fields (706 to 708) are those of the platform's
// colour dialog template.
COLORREF answerColour = 0;
int answered = 0;
BOOL CALLBACK AnswerOne(HWND window, LPARAM) {
    wchar_t name[16] = {};
    GetClassNameW(window, name, 16);
    if (lstrcmpW(name, L"#32770") != 0 || !IsWindowVisible(window))
        return TRUE;
    SetDlgItemInt(window, 706, GetRValue(answerColour), FALSE);
    SetDlgItemInt(window, 707, GetGValue(answerColour), FALSE);
    SetDlgItemInt(window, 708, GetBValue(answerColour), FALSE);
    PostMessageW(window, WM_COMMAND, IDOK, 0);
    ++answered;
    return FALSE;
}
VOID CALLBACK AnswerTick(HWND, UINT, UINT_PTR, DWORD) { EnumThreadWindows(GetCurrentThreadId(), &AnswerOne, 0); }

void ChooseOtherColour(const Palette &p, COLORREF colour) {
    answerColour = colour;
    const UINT_PTR timer = SetTimer(nullptr, 0, 30, &AnswerTick);
    SendMessageW(p.window, ZKM_PaletteCommand, reinterpret_cast<WPARAM>(p.window), 0);
    KillTimer(nullptr, timer);
}

void Show(Report &report, Pictures &pictures, const Palette &c, const std::wstring &name) {
    ShowControl(report, pictures, c, L"palette", name);
}

} // namespace

void RunPaletteSteps(Report &report, Pictures &pictures) {
    report.Section(L"Colour palette");
    HWND holder = MakeHolder(L"ZkGalleryPalettes", L"Palettes", 2 * (kWidth + 10) + 30, 2 * (kHeight + 10) + 60);

    Palette plain = MakePalette(holder, 10, 10);
    report.Check(L"ZK:cPalette:10 announced its control", plain.control ? L"a pointer" : L"nothing",
                 plain.control != 0);
    if (!plain.control) {
        DestroyWindow(holder);
        return;
    }
    report.Hex(L"ZelPalStyleGet, as created", static_cast<uint32_t>(ZelPalStyleGet(plain.control)), PALS_EnableRecent);
    report.Hex(L"ZelPalColorPaletteGet main 2", static_cast<uint32_t>(ZelPalColorPaletteGet(plain.control, 0, 2)),
               0xFF0000);
    report.Number(L"ZelPalMRUMaxGet", ZelPalMRUMaxGet(plain.control), 8);
    Show(report, pictures, plain, L"palette-default");

    Palette rich = MakePalette(holder, kWidth + 20, 10);
    const COLORREF shades[] = {RGB(0, 0, 128),   RGB(128, 0, 128), RGB(0, 128, 128), RGB(192, 192, 192),
                               RGB(128, 128, 0), RGB(128, 0, 0),   RGB(0, 128, 0),   RGB(64, 64, 64)};
    int index = 8;
    for (COLORREF shade : shades)
        ZelPalColorMainSet(rich.control, index++, shade);
    report.Number(L"ZelPalMenuAdd Automatic", ZelPalMenuAdd(rich.control, L"Automatic", 100), 0);
    report.Number(L"ZelPalMenuAdd None", ZelPalMenuAdd(rich.control, L"None", 101), 1);
    answered = 0;
    for (COLORREF colour : {RGB(255, 128, 0), RGB(0, 160, 255), RGB(120, 60, 20)})
        ChooseOtherColour(rich, colour);
    report.Number(L"other-colour dialogs answered", answered, 3);
    HostArray recent = HostArrayCreate(HOST_TYPE_NUMBER);
    report.Number(L"ZelPalColorPaletteGetAll recent", ZelPalColorPaletteGetAll(rich.control, PALP_Recent, recent), 3);
    HostArrayDestroy(recent);
    report.Hex(L"the newest recent colour", static_cast<uint32_t>(ZelPalColorPaletteGet(rich.control, PALP_Recent, 0)),
               RGB(120, 60, 20));
    int32_t zone = -1, focus = -1;
    ZelPalFocusGet(rich.control, &zone, &focus);
    report.Number(L"focus zone after a chosen colour", zone, PALZ_Recent);
    Show(report, pictures, rich, L"palette-menus-recent");

    Palette disabled = MakePalette(holder, 10, kHeight + 20);
    ZelPalMenuAdd(disabled.control, L"Automatic", 100);
    ZelPalStyleSet(disabled.control, PALS_KeepSelection, 1);
    ZelPalFocusSet(disabled.control, PALZ_Main, 3);
    EnableWindow(disabled.window, FALSE);
    report.Check(L"disabled palette", IsWindowEnabled(disabled.window) ? L"enabled" : L"disabled",
                 !IsWindowEnabled(disabled.window));
    Show(report, pictures, disabled, L"palette-disabled");

    Palette kept = MakePalette(holder, kWidth + 20, kHeight + 20);
    ZelPalStyleSet(kept.control, PALS_KeepSelection, 1);
    SetFocus(kept.window);
    for (int step = 0; step < 3; ++step)
        SendMessageW(kept.window, WM_KEYDOWN, VK_RIGHT, 0);
    SetFocus(holder);
    ZelPalFocusGet(kept.control, &zone, &focus);
    report.Number(L"focus kept after losing it: index", focus, 3);
    report.Check(L"keep selection after focus loss", GetFocus() == kept.window ? L"focused" : L"not focused",
                 GetFocus() != kept.window);
    Show(report, pictures, kept, L"palette-keep-selection");

    MSG m{};
    while (PeekMessageW(&m, nullptr, 0, 0, PM_REMOVE))
        DispatchMessageW(&m);
    DestroyWindow(holder);
}

} // namespace gallery
