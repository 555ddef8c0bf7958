#include "frame/win/masked_blit.h"

#include "frame/win/gdi.h"

namespace zk {

void MaskedBlit(HDC dc, int x, int y, int width, int height, HBITMAP image, HBITMAP mask, int sourceTop) {
    MemoryDC imageDc(dc);
    if (!imageDc || !image)
        return;
    Selected imageIn(imageDc, image);
    if (!mask) {
        BitBlt(dc, x, y, width, height, imageDc, 0, sourceTop, SRCCOPY);
        return;
    }
    MemoryDC maskDc(dc);
    if (!maskDc)
        return;
    Selected maskIn(maskDc, mask);
    const COLORREF oldBack = SetBkColor(dc, RGB(255, 255, 255));
    const COLORREF oldText = SetTextColor(dc, RGB(0, 0, 0));
    BitBlt(dc, x, y, width, height, imageDc, 0, sourceTop, SRCINVERT);
    BitBlt(dc, x, y, width, height, maskDc, 0, sourceTop, SRCAND);
    BitBlt(dc, x, y, width, height, imageDc, 0, sourceTop, SRCINVERT);
    SetTextColor(dc, oldText);
    SetBkColor(dc, oldBack);
}

} // namespace zk
