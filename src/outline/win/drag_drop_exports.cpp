// The drop step of a drag between outline lists.
#include "frame/win/guard.h"
#include "outline/win/lbx_exports.h"

using namespace zk::lbx;

extern "C" int32_t ZKAPI ZelListDragDrop(HWND source, int32_t sourceRow, HWND target, int32_t targetRow,
                                         uint16_t mode) {
    return zk::Quietly([&] { return DragDrop(source, sourceRow, target, targetRow, mode); }, [] { return int32_t{0}; });
}
