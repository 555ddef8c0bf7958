// 32-bit top-down DIB sections: rows of 0x00RRGGBB pixels in memory the
// caller can read and write directly.
#pragma once

#include <windows.h>

namespace zk {

inline BITMAPINFO Dib32Info(int width, int height) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    return info;
}

// A section of width x height, its pixels in *bits; null on failure.
inline HBITMAP CreateDib32(HDC dc, int width, int height, void **bits) {
    const BITMAPINFO info = Dib32Info(width, height);
    *bits = nullptr;
    HBITMAP section = CreateDIBSection(dc, &info, DIB_RGB_COLORS, bits, nullptr, 0);
    if (section && !*bits) {
        DeleteObject(section);
        return nullptr;
    }
    return section;
}

} // namespace zk
