// Adding rows with a new item: the step the add and insert exports share
// with LB_ADDSTRING and LB_INSERTSTRING of adopted controls.
#pragma once

#include <windows.h>

#include <cstdint>

#include "outline/core/lbx.h"

namespace zk::lbx {

struct RowFields {
    uint32_t color = 0;
    uint32_t flags = 0;
    int32_t value = 0;
    PIC *normal = nullptr;
    PIC *selected = nullptr;
    HFONT font = nullptr;

    // The low 24 bits are the colour; the top 8 bits become item flags, so
    // a row can be added disabled or hidden in one call.
    static RowFields Colour(COLORREF colour) {
        RowFields f;
        f.color = colour & 0x00FFFFFFu;
        f.flags = colour & 0xFF000000u;
        return f;
    }
};

// Row -2 adds at the end (ZKM_LbxAddRow); any other row inserts there
// (ZKM_LbxInsertRow, -1 the end). The text is copied and normalised by the
// list's style. The new row's number, or the negative answer of the list
// (the item is freed then); -1 when the control is not adopted, has no
// parent, or memory runs out.
int32_t AddRow(HWND window, int32_t row, const wchar_t *text, const RowFields &fields);

} // namespace zk::lbx
