#include "frame/win/paint_buffer.h"

namespace zk {

HDC PaintBuffer::Context(HWND window, int width, int height) {
    if (width <= 0 || height <= 0)
        return nullptr;
    if (bitmap_ && width_ == width && height_ == height)
        return dc_;
    Free();
    ClientDC screen(window);
    if (!screen)
        return nullptr;
    dc_ = CreateCompatibleDC(screen);
    if (dc_)
        bitmap_.Reset(CreateCompatibleBitmap(screen, width, height));
    if (!bitmap_) {
        Free();
        return nullptr;
    }
    previous_ = SelectObject(dc_, bitmap_);
    width_ = width;
    height_ = height;
    return dc_;
}

void PaintBuffer::Free() {
    if (previous_)
        SelectObject(dc_, previous_);
    bitmap_.Reset();
    if (dc_)
        DeleteDC(dc_);
    dc_ = nullptr;
    previous_ = nullptr;
    width_ = height_ = 0;
}

void PaintBuffer::Paint(HWND window, HDC dc, const Rect &client, const Rect &area,
                        const std::function<void(HDC, const Rect &)> &paint) {
    const Rect clip = area.Intersect(client);
    HDC off = clip.Empty() || !dc ? nullptr : Context(window, client.Width(), client.Height());
    if (!off)
        return;
    paint(off, clip);
    BitBlt(dc, clip.left, clip.top, clip.Width(), clip.Height(), off, clip.left, clip.top, SRCCOPY);
}

void PaintBuffer::PaintMessage(HWND window, const Rect &client, const std::function<void(HDC, const Rect &)> &paint) {
    PaintDC dc(window);
    if (dc)
        Paint(window, dc, client, ClipBox(dc), paint);
}

} // namespace zk
