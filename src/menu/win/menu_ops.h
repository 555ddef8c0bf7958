// The work of the ZelMenu exports, on plain platform menus and on host
// frames alike. Each gives its export's failure value (0, or the empty
// string) for a bad argument and leaves the records as they were.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

#include "zkrecord.h"

namespace zk::menu {

// The text argument as stored and given to the platform: null is empty,
// the first "\t" becomes a tab.
std::u16string TextArgument(const wchar_t *text);
inline const wchar_t *Wide(const std::u16string &text) { return reinterpret_cast<const wchar_t *>(text.c_str()); }

// The command id a selector names: GetMenuItemID for a position (where a
// popup's id comes out as the position itself), else the selector.
int32_t IdOf(HMENU menu, int32_t selector);
// Position flag of the functions that take negative selectors as commands
// and every other value as a position.
inline UINT PositionUnlessNegative(int32_t selector) { return selector < 0 ? MF_BYCOMMAND : MF_BYPOSITION; }

int32_t SetCheck(HMENU menu, int32_t selector, bool checked);
int32_t SetEnable(HMENU menu, int32_t selector, bool enabled);
int32_t IsChecked(HMENU menu, int32_t selector);
int32_t IsEnabled(HMENU menu, int32_t selector);

HostStr GetText(HWND window, HMENU menu, int32_t selector);
int32_t SetText(HWND window, HMENU menu, int32_t selector, const wchar_t *text);

int32_t Insert(HWND window, HMENU menu, int32_t position, const wchar_t *text, int16_t flags);
int32_t InsertFont(HWND window, HMENU menu, int32_t position, HFONT font, const wchar_t *text);
int32_t InsertPicture(HWND window, HMENU menu, int32_t position, INT_PTR picture, INT_PTR selectedPicture,
                      const wchar_t *text);
int32_t SetFont(HWND window, HMENU menu, int32_t selector, HFONT font, const wchar_t *text);
int32_t SetPicture(HWND window, HMENU menu, int32_t selector, INT_PTR picture, INT_PTR selectedPicture,
                   const wchar_t *text);
int32_t Delete(HWND window, HMENU menu, int32_t selector);

} // namespace zk::menu
