// What the date classes ask of the host: its date-time arithmetic, its text
// forms, the library's own strings and the system colours. The library keeps
// no date arithmetic of its own; the platform side binds these to the host
// runtime's exports when the library loads, and a build without a host (the
// native tests) runs on the reference host's portable arithmetic.
#pragma once

#include <cstdint>
#include <string>

#include "zkrecord.h"

namespace zk::cal {

struct HostDateOps {
    HostDateTime *(*current)(HostDateTime *out);
    HostDateTime *(*construct)(HostDateTime *out, int32_t year, int32_t month, int32_t day, int32_t hour,
                               int32_t minute, int32_t second);
    int32_t (*year)(const HostDateTime &value);
    int32_t (*month)(const HostDateTime &value);
    int32_t (*day)(const HostDateTime &value);
    int32_t (*weekday)(const HostDateTime &value); // 0 Saturday, 1 Sunday .. 6 Friday
    // The value by a picture; both texts end in a terminator.
    std::u16string (*format)(const HostDateTime &value, const char16_t *picture);
    // A text that is no date gives a null record.
    HostDateTime *(*parse)(HostDateTime *out, const char16_t *text);
    int32_t (*isValidDateTime)(const char16_t *text);
    int32_t (*isValidPicture)(const char16_t *text);
    // Sums on the digit arrays; they answer the new length.
    int32_t (*add)(uint8_t *out, const uint8_t *a, int32_t aLength, const uint8_t *b, int32_t bLength);
    int32_t (*subtract)(uint8_t *out, const uint8_t *a, int32_t aLength, const uint8_t *b, int32_t bLength);
    int32_t (*addDouble)(uint8_t *out, const uint8_t *a, int32_t aLength, double b);
    int32_t (*toLong)(const HostNumber *number, int32_t *value);
};

struct PlatformOps {
    // String resource `id` of the library; empty when there is none.
    std::u16string (*loadText)(uint32_t id);
    // GetSysColor of a system colour index.
    uint32_t (*sysColor)(int32_t index);
};

// The operations in force.
const HostDateOps &DateOps();
const PlatformOps &Platform();

// Replace the operations; each answers what was in force before.
HostDateOps BindDateOps(const HostDateOps &ops);
PlatformOps BindPlatform(const PlatformOps &ops);

// The portable operations of a build without a host: the reference host's
// arithmetic, the local clock of the C library, no strings, black colours.
HostDateOps PortableDateOps();
PlatformOps PortablePlatform();

} // namespace zk::cal
