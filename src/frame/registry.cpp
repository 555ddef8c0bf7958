#include "frame/registry.h"
#include "frame/host.h"

#include <array>
#include <set>
#include <string>

namespace zk {

int IconWidth = 0, IconHeight = 0;
const int SmallIconWidth = 16, SmallIconHeight = 16;

namespace {

struct OuterClass {
    const wchar_t *name;
    UINT style;
    int extraBytes;
    bool arrowCursor;
    ControlBootstrap bootstrap;
    bool registeredHere; // false when another copy of the library owns the class
};

// Registration order; unregistration runs in the same order.
std::array<OuterClass, 9> outerClasses = {{
    {L"ZK:cCalendar:10", 0x6880, 0, true, nullptr, false},
    {L"ZK:cComboCal:10", 0x6888, 0, true, nullptr, false},
    {L"ZK:cPalette:10", 0x6080, 0, true, nullptr, false},
    {L"ZK:cComboPal:10", 0x6888, 0, true, nullptr, false},
    {L"ZK:cSplitter:10", 0x400B, 0, false, nullptr, false},
    {L"ZK:cListView:10", 0x4088, 0, true, nullptr, false},
    {L"ZK:cListViewDropDown:10", 0x4088, 0, true, nullptr, false},
    {L"ZK:cSpinField:10", 0x4008, 4, true, nullptr, false},
    {L"ZK:cMeter:10", 0x4000, 4, true, nullptr, false},
}};

// One named procedure per class: a 32-bit build cannot hand out lambdas as
// window procedures, and the slot tells which control maker applies.
template <size_t Slot>
LRESULT CALLBACK OuterClassProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (ControlBootstrap bootstrap = outerClasses[Slot].bootstrap)
        return bootstrap(window, message, wParam, lParam);
    return DefWindowProcW(window, message, wParam, lParam);
}

template <size_t... Slots>
constexpr std::array<WNDPROC, sizeof...(Slots)> MakeProcs(std::index_sequence<Slots...>) {
    return {&OuterClassProc<Slots>...};
}
const std::array<WNDPROC, 9> outerProcs = MakeProcs(std::make_index_sequence<9>());

constexpr std::array<const wchar_t *, 9> paletteNames = {
    L"ZK_LOGO",   L"ZK_CAL",            L"ZK_CALDROPDOWN", L"ZK_CLRPAL",  L"ZK_CLRPALDROPDOWN",
    L"ZK_LISTVW", L"ZK_LISTVWDROPDOWN", L"ZK_METER",       L"ZK_SPINFLD",
};
std::array<HBITMAP, 9> paletteBitmaps{};

const std::set<std::wstring> classNameMap = {
    L"cColorComboBox", L"cColorListBox",    L"cDirTreeListBox", L"cDriveComboBox", L"cDriveListBox",
    L"cFontComboBox",  L"cOutlineComboBox", L"cOutlineListBox", L"cRadioListBox",  L"cFontListBox",
};
bool classNameMapFilled = false;

bool RegisterOuterClass(size_t slot) {
    OuterClass &c = outerClasses[slot];
    WNDCLASSW known{};
    if (GetClassInfoW(ModuleInstance, c.name, &known))
        return true;
    WNDCLASSW wc{};
    wc.style = c.style;
    wc.lpfnWndProc = outerProcs[slot];
    wc.cbWndExtra = c.extraBytes;
    wc.hInstance = ModuleInstance;
    wc.hCursor = c.arrowCursor ? LoadCursorW(nullptr, IDC_ARROW) : nullptr;
    wc.lpszClassName = c.name;
    c.registeredHere = RegisterClassW(&wc) != 0;
    return c.registeredHere;
}

} // namespace

void SetControlBootstrap(const wchar_t *className, ControlBootstrap bootstrap) {
    for (OuterClass &c : outerClasses)
        if (lstrcmpW(c.name, className) == 0)
            c.bootstrap = bootstrap;
}

HBITMAP PaletteBitmap(int index) {
    if (index < 0 || index >= static_cast<int>(paletteBitmaps.size()))
        index = 0;
    return paletteBitmaps[static_cast<size_t>(index)];
}

bool IsHostListClassName(const wchar_t *name) {
    return name && classNameMapFilled && classNameMap.count(name) != 0;
}

bool InitInstance(HINSTANCE instance) {
    ModuleInstance = instance;
    IconHeight = GetSystemMetrics(SM_CYICON);
    IconWidth = GetSystemMetrics(SM_CXICON);
    // A missing bitmap stays null; the others still load.
    for (size_t i = 0; i < paletteNames.size(); ++i)
        if (FindResourceW(instance, paletteNames[i], reinterpret_cast<LPCWSTR>(RT_BITMAP)))
            paletteBitmaps[i] = LoadBitmapW(instance, paletteNames[i]);
    classNameMapFilled = true;
    for (size_t slot = 0; slot < outerClasses.size(); ++slot)
        if (!RegisterOuterClass(slot))
            return false;
    return true;
}

void ExitInstance() {
    for (HBITMAP &bitmap : paletteBitmaps) {
        if (bitmap)
            DeleteObject(bitmap);
        bitmap = nullptr;
    }
    classNameMapFilled = false;
    // A class that a first copy of the library registered stays: its windows
    // run that copy's code. A class still in use stays too, silently: there
    // is nobody to tell at unload.
    for (OuterClass &c : outerClasses) {
        if (c.registeredHere)
            UnregisterClassW(c.name, ModuleInstance);
        c.registeredHere = false;
    }
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
