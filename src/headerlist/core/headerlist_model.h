// The header list's logic (CHeaderListBox without its window): the live
// block, the row store behind the view's rows, the columns, text on demand,
// the sort and the reflected notifications. The view holds only places: a
// row's lParam is its index in the store and its text is the callback.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "headerlist/core/headerlist_block.h"
#include "headerlist/core/list_view_port.h"

namespace zk::hdr {

// The platform's notification codes and item bits the logic acts on.
inline constexpr uint32_t kNmClick = 0xFFFFFFFE, kNmDblClk = 0xFFFFFFFD, kNmRClick = 0xFFFFFFFB,
                          kNmRDblClk = 0xFFFFFFFA;
inline constexpr uint32_t kLvnItemChanged = 0xFFFFFF9B, kLvnInsertItem = 0xFFFFFF9A, kLvnDeleteItem = 0xFFFFFF99,
                          kLvnDeleteAllItems = 0xFFFFFF98, kLvnColumnClick = 0xFFFFFF94, kLvnBeginDrag = 0xFFFFFF93,
                          kLvnBeginRDrag = 0xFFFFFF91;
inline constexpr uint32_t kItemText = 0x1, kItemImage = 0x2, kItemParam = 0x4, kItemState = 0x8;
inline constexpr uint32_t kStateFocused = 0x1, kStateSelected = 0x2;
// Codes the list sends its owner.
inline constexpr uint32_t kOwnerSelect = 1, kOwnerCloseUp = 8, kOwnerCancel = 10;

class HeaderListModel {
public:
    explicit HeaderListModel(ListViewPort &view) : view_(view) {}

    SPropHeaderListBox model;
    CHdrLBItemArray rows;
    SHeaderListSort sortRecord;
    int32_t notificationsEnabled = 1;

    // ---- rows ----
    // The view's new index, or -1 for a negative index or image or no text.
    int32_t InsertItem(int32_t index, const char16_t *text, uint32_t itemData, int32_t image);
    int32_t DeleteItem(int32_t index);
    int32_t DeleteAllItems();
    uint32_t GetItemData(int32_t index) const;
    int32_t SetItemData(int32_t index, uint32_t value);
    int32_t SetItemText(int32_t index, int32_t column, const char16_t *text);
    int32_t SetItem(int32_t index, int32_t column, uint32_t mask, const char16_t *text, uint32_t itemData,
                    int32_t image);
    // The row of a view index, or null (no such view row, lParam outside the store, deleted row).
    const SHdrLBItem *RowAt(int32_t index) const;

    // ---- columns and blocks ----
    void AssignColumns(const CHdrLBColumnArray &columns);
    // The first step of applying a block: the view's columns and rows go,
    // the block becomes the model. The window then shows the model's style,
    // colours and images, and InsertColumns.
    void TakeBlock(const SPropHeaderListBox &block);
    // Every column of the model into the view, at its own position.
    void InsertColumns();

    // ---- text on demand and label edits ----
    // The text the view asks for (lParam, sub-item), cut to capacity - 1
    // characters; false when nothing is to be written.
    bool DisplayText(intptr_t param, int32_t subItem, int32_t capacity, std::u16string_view &text) const;
    void EndLabelEdit(int32_t item, int32_t subItem, const char16_t *text);

    // ---- sorting ----
    // The comparison of two store rows under a sort record.
    static int CompareItems(intptr_t first, intptr_t second, const SHeaderListSort *record);
    // Sorts by the model's sort column and order: 1.
    int32_t SortItems();
    void ColumnClick(int32_t subItem);

    // ---- notifications reflected from the view ----
    // Whether the code is one the list handles; result is the answer to the view.
    bool OnNotify(uint32_t code, int32_t subItem, uint32_t newState, intptr_t &result);

private:
    intptr_t StoreIndexOf(int32_t index) const; // raises InvalidArgException outside the store
    // Sends the sort record to the view: the rows rearranged by CompareItems, equal keys kept in place.
    void SortView();

    ListViewPort &view_;
};

} // namespace zk::hdr
