// Loading an outline from a stream string.
#include "frame/win/guard.h"
#include "outline/win/ofile_win.h"

using namespace zk::lbx;

extern "C" ZelItemHandle ZKAPI ZelListLoadOutline(HWND window, HostStr outline) {
    return zk::Quietly([&] { return ofile::Load(window, outline); }, [] { return ZelItemHandle{0}; });
}
