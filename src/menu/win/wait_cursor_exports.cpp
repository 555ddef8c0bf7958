// The wait cursor.
#include "frame/win/guard.h"
#include "menu/win/wait_cursor.h"

extern "C" int32_t ZKAPI ZelWaitCursor(int32_t mode) {
    return zk::Quietly([&] { return zk::menu::SwitchWaitCursor(mode); }, [] { return int32_t{0}; });
}
