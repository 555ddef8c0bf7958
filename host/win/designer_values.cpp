// Attributes and named properties of design items. A value read by the
// library is a host string kept beside the value and refreshed from it at
// each read, so what a reader may have written into the buffer never lasts.
#include <climits>
#include <cstring>
#include <cwchar>
#include <string>
#include <vector>

#include "designer_store.h"
#include "guard.h"
#include "strstore.h"
#include "zkhost.h"

using namespace hostwin;
using zkh::DesignOutlines;

namespace {

std::u16string Text16(const wchar_t *text) {
    static_assert(sizeof(wchar_t) == sizeof(char16_t), "host text is UTF-16");
    return std::u16string(reinterpret_cast<const char16_t *>(text), std::wcslen(text));
}

// The value's string, made again if it went, with the value's bytes.
HostString *Refresh(uint32_t &hostString, int32_t bytes) {
    HostString *s = StrFind(hostString);
    if (!s || s->bytes != bytes) {
        StrRelease(hostString);
        hostString = StrCreate(bytes);
        s = StrFind(hostString);
    }
    return s;
}

} // namespace

extern "C" {

int32_t ZKAPI HostDesignGetAttribute(HostOutline outline, HostItem item, int32_t attribute, int32_t index,
                                     HostStr *value) {
    return Guard<int32_t>(0, [&]() -> int32_t {
        DesignOutlines::Attribute *found = DesignStore().FindAttribute(outline, item, attribute, index);
        if (!found || !value || found->text.size() > (INT32_MAX - 2) / 2)
            return 0;
        const auto chars = static_cast<int32_t>(found->text.size());
        HostString *s = Refresh(found->hostString, 2 * chars + 2);
        if (!s)
            return 0;
        std::memcpy(s->buffer, found->text.data(), 2 * static_cast<size_t>(chars));
        s->buffer[chars] = 0;
        s->length = chars + 1;
        *value = found->hostString;
        return 1;
    });
}

int32_t ZKAPI HostDesignSetAttribute(HostOutline outline, HostItem item, int32_t attribute, const wchar_t *text,
                                     int32_t index) {
    return Guard<int32_t>(0, [&]() -> int32_t {
        if (!text)
            return 0;
        return DesignStore().SetAttribute(outline, item, attribute, index, Text16(text)) ? 1 : 0;
    });
}

int32_t ZKAPI HostDesignDeleteAttribute(HostOutline outline, HostItem item, int32_t attribute) {
    return Guard<int32_t>(0, [&] { return DesignStore().DeleteAttribute(outline, item, attribute) ? 1 : 0; });
}

int32_t ZKAPI HostPropSet(HostOutline outline, HostItem item, const wchar_t *name, const void *data, int32_t bytes) {
    return Guard<int32_t>(0, [&]() -> int32_t {
        if (!name || !data || bytes < 1)
            return 0;
        const auto *first = static_cast<const uint8_t *>(data);
        return DesignStore().SetProperty(outline, item, Text16(name), std::vector<uint8_t>(first, first + bytes)) ? 1
                                                                                                                  : 0;
    });
}

int32_t ZKAPI HostPropGet(HostOutline outline, HostItem item, const wchar_t *name, HostStr *data) {
    return Guard<int32_t>(0, [&]() -> int32_t {
        if (!name || !data)
            return 0;
        DesignOutlines::Property *found = DesignStore().FindProperty(outline, item, Text16(name));
        if (!found)
            return 0;
        // The count given to HostPropSet less one.
        const auto size = static_cast<int32_t>(found->bytes.size() - 1);
        HostString *s = Refresh(found->hostString, size);
        if (!s)
            return 0;
        std::memset(s->buffer, 0, (static_cast<size_t>(size) + 1) / 2 * sizeof(wchar_t));
        std::memcpy(s->buffer, found->bytes.data(), static_cast<size_t>(size));
        *data = found->hostString;
        return 1;
    });
}

} // extern "C"
