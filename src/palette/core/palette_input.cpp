// Keys and the drag. A press in a zone starts a drag that follows the
// pointer while it stays in the frame; releasing with the pointer in the
// frame selects the focus cell, and on a menu line chooses the entry. The
// capture is held only outside drop-down mode: a pop-up is closed by a
// press beside it instead.
#include "palette/core/palette_input.h"

namespace zk::pal {

void Input::ChooseEntry() {
    if (model_.FocusZone() != kZoneMenu)
        return;
    if (const SPaletteMenu *entry = model_.GetMenuEntry(model_.FocusIndex()))
        fx_.PostToSelf(ZKM_PaletteCommand, view_.Handle(), entry->id);
}

bool Input::KeyDown(uint32_t key) {
    const int32_t zone = model_.FocusZone();
    switch (key) {
    case kKeyReturn:
    case kKeySpace:
        ChooseEntry();
        return true;
    case kKeyEscape:
        if (model_.DropDown()) {
            LButtonUp(0, 0);
            fx_.Notify(PALN_CloseUp);
        }
        return true;
    case kKeyLeft:
        model_.MoveFocus(-1);
        return true;
    case kKeyRight:
        model_.MoveFocus(1);
        return true;
    case kKeyUp:
        model_.MoveFocus(-layout_.RowStep(zone));
        return true;
    case kKeyDown:
        model_.MoveFocus(layout_.RowStep(zone));
        return true;
    default:
        return false;
    }
}

bool Input::SysKeyDown(uint32_t key) {
    if (key != kKeyUp || !model_.DropDown())
        return false;
    fx_.Notify(PALN_CloseUp);
    return true;
}

void Input::LButtonDown(int32_t x, int32_t y) {
    if (model_.DropDown() && !layout_.Client().Contains(x, y)) {
        // A press beside the pop-up asks to close it; the press still counts.
        fx_.DropCapture();
        fx_.Notify(PALN_CloseUp);
    }
    if (!fx_.HasFocus())
        fx_.TakeFocus();
    const uint16_t zoneBits[] = {PALF_DragMain, PALF_DragMenu, PALF_DragRecent};
    int32_t zone = -1;
    for (int32_t z = kZoneMain; z < kZoneCount && zone == -1; ++z)
        if (layout_.ZoneRect(z).Contains(x, y))
            zone = z;
    if (zone == -1)
        return;
    state_ = static_cast<uint16_t>((state_ & ~kDragFlags) | zoneBits[zone]);
    const Hit hit = layout_.HitTest(x, y, model_.Counts());
    if (hit.index != -1)
        model_.SetFocusCell(hit.index, hit.zone, 1);
    fx_.Invalidate(layout_.ZoneRect(zone), false);
    fx_.Update();
    if (!model_.DropDown())
        fx_.TakeCapture();
}

void Input::MouseMove(int32_t x, int32_t y) {
    if (!(state_ & kDragFlags))
        return;
    if (!layout_.Frame().Contains(x, y)) {
        state_ |= PALF_Outside;
        return;
    }
    const Hit hit = layout_.HitTest(x, y, model_.Counts());
    model_.SetFocusCell(hit.index, hit.zone, 1);
    state_ &= static_cast<uint16_t>(~PALF_Outside);
}

void Input::LButtonUp(int32_t, int32_t) {
    if (!model_.DropDown())
        fx_.DropCapture();
    if ((state_ & kDragFlags) && !(state_ & PALF_Outside)) {
        fx_.PostToSelf(kHostMsgSelect, static_cast<uintptr_t>(model_.FocusZone()), model_.FocusIndex());
        if (model_.FocusZone() == kZoneMenu) {
            ChooseEntry();
            state_ &= static_cast<uint16_t>(~kDragFlags);
            return;
        }
        if (model_.DropDown())
            fx_.Notify(PALN_CloseUp);
    }
    state_ &= static_cast<uint16_t>(~(PALF_Outside | kDragFlags));
}

void Input::LButtonDblClk(int32_t x, int32_t y) {
    if (layout_.Frame().Contains(x, y))
        fx_.PostToSelf(kHostMsgDoubleClick, static_cast<uintptr_t>(model_.FocusZone()), model_.FocusIndex());
}

void Input::CancelMode() {
    state_ &= static_cast<uint16_t>(~kDragFlags);
    fx_.DropCapture();
}

void Input::FocusGained() { model_.SetFocusCell(model_.FocusIndex(), model_.FocusZone(), 1); }

void Input::FocusLost() {
    if (model_.DropDown()) {
        fx_.DropCapture();
        fx_.Hide();
        fx_.Notify(PALN_CloseUp);
    } else {
        fx_.Invalidate(model_.FocusArea(model_.FocusZone(), model_.FocusIndex()), false);
    }
    fx_.Notify(PALN_KillFocus);
}

} // namespace zk::pal
