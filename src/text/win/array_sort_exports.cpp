// ZelArraySort: a stable sort of dates, numbers or strings in place.
//
// The order is that of an insertion sort that moves an element up past a
// later key when element > key (ascending) or key > element (descending),
// so that ties keep their order both ways. It is found by a merge sort over
// copies of the sort values (for strings, of the distinct texts), with
// every element read once, and the array is then rewritten in one pass:
// O(n log n) comparisons and at most n host writes.
#include <cstdint>
#include <cwchar>
#include <string_view>
#include <vector>

#include "frame/win/guard.h"
#include "text/core/array_order.h"
#include "text/core/array_text_order.h"
#include "text/win/array_host.h"

namespace {

struct ValueItem {
    double value;
    uint32_t position; // in the array, from low
};

// Dates go through the number conversion too: their doubles order like the dates.
void SortRecords(HostArray array, const zk::text::ArrayBounds &b, bool descending, int32_t type) {
    const auto n = static_cast<uint32_t>(b.count);
    std::vector<HostNumber> records(n);
    std::vector<ValueItem> items(n);
    for (uint32_t k = 0; k < n; ++k) {
        if (type == HOST_TYPE_DATETIME)
            HostArrayGetDateTime(array, &records[k], b.low + static_cast<int32_t>(k));
        else
            HostArrayGetNumber(array, &records[k], b.low + static_cast<int32_t>(k));
        items[k] = {0.0, k};
        HostNumberToDouble(&records[k], &items[k].value);
    }
    if (descending)
        zk::text::StableMergeSort(
            items, [](const ValueItem &later, const ValueItem &earlier) { return later.value > earlier.value; });
    else
        zk::text::StableMergeSort(
            items, [](const ValueItem &later, const ValueItem &earlier) { return earlier.value > later.value; });
    for (uint32_t p = 0; p < n; ++p) {
        if (items[p].position == p)
            continue;
        const int32_t index = b.low + static_cast<int32_t>(p);
        if (type == HOST_TYPE_DATETIME)
            HostArraySetDateTime(array, &records[items[p].position], index);
        else
            HostArraySetNumber(array, &records[items[p].position], index);
    }
}

// The text of a string element, borrowed; no string reads as empty.
std::u16string_view BorrowedText(HostStr handle) {
    int32_t size = 0;
    const wchar_t *text = handle ? HostStrLock(handle, &size) : nullptr;
    if (!text || size <= 0)
        return {};
    return {reinterpret_cast<const char16_t *>(text), wcsnlen(text, static_cast<std::size_t>(size) / 2)};
}

void SortStrings(HostArray array, const zk::text::ArrayBounds &b, bool descending) {
    const auto n = static_cast<uint32_t>(b.count);
    std::vector<HostStr> handles(n, 0);
    std::vector<std::u16string_view> texts(n);
    for (uint32_t k = 0; k < n; ++k) {
        HostArrayGetString(array, &handles[k], b.low + static_cast<int32_t>(k));
        // Borrowed: the array keeps every string alive until the writes.
        texts[k] = BorrowedText(handles[k]);
    }
    const LCID locale = GetThreadLocale();
    const DWORD flags = NORM_IGNORECASE | NORM_IGNOREKANATYPE | NORM_IGNOREWIDTH;
    const std::vector<uint32_t> order =
        zk::text::StableTextOrder(texts, descending, [&](std::u16string_view a, std::u16string_view c) {
            const int result =
                CompareStringW(locale, flags, reinterpret_cast<const wchar_t *>(a.data()), static_cast<int>(a.size()),
                               reinterpret_cast<const wchar_t *>(c.data()), static_cast<int>(c.size()));
            // A failed compare moves nothing, like a tie.
            return result == 0 ? 0 : result - CSTR_EQUAL;
        });

    // Every slot that changes hands its new string a reference first, so no
    // string is released to nothing by the overwrites that follow; each
    // overwrite then drops the reference the old content held. Per handle
    // the references written and dropped are equal, so the counts end as
    // they began.
    for (uint32_t p = 0; p < n; ++p) {
        const HostStr incoming = handles[order[p]];
        if (incoming != handles[p] && incoming)
            HostStrAddRef(incoming);
    }
    for (uint32_t p = 0; p < n; ++p) {
        const HostStr incoming = handles[order[p]];
        if (incoming != handles[p])
            HostArraySetString(array, incoming, b.low + static_cast<int32_t>(p));
    }
}

} // namespace

int32_t ZKAPI ZelArraySort(HostArray array, int32_t direction, int32_t type) {
    return zk::Quietly(
        [&]() -> int32_t {
            if (!zk::text::IsSingleDimension(array) || HostArrayIsEmpty(array))
                return ZEL_FAILED;
            const zk::text::ArrayBounds b = zk::text::ReadBounds(array);
            if (b.count == 1)
                return 1;
            if (b.count < 2 || (direction != 0 && direction != 1))
                return b.count;
            // The order is found before anything is written: a failure on
            // the way leaves the array as it was.
            switch (type) {
            case HOST_TYPE_DATETIME:
            case HOST_TYPE_NUMBER:
                SortRecords(array, b, direction == 1, type);
                break;
            case HOST_TYPE_STRING:
            case HOST_TYPE_LONGSTRING:
                SortStrings(array, b, direction == 1);
                break;
            default:
                break; // flags, handles and unknown codes are not sorted
            }
            return b.count;
        },
        [] { return ZEL_FAILED; });
}
