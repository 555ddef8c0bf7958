// Exports of columns, rows, their states and the sort: the row store
// behind the view's rows.
#include <windows.h>

#include <commctrl.h>

#include <algorithm>

#include "headerlist/win/headerlist_exports.h"

using zk::GuardedControlText;
using zk::hdr::CHeaderListBox;
using zk::hdr::ListOf;
using zk::hdr::Required;
using zk::hdr::Send;
using zk::hdr::TextArg;

namespace {

constexpr size_t kColumnText = 260;

// One element of a host array as a 16-bit number.
int32_t ShortAt(HostArray array, int32_t index) {
    HostNumber number{};
    HostArrayGetNumber(array, &number, index);
    int16_t value = 0;
    HostNumberToShort(&number, &value);
    return value;
}

std::u16string TextAt(HostArray array, int32_t index) {
    HostStr text = 0;
    HostArrayGetString(array, &text, index);
    int32_t size = 0;
    const wchar_t *chars = HostStrLock(text, &size);
    if (!chars)
        throw zk::MemoryException();
    return std::u16string(reinterpret_cast<const char16_t *>(chars));
}

int32_t UpperBound(HostArray array) {
    int32_t high = -1;
    HostArrayGetUpperBound(array, 1, &high);
    return high;
}

} // namespace

extern "C" {

int32_t ZKAPI ZelLVGetColumn(ZelLVControl list, int32_t column, HostStr *text, int32_t *format, int32_t *width) {
    return GuardedControlText(
        L"ZelLVGetColumn()", L"Unable to retrieve column.", 0, ListOf(list), [&](CHeaderListBox &l) {
            HostStr &textOut = Required(text);
            int32_t &formatOut = Required(format);
            int32_t &widthOut = Required(width);
            wchar_t buffer[kColumnText] = {};
            LVCOLUMNW got{};
            got.mask = LVCF_FMT | LVCF_WIDTH | LVCF_TEXT;
            got.pszText = buffer;
            got.cchTextMax = static_cast<int>(kColumnText);
            const auto answer = static_cast<int32_t>(
                Send(l, LVM_GETCOLUMNW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&got)));
            if (answer != 1)
                return answer;
            formatOut = got.fmt & LVCFMT_JUSTIFYMASK;
            widthOut = got.cx;
            return zk::hdr::FillHostString(&textOut, buffer);
        });
}

int32_t ZKAPI ZelLVSetColumn(ZelLVControl list, int32_t column, uint32_t mask, const wchar_t *text, int32_t format,
                             int32_t width) {
    return GuardedControlText(
        L"ZelLVSetColumn()", L"Unable to assign column.", 0, ListOf(list), [&](CHeaderListBox &l) {
            std::wstring heading = text ? text : L"";
            LVCOLUMNW set{};
            set.mask = text ? mask : mask & ~static_cast<uint32_t>(LVCF_TEXT);
            set.fmt = format;
            set.cx = width;
            set.pszText = heading.data();
            const auto answer = static_cast<int32_t>(
                Send(l, LVM_SETCOLUMNW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&set)));
            InvalidateRect(l.GetSafeHwnd(), nullptr, TRUE);
            return answer;
        });
}

int32_t ZKAPI ZelLVColumnsAssign(ZelLVControl list, HostArray texts, HostArray formats, HostArray widths,
                                 int32_t count) {
    return GuardedControlText(
        L"ZelLVColumnsAssign()", L"Unable to assign columns.", 0, ListOf(list), [&](CHeaderListBox &l) {
            if (!texts || !formats || !widths)
                throw zk::UserException();
            for (HostArray array : {texts, formats, widths})
                count = std::min(count, UpperBound(array) + 1);
            zk::hdr::CHdrLBColumnArray columns;
            for (int32_t i = 0; i < count; ++i)
                columns.Add(
                    std::make_unique<zk::hdr::SHdrLBColumn>(TextAt(texts, i), ShortAt(formats, i), ShortAt(widths, i)));
            l.Logic().AssignColumns(columns);
            return 1;
        });
}

int32_t ZKAPI ZelLVGetItemState(ZelLVControl list, int32_t index, uint32_t mask) {
    return GuardedControlText(
        L"ZelLVGetItemState()", L"Unable to retrieve item state.", 0, ListOf(list), [&](CHeaderListBox &l) {
            return static_cast<int32_t>(Send(l, LVM_GETITEMSTATE, static_cast<WPARAM>(index), mask));
        });
}

int32_t ZKAPI ZelLVSetItemState(ZelLVControl list, int32_t index, uint32_t state, uint32_t mask) {
    return GuardedControlText(
        L"ZelLVSetItemState()", L"Unable to assign item state.", 0, ListOf(list),
        [&](CHeaderListBox &l) { return static_cast<int32_t>(l.SetItemState(index, state, mask)); });
}

