// The row store of fakes.h with what the tree operations add. Like a list
// box, it refuses a row numbered past the end.
#pragma once

#include <string>

#include "../outline/fakes.h"
#include "outline/core/tree_rows.h"

using namespace zk::lbx;

namespace outlinetest {

class TreeRows final : public LbxTreeRows {
public:
    FakeRows base;
    std::uintptr_t Data(int32_t row) override { return base.Data(row); }
    int32_t Insert(int32_t row, LbxItem *item) override {
        if (row > static_cast<int32_t>(base.rows.size()) || row < -1)
            return -1;
        return base.Insert(row, item);
    }
    int32_t Delete(int32_t row) override { return base.Delete(row); }
    bool BeginKeepItems() override { return base.BeginKeepItems(); }
    void EndKeepItems() override { base.EndKeepItems(); }
    bool IsCombo() override { return false; }
    bool IsMultiSelect() override { return false; }
    uint32_t Style() override { return LBX_StyleOutline; }
    void SetSel(int32_t row, bool) override { base.selected.push_back(row); }
    void SetCurSel(int32_t row) override { base.curSel = row; }
    void SetCaret(int32_t row) override { base.caret = row; }
    void SetTopIndex(int32_t) override {}
    int32_t VisibleRange(int32_t *first, int32_t *last) override { return base.VisibleRange(first, last); }
    void Redraw(bool on) override { base.Redraw(on); }
    void RedrawOnNoErase() override { base.RedrawOnNoErase(); }
    void Reset() override { base.rows.clear(); }
    void Reserve(int32_t) override {}
    bool IsSelected(int32_t row) override { return base.curSel == row; }
    void Reselect(int32_t row) override { base.curSel = row; }
    int32_t FocusCaret() override { return -1; }
    void *Window() override { return this; }

    std::u16string Texts() { return outlinetest::Texts(base); }
    // Rows for the nodes given, in that order, as ShowOutline would leave them.
    void Fill(std::initializer_list<LbxNode *> nodes) {
        base.rows.clear();
        for (LbxNode *n : nodes)
            base.rows.push_back(reinterpret_cast<std::uintptr_t>(n->item));
    }
};

} // namespace outlinetest
