#include "frame/win/prop_block.h"

#include <climits>
#include <cstdint>

namespace zk {

int PropBlockLoad(HostOutline outline, HostItem item, const wchar_t *propertyName, CMemFile &file) noexcept {
    HostStr handle = 0;
    if (!propertyName || !HostPropGet(outline, item, propertyName, &handle))
        return 0;
    int32_t length = 0;
    const wchar_t *bytes = HostStrLock(handle, &length);
    // A buffer of no length at all has no room for even the byte that the
    // writer's count had in excess: nothing to read.
    if (!bytes || length < 1)
        return 0;
    try {
        file.Write(bytes, static_cast<size_t>(length - 1));
    } catch (...) {
        return 0;
    }
    return 1;
}

int PropBlockStore(HostOutline outline, HostItem item, const wchar_t *propertyName, CMemFile &file) noexcept {
    const size_t length = file.GetLength();
    if (!propertyName || length >= 0xFFFFFFFFu || length > static_cast<size_t>(INT32_MAX) - 2)
        return 0;
    const auto bytes = static_cast<int32_t>(length + 2);
    HostStr handle = 0;
    if (!HostStrAlloc(&handle, bytes))
        return 0;
    int32_t locked = 0;
    auto *buffer = reinterpret_cast<uint8_t *>(HostStrLock(handle, &locked));
    if (!buffer || locked != bytes)
        return 0;
    const size_t arrived = file.Read(buffer, static_cast<size_t>(locked - 1));
    // The 16-bit zero that ends the buffer: right after the data, inside
    // the two bytes the count has beyond it.
    buffer[length] = 0;
    buffer[length + 1] = 0;
    for (size_t at = arrived; at < length; ++at)
        buffer[at] = 0; // a file read from past its start leaves no stale bytes
    return HostPropSet(outline, item, propertyName, buffer, locked);
}

bool HasStoredProperties(const CREATESTRUCTW *create) noexcept {
    if (!create || !create->lpCreateParams)
        return false;
    const auto *parameter = static_cast<const uint8_t *>(create->lpCreateParams);
    return (parameter[4] & 1) != 0;
}

bool SpinBlockLoad(HostOutline outline, HostItem item, SpinBlock &block) noexcept {
    HostStr handle = 0;
    if (!HostPropGet(outline, item, kPropSpinField, &handle))
        return false;
    int32_t length = 0;
    const wchar_t *bytes = HostStrLock(handle, &length);
    if (!bytes)
        return false;
    SpinBlockApply(reinterpret_cast<const uint8_t *>(bytes), length, block);
    return true;
}

int SpinBlockStore(HostOutline outline, HostItem item, const SpinBlock &block) noexcept {
    HostStr handle = 0;
    if (!HostStrAlloc(&handle, kSpinImageBytes))
        return 0;
    int32_t locked = 0;
    auto *buffer = reinterpret_cast<uint8_t *>(HostStrLock(handle, &locked));
    if (!buffer || locked != kSpinImageBytes)
        return 0;
    const auto image = SpinBlockImage(block);
    for (size_t i = 0; i < image.size(); ++i)
        buffer[i] = image[i];
    return HostPropSet(outline, item, kPropSpinField, buffer, locked);
}

} // namespace zk
