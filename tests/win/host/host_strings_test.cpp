// Host strings: slots, references, stale handles, failure injection, and
// the text operations that answer strings.
#include <vector>

#include "host_test_util.h"

using namespace hosttest;

namespace {

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
