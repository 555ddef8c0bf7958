// The steps of the outline exports that live in the static library: each
// export file runs one of these under its frame (zk::Quietly or zk::Guarded)
// and turns what is thrown into its failure value.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string_view>

#include "outline/core/lbx.h"
#include "outline/win/listfn_target.h"
#include "zklib.h"

namespace zk::lbx {

// ZelListSetStyle: adopts the control (and its parent) or changes its style.
int32_t SetStyle(HWND window, uint32_t style, CREATESTRUCTW *create);

// ZelListDragDrop: the node of a source row and its subtree to a target row.
int32_t DragDrop(HWND sourceWindow, int32_t sourceRow, HWND targetWindow, int32_t targetRow, uint16_t mode);

// ZelFontEnum: printer fonts, then screen fonts, into the two host arrays.
int32_t FontEnum(uint32_t selection, HostArray names, HostArray types);

// ZelListArrayPopulate(Value): the values come from `numbers` when `withValues` is set.
int32_t Populate(HWND window, HostArray strings, bool withValues, HostArray numbers);

// ZelListDeleteSelected on a list or combo box.
int32_t DeleteSelected(const LbxTarget &t);

// ZelListGetText and ZelListSetText: a row's text of any length; an adopted
// row keeps its item where the text fits, a plain row is replaced.
HostStr GetText(HWND window, int32_t row);
int32_t SetAdoptedText(const LbxChild &child, const LbxTarget &t, int32_t row, std::u16string_view text);
int32_t SetPlainText(const LbxTarget &t, int32_t row, const wchar_t *text);

// ZelListFindValue: the first row after `start` with the value, wrapping round.
int32_t FindValue(const LbxTarget &target, int32_t start, int32_t value);

// A row of an adopted control and its item, read through the base procedure.
struct FoundRow {
    HWND window = nullptr;
    bool combo = false;
    LbxItem *item = nullptr;
};
bool FindRow(HWND window, int32_t row, FoundRow *out);
// Asks the parent for the row's height and applies it. False when the parent
// did not answer; *oldHeight is the row's height before (0 for a combo box,
// whose rows have no rectangle here).
bool Remeasure(const FoundRow &r, int32_t row, bool lowWord, LONG *oldHeight, UINT *newHeight);
// ZelListDisableItem and ZelListEnableItem.
int32_t EnableRow(HWND window, int32_t row, COLORREF colour, bool disable);

// The next node to list below `node` after `current` (null: the first).
using NextNode = LbxNode *(*)(LbxNode *node, LbxNode *current);
// Every node `next` gives below the handle's node into the host array, as
// whole addresses; the count, or 0 for a handle that is no live node or a
// host array that refused an element.
int32_t EnumerateInto(ZelItemHandle handle, HostArray array, NextNode next);

// Pictures from handles: 0 is none; a handle that is no live picture fails.
bool PicturesOf(ZelPicHandle normal, ZelPicHandle selected, PIC **normalPic, PIC **selectedPic);
// ZelListLoadChildren: one child of the parent handle per element of the three arrays.
int32_t LoadMany(HWND window, ZelItemHandle parentHandle, ZelPicHandle normal, ZelPicHandle selected, HostArray texts,
                 HostArray values, HostArray flags);

} // namespace zk::lbx
