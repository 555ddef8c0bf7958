// A bitmap drawn through its transparency mask: image XOR, mask AND, image
// XOR. Where the mask's bit is set the destination stays; elsewhere the
// image lands. Without a mask the image is copied as it is.
#pragma once

#include <windows.h>

namespace zk {

// Draws `height` rows of the picture from row `sourceTop` on, at (x, y).
// The destination's text and background colours are black and white for
// the mask's way in, and are put back afterwards.
void MaskedBlit(HDC dc, int x, int y, int width, int height, HBITMAP image, HBITMAP mask, int sourceTop = 0);

} // namespace zk
