// The list's side of the view: rows and columns through the view's
// messages, the copy of the rows' places, the rearranged rows of a sort, and
// the notifications posted to the host and the owner.
#include <windows.h>

#include <commctrl.h>

#include <algorithm>

#include "headerlist/win/headerlist_window.h"
#include "zklib.h"

namespace zk::hdr {

namespace {

constexpr UINT kPlainState = LVIS_SELECTED | LVIS_FOCUSED;

// Whether an item record carries state or indent beyond selection and focus.
bool IsRich(const LVITEMW &item) {
    return (item.mask & LVIF_INDENT) || ((item.mask & LVIF_STATE) && (item.stateMask & item.state & ~kPlainState));
}

} // namespace

void CHeaderListBox::TrackRows(UINT message, WPARAM wParam, LPARAM lParam, LRESULT result) {
    switch (message) {
    case LVM_INSERTITEMW: {
        const auto *item = reinterpret_cast<const LVITEMW *>(lParam);
        if (result < 0 || !item)
            return;
        places_.Insert(static_cast<int32_t>(result), item->mask & LVIF_PARAM ? item->lParam : 0,
                       item->mask & LVIF_IMAGE ? item->iImage : 0);
        richState_ = richState_ || IsRich(*item);
        return;
    }
    case LVM_DELETEITEM:
        if (result)
            places_.Erase(static_cast<int32_t>(wParam));
        return;
    case LVM_DELETEALLITEMS:
        if (result) {
            places_.Clear();
            richState_ = false;
        }
        return;
    case LVM_SETITEMW: {
        const auto *item = reinterpret_cast<const LVITEMW *>(lParam);
        if (!result || !item || item->iSubItem != 0)
            return;
        if (item->mask & LVIF_PARAM)
            places_.SetParam(item->iItem, item->lParam);
        if (item->mask & LVIF_IMAGE)
            places_.SetImage(item->iItem, item->iImage);
        richState_ = richState_ || IsRich(*item);
        return;
    }
    case LVM_SETITEMSTATE: {
        const auto *item = reinterpret_cast<const LVITEMW *>(lParam);
        richState_ = richState_ || (item && (item->stateMask & item->state & ~kPlainState));
        return;
    }
    // What the copy cannot follow: read anew from the view when needed.
    case LVM_INSERTITEMA:
    case LVM_SETITEMA:
    case LVM_SORTITEMS:
    case LVM_SORTITEMSEX:
    case LVM_SETITEMCOUNT:
        places_.MarkStale();
        richState_ = true;
        return;
    default:
        return;
    }
}

const RowPlaces &CHeaderListBox::Places() const {
    if (places_.Fresh())
        return places_;
    const auto count = static_cast<int32_t>(Send(LVM_GETITEMCOUNT));
    std::vector<intptr_t> params(static_cast<size_t>(std::max(count, 0)));
    std::vector<int32_t> images(params.size());
    for (int32_t row = 0; row < count; ++row) {
        LVITEMW item{};
        item.mask = LVIF_PARAM | LVIF_IMAGE;
        item.iItem = row;
        Send(LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
        params[static_cast<size_t>(row)] = item.lParam;
        images[static_cast<size_t>(row)] = item.iImage;
    }
    places_.Reload(std::move(params), std::move(images));
    return places_;
}

int32_t CHeaderListBox::RowCount() const { return static_cast<int32_t>(Send(LVM_GETITEMCOUNT)); }

bool CHeaderListBox::RowParam(int32_t row, intptr_t &param) const { return Places().Param(row, param); }

int32_t CHeaderListBox::InsertRow(int32_t row, int32_t image, intptr_t param) {
    LVITEMW item{};
    item.mask = LVIF_TEXT | LVIF_IMAGE | LVIF_PARAM | LVIF_STATE;
    item.iItem = row;
    item.pszText = LPSTR_TEXTCALLBACKW;
    item.iImage = image;
    item.lParam = param;
    return static_cast<int32_t>(Send(LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item)));
}

int32_t CHeaderListBox::DeleteRow(int32_t row) {
    return static_cast<int32_t>(Send(LVM_DELETEITEM, static_cast<WPARAM>(row)));
}

int32_t CHeaderListBox::DeleteAllRows() { return static_cast<int32_t>(Send(LVM_DELETEALLITEMS)); }

int32_t CHeaderListBox::SetTextCallback(int32_t row, int32_t column) {
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = LPSTR_TEXTCALLBACKW;
    return static_cast<int32_t>(Send(LVM_SETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item)));
}

int32_t CHeaderListBox::SetRow(int32_t row, int32_t column, uint32_t mask, int32_t image) {
    LVITEMW item{};
    item.mask = mask;
    item.iItem = row;
    item.iSubItem = column;
    item.iImage = image;
    return static_cast<int32_t>(Send(LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item)));
}

