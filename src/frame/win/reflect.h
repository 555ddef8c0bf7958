// Notifications reflected to the control that sent them: a parent window
// object that gets WM_NOTIFY from a child hands it to the child's own
// object first, as a framework's message reflection does.
#pragma once

#include <windows.h>

namespace zk {

class NotifyReflector {
public:
    // True when the child handled the notification; result is then the
    // parent's answer to it.
    virtual bool OnReflectedNotify(NMHDR &header, LRESULT &result) = 0;

protected:
    ~NotifyReflector() = default;
};

// WM_NOTIFY's lParam handed to the object of the window that sent it, when
// that object reflects notifications. False when nobody handled it.
bool ReflectNotify(LPARAM lParam, LRESULT &result);

} // namespace zk
