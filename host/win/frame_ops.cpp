// The frame operations the library calls on host frames, and the controls
// tests use to make frames and read what was done to them. Every operation
// on a window that is no frame of the right kind gives 0 and does nothing.
#include <string>

#include "frames.h"
#include "guard.h"
#include "zkhost.h"
#include "zkhostctl.h"

using namespace hostwin;

namespace {

// Copies a text into a caller's buffer of `size` characters; the length of
// the whole text.
int32_t CopyOut(const std::wstring &text, wchar_t *buffer, int32_t size) {
    if (buffer && size > 0) {
        const size_t n = text.size() < static_cast<size_t>(size - 1) ? text.size() : static_cast<size_t>(size - 1);
        text.copy(buffer, n);
        buffer[n] = L'\0';
    }
    return static_cast<int32_t>(text.size());
}

std::wstring Wide(const std::u16string &text) { return std::wstring(text.begin(), text.end()); }
std::u16string Narrow16(const wchar_t *text) {
    return text ? std::u16string(reinterpret_cast<const char16_t *>(text)) : std::u16string();
}
std::wstring Number(int64_t value) { return std::to_wstring(value); }

// Runs body on a frame of the two frame classes; 0 for any other window.
template <class Body>
int32_t OnFrame(HWND window, Body &&body) {
    return Guard<int32_t>(0, [&]() -> int32_t {
        HostFrame *frame = FindMenuFrame(window);
        return frame ? body(*frame) : 0;
    });
}

// The structure's item for a command id, else the one at a position of a menu.
zkh::FrameItem *ItemFor(HostFrame &frame, HMENU menu, int32_t selector, int32_t id) {
    zkh::FrameItem *item = id != -1 ? frame.structure.FindId(id) : nullptr;
    if (!item && selector >= 0)
        item = frame.structure.FindAt(reinterpret_cast<uintptr_t>(menu), selector);
    return item;
}

// GetMenuCheck and GetMenuEnable: 0 for an item the structure lacks.
int32_t GetFlag(HWND window, int32_t id, bool zkh::FrameItem::*member) {
    return OnFrame(window, [&](HostFrame &frame) -> int32_t {
        const zkh::FrameItem *item = frame.structure.FindId(id);
        return item && item->*member ? 1 : 0;
    });
}

// SetMenuCheck and SetMenuEnable: one flag of an item.
int32_t SetFlag(HWND window, HMENU menu, int32_t selector, int32_t id, int32_t flag, const wchar_t *what,
                bool zkh::FrameItem::*member) {
    return OnFrame(window, [&](HostFrame &frame) -> int32_t {
        Log(frame, std::wstring(what) + L"(" + Number(id) + L"," + Number(flag) + L")");
        zkh::FrameItem *item = ItemFor(frame, menu, selector, id);
        if (!item)
            return 0;
        item->*member = flag != 0;
        return 1;
    });
}

int32_t SetPicture(HWND window, int32_t id, const wchar_t *text, const zkh::FramePicture &picture,
                   const wchar_t *what) {
    return OnFrame(window, [&](HostFrame &frame) -> int32_t {
        Log(frame, L"SetMenuPicture(" + Number(id) + L"," + what + L")");
        zkh::FrameItem *item = frame.structure.FindId(id);
        if (!item)
            return 0;
        item->picture = picture;
        if (text && *text)
            item->text = Narrow16(text);
        RepaintBar(frame);
        return 1;
    });
}

} // namespace

