// Walks over the children of a form through the host, which knows their
// types, and the small window facts the window utilities share.
#pragma once

#include <windows.h>

#include <string>

#include "frame/win/host.h"

namespace zk::menu {

// The first child of the form, in Z order, of a type in the mask for which
// `stop(child)` holds; null when none does. With a `stop` that never holds
// it visits every such child.
template <class Stop>
HWND FindChild(HWND form, uint32_t typeMask, Stop &&stop) {
    for (HWND child = HostWinFirstChild(form, typeMask); child; child = HostWinNextChild(child, typeMask))
        if (stop(child))
            return child;
    return nullptr;
}

template <class Visit>
void ForEachChild(HWND form, Visit &&visit) {
    FindChild(form, 0x7FFFFFFF, [&](HWND child) {
        visit(child);
        return false;
    });
}

// The window a form is seen through: a window of host type 1 is shown in
// its parent, its frame.
inline HWND FrameOf(HWND window) { return HostWinType(window) == HOST_WT_FORM ? GetParent(window) : window; }

inline HWND GrandParentOf(HWND window) { return GetParent(GetParent(window)); }

// Host types that stand for a top-level form.
inline bool IsTopLevelForm(uint32_t type) {
    return type == HOST_WT_FORM || type == HOST_WT_DIALOG || type == HOST_WT_TOPLEVEL;
}
inline bool IsDataField(uint32_t type) { return type == HOST_WT_DATAFIELD || type == HOST_WT_MULTILINE; }
inline bool IsCheckField(uint32_t type) { return type == HOST_WT_CHECKBOX || type == HOST_WT_RADIOBUTTON; }

// The window's text; empty for no window.
inline std::wstring TextOf(HWND window) {
    const int length = GetWindowTextLengthW(window);
    if (length <= 0)
        return {};
    std::wstring text(static_cast<size_t>(length) + 1, L'\0');
    text.resize(static_cast<size_t>(GetWindowTextW(window, text.data(), length + 1)));
    return text;
}

} // namespace zk::menu
