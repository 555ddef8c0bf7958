// The frame window's menu block ("ZK:Menu") and its records, in moveable
// local memory: made with the first item the library adds (which also
// subclasses the window), locked only for the length of an access, freed
// at WM_DESTROY. Item texts live in local blocks of their own.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

#include "frame/win/localblock.h"
#include "menu/core/menu_model.h"

namespace zk::menu {

inline constexpr const wchar_t *kMenuProperty = L"ZK:Menu";

// The block of a window, or null.
HLOCAL BlockOf(HWND window);
// The block of a window, made (and the window subclassed) when missing;
// null when it cannot be made, with nothing left behind.
HLOCAL EnsureBlock(HWND frame);
// Takes everything of the block down and puts the old procedure back.
void DestroyBlock(HWND window, HLOCAL block);

// The block and its records locked for one access: f(MenuBlock &, MenuRecord *).
// False when either will not lock.
template <class F>
bool WithTable(HLOCAL block, F &&f) {
    LocalPin<MenuBlock> pin(block);
    if (!pin || !pin->records)
        return false;
    LocalPin<MenuRecord> records(static_cast<HLOCAL>(pin->records));
    if (!records)
        return false;
    f(*pin, records.get());
    return true;
}

// Room for one more record: grows the records by ten when they are full.
// False when memory runs out; the table is then as it was.
bool MakeRoom(HLOCAL block);
// Writes a record over the one of (menu, id), or appends it. Room must
// have been made. The text it replaces is freed.
bool StoreRecord(HLOCAL block, const MenuRecord &record);
// A copy of the record of (menu, id); false when there is none.
bool ReadRecord(HLOCAL block, HMENU menu, int32_t id, MenuRecord &out);

// ---- texts ------------------------------------------------------------------
// A moveable block holding the text and its terminator; null without memory.
HLOCAL NewText(std::u16string_view text);
std::u16string ReadText(HLOCAL text);
void FreeText(HLOCAL text);

// ---- local memory -------------------------------------------------------------
// Moveable, zero-initialised blocks, each allocation countable and (for
// tests) made to fail on demand.
HLOCAL LocalNew(SIZE_T bytes);
HLOCAL LocalGrow(HLOCAL block, SIZE_T bytes);
void LocalRelease(HLOCAL block);
// The next `count` allocations and growths fail.
void FailLocalAllocations(int count);
// Blocks the menu extensions hold now.
int LiveLocalBlocks();

} // namespace zk::menu