extern "C" {

int32_t ZKAPI HostFrameKind(HWND window) {
    return Guard<int32_t>(HOST_FRAME_None, [&] {
        HostFrame *frame = FindFrame(window);
        return frame ? frame->kind : HOST_FRAME_None;
    });
}

HMENU ZKAPI HostFrameGetOurMenuHandle(HWND frame) {
    return Guard<HMENU>(nullptr, [&]() -> HMENU {
        HostFrame *f = FindMenuFrame(frame);
        return f ? f->ourMenu : nullptr;
    });
}

int32_t ZKAPI HostFrameAttachMenu(HWND frame, HMENU menu) {
    return OnFrame(frame, [&](HostFrame &f) -> int32_t {
        Log(f, L"AttachMenu");
        f.ourMenu = menu;
        ReadStructure(f);
        RepaintBar(f);
        return IsMenu(menu) ? 1 : 0;
    });
}

int32_t ZKAPI HostFrameUpdateMenuBar(HWND frame) {
    return OnFrame(frame, [&](HostFrame &f) -> int32_t {
        Log(f, L"UpdateMenuBar");
        RepaintBar(f);
        return 1;
    });
}

int32_t ZKAPI HostFrameUpdateMenuState(HWND frame, int32_t flag) {
    return OnFrame(frame, [&](HostFrame &f) -> int32_t {
        Log(f, L"UpdateMenuState(" + Number(flag) + L")");
        RepaintBar(f);
        return 1;
    });
}

int32_t ZKAPI HostFrameInsertMenu(HWND frame, int32_t id, uint32_t flags) {
    return OnFrame(frame, [&](HostFrame &f) -> int32_t {
        Log(f, L"InsertMenu(" + Number(id) + L")");
        const bool placed = f.structure.Insert(PlatformMenus(), id, flags);
        RepaintBar(f);
        return placed ? 1 : 0;
    });
}

int32_t ZKAPI HostFrameMenuHasItem(HWND frame, int32_t id) {
    return OnFrame(frame, [&](HostFrame &f) -> int32_t { return f.structure.FindId(id) ? 1 : 0; });
}

int32_t ZKAPI HostFrameGetMenuText(HWND frame, INT_PTR key, wchar_t *buffer, int32_t size) {
    CopyOut(std::wstring(), buffer, size);
    return OnFrame(frame, [&](HostFrame &f) -> int32_t {
        const zkh::FrameItem *item = f.structure.FindKey(key);
        return item ? CopyOut(Wide(item->text), buffer, size) : 0;
    });
}

int32_t ZKAPI HostFrameSetMenuText(HWND frame, int32_t id, const wchar_t *text) {
    return OnFrame(frame, [&](HostFrame &f) -> int32_t {
        Log(f, L"SetMenuText(" + Number(id) + L")");
        zkh::FrameItem *item = f.structure.FindId(id);
        if (!item)
            return 0;
        item->text = Narrow16(text);
        return 1;
    });
}

int32_t ZKAPI HostFrameGetMenuCheck(HWND frame, int32_t id) { return GetFlag(frame, id, &zkh::FrameItem::checked); }

int32_t ZKAPI HostFrameSetMenuCheck(HWND frame, HMENU menu, int32_t selector, int32_t id, int32_t flag) {
    return SetFlag(frame, menu, selector, id, flag, L"SetMenuCheck", &zkh::FrameItem::checked);
}

int32_t ZKAPI HostFrameGetMenuEnable(HWND frame, int32_t id) { return GetFlag(frame, id, &zkh::FrameItem::enabled); }

int32_t ZKAPI HostFrameSetMenuEnable(HWND frame, HMENU menu, int32_t selector, int32_t id, int32_t flag) {
    return SetFlag(frame, menu, selector, id, flag, L"SetMenuEnable", &zkh::FrameItem::enabled);
}

int32_t ZKAPI HostFrameSetMenuPictureIcon(HWND frame, int32_t id, const wchar_t *text, HICON icon) {
    ICONINFO info{};
    BITMAP bits{};
    zkh::FramePicture picture{zkh::PictureKind::Icon, reinterpret_cast<uintptr_t>(icon), 0, 0, 0};
    if (icon && GetIconInfo(icon, &info)) {
        if (GetObjectW(info.hbmMask, sizeof(bits), &bits)) {
            picture.width = bits.bmWidth;
            picture.height = info.hbmColor ? bits.bmHeight : bits.bmHeight / 2;
        }
        DeleteObject(info.hbmMask);
        if (info.hbmColor)
            DeleteObject(info.hbmColor);
    }
    return SetPicture(frame, id, text, picture, L"icon");
}

int32_t ZKAPI HostFrameSetMenuPictureBitmap(HWND frame, int32_t id, const wchar_t *text, HBITMAP bitmap, HBITMAP mask,
                                            int32_t width, int32_t height) {
    const zkh::FramePicture picture{zkh::PictureKind::Bitmap, reinterpret_cast<uintptr_t>(bitmap),
                                    reinterpret_cast<uintptr_t>(mask), width, height};
    return SetPicture(frame, id, text, picture, L"bitmap");
}

int32_t ZKAPI HostFrameIsWindowsMenu(HWND frame, HMENU menu) {
    return OnFrame(frame, [&](HostFrame &f) -> int32_t { return IsWindowsMenu(f, menu) ? 1 : 0; });
}

int32_t ZKAPI HostFrameGetWindowsMenuText(HWND frame, int32_t id, wchar_t *buffer, int32_t size) {
    CopyOut(std::wstring(), buffer, size);
    return OnFrame(frame, [&](HostFrame &f) -> int32_t { return CopyOut(WindowsMenuText(f, id), buffer, size); });
}

HWND ZKAPI HostFrameGetRibbonBar(HWND frame) {
    return Guard<HWND>(nullptr, [&]() -> HWND {
        HostFrame *f = FindMenuFrame(frame);
        return f && f->kind == HOST_FRAME_MDIFrame && f->ribbon ? f->bar : nullptr;
    });
}

int32_t ZKAPI HostFrameRibbonInUse(HWND frame) {
    return OnFrame(frame, [&](HostFrame &f) -> int32_t { return f.kind == HOST_FRAME_MDIFrame && f.ribbon ? 1 : 0; });
}

int32_t ZKAPI HostRibbonRefresh(HWND ribbon) {
    return Guard<int32_t>(0, [&]() -> int32_t {
        HostFrame *f = FindMenuFrame(GetParent(ribbon));
        if (!f || !f->ribbon || f->bar != ribbon)
            return 0;
        Log(*f, L"RibbonRefresh");
        RepaintBar(*f);
        return 1;
    });
}

// ---- test controls ----------------------------------------------------------

HWND ZKAPI ZkHostFrameCreate(int32_t kind, HWND parent, const wchar_t *title, HMENU menu, uint32_t options) {
    return Guard<HWND>(nullptr, [&] { return CreateFrame(kind, parent, title, menu, options); });
}

int32_t ZKAPI ZkHostFrameTakeLog(HWND window, wchar_t *buffer, int32_t size) {
    CopyOut(std::wstring(), buffer, size);
    return Guard<int32_t>(-1, [&]() -> int32_t {
        HostFrame *frame = FindFrame(window);
        if (!frame)
            return -1;
        const int32_t length = CopyOut(frame->log, buffer, size);
        if (buffer)
            frame->log.clear();
        return length;
    });
}

int32_t ZKAPI ZkHostFrameMenuPicture(HWND frame, int32_t id) {
    return Guard<int32_t>(-1, [&]() -> int32_t {
        HostFrame *f = FindMenuFrame(frame);
        const zkh::FrameItem *item = f ? f->structure.FindId(id) : nullptr;
        return item ? static_cast<int32_t>(item->picture.kind) : -1;
    });
}

int32_t ZKAPI ZkHostFrameOpenMenu(HWND frame, int32_t position) {
    return OnFrame(frame, [&](HostFrame &f) -> int32_t { return OpenBarItem(f, position) ? 1 : 0; });
}

HWND ZKAPI ZkHostFrameMdiClient(HWND frame) {
    return Guard<HWND>(nullptr, [&]() -> HWND {
        HostFrame *f = FindFrame(frame);
        return f ? f->mdiClient : nullptr;
    });
}

} // extern "C"
