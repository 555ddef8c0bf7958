#include "frame/win/control_create.h"

#include "zkhost.h"

namespace zk {

namespace {

// Whether the window runs the procedure its class was registered with
// under the library's name: then the library may take the procedure's
// place. A window of a host superclass runs the host's procedure.
bool OnOwnProcedure(HWND window, const wchar_t *className) {
    wchar_t name[64] = {};
    if (!GetClassNameW(window, name, 64) || lstrcmpiW(name, className) != 0)
        return false;
    return static_cast<ULONG_PTR>(GetWindowLongPtrW(window, GWLP_WNDPROC)) == GetClassLongPtrW(window, GCLP_WNDPROC);
}

Window *MakeObject(ControlMaker make, LPARAM &announced) {
    announced = 0;
    try {
        Window *object = make(announced);
        if (!object)
            announced = 0;
        return object;
    } catch (...) {
        announced = 0;
        return nullptr;
    }
}

// Subclasses the object in with DefWindowProcW behind it.
bool SubclassBehindDefault(Window *object, HWND window) {
    SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&DefWindowProcW));
    return object->SubclassWindow(window);
}

// Makes and attaches the object; false ends WM_NCCREATE with 0.
bool Create(HWND window, BootstrapForm form, const wchar_t *className, ControlMaker make, LPARAM &announced) {
    Window *object = MakeObject(make, announced);
    if (form == BootstrapForm::KeepProcedure) {
        if (object) {
            const LONG_PTR own = GetWindowLongPtrW(window, GWLP_WNDPROC);
            if (!SubclassBehindDefault(object, window)) {
                delete object;
                announced = 0;
            }
            SetWindowLongPtrW(window, GWLP_WNDPROC, own);
        }
        return true;
    }
    if (!object)
        return false;
    bool attached;
    if (OnOwnProcedure(window, className)) {
        attached = SubclassBehindDefault(object, window);
    } else {
        attached = object->Attach(window);
    }
    if (!attached) {
        delete object;
        announced = 0;
    }
    return attached;
}

} // namespace

void AnnounceControl(HWND window, LPARAM object) noexcept {
    if (OrlParentWindowOnly(window))
        SendMessageW(window, ZKM_ControlCreate, 0, object);
    else
        PostMessageW(window, ZKM_ControlCreate, 0, object);
}

LRESULT RunBootstrap(HWND window, UINT message, WPARAM wParam, LPARAM lParam, const wchar_t *className,
                     BootstrapForm form, ControlMaker make) noexcept {
    switch (message) {
    case WM_NCCREATE: {
        LPARAM announced = 0;
        if (!Create(window, form, className, make, announced))
            return 0;
        AnnounceControl(window, announced);
        break;
    }
    case WM_STYLECHANGING:
    case WM_STYLECHANGED:
        return 1;
    default:
        break;
    }
    return Window::FrameProcedure(window, message, wParam, lParam);
}

} // namespace zk
