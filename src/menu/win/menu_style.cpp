// A font or pictures for an item that exists already, and deleting items
// with their records (their ids go back for reuse).
#include "menu/win/menu_checkmarks.h"
#include "menu/win/menu_frames.h"
#include "menu/win/menu_ops.h"
#include "menu/win/menu_paint.h"
#include "menu/win/menu_store.h"
#include "outline/win/pic.h"
#include "zkhost.h"

namespace zk::menu {
namespace {

// What the style functions share up to the record: the opening step, the
// frame's bar refused, the block with room for a record.
struct Target {
    Opening open;
    HLOCAL block = nullptr;
    int32_t id = 0;
    MenuRecord record{}; // the item's record, or a new one
};

bool Reach(HWND window, HMENU menu, int32_t selector, Target &out) {
    if (!Open(window, menu, true, out.open) || (out.open.frame && GetMenu(out.open.frame) == menu))
        return false;
    out.block = EnsureBlock(out.open.frame);
    if (!out.block || !MakeRoom(out.block))
        return false;
    out.id = IdOf(menu, selector);
    if (!ReadRecord(out.block, menu, out.id, out.record))
        out.record = MenuRecord{menu, out.id, 0, nullptr, nullptr, nullptr, nullptr};
    return true;
}

// The item's present text: the record's, else the platform's.
std::u16string PresentText(const MenuRecord &record, HMENU menu, int32_t selector, UINT by) {
    std::u16string text = ReadText(static_cast<HLOCAL>(record.text));
    if (!text.empty())
        return text;
    wchar_t buffer[256] = L"";
    const int length = GetMenuStringW(menu, static_cast<UINT>(selector), buffer, 256, by);
    return length > 0 ? std::u16string(reinterpret_cast<const char16_t *>(buffer), static_cast<size_t>(length))
                      : std::u16string();
}

} // namespace

int32_t SetFont(HWND window, HMENU menu, int32_t selector, HFONT font, const wchar_t *text) {
    Target t;
    if (!Reach(window, menu, selector, t))
        return 0;
    const UINT by = PositionUnlessNegative(selector);
    std::u16string value = TextArgument(text);
    if (value.empty())
        value = PresentText(t.record, menu, selector, by);
    HLOCAL copy = value.empty() ? nullptr : NewText(value);
    if (!value.empty() && !copy)
        return 0;
    // Owner-drawn from now on, with the menu as the data WM_DRAWITEM looks for.
    if (!ModifyMenuW(menu, static_cast<UINT>(selector), by | MF_OWNERDRAW, static_cast<UINT_PTR>(t.id),
                     reinterpret_cast<LPCWSTR>(menu))) {
        FreeText(copy);
        return 0;
    }
    t.record.text = copy;
    t.record.font = font;
    if (!StoreRecord(t.block, t.record)) {
        FreeText(copy);
        return 0;
    }
    if (!value.empty())
        SetText(window, menu, selector, Wide(value));
    return 1;
}

int32_t SetPicture(HWND window, HMENU menu, int32_t selector, INT_PTR picture, INT_PTR selectedPicture,
                   const wchar_t *text) {
    PIC *normal = lbx::PicFromHandle(picture);
    PIC *selected = lbx::PicFromHandle(selectedPicture);
    Target t;
    if (!normal || !selected || !Reach(window, menu, selector, t))
        return 0;
    const std::u16string value = TextArgument(text);
    HLOCAL copy = value.empty() ? nullptr : NewText(value);
    if (!value.empty() && !copy)
        return 0;
    HWND frame = t.open.frame;
    if (ZelMenuInFrame(frame, menu)) {
        const int32_t done = normal->type == lbx::PIC_TypeBitmap
                                 ? HostFrameSetMenuPictureBitmap(frame, t.id, Wide(value), normal->bitmap, normal->mask,
                                                                 normal->width, normal->height)
                                 : HostFrameSetMenuPictureIcon(frame, t.id, Wide(value), normal->icon);
        if (!done) {
            FreeText(copy);
            return 0;
        }
    } else {
        ModifyMenuW(menu, static_cast<UINT>(selector), MF_BYPOSITION, static_cast<UINT_PTR>(t.id), Wide(value));
        HBITMAP bitmap = MakeBackgroundlessBitmap(*normal);
        if (!SetMenuItemBitmaps(menu, static_cast<UINT>(selector), MF_BYPOSITION, bitmap, bitmap)) {
            if (bitmap)
                DeleteObject(bitmap);
            FreeText(copy);
            return 0;
        }
        if (bitmap)
            KeepCheckBitmap(frame, menu, t.id, bitmap);
    }
    t.record.text = copy;
    t.record.picture = normal;
    t.record.selectedPicture = selected;
    if (!StoreRecord(t.block, t.record)) {
        FreeText(copy);
        return 0;
    }
    return 1;
}

int32_t Delete(HWND window, HMENU menu, int32_t selector) {
    if (!IsMenu(menu) || !IsWindow(window))
        return 0;
    HWND owner = window;
    HLOCAL block = BlockOf(window);
    if (!block) {
        owner = GetParent(window);
        block = BlockOf(owner);
    }
    const int32_t recordId = IdOf(menu, selector);
    if (block) {
        // The id as the menu gives it: a popup's comes out as -1, and goes
        // to the free ids like any other.
        const int32_t id = IsPosition(selector) ? static_cast<int32_t>(GetMenuItemID(menu, selector)) : selector;
        WithTable(block, [&](MenuBlock &b, MenuRecord *records) {
            const int32_t at = FindRecord(records, b.count, menu, recordId);
            if (at < 0)
                return;
            FreeText(static_cast<HLOCAL>(records[at].text));
            RemoveRecord(records, b.count, at);
            --b.count;
            if (id == b.lastId) {
                --b.lastId;
            } else if (id != 0 && b.freeIds) {
                try {
                    b.freeIds->AddHead(id);
                } catch (...) {
                    // Without memory the id is simply not reused.
                }
            }
        });
    }
    if (!DeleteMenu(menu, static_cast<UINT>(selector), IsPosition(selector) ? MF_BYPOSITION : MF_BYCOMMAND))
        return 0;
    if (block)
        DropCheckBitmap(owner, menu, recordId);
    HWND frame = IsMenuFrame(window) ? window : ParentFrame(window);
    if (IsMenuFrame(frame))
        HostFrameAttachMenu(frame, MenuHandleOf(window));
    return 1;
}

} // namespace zk::menu
