// Array exports: temporary arrays, bounds, and element access by type.
// A read outside the bounds or of the wrong type gives the zero value and 0;
// a write grows the array to hold its index.
#include "arraystore.h"
#include "guard.h"
#include "strstore.h"
#include "zkhost.h"
#include "zkhostctl.h"

using namespace hostwin;

namespace {

// The array if it holds elements of `type` (5 and 7 read alike), else null.
HostArrayData *Typed(HostArray array, int32_t type) {
    HostArrayData *a = ArrayFind(array);
    if (!a)
        return nullptr;
    if (type == HOST_TYPE_STRING)
        return a->HoldsStrings() ? a : nullptr;
    return a->type() == type ? a : nullptr;
}

int32_t GetWord(HostArray array, int32_t type, uint32_t *value, int32_t index) {
    if (value)
        *value = 0;
    HostArrayData *a = Typed(array, type);
    if (!a || !a->contains(index))
        return 0;
    if (value)
        *value = a->word(index);
    return 1;
}

int32_t SetWord(HostArray array, int32_t type, uint32_t value, int32_t index) {
    return Guard<int32_t>(0, [&] {
        HostArrayData *a = Typed(array, type);
        if (!a || !a->reach(index))
            return 0;
        a->word(index) = value;
        return 1;
    });
}

int32_t GetRecord(HostArray array, int32_t type, HostNumber *value, int32_t index) {
    if (value)
        *value = HostNumber{};
    HostArrayData *a = Typed(array, type);
    if (!a || !a->contains(index))
        return 0;
    if (value)
        *value = a->record(index);
    return 1;
}

int32_t SetRecord(HostArray array, int32_t type, const HostNumber *value, int32_t index) {
    return Guard<int32_t>(0, [&] {
        HostArrayData *a = Typed(array, type);
        if (!a || !value || !a->reach(index))
            return 0;
        a->record(index) = *value;
        return 1;
    });
}

} // namespace

extern "C" {

HostArray ZKAPI HostArrayCreate(int32_t type) { return ArrayCreate(type); }

int32_t ZKAPI HostArrayDestroy(HostArray array) { return ArrayDestroy(array) ? 1 : 0; }

int32_t ZKAPI HostArrayGetDimensionCount(HostArray array, int32_t *count) {
    HostArrayData *a = ArrayFind(array);
    if (count)
        *count = a ? a->dimensions : 0;
    return a ? 1 : 0;
}

int32_t ZKAPI HostArrayIsEmpty(HostArray array) {
    HostArrayData *a = ArrayFind(array);
    return !a || a->count() == 0 ? 1 : 0;
}

int32_t ZKAPI HostArrayGetBounds(HostArray array, int32_t *low, int32_t *high) {
    HostArrayData *a = ArrayFind(array);
    if (low)
        *low = a ? a->low() : 0;
    if (high)
        *high = a ? a->high() : -1;
    return a ? a->count() : 0;
}

int32_t ZKAPI HostArraySetBounds(HostArray array, int32_t low, int32_t high) {
    return Guard<int32_t>(0, [&] {
        HostArrayData *a = ArrayFind(array);
        return a && a->resize(low, high) ? 1 : 0;
    });
}

// Dimension counts above 1 are a test device; only dimension 1 has bounds.
int32_t ZKAPI HostArrayGetUpperBound(HostArray array, int32_t dimension, int32_t *high) {
    HostArrayData *a = ArrayFind(array);
    bool ok = a && dimension == 1;
    if (high)
        *high = ok ? a->high() : -1;
    return ok ? 1 : 0;
}

int32_t ZKAPI HostArraySetUpperBound(HostArray array, int32_t dimension, int32_t high) {
    return Guard<int32_t>(0, [&] {
        HostArrayData *a = ArrayFind(array);
        return a && dimension == 1 && a->resize(a->low(), high) ? 1 : 0;
    });
}

int32_t ZKAPI HostArrayGetHandle(HostArray array, uint32_t *value, int32_t index) {
    return GetWord(array, HOST_TYPE_HANDLE, value, index);
}

int32_t ZKAPI HostArrayGetBoolean(HostArray array, uint32_t *value, int32_t index) {
    return GetWord(array, HOST_TYPE_BOOLEAN, value, index);
}

int32_t ZKAPI HostArrayGetString(HostArray array, HostStr *value, int32_t index) {
    return GetWord(array, HOST_TYPE_STRING, value, index);
}

int32_t ZKAPI HostArrayGetNumber(HostArray array, HostNumber *value, int32_t index) {
    return GetRecord(array, HOST_TYPE_NUMBER, value, index);
}

int32_t ZKAPI HostArrayGetDateTime(HostArray array, HostDateTime *value, int32_t index) {
    return GetRecord(array, HOST_TYPE_DATETIME, value, index);
}

int32_t ZKAPI HostArraySetHandle(HostArray array, uint32_t value, int32_t index) {
    return SetWord(array, HOST_TYPE_HANDLE, value, index);
}

int32_t ZKAPI HostArraySetBoolean(HostArray array, uint32_t value, int32_t index) {
    return SetWord(array, HOST_TYPE_BOOLEAN, value, index);
}

// The array takes over the caller's reference; the old content's goes.
int32_t ZKAPI HostArraySetString(HostArray array, HostStr value, int32_t index) {
    return Guard<int32_t>(0, [&] {
        HostArrayData *a = Typed(array, HOST_TYPE_STRING);
        if (!a || (value && !StrFind(value)) || !a->reach(index))
            return 0;
        StrStore(&a->word(index), value);
        return 1;
    });
}

int32_t ZKAPI HostArraySetNumber(HostArray array, const HostNumber *value, int32_t index) {
    return SetRecord(array, HOST_TYPE_NUMBER, value, index);
}

int32_t ZKAPI HostArraySetDateTime(HostArray array, const HostDateTime *value, int32_t index) {
    return SetRecord(array, HOST_TYPE_DATETIME, value, index);
}

int32_t ZKAPI ZkHostLiveArrays(void) { return static_cast<int32_t>(ArrayLiveCount()); }

int32_t ZKAPI ZkHostArraySetDimensions(HostArray array, int32_t count) {
    HostArrayData *a = ArrayFind(array);
    if (!a || count < 1)
        return 0;
    a->dimensions = count;
    return 1;
}

} // extern "C"
