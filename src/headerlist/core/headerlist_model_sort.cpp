// Sorting and the notifications the view reflects to the list.
#include <algorithm>

#include "frame/core/errors.h"
#include "headerlist/core/headerlist_model.h"
#include "headerlist/core/headerlist_text_order.h"

namespace zk::hdr {

int HeaderListModel::CompareItems(intptr_t first, intptr_t second, const SHeaderListSort *record) {
    if (!record)
        return 0;
    const CHdrLBItemArray &store = *record->rows;
    if (!store.Holds(first) || !store.Holds(second))
        throw InvalidArgException();
    // A deleted row compares as empty texts.
    const SHdrLBItem *a = store.Row(first), *b = store.Row(second);
    const std::u16string_view x = a ? a->Text(record->column) : std::u16string_view();
    const std::u16string_view y = b ? b->Text(record->column) : std::u16string_view();
    const int order = record->caseSensitive == 1 ? CompareCase(x, y) : CompareNoCase(x, y);
    return record->descending == 1 ? -order : order;
}

void HeaderListModel::SortView() {
    const int32_t count = view_.RowCount();
    if (count < 2)
        return;
    // One pass over the rows for their keys; the sort then touches only
    // the keys, and the view is rearranged once.
    struct Key {
        std::u16string_view text;
        int32_t position;
    };
    std::vector<Key> keys(static_cast<size_t>(count));
    const int32_t column = sortRecord.column;
    for (int32_t i = 0; i < count; ++i) {
        intptr_t param = -1;
        if (!view_.RowParam(i, param) || !rows.Holds(param))
            throw InvalidArgException();
        const SHdrLBItem *row = rows.Row(param);
        keys[static_cast<size_t>(i)] = {row ? row->Text(column) : std::u16string_view(), i};
    }
    const bool caseSensitive = sortRecord.caseSensitive == 1;
    const bool descending = sortRecord.descending == 1;
    std::stable_sort(keys.begin(), keys.end(), [caseSensitive, descending](const Key &a, const Key &b) {
        const int order = caseSensitive ? CompareCase(a.text, b.text) : CompareNoCase(a.text, b.text);
        return descending ? order > 0 : order < 0;
    });
    std::vector<int32_t> order(keys.size());
    bool moved = false;
    for (size_t i = 0; i < keys.size(); ++i) {
        order[i] = keys[i].position;
        moved = moved || order[i] != static_cast<int32_t>(i);
    }
    if (moved)
        view_.ReorderRows(order);
}

int32_t HeaderListModel::SortItems() {
    sortRecord.descending = model.sortOrder == 1 ? 1 : 0;
    sortRecord.rows = &rows;
    sortRecord.column = model.sortColumn;
    SortView();
    return 1;
}

void HeaderListModel::ColumnClick(int32_t subItem) {
    // The click keeps its own memory: the model's sort column and order stay.
    sortRecord.descending = subItem == sortRecord.column ? (sortRecord.descending ? 0 : 1) : 0;
    sortRecord.rows = &rows;
    sortRecord.column = subItem;
    SortView();
    view_.ForwardNotify(kLvnColumnClick);
    view_.PostColumnSorted(sortRecord.descending, sortRecord.column);
}

bool HeaderListModel::OnNotify(uint32_t code, int32_t subItem, uint32_t newState, intptr_t &result) {
    result = 0;
    switch (code) {
    case kLvnBeginRDrag:
    case kLvnBeginDrag:
    case kLvnDeleteAllItems:
    case kLvnDeleteItem:
    case kLvnInsertItem:
    case kNmRDblClk:
    case kNmRClick:
    case kNmDblClk:
        view_.ForwardNotify(code);
        return true;
    case kLvnColumnClick:
        ColumnClick(subItem);
        return true;
    case kLvnItemChanged:
        if (notificationsEnabled && (newState & (kStateFocused | kStateSelected))) {
            view_.OwnerNotify(kOwnerSelect);
            view_.ForwardNotify(code);
        }
        return true;
    case kNmClick:
        if (notificationsEnabled) {
            if (model.dropDown)
                view_.OwnerNotify(kOwnerCloseUp);
            view_.ForwardNotify(code);
        }
        return true;
    default:
        return false;
    }
}

} // namespace zk::hdr
