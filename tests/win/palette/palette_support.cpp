#include "palette_support.h"

namespace paltest {

zk::pal::Hit FormPalette::Focus() const {
    int32_t zone = -9, index = -9;
    ZelPalFocusGet(control(), &zone, &index);
    return {zone, index};
}

zk::Rect FormPalette::Cell(int zone, int index) const {
    return layout().GetCellRect(zone, index, object_->Model().Counts());
}

void FormPalette::Mouse(UINT message, int x, int y) const {
    SendMessageW(hwnd(), message, message == WM_MOUSEMOVE ? MK_LBUTTON : 0, zkt::ClientPoint(x, y));
}

void FormPalette::MouseAt(UINT message, int zone, int index) const {
    const zk::Rect r = Cell(zone, index);
    Mouse(message, (r.left + r.right) / 2, (r.top + r.bottom) / 2);
}

} // namespace paltest
