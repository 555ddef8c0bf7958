// OrlGetDlgItemEx: a control by id anywhere under a window. Host forms nest
// controls in frames and tab pages, so the control that sent a message to
// a form may be a grandchild: the direct child comes first, then the first
// descendant with that id.
#include <windows.h>

#include "zkhost.h"

namespace {

struct Search {
    int id;
    HWND found;
};

BOOL CALLBACK MatchId(HWND window, LPARAM param) {
    Search *search = reinterpret_cast<Search *>(param);
    if (GetDlgCtrlID(window) == search->id) {
        search->found = window;
        return FALSE;
    }
    return TRUE;
}

} // namespace

extern "C" HWND ZKAPI OrlGetDlgItemEx(HWND window, int32_t id) {
    if (!IsWindow(window))
        return nullptr;
    if (HWND child = GetDlgItem(window, id))
        return child;
    Search search{id, nullptr};
    EnumChildWindows(window, MatchId, reinterpret_cast<LPARAM>(&search));
    return search.found;
}