// The platform's own sort moves pointers one place at a time as it merges
// (quadratic in the rows under Wine), so the rows are rearranged here: each
// position whose row changes gets that row's lParam and image, then the
// selection and the focus follow their rows. Redraw and the list's own
// notifications are off meanwhile; nothing reaches the host.
void CHeaderListBox::ReorderRows(const std::vector<int32_t> &order) {
    const RowPlaces &places = Places();
    const auto count = static_cast<int32_t>(order.size());
    if (count != places.Count())
        return;
    std::vector<intptr_t> params(order.size());
    std::vector<int32_t> images(order.size());
    std::vector<UINT> states;
    std::vector<int32_t> indents;
    for (int32_t i = 0; i < count; ++i) {
        params[static_cast<size_t>(i)] = places.ParamAt(order[static_cast<size_t>(i)]);
        images[static_cast<size_t>(i)] = places.ImageAt(order[static_cast<size_t>(i)]);
    }
    if (richState_) {
        states.resize(order.size());
        indents.resize(order.size());
        for (int32_t row = 0; row < count; ++row) {
            LVITEMW item{};
            item.mask = LVIF_STATE | LVIF_INDENT;
            item.iItem = row;
            item.stateMask = static_cast<UINT>(-1);
            Send(LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
            states[static_cast<size_t>(row)] = item.state;
            indents[static_cast<size_t>(row)] = item.iIndent;
        }
    }
    // Where each row goes, for the selection and the focus.
    std::vector<int32_t> destination(order.size());
    for (int32_t i = 0; i < count; ++i)
        destination[static_cast<size_t>(order[static_cast<size_t>(i)])] = i;
    std::vector<int32_t> selected;
    for (auto row = static_cast<int32_t>(Send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED)); row >= 0;
         row = static_cast<int32_t>(Send(LVM_GETNEXTITEM, static_cast<WPARAM>(row), LVNI_SELECTED)))
        selected.push_back(row);
    const auto focused = static_cast<int32_t>(Send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED));
    const auto mark = static_cast<int32_t>(Send(LVM_GETSELECTIONMARK));

    const bool redraw = redraw_;
    const int32_t notifications = logic_.notificationsEnabled;
    logic_.notificationsEnabled = 0;
    if (redraw)
        Send(WM_SETREDRAW, FALSE);
    for (int32_t i = 0; i < count; ++i) {
        const size_t at = static_cast<size_t>(i);
        LVITEMW item{};
        item.iItem = i;
        if (!states.empty()) {
            const UINT state = states[static_cast<size_t>(order[at])];
            item.mask = LVIF_PARAM | LVIF_IMAGE | LVIF_STATE | LVIF_INDENT;
            item.stateMask = ~kPlainState;
            item.state = state & ~kPlainState;
            item.iIndent = indents[static_cast<size_t>(order[at])];
        } else if (params[at] != places.ParamAt(i) || images[at] != places.ImageAt(i)) {
            item.mask = LVIF_PARAM | LVIF_IMAGE;
        } else {
            continue;
        }
        item.lParam = params[at];
        item.iImage = images[at];
        Send(LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    }
    // Selection: off where it no longer is, on where it now is.
    std::vector<char> isSelected(order.size(), 0), wasSelected(order.size(), 0);
    for (int32_t row : selected) {
        wasSelected[static_cast<size_t>(row)] = 1;
        isSelected[static_cast<size_t>(destination[static_cast<size_t>(row)])] = 1;
    }
    for (int32_t i = 0; i < count; ++i) {
        const size_t at = static_cast<size_t>(i);
        if (isSelected[at] == wasSelected[at])
            continue;
        LVITEMW item{};
        item.stateMask = LVIS_SELECTED;
        item.state = isSelected[at] ? LVIS_SELECTED : 0;
        Send(LVM_SETITEMSTATE, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&item));
    }
    if (focused >= 0 && destination[static_cast<size_t>(focused)] != focused) {
        LVITEMW item{};
        item.stateMask = LVIS_FOCUSED;
        item.state = LVIS_FOCUSED;
        Send(LVM_SETITEMSTATE, static_cast<WPARAM>(destination[static_cast<size_t>(focused)]),
             reinterpret_cast<LPARAM>(&item));
    }
    if (mark >= 0 && mark < count)
        Send(LVM_SETSELECTIONMARK, 0, destination[static_cast<size_t>(mark)]);
    if (redraw) {
        Send(WM_SETREDRAW, TRUE);
        InvalidateRect(GetSafeHwnd(), nullptr, TRUE);
    }
    logic_.notificationsEnabled = notifications;
}

void CHeaderListBox::DeleteColumn(int32_t position) { Send(LVM_DELETECOLUMN, static_cast<WPARAM>(position)); }

void CHeaderListBox::InsertColumn(int32_t position, std::u16string_view text, int32_t format, int32_t width) {
    std::wstring heading(text.begin(), text.end());
    LVCOLUMNW column{};
    column.mask = LVCF_FMT | LVCF_TEXT | LVCF_SUBITEM;
    column.fmt = format;
    column.pszText = heading.data();
    column.iSubItem = position;
    if (width != -1) {
        column.mask |= LVCF_WIDTH;
        column.cx = width;
    }
    Send(LVM_INSERTCOLUMNW, static_cast<WPARAM>(position), reinterpret_cast<LPARAM>(&column));
}

// Posting to no window would put the command in the thread's own queue.
void CHeaderListBox::ForwardNotify(uint32_t code) {
    if (!hostNotify_)
        return;
    const auto id = static_cast<WORD>(GetDlgCtrlID(GetSafeHwnd()));
    PostMessageW(hostNotify_, WM_COMMAND, MAKEWPARAM(id, static_cast<WORD>(code)), reinterpret_cast<LPARAM>(owner_));
}

void CHeaderListBox::OwnerNotify(uint32_t code) {
    if (!owner_)
        return;
    const auto id = static_cast<WORD>(GetDlgCtrlID(GetSafeHwnd()));
    PostMessageW(owner_, WM_COMMAND, MAKEWPARAM(id, static_cast<WORD>(code)), reinterpret_cast<LPARAM>(GetSafeHwnd()));
}

void CHeaderListBox::PostColumnSorted(int32_t descending, int32_t column) {
    if (!owner_)
        return;
    PostMessageW(owner_, ZKM_ColumnSorted, static_cast<WPARAM>(descending), static_cast<LPARAM>(column));
}

} // namespace zk::hdr
