// The sums of an owner-drawn menu item: its measured size and where its
// picture, text, text after the tab and check mark go.
#pragma once

#include <cstdint>

#include "frame/core/geometry.h"

namespace zk::menu {

struct ItemMetrics {
    bool hasText = false;
    int32_t textWidth = 0;     // extent of the whole text in the item's font
    int32_t fontHeight = 0;    // height of that font
    int32_t checkWidth = 0;    // the check-mark width, which serves as a height too
    int32_t pictureWidth = 0;  // the wider of the two pictures
    int32_t pictureHeight = 0; // the taller of the two
};

// Width: text + check mark + picture + 4; height: the largest of the check
// width, the picture height and the font height.
struct ItemSize {
    int32_t width = 0;
    int32_t height = 0;
};
ItemSize MeasureItem(const ItemMetrics &metrics);

struct DrawMetrics {
    Rect item;
    int32_t pictureWidth = 0;
    int32_t pictureHeight = 0;
    bool centrePicture = false; // bitmaps sit centred in height, icons at the top
    int32_t afterTabWidth = 0;  // extent of the text after the tab
    int32_t twoSpacesWidth = 0;
    int32_t checkWidth = 0;
    int32_t checkHeight = 0; // the check-mark bitmap's height
};

struct ItemLayout {
    Rect text;           // the text (before any tab)
    Rect afterTab;       // the text after the tab, right-aligned by its left edge
    Point picture;       // top-left of the picture
    int32_t pictureRows; // rows of a bitmap drawn
    Point check;         // top-left of the check mark
};
ItemLayout LayoutItem(const DrawMetrics &metrics);

} // namespace zk::menu
