// Pixels: a 32-bit top-down DIB section with its own memory DC, and
// captures of windows into one.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <vector>

namespace zkt {

class Bitmap {
public:
    Bitmap() = default;
    // A width x height picture, all black, selected into a memory DC that
    // any GDI code may paint on.
    Bitmap(int width, int height);
    ~Bitmap();
    Bitmap(Bitmap &&other) noexcept;
    Bitmap &operator=(Bitmap &&other) noexcept;
    Bitmap(const Bitmap &) = delete;
    Bitmap &operator=(const Bitmap &) = delete;

    bool valid() const { return dc_ != nullptr; }
    HDC dc() const { return dc_; }
    int width() const { return width_; }
    int height() const { return height_; }

    // The colour at (x, y); CLR_INVALID outside the picture.
    COLORREF pixel(int x, int y) const;
    void fill(COLORREF color);
    // Pixels of `color` inside `area` (clipped to the picture).
    int count(COLORREF color, RECT area) const;
    int count(COLORREF color) const;

    // The bytes of a 24-bit BMP file of the picture (empty if it has none).
    std::vector<unsigned char> BmpBytes() const;
    // Writes a 24-bit BMP file; false if the file cannot be written.
    bool SaveBmp(const std::wstring &path) const;

private:
    void release();

    HDC dc_ = nullptr;
    HBITMAP bitmap_ = nullptr;
    HGDIOBJ previous_ = nullptr;
    std::uint32_t *bits_ = nullptr;
    int width_ = 0;
    int height_ = 0;
};

// The client area as the window paints it for PrintWindow(PW_CLIENTONLY),
// background erased. Right for a single control; under Wine 8 the children
// of the window are left out.
Bitmap CaptureClient(HWND window);

// What is on the screen: the window and its children are repainted first,
// then the window's DC is copied. The window must be visible and uncovered.
// `wholeWindow` takes the frame and title bar as well (GetWindowDC).
Bitmap CaptureScreen(HWND window, bool wholeWindow = false);

} // namespace zkt
