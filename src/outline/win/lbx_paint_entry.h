// What the window procedures ask of the item painting: the painting side
// implements this function; LbxParentWndProc only calls it.
#pragma once

#include <windows.h>

namespace zk::lbx {

// WM_DRAWITEM at the parent of an adopted list (the whole paint of a row).
// True: the message is answered with *result. False: the paint asks to be
// forwarded (no "ZK:ChildLbx" on the control, a brush or tab-stop failure),
// and the caller passes the message to the parent's former procedure.
bool LbxDrawItem(HWND parent, const DRAWITEMSTRUCT *request, LRESULT *result);

} // namespace zk::lbx
