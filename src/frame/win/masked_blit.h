// A bitmap drawn through its transparency mask: image XOR, mask AND, image
// XOR. Where the mask's bit is set the destination stays; elsewhere the
// image lands. Without a mask the image is copied as it is.
#pragma once

#include <windows.h>

namespace zk {

// Draws `height` rows of the picture from row `sourceTop` on, at (x, y).
// The bitmaps are read, never selected, so they may be in use elsewhere;
// their bits pass through scratch DCs kept for the next call, and those of
// the bitmap drawn last are kept there: a bitmap drawn here must not change
// while it lives (pictures do not).
void MaskedBlit(HDC dc, int x, int y, int width, int height, HBITMAP image, HBITMAP mask, int sourceTop = 0);
// Frees the scratch DCs (4 GDI objects) until the next call, and forgets
// what they held.
void MaskedBlitRelease();

} // namespace zk
