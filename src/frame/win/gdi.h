// The platform's drawing objects, each undone by its owner: device contexts
// of a window (GetDC, BeginPaint) or of memory, objects selected into a
// context, and pens, brushes, fonts and bitmaps that are deleted with their
// owner. Nothing here is copied; moving hands the object over.
#pragma once

#include <windows.h>

#include <utility>

#include "frame/core/geometry.h"

namespace zk {

inline RECT ToRECT(const Rect &r) { return RECT{r.left, r.top, r.right, r.bottom}; }
inline Rect FromRECT(const RECT &r) { return Rect{r.left, r.top, r.right, r.bottom}; }

// A pen, brush, font, bitmap or region, deleted with its owner.
template <class Handle>
class GdiObject {
public:
    GdiObject() = default;
    explicit GdiObject(Handle handle) : handle_(handle) {}
    ~GdiObject() { Reset(); }
    GdiObject(GdiObject &&other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
    GdiObject &operator=(GdiObject &&other) noexcept {
        if (this != &other) {
            Reset();
            handle_ = std::exchange(other.handle_, nullptr);
        }
        return *this;
    }
    GdiObject(const GdiObject &) = delete;
    GdiObject &operator=(const GdiObject &) = delete;

    Handle get() const { return handle_; }
    operator Handle() const { return handle_; }
    explicit operator bool() const { return handle_ != nullptr; }
    // Gives the handle away; the owner no longer deletes it.
    Handle Release() { return std::exchange(handle_, nullptr); }
    void Reset(Handle handle = nullptr) {
        if (handle_)
            DeleteObject(handle_);
        handle_ = handle;
    }

private:
    Handle handle_ = nullptr;
};

using Pen = GdiObject<HPEN>;
using Brush = GdiObject<HBRUSH>;
using Font = GdiObject<HFONT>;
using Bitmap = GdiObject<HBITMAP>;
using Region = GdiObject<HRGN>;

inline Pen SolidPen(COLORREF colour, int width = 1) { return Pen(CreatePen(PS_SOLID, width, colour)); }
inline Brush SolidBrush(COLORREF colour) { return Brush(CreateSolidBrush(colour)); }

// An object selected into a context for the length of a scope; the one it
// replaced goes back at the end. A null object selects nothing.
class Selected {
public:
    Selected(HDC dc, HGDIOBJ object) : dc_(dc), previous_(dc && object ? SelectObject(dc, object) : nullptr) {}
    ~Selected() {
        if (previous_)
            SelectObject(dc_, previous_);
    }
    Selected(const Selected &) = delete;
    Selected &operator=(const Selected &) = delete;

private:
    HDC dc_;
    HGDIOBJ previous_;
};

// The context's whole state (colours, modes, selections) saved for a scope.
class SavedDC {
public:
    explicit SavedDC(HDC dc) : dc_(dc), saved_(dc ? SaveDC(dc) : 0) {}
    ~SavedDC() {
        if (saved_)
            RestoreDC(dc_, saved_);
    }
    SavedDC(const SavedDC &) = delete;
    SavedDC &operator=(const SavedDC &) = delete;

private:
    HDC dc_;
    int saved_;
};

// A client-area context of a window (GetDC), released with its owner.
class ClientDC {
public:
    explicit ClientDC(HWND window) : window_(window), dc_(window ? GetDC(window) : nullptr) {}
    ~ClientDC() {
        if (dc_)
            ReleaseDC(window_, dc_);
    }
    ClientDC(const ClientDC &) = delete;
    ClientDC &operator=(const ClientDC &) = delete;
    HDC get() const { return dc_; }
    operator HDC() const { return dc_; }
    explicit operator bool() const { return dc_ != nullptr; }

private:
    HWND window_;
    HDC dc_;
};

// The context of WM_PAINT (BeginPaint), ended with its owner.
class PaintDC {
public:
    explicit PaintDC(HWND window) : window_(window), dc_(BeginPaint(window, &paint_)) {}
    ~PaintDC() {
        if (dc_)
            EndPaint(window_, &paint_);
    }
    PaintDC(const PaintDC &) = delete;
    PaintDC &operator=(const PaintDC &) = delete;
    HDC get() const { return dc_; }
    operator HDC() const { return dc_; }
    explicit operator bool() const { return dc_ != nullptr; }
    const PAINTSTRUCT &Info() const { return paint_; }

private:
    HWND window_;
    PAINTSTRUCT paint_{};
    HDC dc_;
};

// A memory context compatible with another (or with the screen), deleted
// with its owner.
class MemoryDC {
public:
    explicit MemoryDC(HDC like) : dc_(CreateCompatibleDC(like)) {}
    ~MemoryDC() {
        if (dc_)
            DeleteDC(dc_);
    }
    MemoryDC(const MemoryDC &) = delete;
    MemoryDC &operator=(const MemoryDC &) = delete;
    HDC get() const { return dc_; }
    operator HDC() const { return dc_; }
    explicit operator bool() const { return dc_ != nullptr; }

private:
    HDC dc_;
};

// A box of the context's clip area as a rectangle.
inline Rect ClipBox(HDC dc) {
    RECT box{};
    GetClipBox(dc, &box);
    return FromRECT(box);
}

} // namespace zk
