// Thin window functions that know the host's window types: a form is seen
// through its frame, a table through its holder.
#include <utility>

#include "frame/win/guard.h"
#include "menu/win/window_walk.h"

using namespace zk::menu;

namespace {

template <class Body>
int32_t Plain(Body &&body) {
    return zk::Quietly(std::forward<Body>(body), [] { return int32_t{0}; });
}

// The window ShowWindow acts on for a window of a host type.
HWND ShowTarget(HWND window, uint32_t type) {
    HWND parent = GetParent(window);
    if (type == HOST_WT_TABLE)
        return HostWinType(parent) == HOST_WT_TABLEHOLDER ? parent : window;
    return IsTopLevelForm(type) ? parent : window;
}

} // namespace

extern "C" {

HWND ZKAPI ZelWinGetHandle(HWND form, const wchar_t *text, uint32_t typeMask) {
    return zk::Quietly(
        [&]() -> HWND {
            if (!IsWindow(form) || !text)
                return nullptr;
            return FindChild(form, typeMask, [&](HWND child) {
                std::wstring caption = TextOf(child);
                // Only the first "&": a mnemonic, or the first of a doubled one.
                if (const size_t amp = caption.find(L'&'); amp != std::wstring::npos)
                    caption.erase(amp, 1);
                return lstrcmpiW(caption.c_str(), text) == 0;
            });
        },
        []() -> HWND { return nullptr; });
}

int32_t ZKAPI ZelWinGetStyle(HWND window) {
    return IsWindow(window) ? static_cast<int32_t>(GetWindowLongW(window, GWL_STYLE)) : -1;
}

int32_t ZKAPI ZelWinSetStyle(HWND window, uint32_t bits, int32_t set) {
    if (!IsWindow(window))
        return 0;
    const auto style = static_cast<uint32_t>(GetWindowLongW(window, GWL_STYLE));
    SetLastError(0);
    const LONG before = SetWindowLongW(window, GWL_STYLE, static_cast<LONG>(set ? style | bits : style & ~bits));
    return before != 0 || GetLastError() == 0 ? 1 : 0;
}

HostStr ZKAPI ZelWinGetText(HWND window) {
    return zk::StringResult([&] {
        HWND frame = FrameOf(window);
        return IsWindow(frame) ? zk::StrFromView(TextOf(frame)) : ZelStrEmpty();
    });
}

int32_t ZKAPI ZelWinIsChild(HWND parent, HWND window) { return IsChild(parent, window) ? 1 : 0; }

int32_t ZKAPI ZelWinIsMaximized(HWND window) { return IsZoomed(FrameOf(window)) ? 1 : 0; }

int32_t ZKAPI ZelWinIsMinimized(HWND window) { return IsIconic(FrameOf(window)) ? 1 : 0; }

int32_t ZKAPI ZelWinIsRestored(HWND window) {
    HWND frame = FrameOf(window);
    return IsWindow(frame) && !(GetWindowLongW(frame, GWL_STYLE) & (WS_MINIMIZE | WS_MAXIMIZE)) ? 1 : 0;
}

int32_t ZKAPI ZelWinIsWindow(HWND window) { return IsWindow(FrameOf(window)) ? 1 : 0; }

int32_t ZKAPI ZelWinMove(HWND window, int32_t x, int32_t y, int32_t width, int32_t height) {
    return MoveWindow(FrameOf(window), x, y, width, height, TRUE) ? 1 : 0;
}

int32_t ZKAPI ZelWinSetSelect(HWND window, uint16_t start, uint16_t end) {
    return Plain([&] {
        const uint32_t type = HostWinType(window);
        if (IsDataField(type)) {
            SendMessageW(window, EM_SETSEL, start, end);
            return 1;
        }
        if (type == HOST_WT_COMBOBOX) {
            SendMessageW(window, CB_SETEDITSEL, 0, MAKELPARAM(start, end));
            return 1;
        }
        return 0;
    });
}

int32_t ZKAPI ZelWinSetTabOrder(HWND window, HWND after) {
    if (!IsWindow(window))
        return 0;
    if (!after) {
        SetWindowLongW(window, GWL_STYLE, GetWindowLongW(window, GWL_STYLE) & ~WS_TABSTOP);
        return 1;
    }
    if (!IsWindow(after))
        return 0;
    return SetWindowPos(window, after, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOREDRAW | SWP_NOACTIVATE) ? 1 : 0;
}

int32_t ZKAPI ZelWinShow(HWND window, int32_t command) {
    return Plain([&]() -> int32_t {
        const uint32_t type = HostWinType(window);
        HWND target = ShowTarget(window, type);
        // A form in an MDI child is restored, minimised and maximised the
        // way its frame's own buttons do it.
        if (IsTopLevelForm(type) && command >= SW_SHOWNORMAL && command <= SW_SHOWMAXIMIZED &&
            (GetWindowLongW(target, GWL_EXSTYLE) & WS_EX_MDICHILD)) {
            static constexpr WPARAM kCommands[] = {SC_RESTORE, SC_MINIMIZE, SC_MAXIMIZE};
            return static_cast<int32_t>(SendMessageW(target, WM_SYSCOMMAND, kCommands[command - 1], 0));
        }
        return ShowWindow(target, command);
    });
}

} // extern "C"
