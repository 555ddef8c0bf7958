// The rule every control of the library paints by: off screen, into a
// bitmap of the client size, then one BitBlt of the clip box. The buffer
// keeps its context and bitmap from one paint to the next and makes them
// again when the client size changes.
#pragma once

#include <windows.h>

#include <functional>

#include "frame/core/geometry.h"
#include "frame/win/gdi.h"

namespace zk {

class PaintBuffer {
public:
    PaintBuffer() = default;
    ~PaintBuffer() { Free(); }
    PaintBuffer(const PaintBuffer &) = delete;
    PaintBuffer &operator=(const PaintBuffer &) = delete;

    // Paints `area` (clipped to the client) with `paint` into the buffer,
    // which holds a bitmap of the client's size, and copies that area to dc
    // in one block. Nothing is painted when the area is empty or no buffer
    // can be had. `paint` gets the buffer's context and the area.
    void Paint(HWND window, HDC dc, const Rect &client, const Rect &area,
               const std::function<void(HDC, const Rect &)> &paint);
    // WM_PAINT: the clip box of BeginPaint.
    void PaintMessage(HWND window, const Rect &client, const std::function<void(HDC, const Rect &)> &paint);
    // Drops the context and bitmap (WM_DESTROY).
    void Free();

private:
    // The buffer's context for a client of the given size; made like the
    // window's own context whatever context a print hands in, since a
    // memory context may hold a one-bit bitmap.
    HDC Context(HWND window, int width, int height);

    HDC dc_ = nullptr;
    Bitmap bitmap_;
    HGDIOBJ previous_ = nullptr;
    int width_ = 0, height_ = 0;
};

} // namespace zk
