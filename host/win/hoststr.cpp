// String exports: allocation into a slot, lock, length, references, and the
// test controls that count and fail allocations.
#include <cwchar>

#include "guard.h"
#include "strstore.h"
#include "zkhost.h"
#include "zkhostctl.h"

using namespace hostwin;

namespace {

int32_t AllocCalls = 0;
int32_t LastAllocSize = 0;
int32_t FailuresPending = 0;

} // namespace

extern "C" {

int32_t ZKAPI HostStrAlloc(HostStr *slot, int32_t bytes) {
    ++AllocCalls;
    LastAllocSize = bytes;
    if (FailuresPending > 0) {
        --FailuresPending;
        return 0;
    }
    if (!slot)
        return 0;
    HostStr handle = StrCreate(bytes);
    if (!handle)
        return 0;
    StrStore(slot, handle);
    return 1;
}

wchar_t *ZKAPI HostStrLock(HostStr handle, int32_t *size) {
    HostString *s = StrFind(handle);
    if (size)
        *size = s ? s->bytes : 0;
    return s ? s->buffer : nullptr;
}

int32_t ZKAPI HostStrSetLength(HostStr *slot, int32_t lengthWithTerminator) {
    HostString *s = slot ? StrFind(*slot) : nullptr;
    if (!s)
        return 0;
    // The hidden last character counts: a buffer filled to its last byte
    // still ends in a terminator.
    int32_t capacity = (s->bytes + 1) / 2 + 1;
    if (lengthWithTerminator < 1 || lengthWithTerminator > capacity)
        return 0;
    s->length = lengthWithTerminator;
    s->buffer[lengthWithTerminator - 1] = 0;
    return 1;
}

int32_t ZKAPI HostStrAddRef(HostStr handle) { return StrAddRef(handle) ? 1 : 0; }

void ZKAPI ZkHostFailAllocations(int32_t count) { FailuresPending = count > 0 ? count : 0; }

int32_t ZKAPI ZkHostAllocCalls(void) { return AllocCalls; }

int32_t ZKAPI ZkHostLastAllocSize(void) { return LastAllocSize; }

int32_t ZKAPI ZkHostLiveStrings(void) { return static_cast<int32_t>(StrLiveCount()); }

int32_t ZKAPI ZkHostStrRefs(HostStr handle) {
    HostString *s = StrFind(handle);
    return s ? s->refs : 0;
}

HostStr ZKAPI ZkHostStrMake(const wchar_t *text) {
    return Guard<HostStr>(0, [&] { return StrFromText(text ? text : L""); });
}

void ZKAPI ZkHostStrRelease(HostStr handle) { StrRelease(handle); }

} // extern "C"
