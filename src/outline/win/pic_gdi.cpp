#include "outline/win/pic_gdi.h"

#include "frame/win/host.h"

namespace zk::lbx {

HBITMAP PicMakeMask(HBITMAP bitmap, int width, int height) {
    HBITMAP mask = CreateBitmap(width, height, 1, 1, nullptr);
    HDC screen = GetDC(nullptr);
    HDC from = screen ? CreateCompatibleDC(screen) : nullptr;
    HDC to = screen ? CreateCompatibleDC(screen) : nullptr;
    bool ok = false;
    if (mask && from && to) {
        HGDIOBJ oldFrom = SelectObject(from, bitmap);
        HGDIOBJ oldTo = SelectObject(to, mask);
        // Colour to monochrome: pixels of the source's background colour
        // become 1, all others 0.
        SetBkColor(from, GetPixel(from, 0, 0));
        ok = BitBlt(to, 0, 0, width, height, from, 0, 0, SRCCOPY) != 0;
        SelectObject(to, oldTo);
        SelectObject(from, oldFrom);
    }
    if (to)
        DeleteDC(to);
    if (from)
        DeleteDC(from);
    if (screen)
        ReleaseDC(nullptr, screen);
    if (!ok && mask) {
        DeleteObject(mask);
        mask = nullptr;
    }
    return mask;
}

HBITMAP PicScaleBitmap(HBITMAP bitmap, int width, int height) {
    return static_cast<HBITMAP>(CopyImage(bitmap, IMAGE_BITMAP, width, height, LR_COPYDELETEORG));
}

HICON PicScaleIcon(HICON icon, int width, int height) {
    return static_cast<HICON>(CopyImage(icon, IMAGE_ICON, width, height, LR_COPYDELETEORG));
}

bool PicBitmapSize(HBITMAP bitmap, int &width, int &height) {
    BITMAP bits{};
    if (!bitmap || GetObjectW(bitmap, sizeof(bits), &bits) != sizeof(bits))
        return false;
    width = bits.bmWidth;
    height = bits.bmHeight;
    return true;
}

bool PicIconInfo(HICON icon, ICONINFO &info, BITMAP &maskBits) {
    info = {};
    maskBits = {};
    if (!icon || !GetIconInfo(icon, &info))
        return false;
    const bool ok = info.hbmMask && GetObjectW(info.hbmMask, sizeof(maskBits), &maskBits) == sizeof(maskBits);
    if (info.hbmMask)
        DeleteObject(info.hbmMask);
    if (info.hbmColor)
        DeleteObject(info.hbmColor);
    info.hbmMask = info.hbmColor = nullptr;
    return ok;
}

void PicReportNoFormat(const std::wstring &source) { ZelReportError(kPicNoFormatString, source.c_str()); }

} // namespace zk::lbx
