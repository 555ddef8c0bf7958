// Check and enable state, on the platform menu and, for a menu in a host
// frame's tree, in the frame's own structure as well.
#include "menu/core/menu_model.h"
#include "menu/win/menu_frames.h"
#include "menu/win/menu_ops.h"
#include "zkhost.h"

namespace zk::menu {
namespace {

// By command when the id is the selector itself (a command id), else by position.
UINT InFrameFlag(int32_t selector, int32_t id) { return id == selector ? MF_BYCOMMAND : MF_BYPOSITION; }
UINT InFrameItem(int32_t selector, int32_t id) { return static_cast<UINT>(id == selector ? id : selector); }

UINT StateOf(HMENU menu, int32_t selector) {
    return GetMenuState(menu, static_cast<UINT>(selector), PositionUnlessNegative(selector));
}

} // namespace

std::u16string TextArgument(const wchar_t *text) {
    return ReplaceTabMark(text ? std::u16string_view(reinterpret_cast<const char16_t *>(text)) : std::u16string_view());
}

int32_t IdOf(HMENU menu, int32_t selector) {
    if (!IsPosition(selector))
        return selector;
    const auto id = static_cast<int32_t>(GetMenuItemID(menu, selector));
    return id < 0 ? selector : id;
}

int32_t SetCheck(HMENU menu, int32_t selector, bool checked) {
    if (!IsMenu(menu))
        return 0;
    const UINT mark = checked ? MF_CHECKED : MF_UNCHECKED;
    const int32_t id = IsPosition(selector) ? static_cast<int32_t>(GetMenuItemID(menu, selector)) : selector;
    if (HWND frame = ZelMenuFindHostFrame(menu)) {
        if (!IsWindow(frame))
            return 0;
        int32_t result = 0;
        if (IsMenuFrame(frame)) {
            result = HostFrameSetMenuCheck(frame, menu, selector, id, checked ? 1 : 0);
            // Unchecking redraws the frame's state; checking leaves it to the frame.
            if (!checked)
                HostFrameUpdateMenuState(frame, 1);
        }
        CheckMenuItem(menu, InFrameItem(selector, id), InFrameFlag(selector, id) | mark);
        return result;
    }
    const DWORD was = CheckMenuItem(menu, static_cast<UINT>(selector), PositionUnlessNegative(selector) | mark);
    return was == static_cast<DWORD>(-1) ? 0 : 1;
}

int32_t SetEnable(HMENU menu, int32_t selector, bool enabled) {
    if (!IsMenu(menu))
        return 0;
    const UINT state = enabled ? MF_ENABLED : (MF_GRAYED | MF_DISABLED);
    const int32_t id = IsPosition(selector) ? static_cast<int32_t>(GetMenuItemID(menu, selector)) : selector;
    if (HWND frame = ZelMenuFindHostFrame(menu)) {
        if (!IsWindow(frame))
            return 0;
        EnableMenuItem(menu, InFrameItem(selector, id), InFrameFlag(selector, id) | state);
        if (!IsMenuFrame(frame))
            return 0;
        const int32_t result = HostFrameSetMenuEnable(frame, menu, selector, id, enabled ? 1 : 0);
        HostFrameUpdateMenuState(frame, 1);
        return result;
    }
    const BOOL was = EnableMenuItem(menu, static_cast<UINT>(selector), PositionUnlessNegative(selector) | state);
    return was == -1 ? 0 : 1;
}

int32_t IsChecked(HMENU menu, int32_t selector) {
    if (!IsMenu(menu))
        return 0;
    const int32_t id = IsPosition(selector) ? static_cast<int32_t>(GetMenuItemID(menu, selector)) : selector;
    if (HWND frame = ZelMenuFindHostFrame(menu)) {
        if (!IsWindow(frame))
            return 1;
        if (IsMenuFrame(frame))
            return HostFrameGetMenuCheck(frame, id) ? 1 : 0;
    }
    const UINT state = StateOf(menu, selector);
    return state != static_cast<UINT>(-1) && (state & MF_CHECKED) ? 1 : 0;
}

int32_t IsEnabled(HMENU menu, int32_t selector) {
    if (!IsMenu(menu))
        return 0;
    const int32_t id = IsPosition(selector) ? static_cast<int32_t>(GetMenuItemID(menu, selector)) : selector;
    HWND frame = ZelMenuFindHostFrame(menu);
    if (frame && IsMenuFrame(frame)) {
        if (HostFrameMenuHasItem(frame, id))
            return HostFrameGetMenuEnable(frame, id) ? 1 : 0;
        if (id >= 0)
            return 0;
    }
    const UINT state = StateOf(menu, selector);
    return state != static_cast<UINT>(-1) && !(state & MF_GRAYED) ? 1 : 0;
}

} // namespace zk::menu
