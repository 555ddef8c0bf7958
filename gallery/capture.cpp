#include "capture.h"

#include <cstring>

#include "frame/win/dib32.h"
#include "frame/win/gdi.h"

namespace gallery {
namespace {

// A 32-bit top-down DIB section selected into a memory DC.
class Canvas {
public:
    Canvas(int width, int height)
        : width_(width), height_(height), bitmap_(zk::CreateDib32(dc_, width, height, &bits_)),
          selected_(dc_, bitmap_) {}

    bool Valid() const { return dc_ && bitmap_ && bits_; }
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
    zk::MemoryDC dc_{nullptr};
    void *bits_ = nullptr;
    zk::Bitmap bitmap_;
    zk::Selected selected_;
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
