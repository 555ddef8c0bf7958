// The records of the header list: a column, a row, their owning arrays and
// the record that travels with a sort. Rows are not stored in any block;
// their serialisation exists with the class.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "frame/core/obarray.h"

namespace zk::hdr {

inline constexpr uint32_t kColumnVersion = 1;
inline constexpr uint32_t kItemVersion = 1;

// Column formats, as the platform's LVCFMT_LEFT, _RIGHT, _CENTER.
inline constexpr int32_t kFormatLeft = 0, kFormatRight = 1, kFormatCentre = 2;

class SHdrLBColumn : public CObject {
    ZK_DECLARE_SERIAL(SHdrLBColumn)

public:
    SHdrLBColumn() = default;
    SHdrLBColumn(std::u16string text, int32_t format, int32_t width)
        : text(std::move(text)), format(format), width(width) {}

    std::u16string text;
    int32_t format = kFormatLeft;
    int32_t width = -1; // pixels

    // u32 version 1, the text, u32 format, u32 width. A reader finding
    // version 0 leaves the column alone.
    void Serialize(CArchive &ar) override;
};

// Owns its columns; clearing deletes them first to last.
class CHdrLBColumnArray : public ObArray<SHdrLBColumn> {
public:
    int32_t Count() const { return static_cast<int32_t>(size()); }
};

// One row: a text per column (a new row has one) and the application's value.
class SHdrLBItem : public CObject {
    ZK_DECLARE_SERIAL(SHdrLBItem)

public:
    SHdrLBItem() = default;
    SHdrLBItem(std::u16string first, uint32_t itemData) : itemData(itemData) { texts[0] = std::move(first); }

    std::vector<std::u16string> texts{std::u16string()};
    uint32_t itemData = 0;

    // The text of a column; empty past the row's last text.
    std::u16string_view Text(int32_t column) const {
        return column >= 0 && static_cast<size_t>(column) < texts.size() ? std::u16string_view(texts[column])
                                                                         : std::u16string_view();
    }
    // Stores a text, growing the row with empty texts up to the column.
    void SetAtGrow(int32_t column, std::u16string text);

    // The texts as a string array (count, then each text), u32 version 1,
    // u32 item data.
    void Serialize(CArchive &ar) override;
};

// The row store: a row's index never changes; a deleted row leaves a null
// slot, and the store only grows until it is cleared.
class CHdrLBItemArray : public ObArray<SHdrLBItem> {
public:
    bool Holds(intptr_t index) const { return index >= 0 && static_cast<size_t>(index) < size(); }
    // The row at a store index; null for a deleted row or an index outside.
    SHdrLBItem *Row(intptr_t index) const { return Holds(index) ? items[static_cast<size_t>(index)].get() : nullptr; }
    // Appends a row; its index.
    int32_t Append(std::unique_ptr<SHdrLBItem> row) {
        items.push_back(std::move(row));
        return static_cast<int32_t>(items.size() - 1);
    }
    void Free(intptr_t index) { items[static_cast<size_t>(index)].reset(); }
};

// What a sort request carries. Nothing sets the case-sensitive flag.
struct SHeaderListSort {
    int32_t caseSensitive = 0;
    int32_t descending = 0;
    const CHdrLBItemArray *rows = nullptr;
    int32_t column = 0;
};

} // namespace zk::hdr
