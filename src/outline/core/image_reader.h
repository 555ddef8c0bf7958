// Headers of BMP and ICO images held in memory. Every field that decides
// where bytes are read is checked against the size of the buffer given, so
// an image that passes can be handed to the platform without it reading
// past the buffer; a short or lying header is refused.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

namespace zk::lbx::image {

// Largest width or height taken from a header: the platform's coordinate range.
inline constexpr int32_t kMaxSide = 0x7FFF;

// A BMP file: "BM", the 14-byte file header, a 40-byte info header, no
// compression, the colour table and the pixel rows inside the buffer.
struct Bmp {
    int32_t width = 0;
    int32_t height = 0; // rows, positive also for a top-down image
    bool topDown = false;
    uint16_t bitCount = 0;
    uint32_t colours = 0;  // entries of the colour table
    size_t infoOffset = 0; // the info header (and colour table after it)
    size_t bitsOffset = 0; // the pixel rows
    size_t bitsBytes = 0;
};
std::optional<Bmp> ReadBmp(const uint8_t *data, size_t size);

// The first image of an icon file: directory type 1, the entry's bytes
// inside the buffer, an info header of a DIB icon (double height: colour
// rows then mask rows) whose parts fit the entry.
struct IcoImage {
    size_t offset = 0; // the image's bytes: info header onward
    size_t bytes = 0;
    int32_t width = 0;
    int32_t height = 0; // half the header's height: the icon's own
    uint16_t bitCount = 0;
};
std::optional<IcoImage> ReadIcoFirstImage(const uint8_t *data, size_t size);

// Bytes a BMP or an icon file claims for itself judging by its headers
// alone, 0 if the headers cannot be read from the `size` bytes given. A
// reader of memory whose length is unknown bounds its buffer by this.
size_t BmpClaimedSize(const uint8_t *data, size_t size);
size_t IcoClaimedSize(const uint8_t *data, size_t size);

// Bytes of one row of pixels: whole 32-bit words. 0 when out of range.
uint64_t RowBytes(int64_t width, int64_t bitCount);

} // namespace zk::lbx::image
