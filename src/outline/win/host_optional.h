// The host operations the lists ask of the host's forms and designer: the
// named lookup of a control by id (which can find a control of another
// owner) and a design item's attribute.
#pragma once

#include <windows.h>

#include <cstdint>

// OrlGetDlgItemEx.
HWND LbxHostDlgItem(HWND window, int id);

// Designer attribute `attribute`, index `index` of the window's design item,
// compared with `text` without regard to case. False when the window has no
// design item or the attribute cannot be read.
bool LbxHostDesignAttributeIs(HWND window, int32_t attribute, int32_t index, const wchar_t *text);
