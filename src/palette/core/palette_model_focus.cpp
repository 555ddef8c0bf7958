// The focus cell and its movement across the three zones.
#include "palette/core/palette_model.h"

namespace zk::pal {

Rect PaletteModel::FocusArea(int32_t zone, int32_t index) const {
    if (!layout_)
        return {};
    // The focus frame reaches one pixel around the cell, whose bevel paints
    // its right and bottom coordinates as well.
    const Rect cell = layout_->GetCellRect(zone, index, Counts());
    return {cell.left - 1, cell.top - 1, cell.right + 2, cell.bottom + 2};
}

int PaletteModel::SetFocusCell(int32_t index, int32_t zone, int update) {
    if (zone == -1)
        zone = focusZone_;
    if (zone < 0 || zone >= kZoneCount || index < 0 || index > LastIndex(zone))
        return 1;
    const bool created = Created();
    Rect before, after;
    if (created) {
        before = FocusArea(focusZone_, focusIndex_);
        after = FocusArea(zone, index);
    }
    focusZone_ = zone;
    focusIndex_ = index;
    if (created) {
        Invalidate(before);
        Invalidate(after);
        if (update == 1)
            Update();
        effects_->Notify(PALN_FocusChange);
    }
    return 1;
}

void PaletteModel::MoveFocus(int32_t delta) {
    int32_t zone = focusZone_, index = focusIndex_;
    const int32_t steps = delta < 0 ? -delta : delta;
    for (int32_t step = 0; step < steps; ++step) {
        if (delta > 0) {
            if (index < LastIndex(zone)) {
                ++index;
            } else if (zone + 1 < kZoneCount && LastIndex(zone + 1) >= 0) {
                ++zone;
                index = 0;
            } else {
                // No further zone to enter: the focus stops on the last cell.
                index = LastIndex(zone);
                break;
            }
        } else if (index > 0) {
            --index;
        } else if (zone <= kZoneMain) {
            index = 0;
            break;
        } else {
            // An empty zone before gives index -1, which SetFocusCell refuses.
            --zone;
            index = LastIndex(zone);
        }
    }
    SetFocusCell(index, zone, 1);
}

} // namespace zk::pal
