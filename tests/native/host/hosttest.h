// Shorthands of the host core tests.
#pragma once

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "core/hostnum.h"

namespace hosttest {

// ASCII text both ways, so that failures print readably.
inline std::u16string u16(std::string_view text) { return std::u16string(text.begin(), text.end()); }
inline std::string ascii(std::u16string_view text) {
    std::string out;
    for (char16_t c : text)
        out += c < 128 ? static_cast<char>(c) : '?';
    return out;
}

// A number from text; a failed parse fails the test and gives null.
inline HostNumber num(std::string_view text) {
    HostNumber n{};
    EXPECT_TRUE(zkh::NumberFromText(u16(text), n)) << text;
    return n;
}
inline std::string text(const HostNumber &n) { return ascii(zkh::NumberToText(n)); }

inline HostNumber add(const HostNumber &a, const HostNumber &b) {
    HostNumber r{};
    r.length = static_cast<uint8_t>(zkh::NumberAdd(r.digits, a.digits, a.length, b.digits, b.length));
    return r;
}
inline HostNumber sub(const HostNumber &a, const HostNumber &b) {
    HostNumber r{};
    r.length = static_cast<uint8_t>(zkh::NumberSubtract(r.digits, a.digits, a.length, b.digits, b.length));
    return r;
}

// Same value by the record rule: equal length, equal significant bytes.
inline bool SameRecord(const HostNumber &a, const HostNumber &b) {
    return a.length == b.length && std::memcmp(a.digits, b.digits, a.length < 24 ? a.length : 24) == 0;
}

} // namespace hosttest
