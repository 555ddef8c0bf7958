// New items: the id each gets (a freed one first, else one above every id
// the frame's menu holds), the platform insert, the host frame's share of
// it, and the record, written last so a failure leaves the table as it was.
#include "menu/core/menu_tree.h"
#include "menu/win/menu_frames.h"
#include "menu/win/menu_ops.h"
#include "menu/win/menu_store.h"
#include "outline/win/pic.h"
#include "zkhost.h"

namespace zk::menu {
namespace {

// The id an insert will use, taken from the block only once the item is in.
struct NewId {
    int32_t id = 0;
    bool freed = false; // the head of the free ids
};

bool PlanId(HWND frame, HLOCAL block, HMENU menu, bool systemMenu, bool walk, NewId &out) {
    LocalPin<MenuBlock> pin(block);
    if (!pin)
        return false;
    if (pin->freeIds && !pin->freeIds->IsEmpty()) {
        out = {pin->freeIds->Head(), true};
        return true;
    }
    int32_t last = pin->lastId;
    if (walk) {
        // Each new id walks the whole tree: items the application or the
        // host added meanwhile must not be given their id again.
        if (systemMenu)
            last = HighestId(PlatformTree(), menu, last);
        else if (HMENU frameMenu = FrameMenuOf(frame))
            last = HighestId(PlatformTree(), frameMenu, last);
    }
    pin->lastId = last;
    out = {last + 1, false};
    return true;
}

void CommitId(HLOCAL block, const NewId &id) {
    LocalPin<MenuBlock> pin(block);
    if (!pin)
        return;
    if (id.freed && pin->freeIds)
        pin->freeIds->RemoveHead();
    else if (!id.freed)
        pin->lastId = id.id;
}

UINT PositionFlag(int32_t position) { return InsertsByPosition(position) ? MF_BYPOSITION : 0; }

// The steps every insert shares: the opening step, the block with room for
// one more record, and the frame's bar refused where it must be.
struct Prepared {
    Opening open;
    HLOCAL block = nullptr;
};

bool Prepare(HWND window, HMENU menu, bool parentFrameTest, bool barRefused, Prepared &out) {
    if (!Open(window, menu, parentFrameTest, out.open))
        return false;
    if (barRefused && out.open.frame && GetMenu(out.open.frame) == menu)
        return false;
    out.block = EnsureBlock(out.open.frame);
    return out.block && MakeRoom(out.block);
}

bool Finish(HLOCAL block, const NewId &id, const MenuRecord &record) {
    CommitId(block, id);
    return StoreRecord(block, record);
}

// The host frame's picture for an item in its tree.
int32_t FramePicture(HWND frame, int32_t id, const std::u16string &text, const PIC &picture) {
    if (picture.type == lbx::PIC_TypeBitmap)
        return HostFrameSetMenuPictureBitmap(frame, id, Wide(text), picture.bitmap, picture.mask, picture.width,
                                             picture.height);
    return HostFrameSetMenuPictureIcon(frame, id, Wide(text), picture.icon);
}

} // namespace

int32_t Insert(HWND window, HMENU menu, int32_t position, const wchar_t *text, int16_t flags) {
    Prepared p;
    if (!Prepare(window, menu, true, false, p))
        return 0;
    NewId id;
    if (!PlanId(p.open.frame, p.block, menu, p.open.systemMenu, true, id))
        return 0;
    const std::u16string value = TextArgument(text);
    const auto bits = static_cast<uint16_t>(flags);
    const UINT platformFlags = (bits & 0x7FFFu) | PositionFlag(position);
    if (!InsertMenuW(menu, static_cast<UINT>(position), platformFlags, static_cast<UINT_PTR>(id.id), Wide(value)))
        return 0;
    HWND frame = p.open.frame;
    if (GetMenu(frame) == menu) {
        DrawMenuBar(frame);
    } else if (ZelMenuInFrame(frame, menu)) {
        if (!(bits & kInsertNoAttach))
            HostFrameAttachMenu(frame, HostFrameGetOurMenuHandle(frame));
        HostFrameInsertMenu(frame, id.id, platformFlags);
    }
    Finish(p.block, id, MenuRecord{menu, id.id, kRecordReported, nullptr, nullptr, nullptr, nullptr});
    return id.id;
}

int32_t InsertFont(HWND window, HMENU menu, int32_t position, HFONT font, const wchar_t *text) {
    Prepared p;
    if (!Prepare(window, menu, false, true, p))
        return 0;
    const std::u16string value = TextArgument(text);
    HLOCAL copy = NewText(value);
    NewId id;
    if (!copy || !PlanId(p.open.frame, p.block, menu, p.open.systemMenu, false, id)) {
        FreeText(copy);
        return 0;
    }
    if (!InsertMenuW(menu, static_cast<UINT>(position), MF_STRING | PositionFlag(position),
                     static_cast<UINT_PTR>(id.id), Wide(value))) {
        FreeText(copy);
        return 0;
    }
    Finish(p.block, id, MenuRecord{menu, id.id, kRecordReported, copy, nullptr, nullptr, font});
    return id.id;
}

int32_t InsertPicture(HWND window, HMENU menu, int32_t position, INT_PTR picture, INT_PTR selectedPicture,
                      const wchar_t *text) {
    PIC *normal = lbx::PicFromHandle(picture);
    PIC *selected = lbx::PicFromHandle(selectedPicture);
    Prepared p;
    if (!normal || !selected || !Prepare(window, menu, true, true, p))
        return 0;
    const std::u16string value = TextArgument(text);
    HLOCAL copy = value.empty() ? nullptr : NewText(value);
    NewId id;
    if ((!value.empty() && !copy) || !PlanId(p.open.frame, p.block, menu, p.open.systemMenu, false, id)) {
        FreeText(copy);
        return 0;
    }
    HWND frame = p.open.frame;
    const UINT where = PositionFlag(position);
    BOOL inserted;
    if (ZelMenuInFrame(frame, menu)) {
        inserted = InsertMenuW(menu, static_cast<UINT>(position), MF_STRING | where, static_cast<UINT_PTR>(id.id),
                               Wide(value));
        if (inserted) {
            HostFrameAttachMenu(frame, HostFrameGetOurMenuHandle(frame));
            HostFrameInsertMenu(frame, id.id, MF_STRING | where);
            FramePicture(frame, id.id, value, *normal);
        }
    } else {
        // The menu handle as the item's data: WM_DRAWITEM finds the record by it.
        inserted = InsertMenuW(menu, static_cast<UINT>(position), MF_OWNERDRAW | where, static_cast<UINT_PTR>(id.id),
                               reinterpret_cast<LPCWSTR>(menu));
    }
    if (!inserted) {
        FreeText(copy);
        return 0;
    }
    Finish(p.block, id, MenuRecord{menu, id.id, kRecordReported, copy, normal, selected, nullptr});
    return id.id;
}

} // namespace zk::menu
