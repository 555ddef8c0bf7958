// The host's counted strings, as the other parts of the runtime use them.
// Everything here runs on the application's user-interface thread, as every
// host operation does; nothing is locked.
#pragma once

#include <cstdint>
#include <string_view>

#include "zkrecord.h"

namespace hostwin {

struct HostString {
    wchar_t *buffer = nullptr; // bytes given at creation, rounded up to whole
                               // characters, plus one terminator never handed out
    int32_t bytes = 0;         // the size given at creation
    int32_t length = 0;        // characters of text with the terminator, when recorded
    int32_t refs = 0;
};

// A new string with one reference and a zeroed buffer of `bytes` bytes;
// 0 when memory runs out or bytes is negative.
HostStr StrCreate(int32_t bytes);
// A new string holding text (one reference), or 0.
HostStr StrFromText(std::wstring_view text);
// The live string behind a handle, or null.
HostString *StrFind(HostStr handle);
// One reference more; false for a dead handle.
bool StrAddRef(HostStr handle);
// One reference less; the string goes with its last. Dead handles are ignored.
void StrRelease(HostStr handle);
// Puts a handle that carries a reference into a slot, dropping the
// reference of what the slot held before.
void StrStore(HostStr *slot, HostStr handle);
size_t StrLiveCount();

} // namespace hostwin
