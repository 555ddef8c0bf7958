// ZelMenu exports on items: texts, inserts, fonts and pictures, deletion.
#include "frame/win/guard.h"
#include "menu/win/menu_ops.h"

namespace {

template <class Body>
int32_t Item(Body &&body) noexcept {
    return zk::Quietly(std::forward<Body>(body), [] { return int32_t{0}; });
}

} // namespace

extern "C" {

HostStr ZKAPI ZelMenuGetText(HWND window, HMENU menu, int32_t selector) {
    return zk::StringResult([&] { return zk::menu::GetText(window, menu, selector); });
}

int32_t ZKAPI ZelMenuSetText(HWND window, HMENU menu, int32_t selector, const wchar_t *text) {
    return Item([&] { return zk::menu::SetText(window, menu, selector, text); });
}

int32_t ZKAPI ZelMenuInsert(HWND window, HMENU menu, int32_t position, const wchar_t *text, int16_t flags) {
    return Item([&] { return zk::menu::Insert(window, menu, position, text, flags); });
}

int32_t ZKAPI ZelMenuInsertFont(HWND window, HMENU menu, int32_t position, HFONT font, const wchar_t *text) {
    return Item([&] { return zk::menu::InsertFont(window, menu, position, font, text); });
}

int32_t ZKAPI ZelMenuInsertPicture(HWND window, HMENU menu, int32_t position, ZelPicHandle picture,
                                   ZelPicHandle selectedPicture, const wchar_t *text) {
    return Item([&] { return zk::menu::InsertPicture(window, menu, position, picture, selectedPicture, text); });
}

int32_t ZKAPI ZelMenuSetFont(HWND window, HMENU menu, int32_t selector, HFONT font, const wchar_t *text) {
    return Item([&] { return zk::menu::SetFont(window, menu, selector, font, text); });
}

int32_t ZKAPI ZelMenuSetPicture(HWND window, HMENU menu, int32_t selector, ZelPicHandle picture,
                                ZelPicHandle selectedPicture, const wchar_t *text) {
    return Item([&] { return zk::menu::SetPicture(window, menu, selector, picture, selectedPicture, text); });
}

int32_t ZKAPI ZelMenuDelete(HWND window, HMENU menu, int32_t selector) {
    return Item([&] { return zk::menu::Delete(window, menu, selector); });
}

} // extern "C"
