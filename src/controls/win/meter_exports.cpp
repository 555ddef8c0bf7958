// ZelWinSetMeter: the one export of the meter, on its window handle.
#include "controls/core/meter_layout.h"
#include "frame/win/host.h"

extern "C" {

int32_t ZKAPI ZelWinSetMeter(HWND window, uint32_t percent) {
    if (percent > zk::ctl::kMeterMost)
        return ZEL_INVALID_PARAMETER;
    SetWindowWord(window, 0, static_cast<WORD>(percent));
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    return 0;
}

} // extern "C"
