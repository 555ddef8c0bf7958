// Host values for the string and number export tests: results read and
// released, arrays built through the host's own exports, and a check that
// every test gives back the strings it was handed.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

#include "zkhost.h"
#include "zkhostctl.h"
#include "zklib.h"

namespace textwin {

// A result the test owns: read, then released.
inline std::wstring Take(HostStr handle) {
    EXPECT_NE(0u, handle) << "string results are never 0";
    int32_t size = 0;
    const wchar_t *text = handle ? HostStrLock(handle, &size) : nullptr;
    std::wstring out = text ? std::wstring(text) : std::wstring();
    ZkHostStrRelease(handle);
    return out;
}

// Bytes of the text in the system code page.
inline int AnsiBytes(const std::wstring &text) {
    return text.empty() ? 0
                        : WideCharToMultiByte(CP_ACP, 0, text.c_str(), static_cast<int>(text.size()), nullptr, 0,
                                              nullptr, nullptr);
}

// A temporary array of numbers from index `low` on.
inline HostArray NumberArray(std::initializer_list<int32_t> values, int32_t low = 0) {
    HostArray array = HostArrayCreate(HOST_TYPE_NUMBER);
    HostArraySetBounds(array, low, low + static_cast<int32_t>(values.size()) - 1);
    for (int32_t v : values) {
        HostNumber n{};
        HostNumberFromLong(v, &n);
        HostArraySetNumber(array, &n, low++);
    }
    return array;
}

// A temporary array of strings from index `low` on; the array holds them.
inline HostArray StringArray(std::initializer_list<const wchar_t *> values, int32_t low = 0) {
    HostArray array = HostArrayCreate(HOST_TYPE_STRING);
    HostArraySetBounds(array, low, low + static_cast<int32_t>(values.size()) - 1);
    for (const wchar_t *v : values)
        HostArraySetString(array, ZkHostStrMake(v), low++);
    return array;
}

// Every test leaves as many host strings and arrays alive as it found.
class HostTest : public ::testing::Test {
protected:
    void SetUp() override {
        strings_ = ZkHostLiveStrings();
        arrays_ = ZkHostLiveArrays();
    }
    void TearDown() override {
        EXPECT_EQ(strings_, ZkHostLiveStrings()) << "host strings left behind";
        EXPECT_EQ(arrays_, ZkHostLiveArrays()) << "host arrays left behind";
    }

private:
    int32_t strings_ = 0;
    int32_t arrays_ = 0;
};

} // namespace textwin
