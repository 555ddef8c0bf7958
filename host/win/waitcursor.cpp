// The host's wait cursor, counted: the first on shows IDC_WAIT, the last off
// puts back the cursor it replaced. An off without an on does nothing.
#include "zkhost.h"
#include "zkhostctl.h"

namespace {

int32_t Depth = 0;
HCURSOR Saved = nullptr;

} // namespace

extern "C" {

int32_t ZKAPI HostWaitCursor(int32_t on) {
    if (on) {
        if (Depth++ == 0)
            Saved = SetCursor(LoadCursorW(nullptr, IDC_WAIT));
        return 1;
    }
    if (Depth == 0)
        return 1;
    if (--Depth == 0) {
        SetCursor(Saved);
        Saved = nullptr;
    }
    return 1;
}

int32_t ZKAPI ZkHostWaitCursorDepth(void) { return Depth; }

} // extern "C"
