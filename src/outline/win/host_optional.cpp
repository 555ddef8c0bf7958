#include "outline/win/host_optional.h"

#include "zkhost.h"

namespace zk::lbx {

HWND LbxHostDlgItem(HWND window, int id) { return OrlGetDlgItemEx(window, id); }

bool LbxHostDesignAttributeIs(HWND window, int32_t attribute, int32_t index, const wchar_t *text) {
    HostStr value = 0;
    if (!HostDesignGetAttribute(HostDesignGetOutline(window), HostDesignGetItem(window), attribute, index, &value) ||
        !value) {
        return false;
    }
    int32_t size = 0;
    const wchar_t *chars = HostStrLock(value, &size);
    return chars && lstrcmpiW(chars, text) == 0;
}

namespace {

thread_local HWND inHand = nullptr;

} // namespace

ControlInHand::ControlInHand(HWND control) : previous_(inHand) { inHand = control; }

ControlInHand::~ControlInHand() { inHand = previous_; }

HWND ControlInHandFor(HWND parent, int id) {
    return inHand && GetParent(inHand) == parent && GetDlgCtrlID(inHand) == id ? inHand : nullptr;
}

} // namespace zk::lbx
