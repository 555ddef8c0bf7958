#include "menu/win/menu_frames.h"

#include "zkhost.h"

namespace zk::menu {
namespace {

constexpr const wchar_t *kFrameClass = L"Marlo:AccFrame";
constexpr const wchar_t *kMdiFrameClass = L"Marlo:MDIFrame";

class Platform final : public MenuTree {
public:
    int32_t Count(const void *menu) const override {
        HMENU m = static_cast<HMENU>(const_cast<void *>(menu));
        return IsMenu(m) ? GetMenuItemCount(m) : -1;
    }
    int32_t ItemId(const void *menu, int32_t position) const override {
        return static_cast<int32_t>(GetMenuItemID(static_cast<HMENU>(const_cast<void *>(menu)), position));
    }
    const void *SubMenu(const void *menu, int32_t position) const override {
        return GetSubMenu(static_cast<HMENU>(const_cast<void *>(menu)), position);
    }
};

// The menu a host frame found by its class shows: its window menu, else
// the host frame's own.
HMENU TreeRootOf(HWND window) {
    HMENU menu = GetMenu(window);
    return IsMenu(menu) ? menu : HostFrameGetOurMenuHandle(window);
}

bool HoldsMenu(HWND window, HMENU menu) {
    return menu == GetSystemMenu(window, FALSE) || TreeHolds(PlatformTree(), TreeRootOf(window), menu);
}

struct FrameSearch {
    HMENU menu;
    HWND found;
};

// Every top-level frame of the frame class whose tree holds the menu; the
// walk goes on to the end, so the last match counts.
BOOL CALLBACK SearchFrame(HWND window, LPARAM lParam) {
    auto *search = reinterpret_cast<FrameSearch *>(lParam);
    wchar_t name[64] = L"";
    if (GetClassNameW(window, name, 64) && lstrcmpiW(name, kFrameClass) == 0 && HoldsMenu(window, search->menu))
        search->found = window;
    return TRUE;
}

} // namespace

const MenuTree &PlatformTree() {
    static const Platform tree;
    return tree;
}

int32_t FrameKind(HWND window) { return window ? HostFrameKind(window) : HOST_FRAME_None; }

bool IsMenuFrame(HWND window) {
    const int32_t kind = FrameKind(window);
    return kind == HOST_FRAME_Frame || kind == HOST_FRAME_MDIFrame;
}

HWND ParentFrame(HWND window) {
    for (HWND w = GetParent(window); w; w = GetParent(w)) {
        const int32_t kind = FrameKind(w);
        if (kind == HOST_FRAME_Frame || kind == HOST_FRAME_MDIFrame || kind == HOST_FRAME_MDIChild)
            return w;
    }
    return nullptr;
}

HMENU FrameMenuOf(HWND frame) {
    HMENU menu = GetMenu(frame);
    if (IsMenu(menu))
        return menu;
    return IsMenuFrame(frame) ? HostFrameGetOurMenuHandle(frame) : nullptr;
}

HWND ZelMenuFindHostFrame(HMENU menu) {
    HWND mdi = FindWindowW(kMdiFrameClass, nullptr);
    HWND frame = FindWindowW(kFrameClass, nullptr);
    HWND first = frame ? frame : mdi;
    if (!first)
        return nullptr;
    if (HoldsMenu(first, menu))
        return first;
    if (mdi && mdi != first && HoldsMenu(mdi, menu))
        return mdi;
    FrameSearch search{menu, nullptr};
    EnumWindows(SearchFrame, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

bool ZelMenuInFrame(HWND window, HMENU menu) {
    if (!IsMenuFrame(window))
        return false;
    HMENU root = HostFrameGetOurMenuHandle(window);
    return root && TreeHolds(PlatformTree(), root, menu);
}

HWND ZelMenuFindFrame(HWND window, bool systemMenu) {
    if (!IsWindow(window))
        return nullptr;
    const int32_t kind = FrameKind(window);
    if (kind == HOST_FRAME_Frame || kind == HOST_FRAME_MDIFrame)
        return window;
    HWND parent = ParentFrame(window);
    if (kind == HOST_FRAME_MDIChild) {
        if (systemMenu)
            return window;
        return FrameKind(parent) == HOST_FRAME_MDIFrame ? parent : nullptr;
    }
    if (parent)
        return FrameKind(parent) == HOST_FRAME_Frame ? parent : nullptr;
    return kind == HOST_FRAME_Dialog ? window : nullptr;
}

HMENU MenuHandleOf(HWND window) {
    if (!IsWindow(window))
        return nullptr;
    HMENU menu = GetMenu(window);
    if (IsMenu(menu))
        return menu;
    HWND parent = GetParent(window);
    HMENU parentMenu = parent ? GetMenu(parent) : nullptr;
    if (IsMenu(parentMenu))
        return parentMenu;
    HWND frame = IsMenuFrame(window) ? window : ParentFrame(window);
    if (IsMenuFrame(frame))
        return HostFrameGetOurMenuHandle(frame);
    return parentMenu;
}

HMENU SystemMenuOf(HWND window) {
    if (!IsWindow(window))
        return nullptr;
    HMENU menu = GetSystemMenu(window, FALSE);
    if (IsMenu(menu))
        return menu;
    HWND parent = GetParent(window);
    menu = parent ? GetSystemMenu(parent, FALSE) : nullptr;
    return IsMenu(menu) ? menu : nullptr;
}

bool Open(HWND window, HMENU menu, bool parentFrameTest, Opening &out) {
    if (!IsMenu(menu) || !IsWindow(window))
        return false;
    out.systemMenu = menu == GetSystemMenu(window, FALSE);
    if (!MenuHandleOf(window) && !out.systemMenu) {
        HWND parent = GetParent(window);
        const bool qualifies = parent && (GetMenu(parent) || menu == GetSystemMenu(parent, FALSE) ||
                                          (parentFrameTest && ZelMenuInFrame(parent, menu)));
        if (!qualifies)
            return false;
    }
    out.frame = ZelMenuFindFrame(window, out.systemMenu);
    return true;
}

void RefreshBar(HWND frame) {
    const int32_t kind = FrameKind(frame);
    if (kind == HOST_FRAME_MDIFrame && HostFrameRibbonInUse(frame)) {
        if (HWND ribbon = HostFrameGetRibbonBar(frame)) {
            HostRibbonRefresh(ribbon);
            return;
        }
    }
    if (kind == HOST_FRAME_Frame || kind == HOST_FRAME_MDIFrame)
        HostFrameUpdateMenuBar(frame);
}

int32_t PositionOf(HMENU menu, int32_t id) {
    const int count = GetMenuItemCount(menu);
    for (int i = 0; i < count; ++i)
        if (static_cast<int32_t>(GetMenuItemID(menu, i)) == id)
            return i;
    return -1;
}

} // namespace zk::menu
