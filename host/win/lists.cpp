// The host's list operations on real list boxes and combo boxes, and on a
// custom list control through the list window it answers.
#include "wintype.h"
#include "zkhost.h"

using namespace hostwin;

namespace {

struct List {
    HWND window = nullptr;
    bool combo = false;
    bool multiple = false;
};

bool Resolve(HWND window, List &list) {
    WinKind kind = KindOf(window);
    if (kind != WinKind::ListBox && kind != WinKind::ComboBox && TypeOf(window) == HOST_WT_CUSTOMLIST) {
        window = reinterpret_cast<HWND>(SendMessageW(window, HostMsgGetListWindow, 0, 0));
        kind = KindOf(window);
    }
    if (kind != WinKind::ListBox && kind != WinKind::ComboBox)
        return false;
    list.window = window;
    list.combo = kind == WinKind::ComboBox;
    list.multiple = !list.combo && (GetWindowLongPtrW(window, GWL_STYLE) & (LBS_MULTIPLESEL | LBS_EXTENDEDSEL)) != 0;
    return true;
}

LRESULT Send(const List &list, UINT listMessage, UINT comboMessage, WPARAM w, LPARAM l) {
    return SendMessageW(list.window, list.combo ? comboMessage : listMessage, w, l);
}

int32_t Count(const List &list) {
    LRESULT n = Send(list, LB_GETCOUNT, CB_GETCOUNT, 0, 0);
    return n < 0 ? 0 : static_cast<int32_t>(n);
}

// The selected row; in a multiple-selection list the first selected one.
int32_t Selection(const List &list) {
    if (!list.multiple)
        return static_cast<int32_t>(Send(list, LB_GETCURSEL, CB_GETCURSEL, 0, 0));
    int first = -1;
    LRESULT n = SendMessageW(list.window, LB_GETSELITEMS, 1, reinterpret_cast<LPARAM>(&first));
    return n == 1 ? first : -1;
}

} // namespace

extern "C" {

int32_t ZKAPI HostListClear(HWND window) {
    List list;
    if (!Resolve(window, list))
        return 0;
    Send(list, LB_RESETCONTENT, CB_RESETCONTENT, 0, 0);
    return 1;
}

int32_t ZKAPI HostListDelete(HWND window, int32_t index) {
    List list;
    if (!Resolve(window, list))
        return 0;
    return Send(list, LB_DELETESTRING, CB_DELETESTRING, static_cast<WPARAM>(index), 0) < 0 ? 0 : 1;
}

int32_t ZKAPI HostListCount(HWND window) {
    List list;
    return Resolve(window, list) ? Count(list) : 0;
}

int32_t ZKAPI HostListGetSelection(HWND window) {
    List list;
    return Resolve(window, list) ? Selection(list) : -1;
}

int32_t ZKAPI HostListIsSelected(HWND window, int32_t index) {
    List list;
    if (!Resolve(window, list) || index < 0 || index >= Count(list))
        return 0;
    if (list.combo)
        return SendMessageW(list.window, CB_GETCURSEL, 0, 0) == index ? 1 : 0;
    return SendMessageW(list.window, LB_GETSEL, static_cast<WPARAM>(index), 0) > 0 ? 1 : 0;
}

// Makes index the only selected row; -1 selects none.
int32_t ZKAPI HostListSetSelection(HWND window, int32_t index) {
    List list;
    if (!Resolve(window, list) || index < -1 || index >= Count(list))
        return 0;
    if (!list.multiple) {
        LRESULT r = Send(list, LB_SETCURSEL, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
        return index == -1 || r != LB_ERR ? 1 : 0;
    }
    SendMessageW(list.window, LB_SETSEL, FALSE, -1);
    if (index == -1)
        return 1;
    if (SendMessageW(list.window, LB_SETSEL, TRUE, index) == LB_ERR)
        return 0;
    SendMessageW(list.window, LB_SETCARETINDEX, static_cast<WPARAM>(index), FALSE);
    return 1;
}

// Adds a row to the selection or takes it out; a list of single selection
// selects the row, or selects none when the row was the selected one.
int32_t ZKAPI HostListSetMultiSelection(HWND window, int32_t index, int32_t select) {
    List list;
    if (!Resolve(window, list) || index < 0 || index >= Count(list))
        return 0;
    if (list.multiple)
        return SendMessageW(list.window, LB_SETSEL, select ? TRUE : FALSE, index) == LB_ERR ? 0 : 1;
    if (select)
        return Send(list, LB_SETCURSEL, CB_SETCURSEL, static_cast<WPARAM>(index), 0) == LB_ERR ? 0 : 1;
    if (Selection(list) == index)
        Send(list, LB_SETCURSEL, CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
    return 1;
}

} // extern "C"
