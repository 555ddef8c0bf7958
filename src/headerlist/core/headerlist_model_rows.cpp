// The row store behind the view's rows, and the columns.
#include "frame/core/errors.h"
#include "headerlist/core/headerlist_model.h"

namespace zk::hdr {

namespace {

// A row of the view that has no place in the store reads as one outside it.
constexpr intptr_t kNoRow = -1;

} // namespace

intptr_t HeaderListModel::StoreIndexOf(int32_t index) const {
    intptr_t param = kNoRow;
    if (!view_.RowParam(index, param) || !rows.Holds(param))
        throw InvalidArgException();
    return param;
}

const SHdrLBItem *HeaderListModel::RowAt(int32_t index) const {
    intptr_t param = kNoRow;
    return index >= 0 && view_.RowParam(index, param) ? rows.Row(param) : nullptr;
}

int32_t HeaderListModel::InsertItem(int32_t index, const char16_t *text, uint32_t itemData, int32_t image) {
    if (index < 0 || !text || image < 0)
        return -1;
    const int32_t stored = rows.Append(std::make_unique<SHdrLBItem>(text, itemData));
    return view_.InsertRow(index, image, stored);
}

int32_t HeaderListModel::DeleteItem(int32_t index) {
    if (index >= 0)
        rows.Free(StoreIndexOf(index));
    return view_.DeleteRow(index);
}

int32_t HeaderListModel::DeleteAllItems() {
    // An empty view leaves the store as it is, null slots and all.
    if (view_.RowCount() < 1)
        return 1;
    const int32_t answer = view_.DeleteAllRows();
    rows.RemoveAll();
    return answer;
}

uint32_t HeaderListModel::GetItemData(int32_t index) const {
    const SHdrLBItem *row = RowAt(index);
    return row ? row->itemData : 0;
}

int32_t HeaderListModel::SetItemData(int32_t index, uint32_t value) {
    auto *row = const_cast<SHdrLBItem *>(RowAt(index));
    if (!row)
        return 0;
    row->itemData = value;
    return 1;
}

int32_t HeaderListModel::SetItemText(int32_t index, int32_t column, const char16_t *text) {
    if (index < 0 || column < 0 || !text)
        return 0;
    // This one guard compares the view's index, not the row's, with the store.
    if (static_cast<size_t>(index) >= rows.size())
        return 0;
    SHdrLBItem *row = rows.Row(StoreIndexOf(index));
    if (!row)
        return 0;
    row->SetAtGrow(column, text);
    return view_.SetTextCallback(index, column);
}

int32_t HeaderListModel::SetItem(int32_t index, int32_t column, uint32_t mask, const char16_t *text, uint32_t itemData,
                                 int32_t image) {
    if (index < 0 || column < 0 || image < 0 || !text)
        return 0;
    if (mask & kItemText) {
        const int32_t answer = SetItemText(index, column, text);
        if (answer != 1)
            return answer;
    }
    if (mask & kItemParam) {
        const int32_t answer = SetItemData(index, itemData);
        if (answer != 1)
            return answer;
    }
    return view_.SetRow(index, column, mask & ~(kItemText | kItemParam | kItemState), image);
}

void HeaderListModel::AssignColumns(const CHdrLBColumnArray &columns) {
    // The new array's count, not the old one's: with fewer new columns the
    // excess old ones stay in the view.
    for (int32_t position = columns.Count() - 1; position >= 0; --position)
        view_.DeleteColumn(position);
    model.columns.RemoveAll();
    for (const auto &column : columns.items)
        if (column)
            model.columns.Add(std::make_unique<SHdrLBColumn>(column->text, column->format, column->width));
    InsertColumns();
}

void HeaderListModel::InsertColumns() {
    int32_t position = 0;
    for (const auto &column : model.columns.items) {
        if (column)
            view_.InsertColumn(position, column->text, column->format, column->width);
        ++position;
    }
}

void HeaderListModel::TakeBlock(const SPropHeaderListBox &block) {
    for (int32_t position = model.columns.Count() - 1; position >= 0; --position)
        view_.DeleteColumn(position);
    DeleteAllItems();
    model = block;
}

bool HeaderListModel::DisplayText(intptr_t param, int32_t subItem, int32_t capacity, std::u16string_view &text) const {
    const SHdrLBItem *row = rows.Row(param);
    if (!row || subItem < 0 || static_cast<size_t>(subItem) >= row->texts.size() || capacity < 1)
        return false;
    text = row->Text(subItem).substr(0, static_cast<size_t>(capacity - 1));
    return true;
}

void HeaderListModel::EndLabelEdit(int32_t item, int32_t subItem, const char16_t *text) {
    if (item == -1 || !text || subItem < 0)
        return;
    intptr_t param = kNoRow;
    if (!view_.RowParam(item, param))
        return;
    if (SHdrLBItem *row = rows.Row(param))
        row->SetAtGrow(subItem, text);
}

} // namespace zk::hdr
