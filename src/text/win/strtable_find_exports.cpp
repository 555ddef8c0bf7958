// ZelStrFind and ZelStrFreeTable: look-ups in a loaded string table, and
// its end.
#include <cstdint>

#include "frame/win/guard.h"
#include "text/core/strtable.h"
#include "text/win/host_text.h"

HostStr ZKAPI ZelStrFind(intptr_t table, const wchar_t *key) {
    return zk::StringResult([&]() -> HostStr {
        if (!table || !key)
            return ZelStrEmpty();
        const auto handle = reinterpret_cast<HGLOBAL>(table);
        // The caller holds the table as a number: the scan keeps to the
        // block's own size, whatever the block holds.
        const SIZE_T bytes = GlobalSize(handle);
        const auto *chars = static_cast<const char16_t *>(GlobalLock(handle));
        if (!chars)
            return ZelStrEmpty();
        struct Unlock {
            HGLOBAL handle;
            ~Unlock() { GlobalUnlock(handle); }
        } unlock{handle};
        const std::optional<std::u16string_view> value =
            zk::text::TableFind({chars, bytes / sizeof(char16_t)}, zk::text::ArgText(key));
        return value ? zk::text::TextResult(*value) : ZelStrEmpty();
    });
}

int32_t ZKAPI ZelStrFreeTable(intptr_t table) {
    if (!table)
        return 0;
    return GlobalFree(reinterpret_cast<HGLOBAL>(table)) == nullptr ? 1 : 0;
}
