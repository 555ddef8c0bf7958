// Showing and hiding subtrees: rows made for nodes, rows taken away with
// their items kept.
#include "outline/core/tree_rows.h"

#include <vector>

namespace zk::lbx {

namespace {

// A node that was selected is selected again on its new row.
void Reselect(LbxTreeRows &rows, const LbxNode *node, int32_t row) {
    if (node->item->flags & LBX_ItemSelected) {
        if (rows.IsMultiSelect()) {
            rows.SetSel(row, true);
        } else {
            rows.SetCurSel(row);
        }
    }
}

// A row for a node at `row`; the node belongs to this list now. The new
// row's number, negative when the list refuses.
int32_t ShowOne(LbxTreeRows &rows, LbxNode *node, int32_t row) {
    const int32_t made = rows.Insert(row, node->item);
    if (made >= 0) {
        node->window = rows.Window();
        Reselect(rows, node, made);
    }
    return made;
}

void RedrawAtEnd(LbxTreeRows &rows) {
    if (LbxOutlineRedraw) {
        rows.Redraw(true);
    }
}

bool Hidden(const LbxNode *node) { return (node->item->flags & LBX_ItemHidden) != 0; }

// One node being shown with its children: the row numbers go on from `r`
// one per child, whatever rows a child's own children took.
struct ShowFrame {
    LbxNode *child;
    int32_t r;
    int32_t made;
};

// The children of `parent` being walked, and whether any of them got a row.
struct ChainFrame {
    LbxNode *parent;
    LbxNode *child;
    bool shown;

