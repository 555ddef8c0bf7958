// Window objects: a C++ object that handles the messages of one window. The
// one way the library sits on a window, whether it made the window (a
// control) or adopts one the host made (a list of the outline engine).
//
// An object is attached to its window from the first message the window
// gets (CreateEx), at WM_NCCREATE (a bootstrap procedure), or later
// (Attach, SubclassWindow). From then on the window owns it: after
// WM_NCDESTROY has been handled the object is detached and PostNcDestroy
// runs, which deletes it unless a class says otherwise.
//
// Objects come in families. A family has one window procedure and knows
// its objects by window; a window holds at most one object of a family.
// The controls are one family, on FrameProcedure; a class of another
// purpose names its own family (Family(), FamilyOf<Class>()), so that, say,
// a field subclassed for its flags and adopted as an outline list carries
// two objects, each above the procedure it replaced.
//
// A class handles what it wants and passes the rest to its base class's
// WindowProc; the base sends it to Default(), the procedure the window had
// before (DefWindowProcW when none).
//
// Everything runs on the thread that owns the windows; nothing is locked.
#pragma once

#include <windows.h>

#include <unordered_map>

namespace zk {

class Window;

// The window procedure of a family and its objects by window. `forward`
// keeps, for a window whose object has gone while another procedure sat
// above the family's, the procedure the object had replaced, so that the
// messages still passing through the family's procedure reach it.
struct WindowFamily {
    WNDPROC procedure;
    std::unordered_map<HWND, Window *> objects;
    std::unordered_map<HWND, WNDPROC> forward;
};

class Window {
public:
    Window() = default;
    virtual ~Window();
    Window(const Window &) = delete;
    Window &operator=(const Window &) = delete;

    HWND GetSafeHwnd() const { return hwnd_; }
    // The control object attached to a window, or null.
    static Window *FromHandle(HWND window);
    // The object of a family on a window, or null.
    static Window *FromHandle(HWND window, WindowFamily &family);

    // Creates a window, with the library's instance, of a class whose
    // procedure is FrameProcedure (or passes to it), with this object
    // attached from its first message. Null on failure: PostNcDestroy has
    // then run, so an object that deletes itself is already gone.
    HWND CreateEx(DWORD exStyle, const wchar_t *className, const wchar_t *title, DWORD style, int x, int y, int width,
                  int height, HWND parent, HMENU menuOrId, void *param = nullptr);

    // Ties the object to a window whose procedure passes its messages to
    // the family's procedure. False when the window has an object of the
    // family or is not a window.
    bool Attach(HWND window);
    // Unties it, leaving the window as it is; the handle it had.
    HWND Detach();
    // Attaches and puts the family's procedure in the window's place; the
    // window's former procedure becomes the one Default() calls.
    bool SubclassWindow(HWND window);
    // Puts the former procedure back (or, when another procedure has been
    // put above it meanwhile, keeps forwarding to it) and detaches.
    HWND UnsubclassWindow();

    // The procedure Default() calls; null means DefWindowProcW.
    WNDPROC DefaultProcedure() const { return super_; }
    void SetDefaultProcedure(WNDPROC procedure) { super_ = procedure; }

    // The controls' window procedure. A message for a window without an
    // object goes to DefWindowProcW. Nothing thrown by a handler leaves it:
    // WM_NCCREATE then answers FALSE, WM_CREATE -1, WM_PAINT validates, and
    // any other message answers 0.
    static LRESULT CALLBACK FrameProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    // The same for the procedure of any family.
    static LRESULT Route(WindowFamily &family, HWND window, UINT message, WPARAM wParam, LPARAM lParam);

protected:
    // The family the object belongs to; the controls' unless a class says so.
    virtual WindowFamily &Family() const;
    // The object's handler; the base passes everything to Default().
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    // The message being handled, to the default procedure.
    LRESULT Default();
    // The message being handled (zeros outside a handler).
    const MSG &CurrentMessage() const;
    // Runs once the window has gone; the base deletes the object.
    virtual void PostNcDestroy();

private:
    static LRESULT Dispatch(Window *object, HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    bool Bind(HWND window);
    void Unbind();

    HWND hwnd_ = nullptr;
    WNDPROC super_ = nullptr;
    WindowFamily *family_ = nullptr; // while bound
    bool subclassed_ = false;
};

// The family of a class of window objects, with its own procedure.
template <class Class>
LRESULT CALLBACK FamilyProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

template <class Class>
WindowFamily &FamilyOf() {
    static WindowFamily family{&FamilyProcedure<Class>, {}, {}};
    return family;
}

template <class Class>
LRESULT CALLBACK FamilyProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return Window::Route(FamilyOf<Class>(), window, message, wParam, lParam);
}

// The object of a class's family on a window, or null.
template <class Class>
Class *ObjectOf(HWND window) {
    return static_cast<Class *>(Window::FromHandle(window, FamilyOf<Class>()));
}

// Puts a window procedure in place of a window's own and gives the former
// one, or null when the window is not one of this process's windows. Plain
// procedures (no object) use this with CallWindowProcW to the former.
WNDPROC ReplaceProcedure(HWND window, WNDPROC procedure);

} // namespace zk
