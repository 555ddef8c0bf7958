// SPropHeaderListBox: the block of cListView, stored under
// "ZK:HeaderListBox" (and inside the drop-down's block).
#pragma once

#include <cstdint>

#include "headerlist/core/headerlist_records.h"
#include "headerlist/core/image_list.h"

namespace zk::hdr {

inline constexpr uint32_t kBlockVersion = 2;
// A colour of the block that leaves the view's own in force.
inline constexpr uint32_t kViewColour = 0xFFFFFFFF;

class SPropHeaderListBox : public CObject {
    ZK_DECLARE_SERIAL(SPropHeaderListBox)

public:
    // One column "Item" (left, 100 pixels), one default icon in each list.
    SPropHeaderListBox();
    // Assignment resets the destination and copies the flag, every column
    // into a new object, every image into lists of the standard sizes, and
    // the seven plain values.
    SPropHeaderListBox(const SPropHeaderListBox &other) : SPropHeaderListBox() { *this = other; }
    SPropHeaderListBox &operator=(const SPropHeaderListBox &other);

    int32_t dropDown = 0; // 1 in a drop-down's list; not serialised
    CHdrLBColumnArray columns;
    CImageList largeImages;
    CImageList smallImages;
    uint32_t backColour = kViewColour;
    uint32_t textColour = kViewColour;
    uint32_t textBackColour = kViewColour;
    uint32_t style = 0; // low 16 bits of the window style
    int32_t maxItemLength = 32;
    int32_t sortColumn = 0;
    int32_t sortOrder = 0; // 0 ascending, 1 descending

    // Empties the columns and both image lists, the colours back to the
    // view's own, the other values 0. A load begins with it.
    void Reset();

    // Columns, u32 version 2, the three colours, style, maximum item
    // length, sort column, the two image lists, sort order. A reader takes
    // the colours and lists for any version but 0, the sort order from 2 on.
    void Serialize(CArchive &ar) override;
};

} // namespace zk::hdr
