// Pictures of windows as plain pixels, and their file form.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace gallery {

// Top-down rows of 0x00RRGGBB pixels (a 32-bit DIB's layout).
struct Picture {
    int width = 0;
    int height = 0;
    std::vector<uint32_t> pixels;

    bool Empty() const { return width <= 0 || height <= 0 || pixels.empty(); }
    // True when every pixel has the same colour: nothing was drawn.
    bool Uniform() const;
};

// Writes a 24-bit bottom-up BMP (no alpha, so converters keep it opaque).
bool WriteBmp24(const std::wstring &path, const Picture &picture);

} // namespace gallery
