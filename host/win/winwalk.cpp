// The walk over the direct children of a form, in Z order, filtered by
// host type. The all-types mask takes every child, typed or not.
#include "wintype.h"
#include "zkhost.h"

using namespace hostwin;

namespace {

constexpr uint32_t kAllTypes = 0x7FFFFFFFu;

HWND FirstFrom(HWND child, uint32_t mask) {
    // GW_HWNDNEXT ends at the last sibling, so the walk is bounded by the
    // number of children.
    for (; child; child = GetWindow(child, GW_HWNDNEXT))
        if (mask == kAllTypes || (TypeOf(child) & mask) != 0)
            return child;
    return nullptr;
}

} // namespace

extern "C" {

HWND ZKAPI HostWinFirstChild(HWND form, uint32_t typeMask) {
    if (!IsWindow(form))
        return nullptr;
    return FirstFrom(GetWindow(form, GW_CHILD), typeMask);
}

HWND ZKAPI HostWinNextChild(HWND child, uint32_t typeMask) {
    if (!IsWindow(child) || !(GetWindowLongPtrW(child, GWL_STYLE) & WS_CHILD))
        return nullptr;
    return FirstFrom(GetWindow(child, GW_HWNDNEXT), typeMask);
}

} // extern "C"
