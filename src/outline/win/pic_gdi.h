// GDI steps shared by the picture loaders: the transparency mask, scaling
// to a target size, the size of an icon.
#pragma once

#include <windows.h>

#include "outline/win/pic.h"

namespace zk::lbx {

// A monochrome bitmap of the bitmap's size: set where a pixel has the
// colour of the pixel at 0, 0 (which thus paints transparent). Null on failure.
HBITMAP PicMakeMask(HBITMAP bitmap, int width, int height);

// Copies a bitmap or icon to the target size, deleting the original on
// success. Null on failure, the original then kept.
HBITMAP PicScaleBitmap(HBITMAP bitmap, int width, int height);
HICON PicScaleIcon(HICON icon, int width, int height);

// Natural size of a bitmap; false if it is none.
bool PicBitmapSize(HBITMAP bitmap, int &width, int &height);

// GetIconInfo of an icon with both its bitmaps deleted again. False if it is none.
bool PicIconInfo(HICON icon, ICONINFO &info, BITMAP &maskBits);

// String 51: no format bit for a load that needs one. The trace names the
// source in the place of a function.
inline constexpr UINT kPicNoFormatString = 51;
void PicReportNoFormat(const std::wstring &source);

} // namespace zk::lbx
