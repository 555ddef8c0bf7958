// The palette window: its messages, unpacked and handed to the input
// machine and the model.
#include "palette/win/palette_window.h"

#include <commdlg.h>

#include "frame/win/crack.h"
#include "frame/win/host.h"
#include "frame/win/startup.h"

namespace zk::pal {

CColorPalette::CColorPalette() : input_(model_, layout_, *this, *this, stateFlags) {
    model_.AttachView(this, this, &layout_);
}

CColorPalette::~CColorPalette() { model_.AttachView(nullptr, nullptr, nullptr); }

bool CColorPalette::Create(const RECT &rect, HWND parent, HWND notify) {
    if (notify)
        SetNotifyWindow(notify);
    EnsureClass(kColorPaletteClass);
    return CreateEx(0, kColorPaletteClass, L"", kPalettePopupStyle, rect.left, rect.top, rect.right - rect.left,
                    rect.bottom - rect.top, parent, nullptr) != nullptr;
}

std::u16string CColorPalette::LoadText(uint32_t id) const {
    const std::wstring text = zk::LoadText(id);
    return std::u16string(text.begin(), text.end());
}

LRESULT CColorPalette::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const Point at = MousePoint(lParam);
    switch (message) {
    case WM_CREATE:
        return OnCreate();
    case WM_SETFONT:
        ReplaceFont(reinterpret_cast<HFONT>(wParam));
        model_.LayoutChanged(1);
        return 0;
    case WM_KEYDOWN:
        return input_.KeyDown(KeyCode(wParam)) ? 0 : Default();
    case WM_SYSKEYDOWN:
        return input_.SysKeyDown(KeyCode(wParam)) ? 0 : Default();
    case WM_LBUTTONDOWN:
        input_.LButtonDown(at.x, at.y);
        return 0;
    case WM_MOUSEMOVE:
        input_.MouseMove(at.x, at.y);
        return 0;
    case WM_LBUTTONUP:
        input_.LButtonUp(at.x, at.y);
        return 0;
    case WM_LBUTTONDBLCLK:
        input_.LButtonDblClk(at.x, at.y);
        return 0;
    case WM_CANCELMODE:
        return CancelMode(input_);
    case WM_SETFOCUS:
        return FocusGained(input_);
    case WM_KILLFOCUS: {
        const LRESULT result = Default();
        input_.FocusLost();
        return result;
    }
    case ZKM_PaletteCommand:
        return OnPaletteCommand();
    default:
        return CGenericControl::WindowProc(message, wParam, lParam);
    }
}

// Id 0 is the other-colour entry's; any other id is the application's,
// which sees the message.
LRESULT CColorPalette::OnPaletteCommand() {
    if (CurrentMessage().lParam != 0 || !model_.RecentEnabled())
        return Default();
    ChooseOtherColor();
    return 0;
}

void CColorPalette::ChooseOtherColor() {
    // The dialog's custom colours live as long as the library, as the
    // framework's colour dialog keeps them.
    static COLORREF customColours[16] = {0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF,
                                         0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF,
                                         0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF};
    HWND window = GetSafeHwnd();
    CHOOSECOLORW choice{};
    choice.lStructSize = sizeof choice;
    choice.hwndOwner = GetParent(window);
    choice.rgbResult = model_.DialogInitialColor();
    choice.lpCustColors = customColours;
    const BOOL chosen = ChooseColorW(&choice);
    if (!IsWindow(window))
        return; // the window went while the dialog was up
    if (model_.DropDown())
        InvalidateRect(GetParent(window), nullptr, TRUE);
    if (chosen)
        model_.OtherColorChosen(choice.rgbResult);
}

} // namespace zk::pal
