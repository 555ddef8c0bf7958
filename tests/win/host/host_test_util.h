// Shared pieces of the reference host's tests: text of a host string,
// numbers from text, and a fixture that checks no test leaks a string.
#pragma once

#include <windows.h>
#include <gtest/gtest.h>

#include <string>

#include "zkhost.h"
#include "zkhostctl.h"

namespace hosttest {

inline std::wstring Text(HostStr handle) {
    int32_t size = 0;
    const wchar_t *p = HostStrLock(handle, &size);
    return p ? std::wstring(p) : std::wstring(L"<dead>");
}

inline HostNumber Num(const wchar_t *text) {
    HostNumber n{};
    EXPECT_EQ(HostNumberFromText(&n, text), 1) << "not a number: " << text;
    return n;
}

inline HostNumber Long(int32_t value) {
    HostNumber n{};
    HostNumberFromLong(value, &n);
    return n;
}

// Every string a test makes is gone again at its end.
class HostTest : public ::testing::Test {
protected:
    void SetUp() override {
        ZkHostFailAllocations(0);
        strings_ = ZkHostLiveStrings();
        arrays_ = ZkHostLiveArrays();
    }
    void TearDown() override {
        EXPECT_EQ(ZkHostLiveStrings(), strings_) << "strings leaked or freed too early";
        EXPECT_EQ(ZkHostLiveArrays(), arrays_) << "arrays leaked";
    }

private:
    int32_t strings_ = 0;
    int32_t arrays_ = 0;
};

} // namespace hosttest
