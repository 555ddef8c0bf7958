// Saving an outline to a stream string.
#include "frame/win/guard.h"
#include "outline/win/ofile_win.h"

using namespace zk::lbx;

extern "C" int32_t ZKAPI ZelListSaveOutline(HWND window, HostStr *out) {
    return zk::Quietly([&] { return ofile::Save(window, out); }, [] { return int32_t{ZEL_NOT_ENOUGH_MEMORY}; });
}
