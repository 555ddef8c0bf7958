// Which parts of a row a draw request paints, by action, state and style.
// A focus frame may come twice on one action (on the frame, then on the
// row): DrawFocusRect inverts, and the double inversion is part of the look.
#pragma once

#include <cstdint>

#include "outline/core/lbx.h"

namespace zk::lbx::paint {

// The platform's draw request values.
inline constexpr uint32_t kActionDrawEntire = 1;
inline constexpr uint32_t kActionSelect = 2;
inline constexpr uint32_t kActionFocus = 4;
inline constexpr uint32_t kStateSelected = 1;
inline constexpr uint32_t kStateFocus = 16;

struct PaintFlow {
    bool fillRow = false;          // the row takes the background first
    bool focusOnFrame = false;     // a focus-only action of a list without the two focus styles
    bool textAndPicture = false;   // text, then (items only) the picture
    bool lines = false;            // tree lines and box
    bool inactiveFrame = false;    // the owed inactive frame, paid now
    bool focusMarkFrame = false;   // the owed focus frame on a selected row
    bool focusMarkClear = false;   // the owed focus frame forgotten (row not selected)
    bool focusOnFrameLate = false; // focus action of a list with the focus styles, row focused
    bool focusOnRow = false;       // the row is focused and does not start at the left edge
    bool autoExtent = false;       // widen the horizontal extent to the painted text
};

// hasItem: the row's data is an item (else a foreign row); hasNode: the item
// is in a tree.
PaintFlow PlanPaint(uint32_t style, uint32_t action, uint32_t state, bool hasItem, bool hasNode, uint32_t itemFlags,
                    const LbxRect &row);

} // namespace zk::lbx::paint
