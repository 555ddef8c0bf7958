// Host arrays: bounds that do not start at 0, growth on write at both ends,
// reads outside, string references, tokenizing.
#include <vector>

#include "host_test_util.h"

using namespace hosttest;

namespace {

class HostArrays : public HostTest {};

struct Bounds {
    int32_t count, low, high;
    bool operator==(const Bounds &) const = default;
};

std::ostream &operator<<(std::ostream &os, const Bounds &b) {
    return os << "count " << b.count << " [" << b.low << ", " << b.high << "]";
}

Bounds BoundsOf(HostArray a) {
    Bounds b{};
    b.count = HostArrayGetBounds(a, &b.low, &b.high);
    return b;
}

std::vector<std::wstring> Strings(HostArray a) {
    std::vector<std::wstring> out;
    Bounds b = BoundsOf(a);
    for (int32_t i = b.low; i <= b.high; ++i) {
        HostStr s = 0;
        HostArrayGetString(a, &s, i);
        out.push_back(s ? Text(s) : L"<null>");
    }
    return out;
}

TEST_F(HostArrays, CreateOnlyKnownTypes) {
    for (int32_t type : {1, 2, 3, 5, 7, 256}) {
        HostArray a = HostArrayCreate(type);
        ASSERT_NE(a, 0u) << type;
        EXPECT_EQ(BoundsOf(a), (Bounds{0, 0, -1}));
        EXPECT_EQ(HostArrayIsEmpty(a), 1);
        EXPECT_EQ(HostArrayDestroy(a), 1);
    }
    EXPECT_EQ(HostArrayCreate(4), 0u);
    EXPECT_EQ(HostArrayCreate(0), 0u);
}

TEST_F(HostArrays, WritesGrowTheBoundsAtBothEnds) {
    HostArray a = HostArrayCreate(HOST_TYPE_HANDLE);
    ASSERT_EQ(HostArraySetBounds(a, 5, 4), 1) << "empty, low bound 5";
    EXPECT_EQ(HostArraySetHandle(a, 70, 7), 1);
    EXPECT_EQ(BoundsOf(a), (Bounds{3, 5, 7}));
    EXPECT_EQ(HostArraySetHandle(a, 20, 2), 1);
    EXPECT_EQ(BoundsOf(a), (Bounds{6, 2, 7}));
    uint32_t v = 99;
    EXPECT_EQ(HostArrayGetHandle(a, &v, 5), 1);
    EXPECT_EQ(v, 0u) << "filled by growth";
    EXPECT_EQ(HostArrayGetHandle(a, &v, 7), 1);
    EXPECT_EQ(v, 70u);
    v = 99;
    EXPECT_EQ(HostArrayGetHandle(a, &v, 8), 0);
    EXPECT_EQ(v, 0u);
    EXPECT_EQ(HostArrayGetHandle(a, &v, 1), 0);
    int32_t high = 0;
    EXPECT_EQ(HostArrayGetUpperBound(a, 1, &high), 1);
    EXPECT_EQ(high, 7);
    EXPECT_EQ(HostArraySetUpperBound(a, 1, 9), 1);
    EXPECT_EQ(BoundsOf(a), (Bounds{8, 2, 9}));
    EXPECT_EQ(HostArrayGetUpperBound(a, 2, &high), 0);
    EXPECT_EQ(HostArraySetUpperBound(a, 2, 9), 0);
    HostArrayDestroy(a);
}

TEST_F(HostArrays, SetBoundsKeepsElementsByIndex) {
    HostArray a = HostArrayCreate(HOST_TYPE_BOOLEAN);
    for (int32_t i = 10; i <= 14; ++i)
        HostArraySetBoolean(a, uint32_t(i), i);
    ASSERT_EQ(HostArraySetBounds(a, 12, 16), 1);
    uint32_t v = 0;
    EXPECT_EQ(HostArrayGetBoolean(a, &v, 14), 1);
    EXPECT_EQ(v, 14u);
    EXPECT_EQ(HostArrayGetBoolean(a, &v, 16), 1);
    EXPECT_EQ(v, 0u);
    EXPECT_EQ(HostArraySetBounds(a, 0, 0x7FFFFFFF), 0) << "far too many";
    EXPECT_EQ(BoundsOf(a), (Bounds{5, 12, 16}));
    ASSERT_EQ(HostArraySetBounds(a, 3, -1), 1) << "high below low - 1 empties";
    EXPECT_EQ(BoundsOf(a), (Bounds{0, 3, 2})) << "the low bound stays";
    HostArrayDestroy(a);
}

TEST_F(HostArrays, NumberAndDateRecordsAreKeptWhole) {
    HostArray numbers = HostArrayCreate(HOST_TYPE_NUMBER);
    HostArray dates = HostArrayCreate(HOST_TYPE_DATETIME);
    HostNumber pi = Num(L"3.14159265358979323846"), n{};
    HostDateTime day{}, d{};
    HostDateConstruct(&day, 2021, 7, 4, 12, 0, 0);
    EXPECT_EQ(HostArraySetNumber(numbers, &pi, -2), 1);
    EXPECT_EQ(HostArraySetDateTime(dates, &day, 1), 1);
    EXPECT_EQ(HostArrayGetNumber(numbers, &n, -2), 1);
    EXPECT_EQ(memcmp(&n, &pi, sizeof n), 0);
    EXPECT_EQ(BoundsOf(numbers), (Bounds{2, -2, -1})) << "below the low bound 0 of the empty array";
    EXPECT_EQ(HostArrayGetDateTime(dates, &d, 0), 1);
    EXPECT_EQ(d.length, 0) << "growth fills with null records";
    EXPECT_EQ(HostArrayGetDateTime(dates, &d, 1), 1);
    EXPECT_EQ(memcmp(&d, &day, sizeof d), 0);
    EXPECT_EQ(HostArraySetNumber(numbers, nullptr, 0), 0);
    HostArrayDestroy(numbers);
    HostArrayDestroy(dates);
}

TEST_F(HostArrays, WrongTypesAndDeadArraysGiveZero) {
    HostArray strings = HostArrayCreate(HOST_TYPE_STRING);
    HostArray flags = HostArrayCreate(HOST_TYPE_BOOLEAN);
    HostArraySetBoolean(flags, 1, 0);
    uint32_t v = 7;
    HostNumber n{};
    EXPECT_EQ(HostArrayGetHandle(flags, &v, 0), 0);
    EXPECT_EQ(v, 0u);
    EXPECT_EQ(HostArrayGetNumber(strings, &n, 0), 0);
    HostStr s = ZkHostStrMake(L"x");
    EXPECT_EQ(HostArraySetString(flags, s, 0), 0);
    EXPECT_EQ(ZkHostStrRefs(s), 1) << "a refused write takes no reference";
    ZkHostStrRelease(s);
    EXPECT_EQ(HostArraySetString(strings, s, 0), 0) << "a dead string is refused";
    HostArrayDestroy(strings);

    HostArrayDestroy(flags);
    EXPECT_EQ(HostArrayDestroy(flags), 0);
    EXPECT_EQ(HostArraySetBoolean(flags, 1, 0), 0);
    int32_t low = 5, high = 5;
    EXPECT_EQ(HostArrayGetBounds(flags, &low, &high), 0);
    EXPECT_EQ(HostArraySetBounds(0, 0, 3), 0);
}

TEST_F(HostArrays, StringSlotsTakeTheCallersReferenceAndDropTheOld) {
    HostArray a = HostArrayCreate(HOST_TYPE_LONGSTRING);
    HostStr first = ZkHostStrMake(L"first");
    HostStr second = ZkHostStrMake(L"second");
    ASSERT_EQ(HostArraySetString(a, first, 3), 1);
    EXPECT_EQ(ZkHostStrRefs(first), 1) << "the array holds the caller's reference";
    HostStr read = 0;
    EXPECT_EQ(HostArrayGetString(a, &read, 3), 1);
    EXPECT_EQ(read, first);
    EXPECT_EQ(ZkHostStrRefs(first), 1) << "reading borrows";

    HostStrAddRef(first); // the same handle in a second slot
    ASSERT_EQ(HostArraySetString(a, first, 4), 1);
    ASSERT_EQ(HostArraySetString(a, second, 3), 1);
    EXPECT_EQ(ZkHostStrRefs(first), 1);
    ASSERT_EQ(HostArraySetString(a, 0, 4), 1);
    EXPECT_EQ(ZkHostStrRefs(first), 0);
    EXPECT_EQ(Strings(a), (std::vector<std::wstring>{L"<null>", L"<null>", L"<null>", L"second", L"<null>"}));
    ASSERT_EQ(HostArraySetBounds(a, 0, 2), 1);
    EXPECT_EQ(ZkHostStrRefs(second), 0) << "shrinking drops the strings that fall out";
    HostArrayDestroy(a);
}

TEST_F(HostArrays, TokenizeWritesNewStringsFromTheLowBound) {
    HostArray a = HostArrayCreate(HOST_TYPE_STRING);
    EXPECT_EQ(HostStrTokenize(L"C:\\dir\\sub", L"", L"\\", a), 3);
    EXPECT_EQ(Strings(a), (std::vector<std::wstring>{L"C:", L"dir", L"sub"}));

    HostArraySetBounds(a, 3, 7);
    HostStr old = ZkHostStrMake(L"old");
    HostArraySetString(a, old, 3);
    HostStrAddRef(old);
    EXPECT_EQ(HostStrTokenize(L"\\\\a\\\\b\\", nullptr, L"\\", a), 2) << "empty tokens are skipped";
    EXPECT_EQ(BoundsOf(a), (Bounds{2, 3, 4}));
    EXPECT_EQ(Strings(a), (std::vector<std::wstring>{L"a", L"b"}));
    EXPECT_EQ(ZkHostStrRefs(old), 1) << "the overwritten slot let go of it";
    ZkHostStrRelease(old);

    const struct {
        const wchar_t *text, *start, *end;
        std::vector<std::wstring> tokens;
    } cases[] = {
        {L"x[a]y[bc]z[", L"[", L"]", {L"a", L"bc"}}, // text between tokens is left
        {L",a,,b", L",", L",", {L"a", L"b"}},
        {L"[open", L"[", L"]", {L"open"}},
        {L"a b", L"", L"", {L"a b"}},
        {L"", L"", L"\\", {}},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(testing::Message() << c.text);
        EXPECT_EQ(HostStrTokenize(c.text, c.start, c.end, a), int32_t(c.tokens.size()));
        EXPECT_EQ(Strings(a), c.tokens);
    }
    HostArrayDestroy(a);

    HostArray numbers = HostArrayCreate(HOST_TYPE_NUMBER);
    EXPECT_EQ(HostStrTokenize(L"a\\b", L"", L"\\", numbers), -1);
    HostArrayDestroy(numbers);
}

} // namespace
