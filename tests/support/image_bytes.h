// BMP and ICO files as bytes: the headers of an image of any size and depth,
// the pixels left zero for the caller, and the little-endian stores a test
// uses to make a header lie.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace zkt {

using Bytes = std::vector<uint8_t>;

inline void Put16(Bytes &b, size_t at, uint32_t v) {
    b[at] = static_cast<uint8_t>(v);
    b[at + 1] = static_cast<uint8_t>(v >> 8);
}
inline void Put32(Bytes &b, size_t at, uint32_t v) {
    Put16(b, at, v & 0xFFFF);
    Put16(b, at + 2, v >> 16);
}

// A BITMAPINFOHEADER at `at`; `used` is its count of colours.
inline void PutInfo(Bytes &b, size_t at, int32_t w, int32_t h, uint16_t bits, uint32_t used = 0) {
    Put32(b, at, 40);
    Put32(b, at + 4, static_cast<uint32_t>(w));
    Put32(b, at + 8, static_cast<uint32_t>(h));
    Put16(b, at + 12, 1);
    Put16(b, at + 14, bits);
    Put32(b, at + 32, used);
}

// A BMP file, bottom-up unless h is negative; the pixels start after the
// colour table (at 54 for depths above 8).
inline Bytes MakeBmp(int32_t w, int32_t h, uint16_t bits, uint32_t used = 0) {
    const uint32_t colours = bits <= 8 ? (used ? used : 1u << bits) : used;
    const uint32_t stride = ((w * bits + 31) / 32) * 4;
    const uint32_t offset = 54 + colours * 4;
    const uint32_t size = offset + stride * static_cast<uint32_t>(h < 0 ? -h : h);
    Bytes b(size, 0);
    b[0] = 'B';
    b[1] = 'M';
    Put32(b, 2, size);
    Put32(b, 10, offset);
    PutInfo(b, 14, w, h, bits, used);
    return b;
}

// An ICO file of `count` directory entries, only the first filled; its image
// (header, colours, pixels, then the mask) follows the directory.
inline Bytes MakeIco(int32_t w, int32_t h, uint16_t bits, uint16_t count = 1) {
    const uint32_t colours = bits <= 8 ? 1u << bits : 0;
    const uint32_t image = 40 + colours * 4 + ((w * bits + 31) / 32) * 4 * h + ((w + 31) / 32) * 4 * h;
    const uint32_t offset = 6 + 16u * count;
    Bytes b(offset + image, 0);
    Put16(b, 2, 1);
    Put16(b, 4, count);
    b[6] = static_cast<uint8_t>(w);
    b[7] = static_cast<uint8_t>(h);
    Put16(b, 10, 1);
    Put16(b, 12, bits);
    Put32(b, 14, image);
    Put32(b, 18, offset);
    PutInfo(b, offset, w, 2 * h, bits);
    return b;
}

} // namespace zkt
