// The form's splitter comes into being through the library's outer class
// "ZK:cSplitter:10": its bootstrap makes a CDlgSplitter at WM_NCCREATE.
#include "controls/win/controls_bootstrap.h"

#include "controls/win/splitter_window.h"
#include "frame/win/control_create.h"

namespace zk::ctl {

namespace {

struct SplitterBootstrap {
    using Object = CDlgSplitter;
    static constexpr const wchar_t *className = kDlgSplitterClass;
    static constexpr BootstrapForm form = BootstrapForm::AttachOrSubclass;
};

uint32_t SysColor(int32_t index) { return GetSysColor(index); }

} // namespace

void BindControlsToHost() { BindSplitterColours(&SysColor); }

LRESULT CALLBACK DlgSplitterBootstrap(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return BootstrapProcedure<SplitterBootstrap>(window, message, wParam, lParam);
}

} // namespace zk::ctl
