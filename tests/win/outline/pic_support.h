// Pictures for the tests: image bytes made here, files of them, and the
// picture record behind a handle.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <vector>

#include "outline/win/pic.h"
#include "zklib.h"

using namespace zk::lbx;

namespace pictest {

using Bytes = std::vector<uint8_t>;

// A bottom-up 24-bit BMP file of w x h pixels; colour(x, y) gives each pixel.
template <class Colour>
Bytes Bmp24(int w, int h, Colour colour) {
    const int stride = (w * 3 + 3) & ~3;
    Bytes b(54 + stride * h, 0);
    auto put32 = [&](size_t at, uint32_t v) {
        for (int i = 0; i < 4; ++i)
            b[at + i] = static_cast<uint8_t>(v >> (8 * i));
    };
    b[0] = 'B';
    b[1] = 'M';
    put32(2, static_cast<uint32_t>(b.size()));
    put32(10, 54);
    put32(14, 40);
    put32(18, static_cast<uint32_t>(w));
    put32(22, static_cast<uint32_t>(h));
    b[26] = 1;
    b[28] = 24;
    for (int y = 0; y < h; ++y) {
        for (int x = 0; x < w; ++x) {
            const COLORREF c = colour(x, y);
            uint8_t *p = &b[54 + static_cast<size_t>(h - 1 - y) * stride + x * 3];
            p[0] = GetBValue(c);
            p[1] = GetGValue(c);
            p[2] = GetRValue(c);
        }
    }
    return b;
}

// An icon file with one w x w 32-bit image of one colour, opaque.
inline Bytes Ico32(int w, COLORREF colour) {
    const uint32_t maskStride = ((w + 31) / 32) * 4;
    const uint32_t image = 40 + w * w * 4 + maskStride * w;
    Bytes b(22 + image, 0);
    auto put16 = [&](size_t at, uint32_t v) {
        b[at] = static_cast<uint8_t>(v);
        b[at + 1] = static_cast<uint8_t>(v >> 8);
    };
    auto put32 = [&](size_t at, uint32_t v) {
        put16(at, v & 0xFFFF);
        put16(at + 2, v >> 16);
    };
    put16(2, 1);
    put16(4, 1);
    b[6] = static_cast<uint8_t>(w);
    b[7] = static_cast<uint8_t>(w);
    put16(10, 1);
    put16(12, 32);
    put32(14, image);
    put32(18, 22);
    put32(22, 40);
    put32(26, static_cast<uint32_t>(w));
    put32(30, static_cast<uint32_t>(2 * w));
    put16(34, 1);
    put16(36, 32);
    for (int i = 0; i < w * w; ++i) {
        uint8_t *p = &b[62 + static_cast<size_t>(i) * 4];
        p[0] = GetBValue(colour);
        p[1] = GetGValue(colour);
        p[2] = GetRValue(colour);
        p[3] = 255;
    }
    return b;
}

// A file in the temporary folder holding the bytes; removed with the object.
class TempFile {
public:
    TempFile(const std::wstring &name, const Bytes &bytes);
    ~TempFile();
    const std::wstring &path() const { return path_; }

private:
    std::wstring path_;
};

inline PIC *Pic(ZelPicHandle handle) { return reinterpret_cast<PIC *>(handle); }

// The colour of a bitmap's pixel.
COLORREF BitmapPixel(HBITMAP bitmap, int x, int y);

} // namespace pictest
