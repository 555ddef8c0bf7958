// Host arrays: bounds that do not start at 0, growth on write at both ends,
// reads outside, string references, tokenizing. Host strings: slots,
// references, stale handles, failure injection, and the text operations
// that answer strings.
#include <vector>

#include "host_test_util.h"

using namespace hosttest;

namespace {

class HostArrays : public HostTest {};

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
    EXPECT_EQ(TextsOf(a), (std::vector<std::wstring>{L"<null>", L"<null>", L"<null>", L"second", L"<null>"}));
    ASSERT_EQ(HostArraySetBounds(a, 0, 2), 1);
    EXPECT_EQ(ZkHostStrRefs(second), 0) << "shrinking drops the strings that fall out";
    HostArrayDestroy(a);
}

TEST_F(HostArrays, TokenizeWritesNewStringsFromTheLowBound) {
    HostArray a = HostArrayCreate(HOST_TYPE_STRING);
    EXPECT_EQ(HostStrTokenize(L"C:\\dir\\sub", L"", L"\\", a), 3);
    EXPECT_EQ(TextsOf(a), (std::vector<std::wstring>{L"C:", L"dir", L"sub"}));

    HostArraySetBounds(a, 3, 7);
    HostStr old = ZkHostStrMake(L"old");
    HostArraySetString(a, old, 3);
    HostStrAddRef(old);
    EXPECT_EQ(HostStrTokenize(L"\\\\a\\\\b\\", nullptr, L"\\", a), 2) << "empty tokens are skipped";
    EXPECT_EQ(BoundsOf(a), (Bounds{2, 3, 4}));
    EXPECT_EQ(TextsOf(a), (std::vector<std::wstring>{L"a", L"b"}));
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
        EXPECT_EQ(TextsOf(a), c.tokens);
    }
    HostArrayDestroy(a);

    HostArray numbers = HostArrayCreate(HOST_TYPE_NUMBER);
    EXPECT_EQ(HostStrTokenize(L"a\\b", L"", L"\\", numbers), -1);
    HostArrayDestroy(numbers);
}

class HostStrings : public HostTest {};

TEST_F(HostStrings, AllocIntoASlotDropsTheOldReferenceAndEndsInATerminator) {
    HostStr shared = ZkHostStrMake(L"shared");
    HostStrAddRef(shared); // held in a second place
    HostStr slot = shared;
    ASSERT_EQ(HostStrAlloc(&slot, 6), 1);
    EXPECT_NE(slot, shared);
    EXPECT_EQ(ZkHostStrRefs(shared), 1);
    int32_t size = -1;
    wchar_t *buffer = HostStrLock(slot, &size);
    ASSERT_NE(buffer, nullptr);
    EXPECT_EQ(size, 6);
    EXPECT_EQ(Text(slot), L"") << "zeroed";
    buffer[0] = L'x', buffer[1] = L'y', buffer[2] = L'z';
    EXPECT_EQ(Text(slot), L"xyz") << "a full buffer still ends";

    HostStr second = slot;
    ASSERT_EQ(HostStrAlloc(&slot, 4), 1);
    EXPECT_EQ(ZkHostStrRefs(second), 0) << "its only reference was in the slot";
    ZkHostStrRelease(slot);
    ZkHostStrRelease(shared);
    EXPECT_EQ(ZkHostStrRefs(shared), 0) << "the last release frees";
}

