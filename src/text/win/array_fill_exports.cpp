// ZelArrayFillString, ZelArrayFillNumber, ZelArrayFillDateTime: one value
// in the first `count` slots from index 0, and the array cut to them.
#include <cstdint>
#include <cwchar>

#include "frame/win/guard.h"
#include "text/win/array_host.h"

namespace {

// The bounds are set before the writes as well as after: every write then
// lands in a slot that exists, so a host that cannot hold the array refuses
// the bounds before any element (and, for strings, any new host string)
// is made. The final call gives the result.
template <class Write>
int32_t Fill(HostArray array, int32_t count, Write write) {
    return zk::Quietly(
        [&]() -> int32_t {
            if (!zk::text::IsSingleDimension(array))
                return 0;
            // A count of 0 or less writes nothing and empties the array.
            const int32_t high = count > 0 ? count - 1 : -1;
            if (!HostArraySetBounds(array, 0, high))
                return 0;
            for (int32_t i = 0; i <= high; ++i)
                write(i);
            return HostArraySetBounds(array, 0, high);
        },
        [] { return 0; });
}

} // namespace

int32_t ZKAPI ZelArrayFillString(HostArray array, const wchar_t *text, int32_t count) {
    if (!text)
        return ZEL_INVALID_PARAMETER;
    const std::size_t length = std::wcslen(text);
    // A string of its own for every slot: no two slots share a handle.
    return Fill(array, count, [&](int32_t i) { HostArraySetString(array, zk::StrFromChars(text, length), i); });
}

int32_t ZKAPI ZelArrayFillNumber(HostArray array, HostNumber value, int32_t count) {
    return Fill(array, count, [&](int32_t i) { HostArraySetNumber(array, &value, i); });
}

int32_t ZKAPI ZelArrayFillDateTime(HostArray array, HostDateTime value, int32_t count) {
    return Fill(array, count, [&](int32_t i) { HostArraySetDateTime(array, &value, i); });
}
