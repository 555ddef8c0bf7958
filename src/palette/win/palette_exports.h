// What the palette exports share: the control pointer as the window object
// it stands for. Each export runs under zk::GuardedControlText with its own
// literal failure words.
#pragma once

#include "frame/win/guard.h"
#include "palette/win/palette_window.h"

namespace zk::pal {

// The one place that reads a control pointer: the pointer that
// ZKM_ControlCreate announced is the palette window object (a drop-down
// hands out its pop-up's). Null stays null, for the guard's message.
inline CColorPalette *PaletteOf(ZelPalControl control) { return reinterpret_cast<CColorPalette *>(control); }

} // namespace zk::pal
