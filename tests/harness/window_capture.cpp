#include "zkt_bitmap.h"

namespace zkt {

Bitmap CaptureClient(HWND window) {
    RECT client{};
    if (!IsWindow(window) || !GetClientRect(window, &client)) {
        return Bitmap();
    }
    Bitmap picture(client.right, client.bottom);
    if (picture.valid()) {
        PrintWindow(window, picture.dc(), PW_CLIENTONLY);
    }
    return picture;
}

Bitmap CaptureScreen(HWND window, bool wholeWindow) {
    if (!IsWindow(window)) {
        return Bitmap();
    }
    // Painted afresh, frame and children included, so that the screen holds
    // what the window paints now and nothing older.
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
    RECT area{};
    if (wholeWindow) {
        GetWindowRect(window, &area);
        OffsetRect(&area, -area.left, -area.top);
    } else {
        GetClientRect(window, &area);
    }
    Bitmap picture(area.right, area.bottom);
    if (!picture.valid()) {
        return picture;
    }
    HDC source = wholeWindow ? GetWindowDC(window) : GetDC(window);
    if (source) {
        BitBlt(picture.dc(), 0, 0, area.right, area.bottom, source, 0, 0, SRCCOPY);
        ReleaseDC(window, source);
    }
    return picture;
}

} // namespace zkt
