#include "outline/core/lbx_rows.h"
#include "outline/core/lbx_tree.h"

namespace zk::lbx {

namespace {

// The level of the row at `pos`: false for a row that cannot be read as a
// node (a failure), `end` true past the last row.
bool LevelAt(LbxRows &rows, int32_t pos, int32_t *level, LbxNode **node, bool *end) {
    const std::uintptr_t word = rows.Data(pos);
    *end = word == LbxRows::kNoRow;
    *node = nullptr;
    if (*end) {
        return true;
    }
    LbxNode *n = LbxIsItem(word) ? reinterpret_cast<LbxItem *>(word)->node : nullptr;
    if (!n) {
        return false;
    }
    *node = n;
    *level = n->level;
    return true;
}

} // namespace

int32_t LbxExpand(LbxRows &rows, int32_t row, LbxNode *root) {
    LbxNode *node = row == -1 ? root : LbxRowNode(rows, row);
    if (!node || !node->item) {
        return 0;
    }
    rows.Redraw(false);
    const bool multi = rows.IsMultiSelect();
    int32_t pos = row + 1;
    int32_t count = 0;
    LbxNode *child = node->firstChild;
    while (child) {
        // Rows deeper than the children belong to a child shown before.
        LbxNode *stopper = nullptr;
        for (;;) {
            int32_t level = 0;
            bool end = false;
            if (!LevelAt(rows, pos, &level, &stopper, &end)) {
                return 0;
            }
            if (end || level <= node->level + 1) {
                break;
            }
            ++count;
            ++pos;
        }
        // Siblings up to the stopper have no row yet.
        LbxNode *last = child;
        if (child != stopper) {
            for (LbxNode *sibling = child; sibling && sibling != stopper; sibling = sibling->next) {
                if (rows.Insert(pos, sibling->item) < 0) {
                    return 0;
                }
                LbxItem *item = sibling->item;
                item->flags &= ~LBX_ItemHidden;
                if (sibling->firstChild) {
                    item->flags = (item->flags & ~LBX_ItemExpanded) | LBX_ItemPlus;
                }
                item->flags &= ~LBX_ItemMinus;
                if (item->flags & LBX_ItemSelected) {
                    if (multi) {
                        rows.SetSel(pos, true);
                    } else {
                        item->flags &= ~LBX_ItemSelected;
                    }
                }
                if (sibling->next && sibling->next != stopper) {
                    ++pos;
                    ++count;
                }
                last = sibling;
            }
        }
        child = last->next;
        ++count;
        ++pos;
    }
    if (!rows.IsCombo() && !(rows.Style() & LBX_StyleOutline)) {
        if (const int32_t top = ViewTop(rows, row, count); top >= 0) {
            rows.SetTopIndex(top);
        }
    }
    rows.SetCaret(row);
    node->item->flags = (node->item->flags & ~LBX_ItemPlus) | LBX_ItemExpanded | LBX_ItemMinus;
    if (LbxOutlineRedraw) {
        rows.RedrawOnNoErase();
    }
    return count;
}

int32_t LbxDeleteDescendents(LbxRows &rows, int32_t row) {
    LbxNode *node = LbxRowNode(rows, row);
    if (!node || !node->item) {
        return -1;
    }
    rows.Redraw(false);
    if (!rows.BeginKeepItems()) {
        return -1;
    }
    int32_t last = 0;
    for (;;) {
        LbxNode *below = LbxRowNode(rows, row + 1);
        if (!below || below->level <= node->level) {
            break;
        }
        last = rows.Delete(row + 1);
        if (last <= 0) {
            break; // a row that will not go would be met again and again
        }
    }
    rows.EndKeepItems();
    LbxFreeDescendents(node);
    node->item->flags &= ~(LBX_ItemExpanded | LBX_ItemHasChildren | LBX_ItemMinus);
    if (LbxOutlineRedraw) {
        rows.Redraw(true);
    }
    return last;
}

int32_t LbxDeleteChild(LbxRows &rows, int32_t row) {
    LbxNode *node = LbxRowNode(rows, row);
    if (!node) {
        return -1;
    }
    const bool hadChildren = node->firstChild != nullptr;
    const bool saved = LbxOutlineRedraw;
    if (hadChildren) {
        LbxOutlineRedraw = false;
        rows.Redraw(false);
        LbxDeleteDescendents(rows, row);
    }
    const int32_t result = rows.Delete(row);
    if (hadChildren) {
        LbxOutlineRedraw = saved;
        if (saved) {
            rows.Redraw(true);
        }
    }
    return result;
}

} // namespace zk::lbx
