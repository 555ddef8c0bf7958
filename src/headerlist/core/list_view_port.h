// What the header list's logic asks of the platform's list view and of the
// windows around it, so that the row store, the columns, the sort and the
// notifications run and are tested without a window.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace zk::hdr {

class ListViewPort {
public:
    // ---- rows of the view ----
    virtual int32_t RowCount() const = 0;
    // The lParam of a row; false when the view has no such row.
    virtual bool RowParam(int32_t row, intptr_t &param) const = 0;
    // A row with callback text, state 0, the image and lParam: its index, or -1.
    virtual int32_t InsertRow(int32_t row, int32_t image, intptr_t param) = 0;
    virtual int32_t DeleteRow(int32_t row) = 0;
    virtual int32_t DeleteAllRows() = 0;
    // The text of a cell becomes the callback; the view's answer.
    virtual int32_t SetTextCallback(int32_t row, int32_t column) = 0;
    // Sets what the mask names (text, lParam and state bits already taken
    // out) of a cell with the image; the view's answer.
    virtual int32_t SetRow(int32_t row, int32_t column, uint32_t mask, int32_t image) = 0;
    // Rearranges the rows: position i gets the row that stood at order[i],
    // with all its own (lParam, image, state).
    virtual void ReorderRows(const std::vector<int32_t> &order) = 0;

    // ---- columns of the view ----
    virtual void DeleteColumn(int32_t position) = 0;
    virtual void InsertColumn(int32_t position, std::u16string_view text, int32_t format, int32_t width) = 0;

    // ---- notifications ----
    // WM_COMMAND posted to the host notify window, lParam the owner.
    virtual void ForwardNotify(uint32_t code) = 0;
    // WM_COMMAND posted to the owner, lParam the list.
    virtual void OwnerNotify(uint32_t code) = 0;
    // ZKM_ColumnSorted posted to the owner.
    virtual void PostColumnSorted(int32_t descending, int32_t column) = 0;

protected:
    ~ListViewPort() = default;
};

} // namespace zk::hdr
