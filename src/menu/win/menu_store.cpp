#include "menu/win/menu_store.h"

#include <cstring>
#include <new>

#include "frame/win/masked_blit.h"
#include "frame/win/propcache.h"
#include "frame/win/window.h"
#include "menu/core/menu_tree.h"
#include "menu/win/menu_checkmarks.h"
#include "menu/win/menu_frames.h"
#include "menu/win/menu_subclass.h"

namespace zk::menu {
namespace {

int failuresDue = 0;
int liveBlocks = 0;
int menuBlocks = 0; // windows that carry a menu block

bool AllocationRefused() {
    if (failuresDue <= 0)
        return false;
    --failuresDue;
    return true;
}

void FreeRecordTexts(MenuRecord *records, int32_t count) {
    for (int32_t i = 0; i < count; ++i) {
        FreeText(static_cast<HLOCAL>(records[i].text));
        records[i].text = nullptr;
    }
}

} // namespace

HLOCAL LocalNew(SIZE_T bytes) {
    if (AllocationRefused())
        return nullptr;
    HLOCAL block = LocalBlockNew(bytes);
    if (block)
        ++liveBlocks;
    return block;
}

HLOCAL LocalGrow(HLOCAL block, SIZE_T bytes) {
    if (AllocationRefused())
        return nullptr;
    return LocalReAlloc(block, bytes, LMEM_MOVEABLE | LMEM_ZEROINIT);
}

void LocalRelease(HLOCAL block) {
    if (block && !LocalFree(block))
        --liveBlocks;
}

void FailLocalAllocations(int count) { failuresDue = count; }
int LiveLocalBlocks() { return liveBlocks; }

HLOCAL NewText(std::u16string_view text) {
    HLOCAL block = LocalNew((text.size() + 1) * sizeof(char16_t));
    if (!block)
        return nullptr;
    LocalPin<char16_t> pin(block);
    if (!pin) {
        LocalRelease(block);
        return nullptr;
    }
    std::memcpy(pin.get(), text.data(), text.size() * sizeof(char16_t));
    pin.get()[text.size()] = u'\0';
    return block;
}

std::u16string ReadText(HLOCAL text) {
    LocalPin<char16_t> pin(text);
    if (!pin)
        return {};
    const size_t limit = LocalSize(text) / sizeof(char16_t);
    size_t n = 0;
    while (n < limit && pin.get()[n])
        ++n;
    return std::u16string(pin.get(), n);
}

void FreeText(HLOCAL text) { LocalRelease(text); }

HLOCAL BlockOf(HWND window) { return window ? static_cast<HLOCAL>(PropGet(window, kMenuProperty)) : nullptr; }

HLOCAL EnsureBlock(HWND frame) {
    if (HLOCAL block = BlockOf(frame))
        return block;
    if (!IsWindow(frame))
        return nullptr;
    HLOCAL block = LocalNew(sizeof(MenuBlock));
    HLOCAL records = block ? LocalNew(kRecordStep * sizeof(MenuRecord)) : nullptr;
    CMenuStack *freeIds = records ? new (std::nothrow) CMenuStack : nullptr;
    WNDPROC old = nullptr;
    if (freeIds && PropSet(frame, kMenuProperty, block)) {
        old = ReplaceProcedure(frame, MenuSubclassProc);
        if (!old)
            PropRemove(frame, kMenuProperty);
    }
    LocalPin<MenuBlock> pin(old ? block : nullptr);
    if (!pin) {
        if (old) {
            SetWindowLongPtrW(frame, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(old));
            PropRemove(frame, kMenuProperty);
        }
        delete freeIds;
        LocalRelease(records);
        LocalRelease(block);
        return nullptr;
    }
    pin->oldProc = reinterpret_cast<void *>(old);
    pin->records = records;
    pin->capacity = kRecordStep;
    pin->count = 0;
    pin->freeIds = freeIds;
    pin->lastId = HighestId(PlatformTree(), FrameMenuOf(frame), 0);
    ++menuBlocks;
    return block;
}

void DestroyBlock(HWND window, HLOCAL block) {
    MenuBlock copy{};
    if (!LocalCopy(block, &copy))
        return;
    if (LocalPin<MenuRecord> records(static_cast<HLOCAL>(copy.records)); records)
        FreeRecordTexts(records.get(), copy.count);
    delete copy.freeIds;
    if (copy.oldProc)
        SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(copy.oldProc));
    LocalRelease(static_cast<HLOCAL>(copy.records));
    LocalRelease(block);
    PropRemove(window, kMenuProperty);
    ForgetCheckBitmaps(window);
    // The drawing's scratch DCs live as long as some window has menu items.
    if (--menuBlocks == 0)
        MaskedBlitRelease();
}

bool MakeRoom(HLOCAL block) {
    LocalPin<MenuBlock> pin(block);
    if (!pin)
        return false;
    if (pin->count < pin->capacity)
        return true;
    const int32_t capacity = pin->capacity + kRecordStep;
    HLOCAL grown = LocalGrow(static_cast<HLOCAL>(pin->records), static_cast<SIZE_T>(capacity) * sizeof(MenuRecord));
    if (!grown)
        return false;
    pin->records = grown;
    pin->capacity = capacity;
    return true;
}

bool StoreRecord(HLOCAL block, const MenuRecord &record) {
    bool stored = false;
    WithTable(block, [&](MenuBlock &b, MenuRecord *records) {
        int32_t at = FindRecord(records, b.count, record.menu, record.id);
        if (at < 0) {
            if (b.count >= b.capacity)
                return;
            at = b.count++;
        } else if (records[at].text != record.text) {
            FreeText(static_cast<HLOCAL>(records[at].text));
        }
        records[at] = record;
        stored = true;
    });
    return stored;
}

bool ReadRecord(HLOCAL block, HMENU menu, int32_t id, MenuRecord &out) {
    bool found = false;
    WithTable(block, [&](MenuBlock &b, MenuRecord *records) {
        const int32_t at = FindRecord(records, b.count, menu, id);
        if (at >= 0) {
            out = records[at];
            found = true;
        }
    });
    return found;
}

} // namespace zk::menu
