// Host arrays for the array export tests: arrays of every type built with
// any low bound, their contents and bounds read back, and a fixture that
// checks every test gives back the strings and arrays it made.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <cstring>
#include <initializer_list>
#include <ostream>
#include <string>
#include <vector>

#include "zkhost.h"
#include "zkhostctl.h"
#include "zklib.h"

namespace arraytest {

struct Bounds {
    int32_t count, low, high;
    bool operator==(const Bounds &) const = default;
};

inline std::ostream &operator<<(std::ostream &os, const Bounds &b) {
    return os << "count " << b.count << " [" << b.low << ", " << b.high << "]";
}

inline Bounds BoundsOf(HostArray array) {
    Bounds b{};
    b.count = HostArrayGetBounds(array, &b.low, &b.high);
    return b;
}

inline std::wstring Text(HostStr handle) {
    int32_t size = 0;
    const wchar_t *text = handle ? HostStrLock(handle, &size) : nullptr;
    return text ? std::wstring(text) : std::wstring(L"<null>");
}

inline HostNumber Number(const wchar_t *text) {
    HostNumber n{};
    EXPECT_EQ(1, HostNumberFromText(&n, text)) << "not a number: " << text;
    return n;
}

inline HostNumber Long(int32_t value) {
    HostNumber n{};
    HostNumberFromLong(value, &n);
    return n;
}

inline bool SameRecord(const HostNumber &a, const HostNumber &b) { return std::memcmp(&a, &b, sizeof a) == 0; }

// Arrays from `low` on; a string array holds one reference to each string.
inline HostArray Strings(std::initializer_list<const wchar_t *> values, int32_t low = 0,
                         int32_t type = HOST_TYPE_STRING) {
    HostArray array = HostArrayCreate(type);
    HostArraySetBounds(array, low, low + static_cast<int32_t>(values.size()) - 1);
    int32_t index = low;
    for (const wchar_t *v : values)
        HostArraySetString(array, v ? ZkHostStrMake(v) : 0, index++);
    return array;
}

inline HostArray Longs(std::initializer_list<int32_t> values, int32_t low = 0) {
    HostArray array = HostArrayCreate(HOST_TYPE_NUMBER);
    HostArraySetBounds(array, low, low + static_cast<int32_t>(values.size()) - 1);
    for (int32_t v : values) {
        const HostNumber n = Long(v);
        HostArraySetNumber(array, &n, low++);
    }
    return array;
}

// Flags or handles: one 32-bit word each.
inline HostArray Words(int32_t type, std::initializer_list<uint32_t> values, int32_t low = 0) {
    HostArray array = HostArrayCreate(type);
    HostArraySetBounds(array, low, low + static_cast<int32_t>(values.size()) - 1);
    for (uint32_t v : values)
        type == HOST_TYPE_BOOLEAN ? HostArraySetBoolean(array, v, low++) : HostArraySetHandle(array, v, low++);
    return array;
}

inline std::vector<HostStr> HandlesOf(HostArray array) {
    std::vector<HostStr> out;
    const Bounds b = BoundsOf(array);
    for (int32_t i = b.low; i <= b.high && b.count > 0; ++i) {
        HostStr s = 0;
        HostArrayGetString(array, &s, i);
        out.push_back(s);
    }
    return out;
}

inline std::vector<std::wstring> TextsOf(HostArray array) {
    std::vector<std::wstring> out;
    for (HostStr s : HandlesOf(array))
        out.push_back(Text(s));
    return out;
}

inline std::vector<int32_t> RefsOf(const std::vector<HostStr> &handles) {
    std::vector<int32_t> out;
    for (HostStr h : handles)
        out.push_back(ZkHostStrRefs(h));
    return out;
}

// Numbers as longs; a null record reads as the marker.
constexpr int32_t kNull = INT32_MIN;
inline std::vector<int32_t> LongsOf(HostArray array) {
    std::vector<int32_t> out;
    const Bounds b = BoundsOf(array);
    for (int32_t i = b.low; i <= b.high && b.count > 0; ++i) {
        HostNumber n{};
        int32_t v = 0;
        HostArrayGetNumber(array, &n, i);
        out.push_back(n.length == 0 ? kNull : (HostNumberToLong(&n, &v), v));
    }
    return out;
}

inline std::vector<uint32_t> WordsOf(HostArray array, int32_t type) {
    std::vector<uint32_t> out;
    const Bounds b = BoundsOf(array);
    for (int32_t i = b.low; i <= b.high && b.count > 0; ++i) {
        uint32_t w = 0;
        type == HOST_TYPE_BOOLEAN ? HostArrayGetBoolean(array, &w, i) : HostArrayGetHandle(array, &w, i);
        out.push_back(w);
    }
    return out;
}

// A two-dimensional array as far as the exports can tell.
inline HostArray TwoDimensional(int32_t type) {
    HostArray array = HostArrayCreate(type);
    HostArraySetBounds(array, 0, 2);
    ZkHostArraySetDimensions(array, 2);
    return array;
}

// A handle the host does not know: made and destroyed again.
inline HostArray DeadArray() {
    HostArray array = HostArrayCreate(HOST_TYPE_NUMBER);
    HostArrayDestroy(array);
    return array;
}

// Every test leaves as many host strings and arrays alive as it found,
// once the arrays it owns are destroyed.
class ArrayTest : public ::testing::Test {
protected:
    void SetUp() override {
        ZkHostFailAllocations(0);
        strings_ = ZkHostLiveStrings();
        arrays_ = ZkHostLiveArrays();
    }
    void TearDown() override {
        for (HostArray array : owned_)
            HostArrayDestroy(array);
        EXPECT_EQ(strings_, ZkHostLiveStrings()) << "host strings leaked or freed too early";
        EXPECT_EQ(arrays_, ZkHostLiveArrays()) << "host arrays left behind";
    }
    // An array destroyed at the end of the test.
    HostArray Own(HostArray array) {
        owned_.push_back(array);
        return array;
    }

private:
    std::vector<HostArray> owned_;
    int32_t strings_ = 0;
    int32_t arrays_ = 0;
};

} // namespace arraytest
