// The outline tree beside the rows: making the root, freeing nodes, finding
// text. These touch tree and memory only, never rows: a caller that frees a
// node with a row removes the row first.
#pragma once

#include <cstdint>
#include <string_view>

#include "outline/core/lbx.h"
#include "outline/core/lbx_normalize.h"

namespace zk::lbx {

// One switch for the whole library, not per list: whether tree operations
// turn painting back on when they end. Initially on.
extern bool LbxOutlineRedraw;

// A root for `window`: a node of level -1 with an item of empty text, no
// parent, no row. Null when memory runs out (nothing is left behind).
LbxNode *LbxNewRoot(void *window) noexcept;

// Unlinks a node from its parent and siblings, mends the connector bits of
// the siblings that become first or last and the parent's child bits, then
// frees its subtree, the node and its item. False (nothing changed) unless
// the node has an item, a parent with an item, and its neighbours have items.
bool LbxFreeChild(LbxNode *node) noexcept;

// Frees the children of a node in order, each after its own subtree.
// Stops with false at the first child that cannot be freed.
bool LbxFreeDescendents(LbxNode *node) noexcept;

// Frees a node that has no parent (a root) with everything below it.
void LbxFreeTree(LbxNode *root) noexcept;

// Search modes of LbxFindText.
inline constexpr int LBX_FindWhole = 1;  // whole text, without regard to case
inline constexpr int LBX_FindPrefix = 2; // both sides upper-cased, the search text's length compared

// The node itself, then its subtree depth-first, a parent before its
// children: the first whose text matches. Null when none does or memory runs out.
LbxNode *LbxFindText(LbxNode *node, std::u16string_view text, int mode, LbxCaseRules &rules) noexcept;

} // namespace zk::lbx
