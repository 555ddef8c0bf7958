// The designer outline's tree, windows and item notifications.
#include "designer_store.h"
#include "guard.h"
#include "strstore.h"
#include "zkhost.h"

using namespace hostwin;
using zkh::DesignOutlines;

namespace hostwin {

zkh::DesignOutlines &DesignStore() {
    // Strings handed out for values go when their values do.
    static zkh::DesignOutlines store(&StrRelease);
    return store;
}

} // namespace hostwin

namespace {

DesignOutlines::Item *ItemOf(HostOutline outline, HostItem item) { return DesignStore().Find(outline, item); }

} // namespace

extern "C" {

HostOutline ZKAPI HostDesignGetOutline(HWND window) { return DesignStore().WindowItem(WindowKey(window)).first; }

HostItem ZKAPI HostDesignGetItem(HWND window) { return DesignStore().WindowItem(WindowKey(window)).second; }

HWND ZKAPI HostDesignGetItemWindow(HostOutline outline, HostItem item) {
    const DesignOutlines::Item *found = ItemOf(outline, item);
    return found ? reinterpret_cast<HWND>(found->window) : nullptr;
}

HostItem ZKAPI HostDesignGetParentItem(HostOutline outline, HostItem item) {
    const DesignOutlines::Item *found = ItemOf(outline, item);
    return found ? found->parent : 0;
}

int32_t ZKAPI HostDesignGetItemType(HostOutline outline, HostItem item) {
    const DesignOutlines::Item *found = ItemOf(outline, item);
    return found ? found->type : 0;
}

HostItem ZKAPI HostDesignFirstChild(HostOutline outline, HostItem item) {
    return DesignStore().FirstChild(outline, item);
}

HostItem ZKAPI HostDesignNextSibling(HostOutline outline, HostItem item) {
    const DesignOutlines::Item *found = ItemOf(outline, item);
    return found ? found->nextSibling : 0;
}

int32_t ZKAPI HostDesignItemQueryFlag(HostOutline outline, HostItem item) {
    const DesignOutlines::Item *found = ItemOf(outline, item);
    return found ? found->flag : 0;
}

int32_t ZKAPI HostDesignItemUpdate(HostOutline outline, HostItem item, int32_t, int32_t, int32_t) {
    DesignOutlines::Item *found = ItemOf(outline, item);
    if (!found)
        return 0;
    ++found->updates;
    return 1;
}

int32_t ZKAPI HostDesignNotifyItem(HostOutline outline, HostItem item, int32_t flag, int32_t, int32_t) {
    DesignOutlines::Item *found = ItemOf(outline, item);
    if (!found)
        return 0;
    ++found->notifications;
    found->lastNotifyFlag = flag;
    return 1;
}

} // extern "C"
