#include "outline/core/tree_core.h"

#include <new>

namespace zk::lbx {

LbxNode *NextBelow(const LbxNode *node, const LbxNode *current) noexcept {
    if (current->firstChild) {
        return current->firstChild;
    }
    while (current != node && !current->next) {
        current = current->parent;
    }
    return current == node ? nullptr : current->next;
}

void LbxAddLevel(LbxNode *node, int32_t delta) noexcept {
    if (!node) {
        return;
    }
    node->level += delta;
    for (LbxNode *n = NextBelow(node, node); n; n = NextBelow(node, n)) {
        n->level += delta;
    }
}

bool LbxIsDescendant(const LbxNode *node, const LbxNode *candidate) noexcept {
    if (!node || !candidate) {
        return false;
    }
    // Up from the candidate: the same answer as a search below the node, in
    // the depth of the candidate rather than the size of the subtree.
    for (const LbxNode *up = candidate->parent; up; up = up->parent) {
        if (up == node) {
            return true;
        }
    }
    return false;
}

bool LbxCanUnlink(const LbxNode *node) noexcept {
    const LbxNode *parent = node ? node->parent : nullptr;
    return node && node->item && parent && parent->item && (!node->next || node->next->item) &&
           (!node->prev || node->prev->item);
}

bool LbxUnlink(LbxNode *node) noexcept {
    if (!LbxCanUnlink(node)) {
        return false;
    }
    LbxNode *parent = node->parent;
    LbxNode *next = node->next;
    LbxNode *prev = node->prev;
    if (parent->firstChild == node) {
        parent->firstChild = next;
    }
    if (parent->lastChild == node) {
        parent->lastChild = prev;
    }
    if (prev) {
        prev->next = next;
    }
    if (next) {
        next->prev = prev;
    }
    // The neighbours that became first or last take those patterns.
    if (next && !prev) {
        next->item->flags = (next->item->flags | LBX_ConnFirst) & ~LBX_ConnPrev;
        if (next == parent->lastChild) {
            next->item->flags &= ~0x000C0000u;
        }
    }
    if (prev && !next) {
        prev->item->flags = (prev->item->flags | LBX_ConnLast) & ~LBX_ItemHasNext;
        if (prev == parent->firstChild) {
            prev->item->flags &= ~0x000E0000u;
        }
    }
    if (!parent->firstChild) {
        parent->item->flags &= ~(LBX_ItemHasChildren | LBX_ItemExpanded);
    }
    node->parent = node->next = node->prev = nullptr;
    return true;
}

namespace {

// A node and item with the fields of a load; null when memory runs out.
LbxNode *NewNode(void *window, std::u16string_view text, const LoadFields &fields, uint32_t style,
                 LbxCaseRules &rules) noexcept {
    LbxNode *node = nullptr;
    LbxItem *item = nullptr;
    try {
        node = new LbxNode();
        item = new LbxItem();
        item->text.assign(text);
        LbxNormalizeText(style, item->text, rules);
    } catch (...) {
        delete node;
        delete item;
        return nullptr;
    }
    item->picNormal = fields.normal;
    item->picSelected = fields.selected;
    item->value = fields.value;
    item->flags = fields.flags;
    item->node = node;
    node->item = item;
    node->window = window;
    return node;
}

} // namespace

LbxNode *LbxLoadChild(LbxNode *parent, void *window, std::u16string_view text, const LoadFields &fields, uint32_t style,
                      LbxCaseRules &rules) noexcept {
    if (!parent || !parent->item) {
        return nullptr;
    }
    LbxNode *node = NewNode(window, text, fields, style, rules);
    if (!node) {
        return nullptr;
    }
    LbxNode *oldLast = parent->lastChild;
    node->level = parent->level + 1;
    node->parent = parent;
    node->prev = oldLast;
    if (oldLast) {
        oldLast->next = node;
    }
    if (!parent->firstChild) {
        parent->firstChild = node;
    }
    parent->lastChild = node;
    parent->item->flags = (parent->item->flags & ~LBX_ItemMinus) | LBX_ItemHasChildren | LBX_ItemPlus;
    // As first child 0x00090000 even when it stays the only one.
    uint32_t &flags = node->item->flags;
    flags |= oldLast ? LBX_ConnLast : LBX_ConnFirst;
    if (node->level == 0) {
        flags &= ~LBX_ItemLeftLine;
    }
    if (oldLast && oldLast->item) {
        oldLast->item->flags |= LBX_ItemHasNext;
    }
    return node;
}

LbxNode *LbxLoadSibling(LbxNode *sibling, void *window, std::u16string_view text, const LoadFields &fields,
                        uint32_t style, LbxCaseRules &rules) noexcept {
    if (!sibling || !sibling->item || !sibling->parent) {
        return nullptr;
    }
    LoadFields hidden = fields;
    hidden.flags |= 0x020F0000u;
    LbxNode *node = NewNode(window, text, hidden, style, rules);
    if (!node) {
        return nullptr;
    }
    LbxNode *parent = sibling->parent;
    node->level = sibling->level;
    node->parent = parent;
    node->prev = sibling;
    node->next = sibling->next;
    if (sibling->next) {
        sibling->next->prev = node;
    } else {
        sibling->item->flags |= LBX_ItemHasNext;
        node->item->flags &= ~LBX_ItemHasNext;
        parent->lastChild = node;
    }
    sibling->next = node;
    return node;
}

LbxNode *LbxFindValue(LbxNode *node, int32_t value) noexcept {
    if (!node) {
        return nullptr;
    }
    for (LbxNode *n = node; n; n = NextBelow(node, n)) {
        if (n->item && n->item->value == value) {
            return n;
        }
    }
    return nullptr;
}

} // namespace zk::lbx
