// The host operations the lists ask of the host's forms and designer: the
// named lookup of a control by id (which can find a control of another
// owner) and a design item's attribute.
#pragma once

#include <windows.h>

#include <cstdint>

namespace zk::lbx {

// OrlGetDlgItemEx.
HWND LbxHostDlgItem(HWND window, int id);

// Designer attribute `attribute`, index `index` of the window's design item,
// compared with `text` without regard to case. False when the window has no
// design item or the attribute cannot be read.
bool LbxHostDesignAttributeIs(HWND window, int32_t attribute, int32_t index, const wchar_t *text);

// The control whose procedure is running on this thread, for the parent's
// handlers of the row messages it causes (WM_MEASUREITEM, WM_DELETEITEM):
// they name the control by id only, and finding it by id is a search of the
// parent's children (a server round trip under Wine) for every row added.
class ControlInHand {
public:
    explicit ControlInHand(HWND control);
    ~ControlInHand();
    ControlInHand(const ControlInHand &) = delete;
    ControlInHand &operator=(const ControlInHand &) = delete;

private:
    HWND previous_;
};

// The control in hand when it is the parent's control of that id, else 0.
HWND ControlInHandFor(HWND parent, int id);

} // namespace zk::lbx
