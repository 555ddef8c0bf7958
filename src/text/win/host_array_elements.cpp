#include "text/win/host_array_elements.h"

#include <cwchar>

namespace zk::text {

std::u16string_view HostArrayElements::String(int32_t index) {
    HostStr handle = 0;
    HostArrayGetString(array_, &handle, index);
    if (!handle)
        return {};
    int32_t size = 0;
    const wchar_t *text = HostStrLock(handle, &size);
    if (!text || size <= 0)
        return {};
    // The text ends at its terminator or with the buffer, whichever is first.
    const std::size_t length = wcsnlen(text, static_cast<std::size_t>(size) / 2);
    return {reinterpret_cast<const char16_t *>(text), length};
}

int32_t HostArrayElements::Number(int32_t index) {
    HostNumber number{};
    HostArrayGetNumber(array_, &number, index);
    int32_t value = 0;
    HostNumberToLong(&number, &value);
    return value;
}

} // namespace zk::text
