#include "frame/win/masked_blit.h"

#include <cstdint>

#include "frame/win/dib32.h"

namespace zk {
namespace {

// A 32-bit DIB section in a memory DC of its own, grown to fit.
//
// The pictures this draws are bitmaps made for the screen; selecting one
// into a DC costs the platform far more than copying its bits out (under
// Wine a fresh selection of such a bitmap takes hundreds of microseconds,
// GetDIBits two), so the bits are copied into scratch DCs that stay made.
class Scratch {
public:
    ~Scratch() { Release(); }

    // The DC holding `bitmap`'s bits from its top row on; null on failure.
    // The bits of the bitmap loaded last are kept: a picture is drawn again
    // and again (every item of a menu, every row of a list) and does not
    // change while it lives.
    HDC Load(HDC like, HBITMAP bitmap, int width, int height) {
        if (dc_ && bitmap == loaded_ && width == width_ && height <= loadedRows_)
            return dc_;
        loaded_ = nullptr;
        if (!Fit(like, width, height))
            return nullptr;
        BITMAPINFO info = Dib32Info(width, height);
        GdiFlush();
        if (GetDIBits(dc_, bitmap, 0, static_cast<UINT>(height), bits_, &info, DIB_RGB_COLORS) != height)
            return nullptr;
        loaded_ = bitmap;
        loadedRows_ = height;
        return dc_;
    }

    void Release() {
        if (dc_) {
            SelectObject(dc_, old_);
            DeleteDC(dc_);
        }
        if (bitmap_)
            DeleteObject(bitmap_);
        dc_ = nullptr;
        bitmap_ = nullptr;
        bits_ = nullptr;
        width_ = height_ = 0;
        loaded_ = nullptr;
    }

private:
    // The section is exactly the picture's width (GetDIBits fills rows of
    // the section's stride) and at least its height.
    bool Fit(HDC like, int width, int height) {
        if (dc_ && width == width_ && height <= height_)
            return true;
        Release();
        dc_ = CreateCompatibleDC(like);
        bitmap_ = dc_ ? CreateDib32(dc_, width, height, &bits_) : nullptr;
        if (!bitmap_) {
            Release();
            return false;
        }
        old_ = SelectObject(dc_, bitmap_);
        width_ = width;
        height_ = height;
        return true;
    }

    HDC dc_ = nullptr;
    HBITMAP bitmap_ = nullptr;
    HGDIOBJ old_ = nullptr;
    void *bits_ = nullptr;
    int width_ = 0, height_ = 0;
    HBITMAP loaded_ = nullptr;
    int loadedRows_ = 0;
};

Scratch imageScratch, maskScratch;

} // namespace

void MaskedBlit(HDC dc, int x, int y, int width, int height, HBITMAP image, HBITMAP mask, int sourceTop) {
    if (!image || width <= 0 || height <= 0)
        return;
    const int rows = sourceTop + height;
    HDC imageDc = imageScratch.Load(dc, image, width, rows);
    if (!imageDc)
        return;
    if (!mask) {
        BitBlt(dc, x, y, width, height, imageDc, 0, sourceTop, SRCCOPY);
        return;
    }
    // The mask's set bits come out white, its clear bits black.
    HDC maskDc = maskScratch.Load(dc, mask, width, rows);
    if (!maskDc)
        return;
    BitBlt(dc, x, y, width, height, imageDc, 0, sourceTop, SRCINVERT);
    BitBlt(dc, x, y, width, height, maskDc, 0, sourceTop, SRCAND);
    BitBlt(dc, x, y, width, height, imageDc, 0, sourceTop, SRCINVERT);
}

void MaskedBlitRelease() {
    imageScratch.Release();
    maskScratch.Release();
}

} // namespace zk
