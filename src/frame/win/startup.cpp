// The one table of what the library sets up as it loads: the bindings to
// the host runtime, then every window class, in the order start-up
// registers them. The host's forms name the nine start-up classes; a
// bootstrap procedure on each makes the control object at WM_NCCREATE
// (frame/win/control_create.h). A class whose control is not built here
// yet is a plain window. The inner classes are registered when the first
// window of their kind is made (EnsureClass).
#include "frame/win/startup.h"

#include "calendar/win/calendar_bootstrap.h"
#include "controls/win/controls_bootstrap.h"
#include "frame/win/host.h"
#include "frame/win/registry.h"
#include "frame/win/window.h"
#include "headerlist/win/headerlist_bootstrap.h"
#include "palette/win/palette_bootstrap.h"

namespace zk {

namespace {

// Bindings of portable code to the host runtime and the library's
// resources, run before anything else.
using Binding = void (*)();
const Binding kBindings[] = {
    &cal::BindDatesToHost,
    &ctl::BindControlsToHost,
    &hdr::BindImageListsToPlatform,
};

enum class When { StartUp, FirstWindow };

struct WindowClass {
    const wchar_t *name;
    UINT style;
    int extraBytes;
    bool arrowCursor;
    WNDPROC procedure;
    When when;
    bool registeredHere; // false when another copy of the library owns the class
};

WindowClass classes[] = {
    {L"ZK:cCalendar:10", 0x6880, 0, true, &cal::DlgCalendarBootstrap, When::StartUp},
    {L"ZK:cComboCal:10", 0x6888, 0, true, &DefWindowProcW, When::StartUp},
    {L"ZK:cPalette:10", 0x6080, 0, true, &pal::DlgPaletteBootstrap, When::StartUp},
    {L"ZK:cComboPal:10", 0x6888, 0, true, &DefWindowProcW, When::StartUp},
    {L"ZK:cSplitter:10", 0x400B, 0, false, &ctl::DlgSplitterBootstrap, When::StartUp},
    {L"ZK:cListView:10", 0x4088, 0, true, &hdr::DlgHeaderLBBootstrap, When::StartUp},
    {L"ZK:cListViewDropDown:10", 0x4088, 0, true, &DefWindowProcW, When::StartUp},
    {L"ZK:cSpinField:10", 0x4008, 4, true, &ctl::SpinFieldProc, When::StartUp},
    {L"ZK:cMeter:10", 0x4000, 4, true, &ctl::MeterProc, When::StartUp},
    {L"ZK:Calendar:10", 0x6880, 0, true, &Window::FrameProcedure, When::FirstWindow},
    {L"ZK:ColorPalette:10", 0x6080, 0, true, &Window::FrameProcedure, When::FirstWindow},
    {L"ZK:Splitter:10", 0x400B, 0, false, &Window::FrameProcedure, When::FirstWindow},
    // The hidden window that holds the mouse while the wait cursor is on.
    {L"Zel:MouseCapture", 0, 0, false, &DefWindowProcW, When::FirstWindow},
};

// The module this code is in: the library, or a test program that links
// the controls' code beside it.
HINSTANCE CodeModule() {
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(&CodeModule), &module);
    return module;
}

bool Register(WindowClass &c, HINSTANCE instance) {
    WNDCLASSW known{};
    if (GetClassInfoW(instance, c.name, &known))
        return true;
    WNDCLASSW wc{};
    wc.style = c.style;
    wc.lpfnWndProc = c.procedure;
    wc.cbWndExtra = c.extraBytes;
    wc.hInstance = instance;
    wc.hCursor = c.arrowCursor ? LoadCursorW(nullptr, IDC_ARROW) : nullptr;
    wc.lpszClassName = c.name;
    c.registeredHere = RegisterClassW(&wc) != 0;
    return c.registeredHere;
}

} // namespace

bool InitInstance(HINSTANCE instance) {
    ModuleInstance = instance;
    for (Binding bind : kBindings)
        bind();
    LoadProcessState(instance);
    for (WindowClass &c : classes)
        if (c.when == When::StartUp && !Register(c, instance))
            return false;
    return true;
}

void ExitInstance() {
    FreeProcessState();
    // A class that a first copy of the library registered stays: its windows
    // run that copy's code. A class still in use stays too, silently: there
    // is nobody to tell at unload.
    for (WindowClass &c : classes) {
        if (c.registeredHere)
            UnregisterClassW(c.name, c.when == When::StartUp ? ModuleInstance : CodeModule());
        c.registeredHere = false;
    }
}

bool EnsureClass(const wchar_t *name) {
    for (WindowClass &c : classes)
        if (lstrcmpW(c.name, name) == 0)
            return Register(c, CodeModule());
    return false;
}

} // namespace zk

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
    switch (reason) {
    case DLL_PROCESS_ATTACH:
        DisableThreadLibraryCalls(instance);
        return zk::InitInstance(instance) ? TRUE : FALSE;
    case DLL_PROCESS_DETACH:
        zk::ExitInstance();
        break;
    }
    return TRUE;
}
