// Adopted windows as window objects of the outline's own families: the list
// or combo box (its messages to LbxListBoxWndProc or LbxComboBoxWndProc) and
// the parent of adopted lists (to LbxParentWndProc). The records of the
// engine stay in their moveable local blocks, as the host sees them; the
// objects only sit on the windows, each above the procedure the record
// names as the base. Once a window's record has gone (its WM_DESTROY), its
// messages go to that base procedure until the object leaves with the window.
#pragma once

#include <windows.h>

#include <new>

#include "frame/win/window.h"
#include "outline/win/lbx_win.h"

namespace zk::lbx {

class AdoptedControl final : public zk::Window {
public:
    explicit AdoptedControl(LbxKind kind) : kind_(kind) {}

protected:
    zk::WindowFamily &Family() const override { return zk::FamilyOf<AdoptedControl>(); }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    LbxKind kind_;
};

class AdoptedParent final : public zk::Window {
protected:
    zk::WindowFamily &Family() const override { return zk::FamilyOf<AdoptedParent>(); }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
};

// Makes the object and subclasses the window with it: the procedure it
// replaced, or null when the window could not be taken (nothing is left then).
template <class Adopted, class... Args>
WNDPROC SitOn(HWND window, Args... args) {
    auto *object = new (std::nothrow) Adopted(args...);
    if (!object)
        return nullptr;
    if (!object->SubclassWindow(window)) {
        delete object;
        return nullptr;
    }
    const WNDPROC former = object->DefaultProcedure();
    return former ? former : &DefWindowProcW;
}

// Takes the object off a window whose adoption is undone before anything
// reached it; the window's procedure is as before.
template <class Adopted>
void StandDown(HWND window) {
    if (Adopted *object = zk::ObjectOf<Adopted>(window)) {
        object->UnsubclassWindow();
        delete object;
    }
}

} // namespace zk::lbx
