// The rows of an adopted list or combo box, for the tree operations of the
// core: read through the base procedure, inserted through ZKM_LbxInsertRow,
// removed through the host.
#pragma once

#include "outline/core/lbx_rows.h"
#include "outline/win/lbx_win.h"

namespace zk::lbx {

class WinRows final : public LbxRows {
public:
    WinRows(HWND window, const LbxChild &child, bool combo) : window_(window), child_(child), combo_(combo) {}

    std::uintptr_t Data(int32_t row) override { return LbxBaseRow(child_, window_, combo_, row); }
    int32_t Insert(int32_t row, LbxItem *item) override;
    int32_t Delete(int32_t row) override;
    bool BeginKeepItems() override;
    void EndKeepItems() override;
    bool IsCombo() override { return combo_; }
    bool IsMultiSelect() override;
    uint32_t Style() override { return child_.style; }
    void SetSel(int32_t row, bool select) override;
    void SetCurSel(int32_t row) override;
    void SetCaret(int32_t row) override;
    void SetTopIndex(int32_t row) override;
    int32_t VisibleRange(int32_t *first, int32_t *last) override;
    void Redraw(bool on) override;
    void RedrawOnNoErase() override;

private:
    HWND window_;
    LbxChild child_;
    bool combo_;
    HLOCAL keeping_ = nullptr;
};

// Rows in view of a list box (ZelListGetVisibleRange): from the top row the
// row heights are added until they reach the window's height (frame
// included) or a height query fails. The count, -87 for a window that is no
// list box.
int32_t LbxVisibleRange(HWND window, int32_t *first, int32_t *last);

// The row of a list box under a client point (ZelListGetIndexFromPoint):
// the row at which the sum of heights from the top row first reaches y.
// -1 past the end, outside the window, or for a window that is no list box.
int32_t IndexFromPoint(HWND window, int32_t x, int32_t y);

// The row of a node (ZelListGetItemIndex): on a list box LB_FINDSTRINGEXACT
// with the item's address from the top row on; on a combo box the current
// selection, whatever the node.
int32_t LbxItemIndex(HWND window, bool combo, const LbxNode *node);

// The first row after `start` whose item text equals `text` without regard
// to case (ZelListFindString on an adopted control); -1 past the last row,
// without wrapping.
int32_t LbxFindString(const LbxChild &child, HWND window, bool combo, int32_t start, const wchar_t *text);

} // namespace zk::lbx
