#include "menu/core/menu_layout.h"

#include <algorithm>

namespace zk::menu {

ItemSize MeasureItem(const ItemMetrics &m) {
    const int32_t textWidth = m.hasText ? m.textWidth : 0;
    const int32_t fontHeight = m.hasText ? m.fontHeight : 0;
    return {textWidth + m.checkWidth + m.pictureWidth + 4, std::max({m.checkWidth, m.pictureHeight, fontHeight})};
}

ItemLayout LayoutItem(const DrawMetrics &m) {
    ItemLayout out;
    const Rect &r = m.item;
    out.text = {r.left + m.pictureWidth + 2, r.top, r.right, r.bottom};
    const int32_t afterLeft = r.right - m.twoSpacesWidth - m.checkWidth - m.afterTabWidth;
    out.afterTab = {afterLeft, r.top, r.right, r.bottom};
    if (m.centrePicture) {
        out.pictureRows = std::min(m.pictureHeight, r.Height());
        out.picture = {r.left, r.top + std::max(0, (r.Height() - m.pictureHeight) / 2)};
    } else {
        out.pictureRows = m.pictureHeight;
        out.picture = {r.left, r.top};
    }
    out.check = {r.left, r.top + (r.Height() - m.checkHeight) / 2};
    return out;
}

} // namespace zk::menu
