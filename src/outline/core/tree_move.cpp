// Moving a node among its relatives: demote, promote, and the swap with a
// neighbour. The rows of a moved subtree are taken out and made again.
#include "outline/core/tree_rows.h"

namespace zk::lbx {

namespace {

void RedrawAtEnd(LbxTreeRows &rows) {
    if (LbxOutlineRedraw) {
        rows.Redraw(true);
    }
}

bool HasItemOrNone(const LbxNode *node) { return !node || node->item; }

// Removes the rows of a node's subtree at `row`, keeping the items. False
// without a parent record (nothing removed).
bool TakeRows(LbxTreeRows &rows, int32_t row, const LbxNode *node) {
    if (!rows.BeginKeepItems()) {
        return false;
    }
    rows.Delete(row);
    for (LbxNode *n = LbxRowNode(rows, row); n && n->level > node->level; n = LbxRowNode(rows, row)) {
        if (rows.Delete(row) <= 0) {
            break;
        }
    }
    rows.EndKeepItems();
    return true;
}

} // namespace

int32_t LbxDemote(LbxTreeRows &rows, int32_t row, PIC *normal, PIC *selected) {
    LbxNode *node = row == 0 ? nullptr : LbxRowNode(rows, row);
    LbxNode *prev = node ? node->prev : nullptr;
    if (!node || !node->item || !prev || !node->parent || !prev->item) {
        return 0;
    }
    rows.Redraw(false);
    // A closed previous sibling is not opened here; painting stays off.
    if (prev->firstChild && !(prev->item->flags & LBX_ItemExpanded)) {
        return 0;
    }
    LbxNode *formerLast = prev->lastChild;
    LbxNode *next = node->next;
    if (!HasItemOrNone(formerLast) || !HasItemOrNone(next)) {
        return 0;
    }
    LbxAddLevel(node, 1);
    LbxNode *parent = node->parent;
    if (parent->lastChild == node) {
        parent->lastChild = prev;
    }
    if (!prev->firstChild) {
        prev->firstChild = node;
    }
    prev->lastChild = node;
    prev->next = next;
    prev->item->picNormal = normal;
    prev->item->picSelected = selected;
    prev->item->flags = (prev->item->flags & ~LBX_ItemPlus) | LBX_ItemExpanded | LBX_ItemHasChildren | LBX_ItemMinus;
    if (formerLast) {
        formerLast->next = node;
        formerLast->item->flags |= LBX_ItemHasNext;
    }
    if (next) {
        next->prev = prev;
    }
    node->parent = prev;
    node->next = nullptr;
    node->prev = formerLast;
    if (formerLast) {
        node->item->flags = (node->item->flags & ~LBX_ItemHasNext) | LBX_ConnLast;
    } else {
        node->item->flags = (node->item->flags & ~0x000E0000u) | LBX_ItemLeftLine;
    }
    // The node's row already follows its new parent's rows: none move.
    RedrawAtEnd(rows);
    return 1;
}

int32_t LbxPromote(LbxTreeRows &rows, int32_t row, PIC *normal, PIC *selected) {
    LbxNode *node = LbxRowNode(rows, row);
    if (!node || !node->item || node->level <= 0) {
        return 0;
    }
    LbxNode *parent = node->parent;
    if (!parent || !parent->item || !parent->parent || !HasItemOrNone(node->prev) || !HasItemOrNone(node->next)) {
        return 0;
    }
    LbxNode *grand = parent->parent;
    rows.Redraw(false);
    if (node->next) {
        // The node's rows go behind all later siblings. Those siblings lose
        // the rows of their own children; their nodes are left as they are.
        if (!rows.BeginKeepItems()) {
            return 0;
        }
        rows.Delete(row);
        int32_t pos = row;
        int32_t last = row;
        for (LbxNode *n = LbxRowNode(rows, pos); n && n->level >= node->level; n = LbxRowNode(rows, pos)) {
            if (n->level == node->level) {
                last = ++pos;
            } else if (rows.Delete(pos) <= 0) {
                break;
            }
        }
        rows.EndKeepItems();
        LbxShowRows(rows, pos, node);
        if (rows.IsMultiSelect()) {
            rows.SetCaret(last);
        }
    }
    LbxAddLevel(node, -1);
    LbxNode *prev = node->prev;
    LbxNode *next = node->next;
    const bool wasFirst = parent->firstChild == node;
    const bool wasLast = parent->lastChild == node;
    if (prev) {
        prev->next = next;
        if (wasLast) {
            prev->item->flags &= ~LBX_ItemHasNext;
        }
    }
    if (next) {
        next->prev = prev;
    }
    LbxNode *parentNext = parent->next;
    node->parent = grand;
    node->next = parentNext;
    node->prev = parent;
    node->item->flags |= LBX_ConnMiddle;
    if (!node->next) {
        node->item->flags &= ~LBX_ItemHasNext;
    }
    if (node->level == 0) {
        node->item->flags &= ~LBX_ItemLeftLine;
    }
    if (wasFirst) {
        parent->firstChild = next;
    }
    if (wasLast) {
        parent->lastChild = prev;
    }
    if (!parent->firstChild) {
        parent->item->flags &= ~(LBX_ItemExpanded | LBX_ItemHasChildren | LBX_ItemPlus | LBX_ItemMinus);
        parent->item->picNormal = normal;
        parent->item->picSelected = selected;
    }
    parent->next = node;
    parent->item->flags |= LBX_ItemHasNext;
    if (grand->lastChild == parent) {
        grand->lastChild = node;
    }
    if (parentNext) {
        parentNext->prev = node;
    }
    RedrawAtEnd(rows);
    return 1;
}

int32_t LbxMove(LbxTreeRows &rows, int32_t row, bool down) {
    LbxNode *node = LbxRowNode(rows, row);
    LbxNode *sibling = node ? (down ? node->next : node->prev) : nullptr;
    if (!sibling || !node->parent || !node->item || !sibling->item) {
        return 0;
    }
    const bool selected = rows.IsSelected(row);
    const int32_t caret = rows.FocusCaret();
    rows.Redraw(false);
    if (!TakeRows(rows, row, node)) {
        return 0;
    }
    // Down: past the next sibling's rows. Up: back over deeper rows to the
    // previous sibling's row.
    int32_t pos = down ? row + 1 : row - 1;
    for (LbxNode *n = LbxRowNode(rows, pos); n && n->level > node->level; n = LbxRowNode(rows, pos)) {
        pos += down ? 1 : -1;
    }
    if (!LbxShowRows(rows, pos, node)) {
        return 0;
    }
    if (selected) {
        rows.Reselect(pos);
    }
    if (caret >= 0 && !rows.IsCombo()) {
        rows.SetCaret(pos);
    }
    RedrawAtEnd(rows);
    // Swap the pair in the sibling chain: `a` before `b` afterwards.
    LbxNode *a = down ? sibling : node;
    LbxNode *b = down ? node : sibling;
    LbxNode *parent = node->parent;
    LbxNode *before = b->prev;
    LbxNode *after = a->next;
    a->prev = before;
    a->next = b;
    b->prev = a;
    b->next = after;
    if (before) {
        before->next = a;
    } else {
        parent->firstChild = a;
    }
    if (after) {
        after->prev = b;
    } else {
        parent->lastChild = b;
    }
    // The pair's own connector bits, as first and last of the two.
    a->item->flags = (a->item->flags & ~LBX_ConnPrev) | LBX_ItemHasNext;
    b->item->flags = (b->item->flags | LBX_ConnPrev) & ~LBX_ItemHasNext;
    return 1;
}

} // namespace zk::lbx
