// The style export: adopting a list or combo box, or changing its style.
#include "frame/win/guard.h"
#include "outline/win/lbx_exports.h"

using namespace zk::lbx;

extern "C" int32_t ZKAPI ZelListSetStyle(HWND window, uint32_t style, CREATESTRUCTW *create) {
    return zk::Guarded(L"ZelListSetStyle()", 52, int32_t{0}, [&] { return SetStyle(window, style, create); });
}
