// Creation, blocks, keys, mouse and the reflected notifications of the list.
#include "headerlist/win/headerlist_window.h"

#include <windows.h>

#include <commctrl.h>

#include "frame/win/create_subclassed.h"
#include "zkhost.h"

namespace zk::hdr {

CHeaderListBox::SelectionEcho CHeaderListBox::selectionEcho_ = nullptr;

bool CHeaderListBox::Create(DWORD style, const RECT &area, HWND parent, UINT id, HWND hostNotify, HWND owner) {
    static const bool registered = [] {
        INITCOMMONCONTROLSEX controls{sizeof controls, ICC_LISTVIEW_CLASSES};
        return InitCommonControlsEx(&controls) != FALSE;
    }();
    (void)registered;
    hostNotify_ = hostNotify;
    owner_ = owner;
    return CreateSubclassed(*this, 0, kListViewClass, L"", style, area.left, area.top, area.right - area.left,
                            area.bottom - area.top, parent,
                            reinterpret_cast<HMENU>(static_cast<INT_PTR>(id))) != nullptr;
}

void CHeaderListBox::DetachImageLists() {
    if (!GetSafeHwnd())
        return;
    Send(LVM_SETIMAGELIST, LVSIL_NORMAL, 0);
    Send(LVM_SETIMAGELIST, LVSIL_SMALL, 0);
}

void CHeaderListBox::ApplyProperties(const SPropHeaderListBox &block) {
    // The view lets go of the model's lists before the block replaces them.
    DetachImageLists();
    logic_.TakeBlock(block);
    ShowModel();
}

void CHeaderListBox::ShowModel() {
    HWND self = GetSafeHwnd();
    if (!self)
        return;
    const SPropHeaderListBox &model = logic_.model;
    const LONG style = GetWindowLongW(self, GWL_STYLE);
    SetWindowLongW(self, GWL_STYLE,
                   static_cast<LONG>((static_cast<DWORD>(style) & 0xFFFF0000u) | (model.style & 0xFFFFu)));
    if (model.backColour != kViewColour)
        Send(LVM_SETBKCOLOR, 0, static_cast<LPARAM>(model.backColour));
    if (model.textColour != kViewColour)
        Send(LVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(model.textColour));
    if (model.textBackColour != kViewColour)
        Send(LVM_SETTEXTBKCOLOR, 0, static_cast<LPARAM>(model.textBackColour));
    Send(LVM_SETIMAGELIST, LVSIL_NORMAL, reinterpret_cast<LPARAM>(model.largeImages.Handle()));
    Send(LVM_SETIMAGELIST, LVSIL_SMALL, reinterpret_cast<LPARAM>(model.smallImages.Handle()));
    logic_.InsertColumns();
}

std::wstring CHeaderListBox::ItemText(int32_t row, int32_t column) const {
    std::wstring text(256, L'\0');
    for (;;) {
        LVITEMW item{};
        item.iSubItem = column;
        item.pszText = text.data();
        item.cchTextMax = static_cast<int>(text.size());
        const auto length =
            static_cast<size_t>(Send(LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item)));
        if (length + 1 < text.size()) {
            text.resize(length);
            return text;
        }
        text.resize(text.size() * 2);
    }
}

bool CHeaderListBox::TakeMouseSelection() {
    if (mouseInProgress_)
        return true;
    if (mouseSelections_ < 1)
        return false;
    --mouseSelections_;
    return true;
}

