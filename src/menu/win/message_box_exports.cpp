// The message box with buttons of the application's own.
#include <cwchar>
#include <new>

#include "frame/core/livehandles.h"
#include "frame/win/gdi.h"
#include "frame/win/guard.h"
#include "frame/win/localblock.h"
#include "menu/core/message_box_ids.h"
#include "menu/core/message_box_layout.h"
#include "menu/win/message_box_dialog.h"
#include "outline/win/pic.h"

using namespace zk::menu;

namespace {

// A picture handle must name a live icon; bits of the system icons only
// count where no picture is named.
bool IconUsable(INT_PTR icon) {
    if (const zk::lbx::PIC *pic = zk::lbx::PicFromHandle(icon))
        return pic->type == zk::lbx::PIC_TypeIcon || pic->type == zk::lbx::PIC_TypeMemoryIcon;
    return MsgBoxIconOf(static_cast<uint64_t>(icon)) != MsgBoxIcon::Picture;
}

int32_t ShowBox(const wchar_t *text, const wchar_t *caption, INT_PTR icon, HostArray buttons, int32_t count) {
    if (!text || !caption || count <= 0 || !IconUsable(icon))
        return 0;
    zk::Brush brush = zk::SolidBrush(MessageColour);
    HLOCAL block = zk::LocalBlockNew(sizeof(MsgBoxBlock));
    if (!brush || !block) {
        LocalFree(block);
        return 0;
    }
    zk::LocalWith<MsgBoxBlock>(block, [&](MsgBoxBlock &b) {
        b.text = text;
        b.caption = caption;
        b.icon = icon;
        b.buttons = buttons;
        b.buttonCount = count;
        b.textLength = static_cast<int32_t>(std::wcslen(text));
        b.brush = brush;
        b.colour = MessageColour;
    });
    const INT_PTR result = DialogBoxParamW(zk::ModuleInstance, MAKEINTRESOURCEW(IDD_MSGBOX), GetActiveWindow(),
                                           MsgBoxProc, reinterpret_cast<LPARAM>(block));
    LocalFree(block);
    return static_cast<int32_t>(result);
}

} // namespace

extern "C" {

ZelMsgButton ZKAPI ZelMessageLoadButton(const wchar_t *text, uint32_t result) {
    return zk::Quietly(
        [&]() -> ZelMsgButton {
            if (!text)
                return 0;
            auto *button = new (std::nothrow) MsgButton;
            if (!button)
                return 0;
            try {
                button->result = result;
                button->text = text;
                zk::LiveAdd(zk::LiveKind::MessageButton, button);
            } catch (...) {
                delete button;
                return 0;
            }
            return reinterpret_cast<ZelMsgButton>(button);
        },
        [] { return ZelMsgButton{0}; });
}

int32_t ZKAPI ZelMessageFreeButton(ZelMsgButton button) {
    MsgButton *object = ButtonFromHandle(button);
    if (!object)
        return 0;
    zk::LiveRemove(zk::LiveKind::MessageButton, object);
    delete object;
    return 1;
}

int32_t ZKAPI ZelMessageBox(const wchar_t *text, const wchar_t *caption, INT_PTR icon, HostArray buttons,
                            int32_t count) {
    return zk::Quietly([&] { return ShowBox(text, caption, icon, buttons, count); }, [] { return 0; });
}

int32_t ZKAPI ZelMessageSetBkgdColor(COLORREF colour) {
    MessageColour = colour;
    return 1;
}

} // extern "C"
