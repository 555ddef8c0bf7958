// ZelArrayFindString, ZelArrayFindNumber, ZelArrayFindDateTime: the first
// index from low upward whose element matches.
#include <cstdint>
#include <cwchar>

#include "frame/win/guard.h"
#include "text/win/array_host.h"
#include "text/win/host_array_elements.h"
#include "text/win/host_text.h"

namespace {

// The index of the first element that `matches`, or -1; multi-dimensional
// and empty arrays are refused with -1.
template <class Matches>
int32_t FindFirst(HostArray array, Matches matches) {
    return zk::Quietly(
        [&]() -> int32_t {
            if (!zk::text::IsSingleDimension(array) || HostArrayIsEmpty(array))
                return ZEL_FAILED;
            const zk::text::ArrayBounds b = zk::text::ReadBounds(array);
            for (int64_t k = 0; k < b.count; ++k) {
                const int32_t index = static_cast<int32_t>(b.low + k);
                if (matches(index))
                    return index;
            }
            return ZEL_FAILED;
        },
        [] { return ZEL_FAILED; });
}

struct DateParts {
    int32_t year, month, day, hour, minute, second;
    bool operator==(const DateParts &) const = default;
};

// Whole seconds only: fractions of a second are not compared.
DateParts PartsOf(const HostDateTime &value) {
    return {HostDateYear(value), HostDateMonth(value),  HostDateDay(value),
            HostDateHour(value), HostDateMinute(value), HostDateSecond(value)};
}

} // namespace

int32_t ZKAPI ZelArrayFindString(HostArray array, const wchar_t *text) {
    if (!text)
        return ZEL_INVALID_PARAMETER;
    const std::u16string_view wanted = zk::text::ArgText(text);
    zk::text::HostArrayElements elements(array);
    // Without regard to case, character by character as the C library
    // folds them; a missing string reads as the empty text.
    return FindFirst(array, [&](int32_t index) {
        const std::u16string_view element = elements.String(index);
        return element.size() == wanted.size() && _wcsnicmp(zk::text::WideText(element), text, wanted.size()) == 0;
    });
}

int32_t ZKAPI ZelArrayFindNumber(HostArray array, HostNumber value) {
    return FindFirst(array, [&](int32_t index) {
        HostNumber element{};
        HostArrayGetNumber(array, &element, index);
        return HostNumberCompare(&element, &value) == 0;
    });
}

int32_t ZKAPI ZelArrayFindDateTime(HostArray array, HostDateTime value) {
    const DateParts wanted = PartsOf(value);
    return FindFirst(array, [&](int32_t index) {
        HostDateTime element{};
        HostArrayGetDateTime(array, &element, index);
        return PartsOf(element) == wanted;
    });
}
