#include "headerlist/win/headerlist_wrapper.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>

#include "frame/core/effects.h"
#include "frame/core/errors.h"
#include "frame/win/prop_block.h"
#include "frame/win/reflect.h"
#include "zklib.h"

namespace zk::hdr {

namespace {

constexpr DWORD kListStyle = WS_CHILD | WS_VISIBLE;
constexpr UINT kSizeOnly = SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE;

} // namespace

CDlgHeaderLB::~CDlgHeaderLB() {
    if (list_ && list_->GetSafeHwnd())
        DestroyWindow(list_->GetSafeHwnd());
    delete list_;
}

LRESULT CDlgHeaderLB::OnCreate(LPARAM lParam) {
    if (Default() == -1)
        return -1;
    list_ = new (std::nothrow) CHeaderListBox();
    if (!list_)
        throw MemoryException();
    HWND self = GetSafeHwnd();
    RECT client{};
    GetClientRect(self, &client);
    if (!list_->Create(kListStyle, client, self, 0, GetParent(self), self))
        return 0;
    // A block that does not read to its end leaves the defaults in place.
    const HostItem item =
        HasStoredProperties(reinterpret_cast<const CREATESTRUCTW *>(lParam)) ? HostDesignGetItem(self) : 0;
    CMemFile file;
    if (item && PropBlockLoad(HostDesignGetOutline(self), item, kPropHeaderList, file) == 1) {
        file.SeekToBegin();
        SPropHeaderListBox block;
        if (LoadBlock(file, block))
            list_->ApplyProperties(block);
    }
    SendMessageW(self, ZKM_Refresh, 0, 0);
    return 0;
}

std::wstring CDlgHeaderLB::SelectedText() const {
    const int32_t row = list_->FirstSelected();
    return list_->ItemText(row, 0);
}

LRESULT CDlgHeaderLB::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_CREATE:
        return OnCreate(lParam);
    case WM_SIZE: {
        const LRESULT result = Default();
        if (list_ && list_->GetSafeHwnd())
            SetWindowPos(list_->GetSafeHwnd(), nullptr, 0, 0, LOWORD(lParam), HIWORD(lParam), kSizeOnly);
        return result;
    }
    case WM_SETFOCUS:
        if (list_)
            SetFocus(list_->GetSafeHwnd());
        return 0;
    case WM_GETTEXT: {
        if (!list_ || !wParam || !lParam)
            return 0;
        const std::wstring text = SelectedText();
        const size_t count = std::min(text.size(), static_cast<size_t>(wParam) - 1);
        auto *buffer = reinterpret_cast<wchar_t *>(lParam);
        std::copy_n(text.begin(), count, buffer);
        buffer[count] = L'\0';
        return static_cast<LRESULT>(count);
    }
    case WM_GETTEXTLENGTH:
        return list_ ? static_cast<LRESULT>(SelectedText().size()) : 0;
    case WM_COMMAND:
        if (HIWORD(wParam) == kOwnerSelect && list_ && reinterpret_cast<HWND>(lParam) == list_->GetSafeHwnd()) {
            // A selection made with the mouse reaches the application through
            // the forwarded notifications instead.
            if (!list_->TakeMouseSelection())
                PostMessageW(GetSafeHwnd(), kHostMsgSelect, 0, 0);
            return 1;
        }
        return Default();
    case WM_NOTIFY: {
        LRESULT result = 0;
        const auto *header = reinterpret_cast<const NMHDR *>(lParam);
        if (list_ && header && header->hwndFrom == list_->GetSafeHwnd() && ReflectNotify(lParam, result))
            return result;
        return Default();
    }
    default:
        return Default();
    }
}

} // namespace zk::hdr
