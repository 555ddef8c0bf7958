// The designer outline of the reference host, shared by its exports.
#pragma once

#include <windows.h>

#include "core/design_outline.h"

namespace hostwin {

zkh::DesignOutlines &DesignStore();

inline zkh::DesignOutlines::WindowId WindowKey(HWND window) {
    return reinterpret_cast<zkh::DesignOutlines::WindowId>(window);
}

} // namespace hostwin