int32_t ZKAPI ZelLVGetItem(ZelLVControl list, int32_t index, int32_t column, HostStr *text, uint32_t *itemData,
                           int32_t *image) {
    return GuardedControlText(L"ZelLVGetItem()", L"Unable to retrieve item.", 0, ListOf(list), [&](CHeaderListBox &l) {
        HostStr &textOut = Required(text);
        uint32_t &dataOut = Required(itemData);
        int32_t &imageOut = Required(image);
        LVITEMW item{};
        item.mask = LVIF_IMAGE;
        item.iItem = index;
        const auto answer = static_cast<int32_t>(Send(l, LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item)));
        if (answer != 1)
            return answer;
        const std::wstring cell = l.ItemText(index, column);
        imageOut = item.iImage;
        dataOut = l.Logic().GetItemData(index);
        return zk::hdr::FillHostString(&textOut, cell);
    });
}

int32_t ZKAPI ZelLVSetItem(ZelLVControl list, int32_t index, int32_t column, uint32_t mask, const wchar_t *text,
                           uint32_t itemData, int32_t image) {
    return GuardedControlText(L"ZelLVSetItem()", L"Unable to assign item.", 0, ListOf(list), [&](CHeaderListBox &l) {
        return l.Logic().SetItem(index, column, mask, TextArg(text), itemData, image);
    });
}

int32_t ZKAPI ZelLVGetSelectedCount(ZelLVControl list) {
    return GuardedControlText(L"ZelLVGetSelectedCount()", L"Unable to retrieve selected count.", 0, ListOf(list),
                              [](CHeaderListBox &l) { return static_cast<int32_t>(Send(l, LVM_GETSELECTEDCOUNT)); });
}

int32_t ZKAPI ZelLVInsertItem(ZelLVControl list, int32_t index, const wchar_t *text, uint32_t itemData, int32_t image) {
    return GuardedControlText(
        L"ZelLVInsertItem()", L"Unable to insert item.", -1, ListOf(list),
        [&](CHeaderListBox &l) { return l.Logic().InsertItem(index, TextArg(text), itemData, image); });
}

// The view's refusal of a negative index is not the answer: the count is.
int32_t ZKAPI ZelLVDeleteItem(ZelLVControl list, int32_t index) {
    return GuardedControlText(L"ZelLVDeleteItem()", L"Unable to delete item.", 0, ListOf(list), [&](CHeaderListBox &l) {
        l.Logic().DeleteItem(index);
        return l.RowCount();
    });
}

int32_t ZKAPI ZelLVDeleteAllItems(ZelLVControl list) {
    return GuardedControlText(L"ZelLVDeleteAllItems()", L"Unable to delete all items.", 0, ListOf(list),
                              [](CHeaderListBox &l) { return l.Logic().DeleteAllItems(); });
}

int32_t ZKAPI ZelLVGetSortColumn(ZelLVControl list) {
    return GuardedControlText(L"ZelLVGetSortColumn()", L"Unable to retrieve sort column.", -1, ListOf(list),
                              [](CHeaderListBox &l) { return l.Model().sortColumn; });
}

int32_t ZKAPI ZelLVSetSortColumn(ZelLVControl list, int32_t column) {
    return GuardedControlText(L"ZelLVSetSortColumn()", L"Unable to assign sort column.", 0, ListOf(list),
                              [&](CHeaderListBox &l) {
                                  if (column < 0)
                                      return 0;
                                  l.Model().sortColumn = column;
                                  return 1;
                              });
}

int32_t ZKAPI ZelLVGetSortOrder(ZelLVControl list) {
    return GuardedControlText(L"ZelLVGetSortOrder()", L"Unable to retrieve sort order.", -1, ListOf(list),
                              [](CHeaderListBox &l) { return l.Model().sortOrder; });
}

int32_t ZKAPI ZelLVSetSortOrder(ZelLVControl list, int32_t order) {
    return GuardedControlText(L"ZelLVSetSortOrder()", L"Unable to assign sort order.", 0, ListOf(list),
                              [&](CHeaderListBox &l) {
                                  if (static_cast<uint32_t>(order) > 1)
                                      return 0;
                                  l.Model().sortOrder = order;
                                  return 1;
                              });
}

int32_t ZKAPI ZelLVSortItems(ZelLVControl list) {
    return GuardedControlText(L"ZelLVSortItems()", L"Unable to sort items.", 0, ListOf(list),
                              [](CHeaderListBox &l) { return l.Logic().SortItems(); });
}

} // extern "C"
