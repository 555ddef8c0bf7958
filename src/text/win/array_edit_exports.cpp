// ZelArrayAppend, ZelArrayCopy, ZelArrayDeleteItem, ZelArrayInsertItem:
// elements moved one at a time between slots through the host.
#include <cstdint>

#include "frame/win/guard.h"
#include "text/win/array_host.h"

using zk::text::ArrayBounds;
using zk::text::IsSingleDimension;
using zk::text::MoveElement;
using zk::text::ReadBounds;
using zk::text::RefTiming;

namespace {

int32_t Failed() { return ZEL_FAILED; }

} // namespace

int32_t ZKAPI ZelArrayAppend(HostArray source, HostArray destination, int32_t type) {
    return zk::Quietly(
        [&]() -> int32_t {
            if (!IsSingleDimension(source) || !IsSingleDimension(destination))
                return ZEL_FAILED;
            if (HostArrayIsEmpty(source))
                return 0;
            const ArrayBounds from = ReadBounds(source);
            const ArrayBounds to = ReadBounds(destination);
            // An empty destination fills from index 0 whatever its low bound.
            const int64_t high = to.count > 0 ? to.high : -1;
            if (high + from.count > INT32_MAX || int64_t(to.count) + from.count > INT32_MAX)
                return ZEL_FAILED;
            // Types outside the table move nothing, but the bounds still grow.
            for (int32_t k = 0; k < from.count; ++k)
                MoveElement(type, source, from.low + k, destination, static_cast<int32_t>(high + 1 + k),
                            RefTiming::AfterWrite);
            HostArraySetBounds(destination, to.low, static_cast<int32_t>(high + from.count));
            return to.count + from.count;
        },
        Failed);
}

int32_t ZKAPI ZelArrayCopy(HostArray source, HostArray destination, int32_t type) {
    return zk::Quietly(
        [&]() -> int32_t {
            if (!IsSingleDimension(source) || !IsSingleDimension(destination))
                return ZEL_FAILED;
            const ArrayBounds from = ReadBounds(source);
            // Onto itself every element is where it belongs. Writing a string
            // back into its own slot would drop the array's only reference
            // before the copy's new one is taken.
            if (source != destination)
                for (int32_t k = 0; k < from.count; ++k)
                    MoveElement(type, source, from.low + k, destination, from.low + k, RefTiming::AfterWrite);
            HostArraySetBounds(destination, from.low, from.count > 0 ? from.high : -1);
            return from.count;
        },
        Failed);
}

int32_t ZKAPI ZelArrayDeleteItem(HostArray array, int32_t index, int32_t type) {
    return zk::Quietly(
        [&]() -> int32_t {
            if (!IsSingleDimension(array) || HostArrayIsEmpty(array))
                return ZEL_FAILED;
            const ArrayBounds b = ReadBounds(array);
            if (b.count <= 0 || index < b.low || index > b.high)
                return ZEL_INVALID_PARAMETER;
            // Rising order: each slot is read before it is overwritten.
            for (int32_t j = index; j < b.high; ++j)
                if (!MoveElement(type, array, j + 1, array, j, RefTiming::BeforeWrite))
                    return ZEL_INVALID_PARAMETER;
            HostArraySetBounds(array, b.low, b.high - 1);
            return b.count - 1;
        },
        Failed);
}

int32_t ZKAPI ZelArrayInsertItem(HostArray array, int32_t index, int32_t type) {
    return zk::Quietly(
        [&]() -> int32_t {
            if (!IsSingleDimension(array))
                return ZEL_FAILED;
            const ArrayBounds b = ReadBounds(array);
            // An empty array has no index in range.
            if (b.count <= 0 || index < b.low || index > b.high || b.high == INT32_MAX)
                return ZEL_INVALID_PARAMETER;
            // The last element always moves up, so a type outside the table
            // fails before anything is written.
            if (!HostIsArrayType(type))
                return ZEL_INVALID_PARAMETER;
            // Falling order: the top element first grows the array by one.
            for (int64_t j = b.high; j >= index; --j)
                MoveElement(type, array, static_cast<int32_t>(j), array, static_cast<int32_t>(j + 1),
                            RefTiming::BeforeWrite);
            zk::text::ClearElement(type, array, index);
            HostArraySetBounds(array, b.low, b.high + 1);
            return b.count + 1;
        },
        Failed);
}
