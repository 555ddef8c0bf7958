#include "frame/win/window.h"

#include "frame/win/host.h"

namespace zk {

namespace {

// The family of the controls: the windows of the library's classes and the
// objects the bootstraps attach.
WindowFamily &Controls() {
    static WindowFamily family{&Window::FrameProcedure, {}, {}};
    return family;
}

// The object of a CreateEx under way, taken by the first message of the new window.
Window *pendingCreation = nullptr;
// The innermost message being handled, for Default().
const MSG *currentMessage = nullptr;

WNDPROC ProcedureOf(HWND window) { return reinterpret_cast<WNDPROC>(GetWindowLongPtrW(window, GWLP_WNDPROC)); }

} // namespace

Window::~Window() {
    if (hwnd_)
        Unbind();
}

WindowFamily &Window::Family() const { return Controls(); }

Window *Window::FromHandle(HWND window) { return FromHandle(window, Controls()); }

Window *Window::FromHandle(HWND window, WindowFamily &family) {
    if (!window)
        return nullptr;
    const auto found = family.objects.find(window);
    return found == family.objects.end() ? nullptr : found->second;
}

bool Window::Bind(HWND window) {
    WindowFamily &family = Family();
    if (!window || hwnd_ || FromHandle(window, family))
        return false;
    try {
        family.objects.emplace(window, this);
    } catch (...) {
        return false;
    }
    family.forward.erase(window);
    hwnd_ = window;
    family_ = &family;
    return true;
}

void Window::Unbind() {
    WindowFamily &family = *family_;
    family.objects.erase(hwnd_);
    if (subclassed_) {
        // A window still running the family's procedure gets its own back,
        // so that what comes after the object is handled as before it. When
        // another procedure was put above ours, ours stays in the chain and
        // passes the window's messages on to the one it replaced.
        if (ProcedureOf(hwnd_) == family.procedure) {
            SetWindowLongPtrW(hwnd_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(super_));
        } else {
            try {
                family.forward[hwnd_] = super_;
            } catch (...) {
            }
        }
    }
    subclassed_ = false;
    hwnd_ = nullptr;
    family_ = nullptr;
}

HWND Window::CreateEx(DWORD exStyle, const wchar_t *className, const wchar_t *title, DWORD style, int x, int y,
                      int width, int height, HWND parent, HMENU menuOrId, void *param) {
    if (hwnd_)
        return nullptr;
    pendingCreation = this;
    // The library's own classes are found through its instance.
    HINSTANCE instance = ModuleInstance ? ModuleInstance : GetModuleHandleW(nullptr);
    HWND window =
        CreateWindowExW(exStyle, className, title, style, x, y, width, height, parent, menuOrId, instance, param);
    const bool reached = pendingCreation != this;
    if (!reached)
        pendingCreation = nullptr;
    // A window that never reached the object ends as one that was destroyed:
    // PostNcDestroy has run once whatever happened.
    if (!window && !reached)
        PostNcDestroy();
    return window;
}

bool Window::Attach(HWND window) { return IsWindow(window) && Bind(window); }

HWND Window::Detach() {
    HWND window = hwnd_;
    if (window)
        Unbind();
    return window;
}

bool Window::SubclassWindow(HWND window) {
    if (!Attach(window))
        return false;
    const WNDPROC procedure = family_->procedure;
    const WNDPROC former = ReplaceProcedure(window, procedure);
    if (!former) {
        Unbind();
        return false;
    }
    // A window already on the family's procedure keeps DefWindowProcW
    // behind it, or Default() would come back here.
    subclassed_ = former != procedure;
    super_ = subclassed_ ? former : nullptr;
    return true;
}

HWND Window::UnsubclassWindow() { return Detach(); }

LRESULT Window::WindowProc(UINT, WPARAM, LPARAM) { return Default(); }

const MSG &Window::CurrentMessage() const {
    static const MSG none{};
    return currentMessage && hwnd_ && currentMessage->hwnd == hwnd_ ? *currentMessage : none;
}

LRESULT Window::Default() {
    const MSG &m = CurrentMessage();
    if (!m.hwnd)
        return 0;
    return super_ ? CallWindowProcW(super_, m.hwnd, m.message, m.wParam, m.lParam)
                  : DefWindowProcW(m.hwnd, m.message, m.wParam, m.lParam);
}

void Window::PostNcDestroy() { delete this; }

LRESULT Window::Dispatch(Window *object, HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    MSG current{};
    current.hwnd = window;
    current.message = message;
    current.wParam = wParam;
    current.lParam = lParam;
    const MSG *outer = currentMessage;
    currentMessage = &current;
    LRESULT result = 0;
    try {
        result = object->WindowProc(message, wParam, lParam);
    } catch (...) {
        if (message == WM_NCCREATE)
            result = FALSE;
        else if (message == WM_CREATE)
            result = -1;
        else if (message == WM_PAINT)
            ValidateRect(window, nullptr);
    }
    currentMessage = outer;
    if (message == WM_NCDESTROY && object->family_ && FromHandle(window, *object->family_) == object) {
        object->Unbind();
        try {
            object->PostNcDestroy();
        } catch (...) {
        }
    }
    return result;
}

LRESULT CALLBACK Window::FrameProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    // Only these two come before a new window is known; any other message
    // for a window without object is not the creation under way.
    if (pendingCreation && (message == WM_NCCREATE || message == WM_GETMINMAXINFO) && !FromHandle(window)) {
        Window *pending = pendingCreation;
        if (pending->Bind(window))
            pendingCreation = nullptr;
        else if (message == WM_NCCREATE)
            return FALSE;
    }
    return Route(Controls(), window, message, wParam, lParam);
}

LRESULT Window::Route(WindowFamily &family, HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (Window *object = FromHandle(window, family))
        return Dispatch(object, window, message, wParam, lParam);
    const auto forward = family.forward.find(window);
    if (forward == family.forward.end())
        return DefWindowProcW(window, message, wParam, lParam);
    const WNDPROC next = forward->second;
    if (message == WM_NCDESTROY)
        family.forward.erase(forward);
    return next ? CallWindowProcW(next, window, message, wParam, lParam)
                : DefWindowProcW(window, message, wParam, lParam);
}

WNDPROC ReplaceProcedure(HWND window, WNDPROC procedure) {
    DWORD process = 0;
    if (!IsWindow(window) || !procedure || !GetWindowThreadProcessId(window, &process) ||
        process != GetCurrentProcessId())
        return nullptr;
    return reinterpret_cast<WNDPROC>(SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure)));
}

} // namespace zk
