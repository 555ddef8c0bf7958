// The bitmaps the library makes for an item's check-mark place (the picture
// without its background), kept per frame window: the menu only borrows
// them, so each is deleted when its item is replaced or deleted through the
// library, or at the latest with the frame.
#pragma once

#include <windows.h>

#include <cstdint>

namespace zk::menu {

// Keeps a bitmap for (window, menu, id); the one it replaces is deleted.
// False when it cannot be kept (the bitmap is then deleted too).
bool KeepCheckBitmap(HWND window, HMENU menu, int32_t id, HBITMAP bitmap);
// Deletes the bitmap of one item.
void DropCheckBitmap(HWND window, HMENU menu, int32_t id);
// Deletes every bitmap of a window.
void ForgetCheckBitmaps(HWND window);
// Bitmaps kept now (tests).
int KeptCheckBitmaps();

} // namespace zk::menu
