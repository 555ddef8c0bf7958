// The drop step of a drag: a node and its subtree leave their rows and
// place in one outline list and take a place, and rows, at a row of the same
// list or of a sibling list.
#include "frame/win/guard.h"
#include "outline/win/lbx_exports.h"
#include "outline/win/lbx_procs.h"
#include "outline/win/tree_ops.h"

namespace zk::lbx {

namespace {

struct Side {
    HWND window = nullptr;
    LbxChild child{};
};

bool OpenList(HWND window, Side *side) {
    LbxKind kind{};
    side->window = window;
    return OpenRows(window, &side->child, &kind) && kind == LbxKind::List;
}

void PaintingOn(HWND window) {
    if (LbxOutlineRedraw) {
        HostWinSetRedraw(window, 1);
    }
}

// Dropping on its own descendant: the source's children first become its
// next siblings, so that the target stays in the tree. Only the first and
// the last child take new connector bits. False when a child has no item,
// or when the source has no next sibling: then the children are lifted all
// the same and the source keeps its bits.
bool LiftChildren(LbxNode *source) {
    LbxNode *parent = source->parent;
    LbxNode *formerNext = source->next;
    LbxNode *first = source->firstChild;
    LbxNode *last = source->lastChild;
    for (LbxNode *c = first; c; c = c->next) {
        if (!c->item) {
            return false;
        }
    }
    // Guard: the source gives up its child links before anything can stop
    // the lifting, so that it never names children that are no longer its own.
    source->firstChild = source->lastChild = nullptr;
    for (LbxNode *c = first; c;) {
        LbxNode *following = c == last ? nullptr : c->next;
        c->parent = parent;
        LbxAddLevel(c, -1);
        if (c == first) {
            source->next = c;
            c->prev = source;
            c->item->flags |= LBX_ConnPrev;
        }
        if (c == last) {
            c->next = formerNext;
            if (formerNext) {
                c->item->flags |= LBX_ItemHasNext;
            }
            if (parent->lastChild == source) {
                parent->lastChild = c;
            }
            if (!formerNext) {
                return false;
            }
            formerNext->prev = c;
        }
        c = following;
    }
    source->item->flags &= ~(LBX_ItemExpanded | LBX_ItemHasChildren | LBX_ItemPlus);
    return true;
}

void LinkAsChild(LbxNode *source, LbxNode *target, int32_t oldLevel) {
    if (const int32_t delta = target->level - source->level + 1) {
        LbxAddLevel(source, delta);
    }
    LbxNode *oldLast = target->lastChild;
    source->parent = target;
    source->prev = oldLast;
    source->next = nullptr;
    if (oldLast) {
        oldLast->next = source;
        oldLast->item->flags |= LBX_ItemHasNext;
    } else {
        target->firstChild = source;
    }
    target->lastChild = source;
    target->item->flags =
        (target->item->flags & ~LBX_ItemPlus) | LBX_ItemExpanded | LBX_ItemHasChildren | LBX_ItemMinus;
    uint32_t &flags = source->item->flags;
    flags = (flags & ~LBX_ItemSelected) | LBX_ItemLeftLine;
    if (!oldLast) {
        flags &= ~0x000E0000u;
    } else {
        flags = (flags & ~LBX_ItemHasNext) | LBX_ConnLast;
    }
    if (oldLevel == 0) {
        flags &= ~LBX_ItemLeftLine; // by the level it came from
    }
}

void LinkAsSibling(LbxNode *source, LbxNode *target, int32_t oldLevel) {
    if (const int32_t delta = target->level - source->level) {
        LbxAddLevel(source, delta);
    }
    LbxNode *oldNext = target->next;
    source->parent = target->parent;
    source->prev = target;
    source->next = oldNext;
    target->next = source;
    if (!oldNext) {
        target->parent->lastChild = source;
        target->item->flags |= LBX_ItemHasNext;
    } else {
        oldNext->prev = source;
    }
    uint32_t &flags = source->item->flags;
    flags = (flags & ~LBX_ItemSelected) | 0x00030000u;
    flags = oldNext ? flags | LBX_ConnMiddle : (flags & ~LBX_ItemHasNext) | 0x00040000u;
    if (oldLevel == 0) {
        flags &= ~LBX_ItemLeftLine;
    }
}

bool ItemOrNone(const LbxNode *node) { return !node || node->item; }

} // namespace

int32_t DragDrop(HWND sourceWindow, int32_t sourceRow, HWND targetWindow, int32_t targetRow, uint16_t mode) {
    Side s, t;
    if (!OpenList(sourceWindow, &s) || !OpenList(targetWindow, &t) || !GetParent(sourceWindow) ||
        GetParent(sourceWindow) != GetParent(targetWindow)) {
        return 0;
    }
    WinTreeRows sourceRows(s.window, s.child, false);
    WinTreeRows targetRows(t.window, t.child, false);
    LbxNode *source = LbxRowNode(sourceRows, sourceRow);
    LbxNode *target = LbxRowNode(targetRows, targetRow);
    if (!source || !target || !source->item || !target->item || !source->parent) {
        return 0;
    }
    // Guard: a node dropped on itself would be linked below itself.
    if (source == target) {
        return 0;
    }
    if (LbxIsDescendant(source, target) && !LiftChildren(source)) {
        return 0;
    }
    // Rows out.
    if (!sourceRows.BeginKeepItems()) {
        return 0;
    }
    HostWinSetRedraw(s.window, 0);
    int32_t removed = 0;
    if (sourceRows.Delete(sourceRow) <= 0) {
        sourceRows.EndKeepItems();
        return 0;
    }
    ++removed;
    for (;;) {
        const std::uintptr_t word = sourceRows.Data(sourceRow);
        if (word == LbxRows::kNoRow) {
            break;
        }
        LbxItem *item = LbxItemOf(word);
        if (!item || !item->node) {
            sourceRows.EndKeepItems();
            return 0;
        }
        if (item->node->level <= source->level || sourceRows.Delete(sourceRow) <= 0) {
            break;
        }
        ++removed;
    }
    sourceRows.EndKeepItems();
    if (s.window == t.window) {
        if (sourceRow < targetRow) {
            targetRow -= removed;
        }
    } else {
        PaintingOn(s.window);
    }
    // Checks, all after the rows have gone.
    LbxNode *targetParent = target->parent;
    if (!source->parent->item || !ItemOrNone(source->next) || !ItemOrNone(source->prev) || !targetParent ||
        !targetParent->item || !ItemOrNone(target->lastChild)) {
        return 0;
    }
    LbxUnlink(source);
    const int32_t oldLevel = source->level;
    int32_t added = 0;
    if (mode & LBX_DropAsChild) {
        const bool saved = LbxOutlineRedraw;
        LbxOutlineRedraw = false;
        added = LbxExpand(targetRows, targetRow, nullptr);
        LbxOutlineRedraw = saved;
        LinkAsChild(source, target, oldLevel);
    } else if (mode & LBX_DropAsSibling) {
        LinkAsSibling(source, target, oldLevel);
    }
    // Without a mode bit the source stays unlinked, with no place in the
    // tree; its rows are made all the same. Rows in, after the target's own
    // subtree; the nodes that get rows take the target window.
    const int32_t pos = RowAfterSubtree(targetRows, targetRow);
    HostWinSetRedraw(t.window, 0);
    const int32_t shown = added + LbxShowRows(targetRows, pos, source);
    if (const int32_t top = ViewTop(targetRows, targetRow, shown); top >= 0) {
        targetRows.SetTopIndex(top);
    }
    targetRows.SetCaret(targetRow);
    PaintingOn(t.window);
    return 1;
}

} // namespace zk::lbx
