// The colour questions a control passes on to its parent unchanged: the
// old WM_CTLCOLOR (25) and WM_CTLCOLORMSGBOX to WM_CTLCOLORSTATIC.
#pragma once

#include <windows.h>

namespace zk::ctl {

inline constexpr UINT kOldCtlColor = 0x0019;

inline bool IsControlColourMessage(UINT message) {
    return message == kOldCtlColor || (message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC);
}

} // namespace zk::ctl