    // A finished chain opens its parent when it showed a row, else closes it.
    void MarkParent() const {
        if (shown) {
            parent->item->flags |= LBX_ItemExpanded;
        } else {
            parent->item->flags &= ~LBX_ItemExpanded;
        }
    }
};

} // namespace

int32_t LbxShowRows(LbxTreeRows &rows, int32_t row, LbxNode *node) {
    if (!node || !node->item || Hidden(node)) {
        return 0;
    }
    const int32_t first = ShowOne(rows, node, row);
    if (first < 0) {
        return 0;
    }
    // Without recursion, so that a deep tree cannot exhaust the stack.
    std::vector<ShowFrame> stack{{node->firstChild, first, 1}};
    for (;;) {
        ShowFrame &top = stack.back();
        LbxNode *child = top.child;
        if (!child) {
            const int32_t made = top.made;
            stack.pop_back();
            if (stack.empty()) {
                return made;
            }
            stack.back().made += made;
            continue;
        }
        top.child = child->next;
        const int32_t r = ++top.r;
        if (!child->item) {
            return 0; // a node without its item cannot be shown
        }
        if (child->firstChild) {
            // A child with children is shown as a subtree of its own at `r`;
            // a failure there (also a hidden child) fails the whole.
            if (Hidden(child)) {
                return 0;
            }
            const int32_t at = ShowOne(rows, child, r);
            if (at < 0) {
                return 0;
            }
            stack.push_back({child->firstChild, at, 1});
            continue;
        }
        // A hidden leaf still uses up its row number.
        if (!Hidden(child)) {
            if (ShowOne(rows, child, r) < 0) {
                return 0;
            }
            ++top.made;
        }
    }
}

int32_t LbxShowOutline(LbxTreeRows &rows, LbxNode *root, int32_t limit) {
    if (!root || !root->item) {
        return 0;
    }
    rows.Redraw(false);
    if (!rows.BeginKeepItems()) {
        return 0;
    }
    rows.Reset();
    rows.EndKeepItems();
    const bool keepHidden = limit == LBX_LevelAllButHidden;
    std::vector<ChainFrame> stack{{root, root->firstChild, false}};
    bool shownTop = false;
    while (!stack.empty()) {
        ChainFrame &top = stack.back();
        LbxNode *n = top.child;
        if (!n) {
            const ChainFrame done = top;
            stack.pop_back();
            if (stack.empty()) {
                shownTop = done.shown;
            } else {
                done.MarkParent();
            }
            continue;
        }
        top.child = n->next;
        LbxItem *item = n->item;
        if (!item) {
            continue; // a node without its item has nothing to show
        }
        if (n->level > limit) {
            item->flags |= LBX_ItemHidden;
        } else if (!(keepHidden && (item->flags & LBX_ItemHidden))) {
            const int32_t at = rows.Insert(-1, item);
            if (at < 0) {
                return 0;
            }
            item->flags &= ~LBX_ItemHidden;
            top.shown = true;
            Reselect(rows, n, at);
        }
        // Hidden or not, the walk goes on below: deeper nodes are marked too.
        if (n->firstChild) {
            stack.push_back({n, n->firstChild, false});
        }
    }
    if (!shownTop) {
        return 0;
    }
    rows.SetCaret(0);
    RedrawAtEnd(rows);
    return 1;
}

int32_t LbxExpandDescendents(LbxTreeRows &rows, int32_t row) {
    LbxNode *node = LbxRowNode(rows, row);
    if (!node || !node->item) {
        return 0;
    }
    rows.Redraw(false);
    int32_t pos = row + 1;
    int32_t count = 0;
    std::vector<ChainFrame> stack{{node, node->firstChild, false}};
    while (!stack.empty()) {
        ChainFrame &top = stack.back();
        LbxNode *n = top.child;
        if (!n) {
            const ChainFrame done = top;
            stack.pop_back();
            if (stack.empty()) {
                break; // the row's own node is opened below
            }
            done.MarkParent();
            continue;
        }
        top.child = n->next;
        if (!n->item) {
            return 0;
        }
        // Only a node marked hidden gets a row; any other is taken to have
        // its row at `pos` already.
        if (n->item->flags & LBX_ItemHidden) {
            if (rows.Insert(pos, n->item) < 0) {
                return 0;
            }
            Reselect(rows, n, pos);
            n->item->flags &= ~LBX_ItemHidden;
            top.shown = true;
        }
        ++pos;
        ++count;
        if (n->firstChild) {
            stack.push_back({n, n->firstChild, false});
        }
    }
    if (!(rows.Style() & LBX_StyleOutline)) {
        if (const int32_t target = ViewTop(rows, row, count); target >= 0) {
            if (rows.IsCombo()) {
                rows.SetCurSel(target);
                rows.SetCurSel(row);
            } else {
                rows.SetTopIndex(target);
            }
        }
    }
    node->item->flags = (node->item->flags & ~LBX_ItemPlus) | LBX_ItemExpanded | LBX_ItemMinus;
    if (LbxOutlineRedraw) {
        rows.RedrawOnNoErase();
    }
    return 1;
}

int32_t LbxCollapse(LbxTreeRows &rows, int32_t row) {
    LbxNode *node = LbxRowNode(rows, row);
    if (!node || !node->item) {
        return 0;
    }
    rows.Redraw(false);
    if (!rows.BeginKeepItems()) {
        return 0;
    }
    for (;;) {
        LbxNode *below = LbxRowNode(rows, row + 1);
        if (!below || below->level <= node->level || rows.Delete(row + 1) <= 0) {
            break;
        }
        // Reopening shows one level again.
        below->item->flags = (below->item->flags | LBX_ItemHidden) & ~LBX_ItemExpanded;
    }
    rows.EndKeepItems();
    node->item->flags = (node->item->flags & ~(LBX_ItemExpanded | LBX_ItemMinus)) | LBX_ItemPlus;
    RedrawAtEnd(rows);
    return 1;
}

int32_t RowAfterSubtree(LbxTreeRows &rows, int32_t row) {
    LbxNode *node = LbxRowNode(rows, row);
    int32_t pos = row + 1;
    if (!node) {
        return pos;
    }
    for (LbxNode *n = LbxRowNode(rows, pos); n && n->level > node->level; n = LbxRowNode(rows, pos)) {
        ++pos;
    }
    return pos;
}

} // namespace zk::lbx
