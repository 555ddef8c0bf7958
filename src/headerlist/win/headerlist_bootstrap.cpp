// The form's header list comes into being through the library's outer class
// "ZK:cListView:10": its bootstrap makes a CDlgHeaderLB at WM_NCCREATE.
#include "headerlist/win/headerlist_bootstrap.h"

#include "frame/win/control_create.h"
#include "headerlist/win/headerlist_wrapper.h"

namespace zk::hdr {

namespace {

struct HeaderListBootstrap {
    using Object = CDlgHeaderLB;
    static constexpr const wchar_t *className = kDlgHeaderLBClass;
    static constexpr BootstrapForm form = BootstrapForm::AttachOrSubclass;
};

} // namespace

LRESULT CALLBACK DlgHeaderLBBootstrap(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return BootstrapProcedure<HeaderListBootstrap>(window, message, wParam, lParam);
}

} // namespace zk::hdr
