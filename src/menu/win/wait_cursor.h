// The busy cursor with counted nesting: through the host, directly, or with
// the mouse captured by a hidden window so that the application takes no
// clicks. One depth for the process, shared by the counted modes.
#pragma once

#include <cstdint>

namespace zk::menu {

// ZelWaitCursor: the depth after the call.
int32_t SwitchWaitCursor(int32_t mode);

} // namespace zk::menu
