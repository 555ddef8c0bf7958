// The chief header of the library's platform side: host operations, the
// string-return idiom with its retry dialog, the trace of caught exceptions.
#pragma once

#include <windows.h>
#include <cstddef>
#include <string>
#include <string_view>

#include "zkhost.h"
#include "zklib.h"

namespace zk {

extern HINSTANCE ModuleInstance;

// Caption of the retry dialog in every call.
inline constexpr const wchar_t *kRecoveryCaption = L"Zelkova Kit";
// The application object's name: the caption of the library's own boxes.
inline constexpr const wchar_t *kAppName = L"Zelkova Kit Library";

// Allocates a host string of `bytes` bytes into *slot. While the host has no
// memory the user is asked through the retry dialog (Halt calls HostHalt and,
// should it come back, the same allocation is tried again). Never gives up.
void StrAllocRetry(HostStr *slot, int32_t bytes);

// The writable buffer of a string just made.
inline wchar_t *StrBuffer(HostStr handle) {
    int32_t size = 0;
    return HostStrLock(handle, &size);
}

// Writes `count` characters of `text` into the buffer of a string just made,
// and a terminator after them unless `terminate` is false (a text that fills
// its buffer to the last byte: the host ends its strings itself).
void StrWrite(HostStr handle, const wchar_t *text, size_t count, bool terminate = true);

// A host string holding `count` characters of `text`, allocated as
// 2 * count + 2 bytes with retry.
HostStr StrFromChars(const wchar_t *text, size_t count);
inline HostStr StrFromView(std::wstring_view text) { return StrFromChars(text.data(), text.size()); }

// Loads string resource `id` of the library; empty when missing.
std::wstring LoadText(UINT id);

// Writes "name - text\n" to the debugger in four pieces.
void TraceLine(const wchar_t *functionName, const wchar_t *text);

} // namespace zk

// Copy of a known text: 2 * lstrlenW(text) + 2 bytes, or 0 when the host
// cannot allocate. No retry here; callers that must not fail use ZelStrEmpty
// or zk::StrFromChars.
HostStr ZelStrFromText(const wchar_t *text);

// The empty string: a valid handle holding no characters, never 0.
HostStr ZelStrEmpty();

// One debug line for a caught exception: "name - text\n", the text being
// string resource `stringId` as it stands.
void ZelReportError(UINT stringId, const wchar_t *functionName);
