// The list view as the header list's logic sees it, for native tests: rows
// of (lParam, image), columns, and a log of the notifications posted.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "headerlist/core/headerlist_model.h"

namespace hdrtest {

struct FakeRow {
    intptr_t param;
    int32_t image;
};

class FakeView : public zk::hdr::ListViewPort {
public:
    std::vector<FakeRow> rows;
    std::vector<std::u16string> columns;
    std::vector<std::string> log; // "forward -108", "owner 1", "sorted 1 2", "reorder"
    int callbackTexts = 0;

    int32_t RowCount() const override { return static_cast<int32_t>(rows.size()); }
    bool RowParam(int32_t row, intptr_t &param) const override {
        if (row < 0 || row >= RowCount())
            return false;
        param = rows[static_cast<size_t>(row)].param;
        return true;
    }
    int32_t InsertRow(int32_t row, int32_t image, intptr_t param) override {
        row = std::min(row, RowCount());
        rows.insert(rows.begin() + row, FakeRow{param, image});
        return row;
    }
    int32_t DeleteRow(int32_t row) override {
        if (row < 0 || row >= RowCount())
            return 0;
        rows.erase(rows.begin() + row);
        return 1;
    }
    int32_t DeleteAllRows() override {
        rows.clear();
        return 1;
    }
    int32_t SetTextCallback(int32_t row, int32_t) override {
        ++callbackTexts;
        return row < RowCount() ? 1 : 0;
    }
    int32_t SetRow(int32_t row, int32_t, uint32_t mask, int32_t image) override {
        if (row >= RowCount())
            return 0;
        if (mask & zk::hdr::kItemImage)
            rows[static_cast<size_t>(row)].image = image;
        return 1;
    }
    void ReorderRows(const std::vector<int32_t> &order) override {
        std::vector<FakeRow> next;
        for (int32_t from : order)
            next.push_back(rows[static_cast<size_t>(from)]);
        rows = next;
        log.push_back("reorder");
    }
    void DeleteColumn(int32_t position) override {
        if (position < static_cast<int32_t>(columns.size()))
            columns.erase(columns.begin() + position);
    }
    void InsertColumn(int32_t position, std::u16string_view text, int32_t, int32_t) override {
        position = std::min(position, static_cast<int32_t>(columns.size()));
        columns.insert(columns.begin() + position, std::u16string(text));
    }
    void ForwardNotify(uint32_t code) override {
        log.push_back("forward " + std::to_string(static_cast<int32_t>(code)));
    }
    void OwnerNotify(uint32_t code) override { log.push_back("owner " + std::to_string(code)); }
    void PostColumnSorted(int32_t descending, int32_t column) override {
        log.push_back("sorted " + std::to_string(descending) + " " + std::to_string(column));
    }
};

} // namespace hdrtest
