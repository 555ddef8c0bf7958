// Property blocks on design items: the designer stores a block's byte image
// as a named property of the control's item (PropBlockStore), the control
// reads it back when it is created (PropBlockLoad).
//
// The host hands back from HostPropGet a buffer one byte shorter than the
// count given to HostPropSet; the writer gives N + 2 bytes for a file of N,
// the reader copies the locked length less one: N again.
#pragma once

#include <windows.h>

#include "controls/core/spin_block.h"
#include "frame/core/block_io.h"
#include "frame/core/memfile.h"
#include "zkhost.h"

namespace zk {

// Names under which the blocks live on design items.
inline constexpr const wchar_t *kPropCalendar = L"ZK:Calendar";
inline constexpr const wchar_t *kPropCalendarCombo = L"ZK:CalendarComboBox";
inline constexpr const wchar_t *kPropColorPalette = L"ZK:ColorPalette";
inline constexpr const wchar_t *kPropColorPaletteCombo = L"ZK:ColorPaletteCombo";
inline constexpr const wchar_t *kPropHeaderList = L"ZK:HeaderListBox";
inline constexpr const wchar_t *kPropHeaderListCombo = L"ZK:CmbHeaderListBox";
inline constexpr const wchar_t *kPropSplitter = L"ZK:Splitter";
inline constexpr const wchar_t *kPropSpinField = L"ZK:SpinField";

// Appends the stored bytes to file: 1 when they were read, 0 when the item
// has no such property, the host gives no buffer, or the file cannot take them.
int PropBlockLoad(HostOutline outline, HostItem item, const wchar_t *propertyName, CMemFile &file) noexcept;

// Stores the file's bytes from its position (seek to 0 first) under the
// name: the host's answer, or 0 when the file is too long or no host buffer
// of the right size is had.
int PropBlockStore(HostOutline outline, HostItem item, const wchar_t *propertyName, CMemFile &file) noexcept;

// Reads the block stored under the name over block. False when there is no
// such property; when there is one, whatever could be read has been, and
// *complete (when given) says whether the block was read to its end.
template <class Block>
bool LoadItemBlock(HostOutline outline, HostItem item, const wchar_t *propertyName, Block &block,
                   bool *complete = nullptr) noexcept {
    if (complete)
        *complete = false;
    try {
        CMemFile file;
        if (PropBlockLoad(outline, item, propertyName, file) != 1)
            return false;
        file.SeekToBegin();
        const bool whole = LoadBlock(file, block);
        if (complete)
            *complete = whole;
        return true;
    } catch (...) {
        return false;
    }
}

// Serialises block and stores it under the name: PropBlockStore's answer,
// or 0 when the block could not be written.
template <class Block>
int StoreItemBlock(HostOutline outline, HostItem item, const wchar_t *propertyName, Block &block) noexcept {
    try {
        CMemFile file;
        StoreBlock(file, block);
        file.SeekToBegin();
        return PropBlockStore(outline, item, propertyName, file);
    } catch (...) {
        return 0;
    }
}

// Whether a window's creation parameter marks a host window with stored
// properties: bit 0 of the byte at offset 4 of what it points to.
bool HasStoredProperties(const CREATESTRUCTW *create) noexcept;

// The block a wrapper loads at WM_CREATE: with stored properties marked and
// a design item known for the window, the block under the name is read over
// block. False when nothing was read (block untouched); *complete as for
// LoadItemBlock.
template <class Block>
bool LoadCreationBlock(HWND window, const CREATESTRUCTW *create, const wchar_t *propertyName, Block &block,
                       bool *complete = nullptr) noexcept {
    if (complete)
        *complete = false;
    if (!HasStoredProperties(create))
        return false;
    const HostOutline outline = HostDesignGetOutline(window);
    const HostItem item = HostDesignGetItem(window);
    if (!item)
        return false;
    return LoadItemBlock(outline, item, propertyName, block, complete);
}

// The spin field's record under "ZK:SpinField". Reading: false when the
// item has no such property; otherwise true, with the record copied over
// block only when the host's locked length is 17.
bool SpinBlockLoad(HostOutline outline, HostItem item, SpinBlock &block) noexcept;
// Writing: the host's answer to HostPropSet, or 0.
int SpinBlockStore(HostOutline outline, HostItem item, const SpinBlock &block) noexcept;

} // namespace zk
