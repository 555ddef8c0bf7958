// ZelMenu exports on menus: handles, counts, check and enable state.
#include "frame/win/guard.h"
#include "menu/win/menu_frames.h"
#include "menu/win/menu_ops.h"

namespace {

template <class R, class Body>
R Menu(R failure, Body &&body) noexcept {
    return zk::Quietly(std::forward<Body>(body), [failure] { return failure; });
}

} // namespace

extern "C" {

HMENU ZKAPI ZelMenuGetHandle(HWND window) {
    return Menu<HMENU>(nullptr, [&] { return zk::menu::MenuHandleOf(window); });
}

HMENU ZKAPI ZelMenuGetSystemHandle(HWND window) {
    return Menu<HMENU>(nullptr, [&] { return zk::menu::SystemMenuOf(window); });
}

HMENU ZKAPI ZelMenuGetPopupHandle(HMENU menu, int32_t position) {
    return Menu<HMENU>(nullptr, [&]() -> HMENU { return IsMenu(menu) ? GetSubMenu(menu, position) : nullptr; });
}

int32_t ZKAPI ZelMenuGetCount(HMENU menu) {
    return Menu<int32_t>(-1, [&] { return IsMenu(menu) ? GetMenuItemCount(menu) : -1; });
}

int32_t ZKAPI ZelMenuGetPosition(HMENU menu, int32_t id) {
    return Menu<int32_t>(-1, [&] { return IsMenu(menu) ? zk::menu::PositionOf(menu, id) : -1; });
}

int32_t ZKAPI ZelMenuCheck(HMENU menu, int32_t selector) {
    return Menu<int32_t>(0, [&] { return zk::menu::SetCheck(menu, selector, true); });
}

int32_t ZKAPI ZelMenuUncheck(HMENU menu, int32_t selector) {
    return Menu<int32_t>(0, [&] { return zk::menu::SetCheck(menu, selector, false); });
}

int32_t ZKAPI ZelMenuEnable(HMENU menu, int32_t selector) {
    return Menu<int32_t>(0, [&] { return zk::menu::SetEnable(menu, selector, true); });
}

int32_t ZKAPI ZelMenuDisable(HMENU menu, int32_t selector) {
    return Menu<int32_t>(0, [&] { return zk::menu::SetEnable(menu, selector, false); });
}

int32_t ZKAPI ZelMenuIsChecked(HMENU menu, int32_t selector) {
    return Menu<int32_t>(0, [&] { return zk::menu::IsChecked(menu, selector); });
}

int32_t ZKAPI ZelMenuIsEnabled(HMENU menu, int32_t selector) {
    return Menu<int32_t>(0, [&] { return zk::menu::IsEnabled(menu, selector); });
}

} // extern "C"
