#include "capture.h"

#include <cstring>

namespace gallery {
namespace {

// A 32-bit top-down DIB section selected into a memory DC.
class Canvas {
public:
    Canvas(int width, int height) : width_(width), height_(height) {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof(info.bmiHeader);
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = -height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        info.bmiHeader.biCompression = BI_RGB;
        dc_ = CreateCompatibleDC(nullptr);
        bitmap_ = CreateDIBSection(dc_, &info, DIB_RGB_COLORS, &bits_, nullptr, 0);
        if (dc_ && bitmap_)
            old_ = SelectObject(dc_, bitmap_);
    }
    ~Canvas() {
        if (old_)
            SelectObject(dc_, old_);
        if (bitmap_)
            DeleteObject(bitmap_);
        if (dc_)
            DeleteDC(dc_);
    }
    Canvas(const Canvas &) = delete;
    Canvas &operator=(const Canvas &) = delete;

    bool Valid() const { return dc_ && bitmap_ && bits_ && old_; }
    HDC Dc() const { return dc_; }

    Picture Take() const {
        Picture picture;
        if (!Valid())
            return picture;
        GdiFlush();
        picture.width = width_;
        picture.height = height_;
        picture.pixels.resize(static_cast<size_t>(width_) * height_);
        std::memcpy(picture.pixels.data(), bits_, picture.pixels.size() * sizeof(uint32_t));
        return picture;
    }

private:
    int width_;
    int height_;
    HDC dc_ = nullptr;
    HBITMAP bitmap_ = nullptr;
    HGDIOBJ old_ = nullptr;
    void *bits_ = nullptr;
};

} // namespace

Picture CaptureTopLevel(HWND window, bool repaint) {
    RECT area{};
    if (!IsWindow(window) || !GetWindowRect(window, &area))
        return {};
    if (repaint)
        RedrawWindow(window, nullptr, nullptr,
                     RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
    else
        UpdateWindow(window);
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;
    if (width <= 0 || height <= 0)
        return {};
    Canvas canvas(width, height);
    if (!canvas.Valid())
        return {};
    HDC source = GetWindowDC(window);
    if (!source)
        return {};
    const BOOL copied = BitBlt(canvas.Dc(), 0, 0, width, height, source, 0, 0, SRCCOPY);
    ReleaseDC(window, source);
    return copied ? canvas.Take() : Picture{};
}

Picture CaptureControl(HWND control) {
    RECT client{};
    if (!IsWindow(control) || !GetClientRect(control, &client) || client.right <= 0 || client.bottom <= 0)
        return {};
    Canvas canvas(client.right, client.bottom);
    if (!canvas.Valid())
        return {};
    if (!PrintWindow(control, canvas.Dc(), PW_CLIENTONLY))
        return {};
    return canvas.Take();
}

} // namespace gallery
