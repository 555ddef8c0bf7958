// The flag store of a field and the field's subclass: clicks on a
// read-only field that is no data field are eaten, a path set as the text
// of a path field is shortened to fit, and the block goes with the window.
#include "menu/win/window_flags.h"

#include <string>

#include "frame/win/gdi.h"
#include "frame/win/localblock.h"
#include "frame/win/propcache.h"
#include "frame/win/record_subclass.h"
#include "menu/win/window_walk.h"
#include "os/win/files.h"

namespace zk::menu {

namespace {

class FlagsField final : public Window {
protected:
    WindowFamily &Family() const override { return FamilyOf<FlagsField>(); }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    LRESULT SetShortenedText(const wchar_t *text);
};

LRESULT FlagsField::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    HWND window = GetSafeHwnd();
    const HLOCAL block = PropGet(window, kWinFlagsProp);
    WinFlagsBlock record{};
    if (!LocalCopy(block, &record))
        return Default();
    switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_LBUTTONDBLCLK:
        // A data field keeps its clicks: its text can still be selected.
        if ((record.flags & WF_ReadOnly) && !IsDataField(HostWinType(window)))
            return 1;
        break;
    case WM_SETTEXT:
        if ((record.flags & WF_ShortenPath) && lParam)
            return SetShortenedText(reinterpret_cast<const wchar_t *>(lParam));
        break;
    case WM_DESTROY:
        PropRemove(window, kWinFlagsProp);
        LocalFree(block);
        break;
    default:
        break;
    }
    return Default();
}

// The shortened path goes on in a copy of its own: the caller's text may
// be a constant, and is left as it is.
LRESULT FlagsField::SetShortenedText(const wchar_t *text) {
    HWND window = GetSafeHwnd();
    std::wstring path(text);
    if (!path.empty() && path.back() == L'\\')
        path.pop_back();
    RECT client{};
    GetClientRect(window, &client);
    {
        ClientDC dc(window);
        Selected font(dc, reinterpret_cast<HGDIOBJ>(SendMessageW(window, WM_GETFONT, 0, 0)));
        if (dc)
            path = ZelPathShorten(dc, client, path);
    }
    const WNDPROC next = DefaultProcedure();
    const LPARAM shortened = reinterpret_cast<LPARAM>(path.c_str());
    return next ? CallWindowProcW(next, window, WM_SETTEXT, 0, shortened)
                : DefWindowProcW(window, WM_SETTEXT, 0, shortened);
}

// What a default button needs of the windows about it: its form subclassed,
// and with it the forms or tool bars whose commands decide it too.
bool PrepareParentSide(HWND window) {
    if (GetWindowLongW(window, GWL_STYLE) & ES_READONLY)
        SendMessageW(window, EM_SETREADONLY, FALSE, 0);
    HWND parent = GetParent(window);
    if (!EnsureParentProcedure(parent))
        return false;
    const uint32_t type = HostWinType(parent);
    bool ok = true;
    if (type == HOST_WT_FRAMECHILD && HostWinClass(parent) == HOST_WC_FRAMECHILD) {
        ok = EnsureParentProcedure(GrandParentOf(parent));
    } else if (type == HOST_WT_TOOLBAR) {
        ForEachChild(GrandParentOf(parent), [&](HWND form) {
            if (IsTopLevelForm(HostWinType(form)))
                ok = EnsureParentProcedure(form) && ok;
        });
    } else if (IsTopLevelForm(type)) {
        ForEachChild(GetParent(parent), [&](HWND sibling) {
            ForEachChild(sibling, [&](HWND child) {
                if (HostWinType(child) == HOST_WT_TOOLBAR)
                    ok = EnsureParentProcedure(child) && ok;
            });
        });
    }
    return ok;
}

void SetReadOnly(HWND window, bool readOnly) {
    const uint32_t type = HostWinType(window);
    const LONG style = GetWindowLongW(window, GWL_STYLE);
    SetWindowLongW(window, GWL_STYLE, readOnly ? style & ~WS_TABSTOP : style | WS_TABSTOP);
    if (IsDataField(type)) {
        SendMessageW(window, EM_SETREADONLY, readOnly ? TRUE : FALSE, 0);
    } else if (IsCheckField(type)) {
        if (readOnly)
            PropSet(window, kReadOnlyProp, reinterpret_cast<HANDLE>(1));
        else
            PropRemove(window, kReadOnlyProp);
        EnableWindow(window, readOnly ? FALSE : TRUE);
    }
}

} // namespace

uint32_t FlagsOf(HWND window) {
    WinFlagsBlock record{};
    return LocalCopy(PropGet(window, kWinFlagsProp), &record) ? record.flags : 0;
}

bool SetFlags(HWND window, uint32_t flags, bool set) {
    if (!IsWindow(window))
        return false;
    if (set && (flags & WF_RequiredButton) && !PrepareParentSide(window))
        return false;
    const HLOCAL block = SubclassWithRecord<FlagsField>(window, kWinFlagsProp, &WinFlagsBlock::oldProc);
    if (!block ||
        !LocalWith<WinFlagsBlock>(block, [&](WinFlagsBlock &b) { b.flags = set ? b.flags | flags : b.flags & ~flags; }))
        return false;
    if (flags & WF_ReadOnly)
        SetReadOnly(window, set);
    return true;
}

} // namespace zk::menu
