// The spin field's buttons as the window paints them: the face, the black
// lines, the shadowed and lit edges of a raised or pressed button, and the
// two arrows, moved by a pixel when their button is pressed.
#pragma once

#include <windows.h>

#include <cstdint>

#include "controls/core/spin_layout.h"
#include "controls/core/spin_model.h"

namespace zk::ctl {

// Paints into dc (a context of the client's size that holds no earlier
// paint) for the record's flags. In design mode the area left of the
// buttons takes designBack.
void PaintSpin(HDC dc, const SpinLayout &layout, uint16_t flags, bool design, COLORREF designBack);

} // namespace zk::ctl
