// How a control window comes into being when the host loads a form. The
// outer classes of the library (registered at start-up, see
// frame/win/startup.cpp) have a bootstrap procedure each, which makes the
// control's window object at WM_NCCREATE and announces its pointer to the
// window with ZKM_ControlCreate. The host-side class keeps that pointer and
// passes it as the first argument of the exported control functions.
//
// A family names its bootstrap procedure in the start-up table:
//
//   struct CalendarBootstrap {
//       using Object = CDlgCalendar;            // made with new, owned by its window
//       static constexpr const wchar_t *className = L"ZK:cCalendar:10";
//       static constexpr BootstrapForm form = BootstrapForm::AttachOrSubclass;
//   };
//   LRESULT CALLBACK DlgCalendarBootstrap(HWND w, UINT m, WPARAM wp, LPARAM lp) {
//       return zk::BootstrapProcedure<CalendarBootstrap>(w, m, wp, lp);
//   }
//
// The pointer announced is the Object pointer. Families derive from Window
// by single inheritance, so a pointer to any of their base classes has the
// same value.
#pragma once

#include <windows.h>

#include <new>

#include "frame/win/window.h"
#include "zklib.h" // ZKM_ControlCreate

namespace zk {

// Private message: wParam 0, lParam the control object's pointer.

enum class BootstrapForm {
    // ZK:cComboCal:10, ZK:cPalette:10: the object is subclassed in with
    // DefWindowProcW behind it, and the window keeps its own procedure.
    KeepProcedure,
    // The other outer classes: a window on its class's own procedure is
    // subclassed (DefWindowProcW behind the object); a window whose
    // procedure is another's (a host superclass) is attached only. A failed
    // allocation or attachment ends WM_NCCREATE with 0.
    AttachOrSubclass,
};

// Sends ZKM_ControlCreate to the window when OrlParentWindowOnly answers
// nonzero, otherwise posts it, so that it arrives once the host has built
// the window.
void AnnounceControl(HWND window, LPARAM object) noexcept;

// The work of a bootstrap procedure; make is called at WM_NCCREATE and
// gives the new object and the pointer to announce (null on failure).
using ControlMaker = Window *(*)(LPARAM &announced);
LRESULT RunBootstrap(HWND window, UINT message, WPARAM wParam, LPARAM lParam, const wchar_t *className,
                     BootstrapForm form, ControlMaker make) noexcept;

template <class Object>
Window *MakeControl(LPARAM &announced) {
    Object *object = new (std::nothrow) Object();
    announced = reinterpret_cast<LPARAM>(object);
    return object;
}

// The work of the bootstrap procedure of one outer class.
template <class Traits>
LRESULT BootstrapProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return RunBootstrap(window, message, wParam, lParam, Traits::className, Traits::form,
                        &MakeControl<typename Traits::Object>);
}

} // namespace zk
