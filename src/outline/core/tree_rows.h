// Tree operations that keep the rows of a list in step with the tree:
// showing subtrees, collapsing, moving, demoting and promoting. They work
// on LbxTreeRows, which the platform binds to a list or combo box and
// tests to a store. Each one brackets its work with painting off and turns
// painting on at the end only if LbxOutlineRedraw is set; a failure half
// way leaves painting off.
#pragma once

#include <cstdint>

#include "outline/core/lbx_rows.h"
#include "outline/core/tree_core.h"

namespace zk::lbx {

// ZelListShowOutline's level that shows every node except those marked hidden.
inline constexpr int32_t LBX_LevelAllButHidden = 32766;

// The rows with what the tree operations need beyond LbxRows.
class LbxTreeRows : public LbxRows {
public:
    // Empties the list (LB_RESETCONTENT / CB_RESETCONTENT); the caller holds
    // a keep-items section.
    virtual void Reset() = 0;
    // Room for `count` more rows (LB_INITSTORAGE); a hint only.
    virtual void Reserve(int32_t count) = 0;
    // Whether a row is selected (multi-select: its own state; else the
    // current selection is the row).
    virtual bool IsSelected(int32_t row) = 0;
    // Selects a row again after it moved (HostListSetMultiSelection with 1,
    // or HostListSetSelection).
    virtual void Reselect(int32_t row) = 0;
    // The caret row when the control has the focus, else -1.
    virtual int32_t FocusCaret() = 0;
    // The window the rows belong to (HWND), stored in nodes that get a row.
    virtual void *Window() = 0;
};

// Gives a node and its subtree rows from `row` on. The node takes `row`;
// its children take the rows after it one by one, each child with children
// showing its own subtree from its row the same way. The numbering does not
// step over the rows such a subtree made, and a hidden leaf still uses up a
// number, so below the first level the rows interleave: a node A with a
// child B (child B1) and a leaf C gives A, B, C, B1. Each node that gets a
// row takes the list's window and has its selection restored; expansion
// bits stay. The number of rows made; 0 if the node is hidden, a child with
// children is hidden, or the list refuses a row (also one numbered past the
// end).
int32_t LbxShowRows(LbxTreeRows &rows, int32_t row, LbxNode *node);

// Shows every descendant of a row's node that is marked hidden, at the row
// the walk has reached; a node not marked hidden counts as having its row
// there already. A node whose children gained a row is marked expanded, any
// other with children loses that bit; the row's node is opened. 1, 0 on failure.
int32_t LbxExpandDescendents(LbxTreeRows &rows, int32_t row);

// Removes the rows below a row's node, keeping their items, which are
// marked hidden and lose LBX_ItemExpanded; the node is marked closed.
// 1, 0 on failure.
int32_t LbxCollapse(LbxTreeRows &rows, int32_t row);

// The node of a row becomes the last child of its previous sibling, which
// takes the two pictures; no row moves. 0 (painting left off) under a closed
// previous sibling that has children. 1, 0 on failure.
int32_t LbxDemote(LbxTreeRows &rows, int32_t row, PIC *normal, PIC *selected);

// The node of a row becomes the sibling after its parent; a parent left
// childless takes the two pictures. Its rows go behind the later siblings,
// which lose the rows of their own children. 1, 0 on failure.
int32_t LbxPromote(LbxTreeRows &rows, int32_t row, PIC *normal, PIC *selected);

// Swaps the node of a row with its next (down) or previous sibling, rows
// and all; the first of the pair loses 0x00060000 and gains LBX_ItemHasNext,
// the second the other way round. 1, 0 on failure.
int32_t LbxMove(LbxTreeRows &rows, int32_t row, bool down);

// Rebuilds all rows from the tree under `root` in pre-order: nodes deeper
// than `limit` are marked hidden; with limit 32766 hidden nodes stay hidden
// (the walk still goes on below them), any other limit shows them. A node
// whose children showed a row is marked expanded, any other with children
// loses that bit. 1, 0 when the top level showed nothing or a row was refused.
int32_t LbxShowOutline(LbxTreeRows &rows, LbxNode *root, int32_t limit);

// The row after a shown node's subtree rows (rows deeper than the node's
// level stepped over): where its next sibling's row stands.
int32_t RowAfterSubtree(LbxTreeRows &rows, int32_t row);

} // namespace zk::lbx
