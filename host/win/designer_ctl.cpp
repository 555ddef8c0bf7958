// Test controls of the designer outline, and OrlParentWindowOnly.
#include <map>

#include "designer_store.h"
#include "guard.h"
#include "zkhost.h"

using namespace hostwin;
using zkh::DesignOutlines;

namespace {

std::map<HWND, int32_t> &ParentAnswers() {
    static std::map<HWND, int32_t> answers;
    return answers;
}

} // namespace

extern "C" {

HostOutline ZKAPI ZkHostDesignNewOutline(void) {
    return Guard<HostOutline>(0, [] { return DesignStore().NewOutline(); });
}

int32_t ZKAPI ZkHostDesignFreeOutline(HostOutline outline) {
    return Guard<int32_t>(0, [&] { return DesignStore().FreeOutline(outline) ? 1 : 0; });
}

HostItem ZKAPI ZkHostDesignAddItem(HostOutline outline, HostItem parent, int32_t type) {
    return Guard<HostItem>(0, [&] { return DesignStore().AddItem(outline, parent, type); });
}

int32_t ZKAPI ZkHostDesignBindWindow(HostOutline outline, HostItem item, HWND window) {
    return Guard<int32_t>(0, [&] { return DesignStore().BindWindow(outline, item, WindowKey(window)) ? 1 : 0; });
}

int32_t ZKAPI ZkHostDesignSetItemFlag(HostOutline outline, HostItem item, int32_t flag) {
    DesignOutlines::Item *found = DesignStore().Find(outline, item);
    if (!found)
        return 0;
    found->flag = flag;
    return 1;
}

int32_t ZKAPI ZkHostDesignUpdates(HostOutline outline, HostItem item) {
    const DesignOutlines::Item *found = DesignStore().Find(outline, item);
    return found ? found->updates : -1;
}

int32_t ZKAPI ZkHostDesignNotifications(HostOutline outline, HostItem item, int32_t *lastFlag) {
    const DesignOutlines::Item *found = DesignStore().Find(outline, item);
    if (!found)
        return -1;
    if (lastFlag)
        *lastFlag = found->lastNotifyFlag;
    return found->notifications;
}

int32_t ZKAPI ZkHostDesignLiveItems(void) { return static_cast<int32_t>(DesignStore().LiveItems()); }

void ZKAPI ZkHostSetParentWindowOnly(HWND parent, int32_t answer) {
    GuardVoid([&] {
        if (answer)
            ParentAnswers()[parent] = answer;
        else
            ParentAnswers().erase(parent);
    });
}

int32_t ZKAPI OrlParentWindowOnly(HWND window) {
    if (!window || !IsWindow(window))
        return 0;
    const auto found = ParentAnswers().find(GetParent(window));
    return found == ParentAnswers().end() ? 0 : found->second;
}

} // extern "C"
