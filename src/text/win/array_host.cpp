#include "text/win/array_host.h"

namespace zk::text {

bool IsSingleDimension(HostArray array) {
    int32_t dimensions = 0;
    HostArrayGetDimensionCount(array, &dimensions);
    return dimensions == 1;
}

ArrayBounds ReadBounds(HostArray array) {
    ArrayBounds bounds;
    bounds.count = HostArrayGetBounds(array, &bounds.low, &bounds.high);
    if (bounds.count < 0)
        bounds.count = 0;
    return bounds;
}

bool IsStringType(int32_t type) { return type == HOST_TYPE_STRING || type == HOST_TYPE_LONGSTRING; }

bool MoveElement(int32_t type, HostArray from, int32_t fromIndex, HostArray to, int32_t toIndex, RefTiming timing) {
    switch (type) {
    case HOST_TYPE_BOOLEAN: {
        uint32_t word = 0;
        HostArrayGetBoolean(from, &word, fromIndex);
        HostArraySetBoolean(to, word, toIndex);
        return true;
    }
    case HOST_TYPE_HANDLE: {
        uint32_t word = 0;
        HostArrayGetHandle(from, &word, fromIndex);
        HostArraySetHandle(to, word, toIndex);
        return true;
    }
    case HOST_TYPE_DATETIME: {
        HostDateTime record{};
        HostArrayGetDateTime(from, &record, fromIndex);
        HostArraySetDateTime(to, &record, toIndex);
        return true;
    }
    case HOST_TYPE_NUMBER: {
        HostNumber record{};
        HostArrayGetNumber(from, &record, fromIndex);
        HostArraySetNumber(to, &record, toIndex);
        return true;
    }
    case HOST_TYPE_STRING:
    case HOST_TYPE_LONGSTRING: {
        // The read is borrowed and the write hands a reference to the
        // array, so the handle gets one more for its second slot.
        HostStr handle = 0;
        HostArrayGetString(from, &handle, fromIndex);
        // A null handle carries no reference.
        if (handle && timing == RefTiming::BeforeWrite)
            HostStrAddRef(handle);
        HostArraySetString(to, handle, toIndex);
        if (handle && timing == RefTiming::AfterWrite)
            HostStrAddRef(handle);
        return true;
    }
    default:
        return false;
    }
}

void ClearElement(int32_t type, HostArray array, int32_t index) {
    const HostNumber nullRecord{};
    switch (type) {
    case HOST_TYPE_BOOLEAN:
        HostArraySetBoolean(array, 0, index);
        break;
    case HOST_TYPE_HANDLE:
        HostArraySetHandle(array, 0, index);
        break;
    case HOST_TYPE_DATETIME:
        HostArraySetDateTime(array, &nullRecord, index);
        break;
    case HOST_TYPE_NUMBER:
        HostArraySetNumber(array, &nullRecord, index);
        break;
    case HOST_TYPE_STRING:
    case HOST_TYPE_LONGSTRING:
        HostArraySetString(array, 0, index);
        break;
    default:
        break;
    }
}

} // namespace zk::text
