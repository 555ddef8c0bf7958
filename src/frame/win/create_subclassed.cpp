#include "frame/win/create_subclassed.h"

#include "frame/win/host.h"

namespace zk {

namespace {

// The object waiting for the window being made on this thread, and the hook
// that hands it over. One creation at a time: a window that its creation
// makes meanwhile (a child made in WM_CREATE) comes after the hand-over.
Window *pendingObject = nullptr;
HHOOK creationHook = nullptr;

LRESULT CALLBACK CreationHook(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HCBT_CREATEWND && pendingObject) {
        Window *object = pendingObject;
        pendingObject = nullptr;
        object->SubclassWindow(reinterpret_cast<HWND>(wParam));
    }
    return CallNextHookEx(creationHook, code, wParam, lParam);
}

} // namespace

HWND CreateSubclassed(Window &object, DWORD exStyle, const wchar_t *className, const wchar_t *title, DWORD style, int x,
                      int y, int width, int height, HWND parent, HMENU menuOrId, void *param) {
    if (object.GetSafeHwnd() || pendingObject)
        return nullptr;
    creationHook = SetWindowsHookExW(WH_CBT, &CreationHook, nullptr, GetCurrentThreadId());
    if (!creationHook)
        return nullptr;
    pendingObject = &object;
    HINSTANCE instance = ModuleInstance ? ModuleInstance : GetModuleHandleW(nullptr);
    HWND window =
        CreateWindowExW(exStyle, className, title, style, x, y, width, height, parent, menuOrId, instance, param);
    pendingObject = nullptr;
    UnhookWindowsHookEx(creationHook);
    creationHook = nullptr;
    return window;
}

} // namespace zk
