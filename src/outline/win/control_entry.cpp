// The common entry of the list box and combo box procedures.
#include "frame/win/host.h"
#include "frame/win/localblock.h"
#include "outline/win/host_optional.h"
#include "outline/win/lbx_procs.h"

namespace zk::lbx {

LRESULT ControlEntry(const wchar_t *name, LbxDispatch dispatch, UINT (*twin)(UINT), HWND window, UINT message,
                     WPARAM wParam, LPARAM lParam) {
    LbxChild child{};
    if (!zk::LocalCopy(ChildHandle(window), &child)) {
        return DefWindowProcW(window, message, wParam, lParam);
    }
    const ControlInHand inHand(window);
    try {
        return dispatch(child, window, twin(message), wParam, lParam);
    } catch (...) {
        ZelReportError(52, name);
        return 0;
    }
}

} // namespace zk::lbx
