// Tree steps of the outline that touch no row: levels, ancestry, the
// connector bits of siblings, linking and unlinking, loading new nodes and
// finding by value. Every walk here is iterative and linear in the subtree.
#pragma once

#include <cstdint>
#include <string_view>

#include "outline/core/lbx_normalize.h"
#include "outline/core/lbx_tree.h"

namespace zk::lbx {

// Connector patterns of a node among its siblings (LbxItem.flags).
inline constexpr uint32_t LBX_ConnOnly = 0x00010000u;   // only child: LeftLine
inline constexpr uint32_t LBX_ConnFirst = 0x00090000u;  // first of several: LeftLine | HasNext
inline constexpr uint32_t LBX_ConnMiddle = 0x000F0000u; // all four
inline constexpr uint32_t LBX_ConnLast = 0x00070000u;   // LeftLine | PrevA | PrevB
inline constexpr uint32_t LBX_ConnPrev = 0x00060000u;   // PrevA | PrevB

// Adds `delta` to the level of a node and of every node below it.
void LbxAddLevel(LbxNode *node, int32_t delta) noexcept;

// Whether `candidate` lies below `node` (not the node itself).
bool LbxIsDescendant(const LbxNode *node, const LbxNode *candidate) noexcept;

// Pre-order over the subtree below `node` (the node itself excluded):
// the node after `current`, or null at the end.
LbxNode *NextBelow(const LbxNode *node, const LbxNode *current) noexcept;

// Whether a node can be unlinked: it has an item, a parent with an item,
// and its neighbours have items.
bool LbxCanUnlink(const LbxNode *node) noexcept;
// Takes a node with its subtree out of its parent's children without
// freeing anything: the parent's first and last child, the neighbours' links
// and connector bits are mended; a parent left childless loses
// LBX_ItemHasChildren and LBX_ItemExpanded. The node keeps its own links to
// nothing (parent, next, prev null). False (nothing changed) unless LbxCanUnlink.
bool LbxUnlink(LbxNode *node) noexcept;

// What a new node carries.
struct LoadFields {
    PIC *normal = nullptr;
    PIC *selected = nullptr;
    int32_t value = 0;
    uint32_t flags = 0;
};

// A new last child of `parent` without a row (ZelListLoadChild after the
// text is chosen): the text stored and normalised by `style`; the parent's
// item loses LBX_ItemMinus and gains LBX_ItemHasChildren and LBX_ItemPlus.
// A new only child gets 0x00090000 as a first child of several: kept so.
// Null (nothing changed) without a parent item or memory.
LbxNode *LbxLoadChild(LbxNode *parent, void *window, std::u16string_view text, const LoadFields &fields, uint32_t style,
                      LbxCaseRules &rules) noexcept;

// A new node right after `sibling`, hidden (flags ORed with 0x020F0000; a
// new last sibling without LBX_ItemHasNext). Null (nothing changed) when
// the sibling has no parent or memory runs out.
LbxNode *LbxLoadSibling(LbxNode *sibling, void *window, std::u16string_view text, const LoadFields &fields,
                        uint32_t style, LbxCaseRules &rules) noexcept;

// The node itself, then its subtree in pre-order: the first whose value is
// `value`. Null if none.
LbxNode *LbxFindValue(LbxNode *node, int32_t value) noexcept;

} // namespace zk::lbx
