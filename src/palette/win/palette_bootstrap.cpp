// The form's palette comes into being through the library's outer class
// "ZK:cPalette:10": its bootstrap makes a CDlgPalette at WM_NCCREATE.
#include "palette/win/palette_bootstrap.h"

#include "frame/win/control_create.h"
#include "palette/win/palette_window.h"

namespace zk::pal {

namespace {

struct PaletteBootstrap {
    using Object = CDlgPalette;
    static constexpr const wchar_t *className = kDlgPaletteClass;
    static constexpr BootstrapForm form = BootstrapForm::KeepProcedure;
};

} // namespace

LRESULT CALLBACK DlgPaletteBootstrap(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return BootstrapProcedure<PaletteBootstrap>(window, message, wParam, lParam);
}

} // namespace zk::pal
