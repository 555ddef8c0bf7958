// Item flags by handle: a request on the bits that stand for rows (hidden,
// deleted, selected, expanded) acts on the rows; the bits are stored after.
#include "frame/win/host.h"
#include "outline/win/lbx_procs.h"
#include "outline/win/tree_ops.h"

namespace zk::lbx {

namespace {

struct Target {
    HWND window = nullptr;
    LbxChild child{};
    bool combo = false;
    bool multi = false;
};

void PaintingOn(HWND window) {
    if (window && LbxOutlineRedraw) {
        HostWinSetRedraw(window, 1);
    }
}

// Where a node without a row gets one: after its previous sibling's row,
// else before its next sibling's row. -1 (no insertion) for an only child
// and when that sibling has no row.
int32_t InsertionRow(HWND window, bool combo, const LbxNode *node) {
    if (node->prev) {
        const int32_t row = LbxItemIndex(window, combo, node->prev);
        return row < 0 ? -1 : row + 1;
    }
    if (node->next) {
        return LbxItemIndex(window, combo, node->next);
    }
    return -1;
}

void Select(const Target &t, int32_t row, bool select) {
    if (t.multi) {
        SendMessageW(t.window, LB_SETSEL, select ? TRUE : FALSE, row);
    } else {
        SendMessageW(t.window, t.combo ? CB_SETCURSEL : LB_SETCURSEL, static_cast<WPARAM>(select ? row : -1), 0);
    }
}

} // namespace

int32_t SetItemFlagsNode(LbxNode *node, uint32_t mask, int32_t set) {
    Target t;
    t.window = static_cast<HWND>(node->window);
    LbxKind kind{};
    const bool adopted = t.window && IsWindow(t.window) && OpenRows(t.window, &t.child, &kind);
    LbxItem *item = node->item;
    if (!adopted) {
        // No list to show it in: the bits alone.
        item->flags = set ? item->flags | mask : item->flags & ~mask;
        return 1;
    }
    t.combo = kind == LbxKind::Combo;
    t.multi = LbxIsMultiSelect(t.window, t.combo);
    WinTreeRows rows(t.window, t.child, t.combo);
    // On a combo box this is the current selection, whatever the node.
    int32_t row = LbxItemIndex(t.window, t.combo, node);
    HostWinSetRedraw(t.window, 0);
    if (set && row >= 0) {
        if (mask & LBX_ItemDeleted) {
            LbxDeleteChild(rows, row);
            PaintingOn(t.window);
            return 1;
        }
        if (mask & LBX_ItemHidden) {
            if ((item->flags & LBX_ItemExpanded) && (item->flags & LBX_ItemHasChildren)) {
                LbxCollapse(rows, row);
            }
            if (!RemoveRowKeepItem(t.window, row)) {
                PaintingOn(t.window);
                return 0;
            }
            row = -1;
        } else {
            // Setting any other bit on a shown row drops its selection.
            Select(t, row, (mask & LBX_ItemSelected) != 0);
        }
    }
    if (set && (row < 0 || (item->flags & LBX_ItemHidden)) && !(mask & LBX_ItemHidden)) {
        const LbxNode *parent = node->parent;
        // Guard: the root has no parent whose bits could be read.
        if (parent && parent->item && (parent->item->flags & LBX_ItemExpanded)) {
            const int32_t at = InsertionRow(t.window, t.combo, node);
            if (at >= 0) {
                const int32_t made = rows.Insert(at, item);
                if (made < 0) {
                    PaintingOn(t.window);
                    return 0;
                }
                row = made;
                item->flags &= ~LBX_ItemHidden;
            }
        }
    }
    if (set) {
        if (mask & LBX_ItemExpanded) {
            // Row -1 (no row) names the root here, as it does for the export.
            LbxExpand(rows, row, row == LBX_RootRow ? LbxRootOf(t.window) : nullptr);
        }
        item->flags |= mask;
    } else {
        // Clearing the expanded bit leaves the rows; clearing any other closes the node.
        if (!(mask & LBX_ItemExpanded)) {
            LbxCollapse(rows, row);
        }
        item->flags &= ~mask;
    }
    if ((mask & 0xFF000000u) && row >= 0) {
        RedrawRow(t.window, t.combo, row, RDW_INVALIDATE);
    }
    PaintingOn(t.window);
    return 1;
}

} // namespace zk::lbx
