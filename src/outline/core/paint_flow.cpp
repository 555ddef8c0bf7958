#include "outline/core/paint_flow.h"

namespace zk::lbx::paint {

PaintFlow PlanPaint(uint32_t style, uint32_t action, uint32_t state, bool hasItem, bool hasNode, uint32_t itemFlags,
                    const LbxRect &row) {
    PaintFlow f;
    const bool focusStyles = (style & (LBX_StyleDropSelection | LBX_StyleShowInactive)) != 0;
    const bool focusAction = (action & kActionFocus) != 0;
    f.fillRow = (action & kActionDrawEntire) || ((style & LBX_StyleNoHighlight) && (action & kActionSelect));
    // A focus action skips text and picture unless the list shows its
    // selection while inactive; without either focus style it only frames.
    f.focusOnFrame = focusAction && !focusStyles;
    f.textAndPicture = !focusAction || (style & LBX_StyleShowInactive);
    if (hasItem) {
        f.lines = !focusAction && hasNode && !(style & LBX_StyleNoLines);
        f.inactiveFrame = (itemFlags & LBX_ItemInactive) != 0;
        if (itemFlags & LBX_ItemFocusMark) {
            f.focusMarkFrame = (state & kStateSelected) != 0;
            f.focusMarkClear = !f.focusMarkFrame;
        }
    }
    f.focusOnFrameLate = focusStyles && focusAction && (state & kStateFocus);
    f.focusOnRow = row.left > 0 && (state & kStateFocus);
    f.autoExtent = (action & kActionDrawEntire) && (style & LBX_StyleAutoExtent);
    return f;
}

} // namespace zk::lbx::paint
