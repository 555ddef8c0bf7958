// Window objects: a C++ object that handles the messages of one window.
//
// An object is attached to its window from the first message the window
// gets (CreateEx), at WM_NCCREATE (a bootstrap procedure), or later
// (Attach, SubclassWindow). From then on the window owns it: after
// WM_NCDESTROY has been handled the object is detached and PostNcDestroy
// runs, which deletes it unless a class says otherwise.
//
// Messages reach WindowProc through FrameProcedure, which a window gets as
// its class procedure, by subclassing, or by a class procedure of its own
// that passes messages on. A class handles what it wants and passes the
// rest to its base class's WindowProc; the base sends it to Default(), the
// procedure the window had before (DefWindowProcW when none).
//
// Everything runs on the thread that owns the windows; nothing is locked.
#pragma once

#include <windows.h>

namespace zk {

class Window {
public:
    Window() = default;
    virtual ~Window();
    Window(const Window &) = delete;
    Window &operator=(const Window &) = delete;

    HWND GetSafeHwnd() const { return hwnd_; }
    // The object attached to a window, or null.
    static Window *FromHandle(HWND window);

    // Creates a window, with the library's instance, of a class whose
    // procedure is FrameProcedure (or passes to it), with this object
    // attached from its first message. Null on failure: PostNcDestroy has
    // then run, so an object that deletes itself is already gone.
    HWND CreateEx(DWORD exStyle, const wchar_t *className, const wchar_t *title, DWORD style, int x, int y,
                  int width, int height, HWND parent, HMENU menuOrId, void *param = nullptr);

    // Ties the object to a window whose procedure passes its messages to
    // FrameProcedure. False when the window has an object or is not a window.
    bool Attach(HWND window);
    // Unties it, leaving the window as it is; the handle it had.
    HWND Detach();
    // Attaches and puts FrameProcedure in the window's place; the window's
    // former procedure becomes the one Default() calls.
    bool SubclassWindow(HWND window);
    // Puts the former procedure back and detaches; the handle it had.
    HWND UnsubclassWindow();

    // The procedure Default() calls; null means DefWindowProcW.
    WNDPROC DefaultProcedure() const { return super_; }
    void SetDefaultProcedure(WNDPROC procedure) { super_ = procedure; }

    // The framework's window procedure. A message for a window without an
    // object goes to DefWindowProcW. Nothing thrown by a handler leaves it:
    // WM_NCCREATE then answers FALSE, WM_CREATE -1, WM_PAINT validates, and
    // any other message answers 0.
    static LRESULT CALLBACK FrameProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

protected:
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
    bool subclassed_ = false;
};

// Puts a window procedure in place of a window's own and gives the former
// one, or null when the window is not one of this process's windows. Plain
// procedures (no object) use this with CallWindowProcW to the former.
WNDPROC ReplaceProcedure(HWND window, WNDPROC procedure);

} // namespace zk
