// The handle table behind host strings and their reference counts.
#include "strstore.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <new>

#include "handles.h"

namespace hostwin {
namespace {

HandleTable<HostString> &Table() {
    static HandleTable<HostString> table;
    return table;
}

} // namespace

HostStr StrCreate(int32_t bytes) {
    if (bytes < 0)
        return 0;
    // Whole characters, and one more that stays 0 whatever the owner writes
    // into the bytes it asked for, so the text always ends.
    size_t chars = (static_cast<size_t>(bytes) + 1) / 2 + 1;
    auto *buffer = static_cast<wchar_t *>(std::calloc(chars, sizeof(wchar_t)));
    if (!buffer)
        return 0;
    HostStr handle = 0;
    try {
        handle = Table().add(HostString{buffer, bytes, 0, 1});
    } catch (const std::bad_alloc &) {
        handle = 0;
    }
    if (!handle)
        std::free(buffer);
    return handle;
}

HostStr StrFromText(std::wstring_view text) {
    if (text.size() > (INT32_MAX - 2) / 2)
        return 0;
    int32_t chars = static_cast<int32_t>(text.size());
    HostStr handle = StrCreate(2 * chars + 2);
    if (!handle)
        return 0;
    HostString *s = StrFind(handle);
    if (chars)
        std::memcpy(s->buffer, text.data(), chars * sizeof(wchar_t));
    s->length = chars + 1;
    return handle;
}

HostString *StrFind(HostStr handle) { return Table().find(handle); }

bool StrAddRef(HostStr handle) {
    HostString *s = StrFind(handle);
    if (!s || s->refs == INT32_MAX)
        return false;
    ++s->refs;
    return true;
}

void StrRelease(HostStr handle) {
    HostString *s = StrFind(handle);
    if (!s)
        return;
    if (--s->refs > 0)
        return;
    HostString gone;
    Table().remove(handle, gone);
    std::free(gone.buffer);
}

void StrStore(HostStr *slot, HostStr handle) {
    HostStr old = *slot;
    *slot = handle;
    StrRelease(old);
}

size_t StrLiveCount() { return Table().live(); }

} // namespace hostwin
