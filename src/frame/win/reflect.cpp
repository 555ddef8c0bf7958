#include "frame/win/reflect.h"

#include "frame/win/window.h"

namespace zk {

bool ReflectNotify(LPARAM lParam, LRESULT &result) {
    auto *header = reinterpret_cast<NMHDR *>(lParam);
    if (!header)
        return false;
    auto *child = dynamic_cast<NotifyReflector *>(Window::FromHandle(header->hwndFrom));
    return child && child->OnReflectedNotify(*header, result);
}

} // namespace zk
