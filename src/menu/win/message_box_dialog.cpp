#include "menu/win/message_box_dialog.h"

#include <optional>
#include <vector>

#include "frame/core/livehandles.h"
#include "frame/win/gdi.h"
#include "frame/win/localblock.h"
#include "frame/win/propcache.h"
#include "menu/core/message_box_ids.h"
#include "menu/core/message_box_layout.h"
#include "outline/win/pic.h"

namespace zk::menu {

COLORREF MessageColour = 0x00FFFFFF;

MsgButton *ButtonFromHandle(INT_PTR handle) noexcept {
    return IsLive(LiveKind::MessageButton, static_cast<std::uintptr_t>(handle)) ? reinterpret_cast<MsgButton *>(handle)
                                                                                : nullptr;
}

namespace {

std::u16string_view View(const wchar_t *text, size_t length) {
    return {reinterpret_cast<const char16_t *>(text), length};
}

class DcMeasure final : public MsgBoxMeasure {
public:
    explicit DcMeasure(HDC dc) : dc_(dc) {}
    // The text handed in is the block's, so its terminator follows it.
    Extent Line(std::u16string_view text) const override {
        SIZE size{};
        GetTextExtentPointW(dc_, Wide(text), static_cast<int>(text.size()) + 1, &size);
        return {size.cx, size.cy};
    }
    Extent Wrapped(std::u16string_view text, int32_t width) const override {
        RECT r{0, 0, width, 0};
        DrawTextW(dc_, Wide(text), static_cast<int>(text.size()), &r, DT_CALCRECT | DT_WORDBREAK | DT_EXPANDTABS);
        return {r.right - r.left, r.bottom - r.top};
    }
    int32_t ButtonText(std::u16string_view caption) const override {
        SIZE size{};
        GetTextExtentPoint32W(dc_, Wide(caption), static_cast<int>(caption.size()), &size);
        return size.cx;
    }

private:
    static const wchar_t *Wide(std::u16string_view text) { return reinterpret_cast<const wchar_t *>(text.data()); }
    HDC dc_;
};

// The word at a place of the button array: a button handle, perhaps with
// bit 0 set; 0 where the array has no number.
INT_PTR ButtonWord(HostArray buttons, int32_t place) {
    int32_t low = 0, high = -1;
    HostArrayGetBounds(buttons, &low, &high);
    HostNumber number{};
    double value = 0;
    if (low + place > high || !HostArrayGetNumber(buttons, &number, low + place) ||
        !HostNumberToDouble(&number, &value) || value < 2 || value > 9.0e15)
        return 0;
    return static_cast<INT_PTR>(value);
}

MsgButton *ButtonAt(HostArray buttons, int32_t place, bool *isDefault = nullptr) {
    const INT_PTR word = ButtonWord(buttons, place);
    if (isDefault)
        *isDefault = (word & 1) != 0;
    return word ? ButtonFromHandle(word & ~INT_PTR{1}) : nullptr;
}

HICON IconOf(INT_PTR selector) {
    if (lbx::PIC *pic = lbx::PicFromHandle(selector))
        return pic->icon;
    switch (MsgBoxIconOf(static_cast<uint64_t>(selector))) {
    case MsgBoxIcon::Asterisk:
        return LoadIconW(nullptr, IDI_ASTERISK);
    case MsgBoxIcon::Hand:
        return LoadIconW(nullptr, IDI_HAND);
    case MsgBoxIcon::Question:
        return LoadIconW(nullptr, IDI_QUESTION);
    case MsgBoxIcon::Exclamation:
        return LoadIconW(nullptr, IDI_EXCLAMATION);
    default:
        return nullptr;
    }
}

MsgBoxMetrics SystemMetrics() {
    const LONG units = GetDialogBaseUnits();
    MsgBoxMetrics m;
    m.baseX = LOWORD(units);
    m.baseY = HIWORD(units);
    m.iconWidth = GetSystemMetrics(SM_CXICON);
    m.iconHeight = GetSystemMetrics(SM_CYICON);
    m.frameX = GetSystemMetrics(SM_CXDLGFRAME);
    m.frameY = GetSystemMetrics(SM_CYDLGFRAME);
    m.caption = GetSystemMetrics(SM_CYCAPTION);
    m.screenWidth = GetSystemMetrics(SM_CXFULLSCREEN);
    m.screenHeight = GetSystemMetrics(SM_CYFULLSCREEN);
    return m;
}

bool InitDialog(HWND dialog, HLOCAL blockHandle) {
    MsgBoxBlock block{};
    if (!LocalCopy(blockHandle, &block) || !block.text || !block.caption)
        return false;
    HWND iconControl = GetDlgItem(dialog, IDC_MSGBOX_ICON);
    HWND textControl = GetDlgItem(dialog, IDC_MSGBOX_TEXT);
    const HICON icon = IconOf(block.icon);

    std::vector<MsgButton *> buttons;
    std::vector<std::optional<std::u16string_view>> captions;
    for (int32_t place = 0; place < block.buttonCount; ++place) {
        MsgButton *button = ButtonAt(block.buttons, place);
        buttons.push_back(button);
        captions.push_back(button ? std::optional(View(button->text.data(), button->text.size())) : std::nullopt);
    }

    MsgBoxLayout layout;
    {
        ClientDC dc(dialog);
        if (!dc)
            return false;
        Selected font(dc, reinterpret_cast<HGDIOBJ>(SendMessageW(dialog, WM_GETFONT, 0, 0)));
        layout = LayOutMessageBox(SystemMetrics(), icon != nullptr, View(block.text, block.textLength), captions,
                                  DcMeasure(dc));
    }

    const Rect &d = layout.dialog;
    SetWindowPos(dialog, nullptr, d.left, d.top, d.Width(), d.Height(), SWP_NOZORDER | SWP_NOACTIVATE);
    SetWindowPos(iconControl, nullptr, layout.icon.x, layout.icon.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    if (icon)
        SendMessageW(iconControl, STM_SETICON, reinterpret_cast<WPARAM>(icon), 0);
    else
        ShowWindow(iconControl, SW_HIDE);
    const Rect &t = layout.text;
    SetWindowPos(textControl, nullptr, t.left, t.top, t.Width(), t.Height(), SWP_NOZORDER);
    SetWindowTextW(dialog, block.caption);
    SetWindowTextW(textControl, block.text);

    const int32_t count = block.buttonCount;
    for (int32_t place = 0; place < count; ++place) {
        bool isDefault = false;
        MsgButton *button = ButtonAt(block.buttons, place, &isDefault);
        if (!button)
            continue;
        const int32_t id = MsgBoxButtonId(button->result, place, count);
        button->controlId = static_cast<uint32_t>(id);
        HWND control =
            CreateWindowExW(0, L"button", button->text.c_str(), WS_CHILD | WS_VISIBLE | WS_GROUP | WS_TABSTOP,
                            layout.buttonX[place], layout.buttonY, layout.buttonWidth, layout.buttonHeight, dialog,
                            reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), ModuleInstance, nullptr);
        if (!control)
            return false;
        if (isDefault)
            PostMessageW(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), 1);
    }
    DeleteMenu(GetSystemMenu(dialog, FALSE), SC_CLOSE, MF_BYCOMMAND);
    return PropSet(dialog, kMsgBoxProp, blockHandle);
}

INT_PTR Command(HWND dialog, WPARAM wParam) {
    MsgBoxBlock block{};
    if (HIWORD(wParam) != 0 || !LocalCopy(PropGet(dialog, kMsgBoxProp), &block))
        return FALSE;
    for (int32_t place = 0; place < block.buttonCount; ++place) {
        const MsgButton *button = ButtonAt(block.buttons, place);
        if (button && button->controlId == LOWORD(wParam)) {
            EndDialog(dialog, static_cast<INT_PTR>(static_cast<int32_t>(button->result)));
            return TRUE;
        }
    }
    return FALSE;
}

// The dialog and its statics on the box's colour; other controls as the
// system draws them.
INT_PTR Colour(HWND dialog, UINT message, HDC dc, HWND control) {
    MsgBoxBlock block{};
    const bool ours =
        message == WM_CTLCOLORDLG ? control == dialog : message == WM_CTLCOLORSTATIC && GetParent(control) == dialog;
    if (!ours || !LocalCopy(PropGet(dialog, kMsgBoxProp), &block))
        return 0;
    SetBkColor(dc, block.colour);
    return reinterpret_cast<INT_PTR>(block.brush);
}

} // namespace

INT_PTR CALLBACK MsgBoxProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    try {
        switch (message) {
        case WM_INITDIALOG:
            return InitDialog(dialog, reinterpret_cast<HLOCAL>(lParam)) ? TRUE : FALSE;
        case WM_COMMAND:
            return Command(dialog, wParam);
        case WM_DESTROY:
            PropRemove(dialog, kMsgBoxProp);
            return FALSE;
        default:
            if (message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC)
                return Colour(dialog, message, reinterpret_cast<HDC>(wParam), reinterpret_cast<HWND>(lParam));
            return FALSE;
        }
    } catch (...) {
        return FALSE;
    }
}

} // namespace zk::menu
