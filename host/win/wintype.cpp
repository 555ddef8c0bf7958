// Host window types and classes: marks set by tests, else the system class
// and style of the window.
#include "wintype.h"

#include <iterator>

#include "guard.h"
#include "strstore.h"
#include "winmarks.h"
#include "zkhost.h"
#include "zkhostctl.h"

namespace hostwin {
namespace {

struct ClassKind {
    const wchar_t *name;
    WinKind kind;
};

constexpr ClassKind kClasses[] = {
    {L"ListBox", WinKind::ListBox}, {L"ComboBox", WinKind::ComboBox}, {L"Edit", WinKind::Edit},
    {L"Button", WinKind::Button},   {L"Static", WinKind::Static},     {L"#32770", WinKind::Dialog},
};

uint32_t ButtonType(LONG_PTR style) {
    switch (style & BS_TYPEMASK) {
    case BS_CHECKBOX:
    case BS_AUTOCHECKBOX:
    case BS_3STATE:
    case BS_AUTO3STATE:
        return HOST_WT_CHECKBOX;
    case BS_RADIOBUTTON:
    case BS_AUTORADIOBUTTON:
        return HOST_WT_RADIOBUTTON;
    default:
        return 0;
    }
}

} // namespace

WinKind KindOf(HWND window) {
    if (!IsWindow(window))
        return WinKind::None;
    wchar_t name[64];
    if (!GetClassNameW(window, name, static_cast<int>(std::size(name))))
        return WinKind::Other;
    for (const ClassKind &c : kClasses)
        if (lstrcmpiW(name, c.name) == 0)
            return c.kind;
    return WinKind::Other;
}

uint32_t TypeOf(HWND window) {
    if (const WinMark *mark = FindMark(window); mark && mark->typed)
        return mark->type;
    WinKind kind = KindOf(window);
    if (kind == WinKind::None)
        return 0;
    LONG_PTR style = GetWindowLongPtrW(window, GWL_STYLE);
    bool topLevel = (style & WS_CHILD) == 0;
    switch (kind) {
    case WinKind::ListBox:
        return HOST_WT_LISTBOX;
    case WinKind::ComboBox:
        return HOST_WT_COMBOBOX;
    case WinKind::Edit:
        return (style & ES_MULTILINE) ? HOST_WT_MULTILINE : HOST_WT_DATAFIELD;
    case WinKind::Button:
        return ButtonType(style);
    case WinKind::Dialog:
        return topLevel ? HOST_WT_DIALOG : 0;
    default:
        return topLevel ? HOST_WT_FORM : 0;
    }
}

} // namespace hostwin

using namespace hostwin;

extern "C" {

uint32_t ZKAPI HostWinType(HWND window) { return TypeOf(window); }

uint32_t ZKAPI HostWinClass(HWND window) {
    const WinMark *mark = FindMark(window);
    return mark && mark->typed ? mark->cls : 0;
}

// The reference host's frames are plain windows marked by kind.
int32_t ZKAPI HostWinGetFrameKind(HWND window) {
    const WinMark *mark = FindMark(window);
    return mark ? mark->frameKind : HOST_FK_NONE;
}

// The name set for the window, else the empty string; 0 when the window is
// none (the slot still gets the empty string) or no string can be made.
int32_t ZKAPI HostWinGetName(HWND window, HostStr *name) {
    return Guard<int32_t>(0, [&] {
        if (!name)
            return 0;
        const WinMark *mark = FindMark(window);
        HostStr handle = StrFromText(mark && mark->named ? mark->name : std::wstring());
        if (!handle)
            return 0;
        StrStore(name, handle);
        return IsWindow(window) ? 1 : 0;
    });
}

void ZKAPI ZkHostSetWinType(HWND window, uint32_t type, uint32_t cls) {
    GuardVoid([&] { MarkType(window, type, cls); });
}

void ZKAPI ZkHostSetFrameKind(HWND window, int32_t kind) {
    GuardVoid([&] { MarkFrameKind(window, kind); });
}

void ZKAPI ZkHostSetWinName(HWND window, const wchar_t *name) {
    GuardVoid([&] { MarkName(window, name); });
}

} // extern "C"
