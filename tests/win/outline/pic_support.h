// Pictures for the tests: image bytes made here, files of them, and the
// picture record behind a handle.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <vector>

#include "image_bytes.h"
#include "outline/win/pic.h"
#include "zklib.h"

using namespace zk::lbx;

namespace pictest {

using Bytes = std::vector<uint8_t>;

// A bottom-up 24-bit BMP file of w x h pixels; colour(x, y) gives each pixel.
template <class Colour>
Bytes Bmp24(int w, int h, Colour colour) {
    Bytes b = zkt::MakeBmp(w, h, 24);
    const size_t stride = static_cast<size_t>((w * 3 + 3) & ~3);
    for (int y = 0; y < h; ++y) {
        for (int x = 0; x < w; ++x) {
            const COLORREF c = colour(x, y);
            uint8_t *p = &b[54 + static_cast<size_t>(h - 1 - y) * stride + static_cast<size_t>(x) * 3];
            p[0] = GetBValue(c);
            p[1] = GetGValue(c);
            p[2] = GetRValue(c);
        }
    }
    return b;
}

// An icon file with one w x w 32-bit image of one colour, opaque.
inline Bytes Ico32(int w, COLORREF colour) {
    Bytes b = zkt::MakeIco(w, w, 32);
    for (size_t i = 0; i < static_cast<size_t>(w * w); ++i) {
        uint8_t *p = &b[62 + i * 4];
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
