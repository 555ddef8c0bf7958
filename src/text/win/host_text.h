// The host side of the text exports: argument text as the core reads it,
// results as host strings of the sizes the exports promise.
#pragma once

#include <cstdint>
#include <string_view>

#include "frame/win/guard.h"

namespace zk::text {

// The argument text (null reads as empty); wchar_t is 16 bits on Windows.
inline std::u16string_view ArgText(const wchar_t *text) {
    return text ? std::u16string_view(reinterpret_cast<const char16_t *>(text)) : std::u16string_view();
}

// The core's text as the platform's wide characters.
inline const wchar_t *WideText(std::u16string_view text) { return reinterpret_cast<const wchar_t *>(text.data()); }

// Whether `bytes` can be asked of the host.
inline bool HostSizeFits(uint64_t bytes) { return bytes <= static_cast<uint64_t>(INT32_MAX); }

// A host string of `bytes` bytes (with retry) holding text and, where there
// is room, a terminator: a text that fills its buffer to the last byte is
// ended by the host, whose strings always end. The empty string if bytes
// cannot hold the text or cannot be asked of the host.
HostStr SizedResult(std::u16string_view text, uint64_t bytes);

// 2 * text + 2 bytes with retry; the empty string for no text.
HostStr TextResult(std::u16string_view text);

} // namespace zk::text