TEST_F(HostStrings, StaleAndForgedHandlesAreDeadEvenAfterReuse) {
    HostStr gone = ZkHostStrMake(L"gone");
    ZkHostStrRelease(gone);
    std::vector<HostStr> made;
    for (int i = 0; i < 200; ++i) {
        HostStr s = ZkHostStrMake(L"new");
        EXPECT_NE(s, gone);
        made.push_back(s);
        if (i % 2)
            ZkHostStrRelease(s), made.pop_back();
    }
    int32_t size = 99;
    EXPECT_EQ(HostStrLock(gone, &size), nullptr);
    EXPECT_EQ(size, 0);
    EXPECT_EQ(HostStrAddRef(gone), 0);
    ZkHostStrRelease(gone); // ignored: must not touch a newer string
    for (HostStr s : made) {
        EXPECT_EQ(ZkHostStrRefs(s), 1);
        ZkHostStrRelease(s);
    }
    EXPECT_EQ(HostStrLock(0x12345678u, &size), nullptr);
    EXPECT_EQ(HostStrAddRef(0xFFFFFFFFu), 0);
}

TEST_F(HostStrings, InjectedFailuresLeaveTheSlotAndAreCounted) {
    HostStr slot = ZkHostStrMake(L"kept");
    HostStr kept = slot;
    int32_t calls = ZkHostAllocCalls();
    ZkHostFailAllocations(2);
    HostStr made = ZkHostStrMake(nullptr); // no host allocation: neither fails nor counts
    ASSERT_NE(made, 0u);
    ZkHostStrRelease(made);
    EXPECT_EQ(HostStrAlloc(&slot, 12), 0);
    EXPECT_EQ(HostStrAlloc(&slot, 14), 0);
    EXPECT_EQ(slot, kept);
    EXPECT_EQ(ZkHostLastAllocSize(), 14);
    EXPECT_EQ(HostStrAlloc(&slot, 16), 1);
    EXPECT_EQ(ZkHostAllocCalls(), calls + 3);
    EXPECT_EQ(ZkHostStrRefs(kept), 0);
    ZkHostStrRelease(slot);

    slot = 0;
    EXPECT_EQ(HostStrAlloc(&slot, -2), 0);
    EXPECT_EQ(slot, 0u);
    EXPECT_EQ(HostStrAlloc(nullptr, 4), 0);
}

TEST_F(HostStrings, SetLengthEndsTheTextWithinTheBuffer) {
    HostStr slot = 0;
    ASSERT_EQ(HostStrAlloc(&slot, 14), 1);
    wcscpy(HostStrLock(slot, nullptr), L"abcdef");
    EXPECT_EQ(HostStrSetLength(&slot, 4), 1);
    EXPECT_EQ(Text(slot), L"abc");
    EXPECT_EQ(HostStrSetLength(&slot, 0), 0);
    EXPECT_EQ(HostStrSetLength(&slot, 9), 0) << "beyond the 7 characters and the terminator";
    EXPECT_EQ(HostStrSetLength(&slot, 8), 1);
    HostStr dead = 0x00000005u; // generation 0 is never given out
    EXPECT_EQ(HostStrSetLength(&dead, 1), 0);
    EXPECT_EQ(HostStrSetLength(nullptr, 1), 0);
    ZkHostStrRelease(slot);
}

TEST_F(HostStrings, ScanCurrentDirectoryAndHalt) {
    EXPECT_EQ(HostStrScan(L"bc", L"abcabc"), 1);
    EXPECT_EQ(HostStrScan(L"", L"abc"), 0);
    EXPECT_EQ(HostStrScan(L"abcd", L"abc"), -1);
    EXPECT_EQ(HostStrScan(nullptr, L"abc"), -1);
    EXPECT_EQ(HostStrScan(L"a", nullptr), -1);

    wchar_t expected[MAX_PATH];
    ASSERT_GT(GetCurrentDirectoryW(MAX_PATH, expected), 0u);
    HostStr dir = HostDirGetCurrent();
    EXPECT_EQ(Text(dir), expected);
    EXPECT_EQ(ZkHostStrRefs(dir), 1);
    ZkHostStrRelease(dir);

    int32_t before = ZkHostHaltCount();
    ZkHostHaltReturns(1);
    HostHalt();
    ZkHostHaltReturns(0);
    EXPECT_EQ(ZkHostHaltCount(), before + 1);
}

} // namespace