int32_t CHeaderListBox::FirstSelected() const {
    return static_cast<int32_t>(Send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

BOOL CHeaderListBox::SetItemState(int32_t row, UINT state, UINT mask) {
    logic_.notificationsEnabled = 0;
    LVITEMW item{};
    item.stateMask = mask;
    item.state = state;
    const BOOL done =
        static_cast<BOOL>(Send(LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item)));
    if ((state & LVIS_SELECTED) && (mask & LVIS_SELECTED) && selectionEcho_ && logic_.model.dropDown)
        selectionEcho_(owner_, *this);
    logic_.notificationsEnabled = 1;
    return done;
}

void CHeaderListBox::DropCapture() const {
    if (GetCapture() == GetSafeHwnd())
        ReleaseCapture();
}

LRESULT CHeaderListBox::OnKeyDown(WPARAM key, LPARAM lParam) {
    const bool dropDown = logic_.model.dropDown != 0;
    LRESULT result = 0;
    switch (key) {
    case VK_RETURN:
        result = Default();
        if (dropDown) {
            DropCapture();
            OwnerNotify(kOwnerCloseUp);
        }
        break;
    case VK_ESCAPE:
        if (dropDown) {
            DropCapture();
            OwnerNotify(kOwnerCloseUp);
            OwnerNotify(kOwnerCancel);
        }
        break;
    case VK_SPACE:
        DropCapture();
        break;
    default:
        result = Default();
        break;
    }
    if (dropDown && owner_ && owner_ != GetSafeHwnd())
        PostMessageW(owner_, WM_KEYDOWN, key, lParam);
    return result;
}

LRESULT CHeaderListBox::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_CREATE: {
        const LRESULT result = Default();
        if (result == -1)
            return -1;
        if (!hostNotify_)
            hostNotify_ = GetParent(GetSafeHwnd());
        if (!owner_)
            owner_ = GetSafeHwnd();
        ShowModel();
        return result;
    }
    case WM_DESTROY:
        // The model owns the image lists; the view would destroy them with itself.
        DetachImageLists();
        return Default();
    case WM_SETFOCUS:
        return HostFieldValidate(GetParent(GetSafeHwnd()), 1, 0) ? Default() : 0;
    case WM_KILLFOCUS: {
        const LRESULT result = Default();
        if (logic_.model.dropDown)
            OwnerNotify(kOwnerCloseUp);
        return result;
    }
    case WM_LBUTTONDOWN: {
        mouseInProgress_ = 1;
        const LRESULT result = Default();
        mouseInProgress_ = 0;
        return result;
    }
    case WM_SYSKEYDOWN:
        if (wParam == VK_UP && logic_.model.dropDown)
            OwnerNotify(kOwnerCloseUp);
        return Default();
    case WM_KEYDOWN:
        return OnKeyDown(wParam, lParam);
    case WM_KEYUP: {
        const LRESULT result = Default();
        if (owner_ && owner_ != GetSafeHwnd())
            PostMessageW(owner_, WM_KEYUP, wParam, lParam);
        return result;
    }
    case WM_SETREDRAW:
        redraw_ = wParam != 0;
        return Default();
    default: {
        const LRESULT result = Default();
        TrackRows(message, wParam, lParam, result);
        return result;
    }
    }
}

bool CHeaderListBox::OnReflectedNotify(NMHDR &header, LRESULT &result) {
    result = 0;
    switch (header.code) {
    case LVN_GETDISPINFOW: {
        auto &info = reinterpret_cast<NMLVDISPINFOW &>(header);
        std::u16string_view text;
        if (info.item.mask == LVIF_TEXT && info.item.pszText &&
            logic_.DisplayText(info.item.lParam, info.item.iSubItem, info.item.cchTextMax, text)) {
            std::copy(text.begin(), text.end(), info.item.pszText);
            info.item.pszText[text.size()] = L'\0';
        }
        return true;
    }
    case LVN_ENDLABELEDITW: {
        const auto &info = reinterpret_cast<const NMLVDISPINFOW &>(header);
        logic_.EndLabelEdit(info.item.iItem, info.item.iSubItem, reinterpret_cast<const char16_t *>(info.item.pszText));
        result = 1; // the edit is accepted
        return true;
    }
    case LVN_BEGINLABELEDITW: {
        const auto edit = reinterpret_cast<HWND>(Send(LVM_GETEDITCONTROL));
        if (edit)
            SendMessageW(edit, EM_LIMITTEXT, static_cast<WPARAM>(logic_.model.maxItemLength), 0);
        return true;
    }
    case LVN_COLUMNCLICK:
    case LVN_ITEMCHANGED: {
        const auto &info = reinterpret_cast<const NMLISTVIEW &>(header);
        if (header.code == LVN_ITEMCHANGED && mouseInProgress_ && logic_.notificationsEnabled &&
            (info.uNewState & (LVIS_FOCUSED | LVIS_SELECTED)))
            ++mouseSelections_;
        intptr_t answer = 0;
        const bool handled = logic_.OnNotify(header.code, info.iSubItem, info.uNewState, answer);
        result = answer;
        return handled;
    }
    default: {
        intptr_t answer = 0;
        const bool handled = logic_.OnNotify(header.code, 0, 0, answer);
        result = answer;
        return handled;
    }
    }
}

} // namespace zk::hdr
