// Listing the fonts of the screen and the printer.
#include "frame/win/guard.h"
#include "outline/win/lbx_exports.h"
#include "outline/win/pic.h"

using namespace zk::lbx;

extern "C" int32_t ZKAPI ZelFontEnum(uint32_t selection, HostArray names, HostArray types) {
    return zk::Quietly([&] { return FontEnum(selection, names, types); }, [] { return ZEL_NOT_ENOUGH_MEMORY; });
}
