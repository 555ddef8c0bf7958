// Filling a list from host arrays.
#include "outline/win/lbx_exports.h"

using namespace zk::lbx;

extern "C" {

int32_t ZKAPI ZelListArrayPopulate(HWND window, HostArray strings) {
    return zk::Quietly([&] { return Populate(window, strings, false, 0); }, [] { return int32_t{-1}; });
}

int32_t ZKAPI ZelListArrayPopulateValue(HWND window, HostArray strings, HostArray numbers) {
    return zk::Quietly([&] { return Populate(window, strings, true, numbers); }, [] { return int32_t{-1}; });
}

} // extern "C"
