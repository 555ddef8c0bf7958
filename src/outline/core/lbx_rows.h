// The rows of a list as the tree operations see them. The platform binds
// this to the list and combo box messages (rows read through the base
// procedure, inserts through ZKM_LbxInsertRow); tests bind it to a store.
#pragma once

#include <cstdint>

#include "outline/core/lbx.h"

namespace zk::lbx {

class LbxRows {
public:
    virtual ~LbxRows() = default;

    // The data word of a row as the base procedure answers it: the item's
    // address, 0, a foreign value, or kNoRow past the end.
    static constexpr std::uintptr_t kNoRow = ~std::uintptr_t{0};
    virtual std::uintptr_t Data(int32_t row) = 0;
    // A new row for an existing item at `row` (-1: the end); the new row's
    // number, negative when the list refuses.
    virtual int32_t Insert(int32_t row, LbxItem *item) = 0;
    // Removes a row (HostListDelete): the delete notification frees its item
    // unless a keep-items section is open. 1 done, 0 failed.
    virtual int32_t Delete(int32_t row) = 0;
    // Opens a section in which removed rows keep their items
    // (LBX_ParentKeepItems on the parent record); false when the parent
    // record cannot be found, and then nothing is open.
    virtual bool BeginKeepItems() = 0;
    virtual void EndKeepItems() = 0;

    virtual bool IsCombo() = 0;
    virtual bool IsMultiSelect() = 0;
    virtual uint32_t Style() = 0;

    virtual void SetSel(int32_t row, bool select) = 0; // multi-select lists
    virtual void SetCurSel(int32_t row) = 0;           // LB_SETCURSEL or CB_SETCURSEL
    virtual void SetCaret(int32_t row) = 0;            // LB_SETCARETINDEX
    virtual void SetTopIndex(int32_t row) = 0;         // LB_SETTOPINDEX
    // Rows in view (ZelListGetVisibleRange): the count, with first and last.
    virtual int32_t VisibleRange(int32_t *first, int32_t *last) = 0;

    // Painting off or on (HostWinSetRedraw).
    virtual void Redraw(bool on) = 0;
    // Painting on with background erasing suppressed meanwhile.
    virtual void RedrawOnNoErase() = 0;
};

// The item of a row, or null for past the end, 0 and foreign words.
inline LbxItem *LbxRowItem(LbxRows &rows, int32_t row) {
    const std::uintptr_t word = rows.Data(row);
    return LbxIsItem(word) ? reinterpret_cast<LbxItem *>(word) : nullptr;
}

// The node of a row's item, or null.
inline LbxNode *LbxRowNode(LbxRows &rows, int32_t row) {
    LbxItem *item = LbxRowItem(rows, row);
    return item ? item->node : nullptr;
}

// The view step after rows were shown below a row: when the `count` rows
// after `row` pass the last row in view, the top row that brings them in
// without moving `row` out, else -1.
inline int32_t ViewTop(LbxRows &rows, int32_t row, int32_t count) {
    int32_t first = 0, last = 0;
    rows.VisibleRange(&first, &last);
    if (count + row <= last) {
        return -1;
    }
    const int32_t top = first - last + count + row;
    return top < row ? top : row;
}

// Shows the children of a row's node (row -1: of `root`), stepping over
// rows that are already there; sets the expanded bits and moves the caret.
// The count of rows below the node, 0 on failure (painting then stays off).
int32_t LbxExpand(LbxRows &rows, int32_t row, LbxNode *root);

// Removes the rows below a row's node keeping their items, then frees the
// node's descendants. The result of the last removal, 0 if none, -1 on failure.
int32_t LbxDeleteDescendents(LbxRows &rows, int32_t row);

// Removes a row and, through the delete notification, its item and node;
// its descendants go first. The result of the removal, -1 on failure.
int32_t LbxDeleteChild(LbxRows &rows, int32_t row);

} // namespace zk::lbx
