// The Win32 side of the outline tree operations: the rows of an adopted
// list or combo box for the core (WinTreeRows), and the steps behind the
// exports for callers inside the library (outline files, populate and
// general list functions) that hold a window and nodes already.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

#include "frame/win/guard.h"
#include "outline/core/tree_rows.h"
#include "outline/win/win_rows.h"

namespace zk::lbx {

// The rows of an adopted control as LbxTreeRows.
class WinTreeRows final : public LbxTreeRows {
public:
    WinTreeRows(HWND window, const LbxChild &child, bool combo) : base_(window, child, combo), window_(window) {}

    std::uintptr_t Data(int32_t row) override { return base_.Data(row); }
    int32_t Insert(int32_t row, LbxItem *item) override { return base_.Insert(row, item); }
    int32_t Delete(int32_t row) override { return base_.Delete(row); }
    bool BeginKeepItems() override { return base_.BeginKeepItems(); }
    void EndKeepItems() override { base_.EndKeepItems(); }
    bool IsCombo() override { return base_.IsCombo(); }
    bool IsMultiSelect() override { return base_.IsMultiSelect(); }
    uint32_t Style() override { return base_.Style(); }
    void SetSel(int32_t row, bool select) override { base_.SetSel(row, select); }
    void SetCurSel(int32_t row) override { base_.SetCurSel(row); }
    void SetCaret(int32_t row) override { base_.SetCaret(row); }
    void SetTopIndex(int32_t row) override { base_.SetTopIndex(row); }
    int32_t VisibleRange(int32_t *first, int32_t *last) override { return base_.VisibleRange(first, last); }
    void Redraw(bool on) override { base_.Redraw(on); }
    void RedrawOnNoErase() override { base_.RedrawOnNoErase(); }
    void Reset() override;
    void Reserve(int32_t count) override;
    bool IsSelected(int32_t row) override;
    void Reselect(int32_t row) override;
    int32_t FocusCaret() override;
    void *Window() override { return window_; }

private:
    WinRows base_;
    HWND window_;
};

// An adopted control's rows: false when the window is not adopted.
// `kind` receives the control type.
bool OpenRows(HWND window, LbxChild *child, LbxKind *kind);

// The node of an item handle: null for 0 and for any value that is not a
// live node with an item (stale, freed or forged handles).
LbxNode *NodeOf(std::intptr_t handle) noexcept;
inline std::intptr_t LbxHandleOf(const LbxNode *node) noexcept { return reinterpret_cast<std::intptr_t>(node); }

// ZelListShowOutline on an adopted control: 1, 0 on failure.
int32_t ShowOutlineWindow(HWND window, int32_t limit);

// ZelListLoadChild and ZelListLoadSibling with pictures already resolved:
// the new node, null on failure. The text of shell folder values (-6 to -2)
// is chosen as the export does.
LbxNode *LoadChildWindow(HWND window, LbxNode *parent, PIC *normal, PIC *selected, const wchar_t *text, int32_t value,
                         uint32_t flags);
LbxNode *LoadSiblingWindow(HWND window, LbxNode *sibling, PIC *normal, PIC *selected, const wchar_t *text,
                           int32_t value, uint32_t flags);

// The name a shell folder value (-6 to -2) gives: from the user's registry,
// else from Shell32.dll's string table. Empty when neither has one, or for
// any other value.
std::wstring ShellFolderName(int32_t value);

// Item properties by node, as the exports of the same names (the node must
// be live): 1 done, 0 on failure.
int32_t SetItemTextNode(LbxNode *node, const wchar_t *text);
int32_t SetItemColorNode(LbxNode *node, COLORREF color);
int32_t SetItemFontNode(LbxNode *node, HFONT font);
int32_t SetItemPictureNode(LbxNode *node, PIC *normal, PIC *selected);
int32_t SetItemFlagsNode(LbxNode *node, uint32_t mask, int32_t set);

// The row of a node in its own window (ZelListGetItemIndex), -1 if none.
int32_t NodeRow(const LbxNode *node);

// `body(node)` on the live node of a handle, under the exports' guard:
// `failure` for a stale handle or anything thrown.
template <class R, class Body>
R OnNode(ZelItemHandle handle, R failure, Body &&body) {
    return zk::Quietly(
        [&]() -> R {
            LbxNode *node = NodeOf(handle);
            return node ? body(*node) : failure;
        },
        [failure] { return failure; });
}

} // namespace zk::lbx
