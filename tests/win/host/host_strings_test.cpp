// Host strings: slots, references, stale handles, failure injection, and
// the text operations that answer strings.
#include <vector>

#include "host_test_util.h"

using namespace hosttest;

namespace {

class HostStrings : public HostTest {};

TEST_F(HostStrings, AllocMakesAZeroedStringOfTheAskedSizeInTheSlot) {
    HostStr slot = 0;
    ASSERT_EQ(HostStrAlloc(&slot, 7), 1);
    ASSERT_NE(slot, 0u);
    int32_t size = -1;
    wchar_t *buffer = HostStrLock(slot, &size);
    ASSERT_NE(buffer, nullptr);
    EXPECT_EQ(size, 7);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(buffer[i], 0) << i;
    EXPECT_EQ(ZkHostStrRefs(slot), 1);
    ZkHostStrRelease(slot);
}

TEST_F(HostStrings, AllocIntoAnOccupiedSlotDropsTheOldReference) {
    HostStr shared = ZkHostStrMake(L"shared");
    HostStrAddRef(shared); // held in a second place
    HostStr slot = shared;
    ASSERT_EQ(HostStrAlloc(&slot, 10), 1);
    EXPECT_NE(slot, shared);
    EXPECT_EQ(ZkHostStrRefs(shared), 1);
    EXPECT_EQ(Text(shared), L"shared");

    HostStr second = slot;
    ASSERT_EQ(HostStrAlloc(&slot, 4), 1);
    EXPECT_EQ(ZkHostStrRefs(second), 0) << "its only reference was in the slot";
    ZkHostStrRelease(slot);
    ZkHostStrRelease(shared);
}

TEST_F(HostStrings, ReferencesCountUpAndTheLastReleaseFrees) {
    int32_t before = ZkHostLiveStrings();
    HostStr s = ZkHostStrMake(L"abc");
    EXPECT_EQ(ZkHostLiveStrings(), before + 1);
    EXPECT_EQ(HostStrAddRef(s), 1);
    EXPECT_EQ(HostStrAddRef(s), 1);
    EXPECT_EQ(ZkHostStrRefs(s), 3);
    ZkHostStrRelease(s);
    ZkHostStrRelease(s);
    EXPECT_EQ(Text(s), L"abc");
    ZkHostStrRelease(s);
    EXPECT_EQ(ZkHostStrRefs(s), 0);
    EXPECT_EQ(ZkHostLiveStrings(), before);
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
    EXPECT_EQ(ZkHostStrRefs(gone), 0);
    ZkHostStrRelease(gone); // ignored: must not touch a newer string
    for (HostStr s : made) {
        EXPECT_EQ(ZkHostStrRefs(s), 1);
        ZkHostStrRelease(s);
    }
    EXPECT_EQ(HostStrLock(0, &size), nullptr);
    EXPECT_EQ(HostStrLock(0x12345678u, &size), nullptr);
    EXPECT_EQ(HostStrAddRef(0xFFFFFFFFu), 0);
}

TEST_F(HostStrings, InjectedFailuresLeaveTheSlotAndAreCounted) {
    HostStr slot = ZkHostStrMake(L"kept");
    HostStr kept = slot;
    int32_t calls = ZkHostAllocCalls();
    ZkHostFailAllocations(2);
    EXPECT_EQ(HostStrAlloc(&slot, 12), 0);
    EXPECT_EQ(HostStrAlloc(&slot, 14), 0);
    EXPECT_EQ(slot, kept);
    EXPECT_EQ(ZkHostStrRefs(kept), 1);
    EXPECT_EQ(ZkHostLastAllocSize(), 14);
    EXPECT_EQ(HostStrAlloc(&slot, 16), 1);
    EXPECT_EQ(ZkHostAllocCalls(), calls + 3);
    EXPECT_EQ(ZkHostLastAllocSize(), 16);
    EXPECT_EQ(ZkHostStrRefs(kept), 0);
    ZkHostStrRelease(slot);
}

TEST_F(HostStrings, BadSizesAndSlotsGiveZero) {
    HostStr slot = 0;
    EXPECT_EQ(HostStrAlloc(&slot, -2), 0);
    EXPECT_EQ(ZkHostLastAllocSize(), -2);
    EXPECT_EQ(slot, 0u);
    EXPECT_EQ(HostStrAlloc(nullptr, 4), 0);
}

TEST_F(HostStrings, SetLengthEndsTheTextWithinTheBuffer) {
    HostStr slot = 0;
    ASSERT_EQ(HostStrAlloc(&slot, 14), 1);
    wchar_t *buffer = HostStrLock(slot, nullptr);
    wcscpy(buffer, L"abcdef");
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

TEST_F(HostStrings, AFullBufferStillEndsInATerminator) {
    HostStr slot = 0;
    ASSERT_EQ(HostStrAlloc(&slot, 6), 1);
    wchar_t *buffer = HostStrLock(slot, nullptr);
    buffer[0] = L'x', buffer[1] = L'y', buffer[2] = L'z';
    EXPECT_EQ(Text(slot), L"xyz");
    ZkHostStrRelease(slot);
}

TEST_F(HostStrings, ScanFindsTheFirstOccurrence) {
    EXPECT_EQ(HostStrScan(L"bc", L"abcabc"), 1);
    EXPECT_EQ(HostStrScan(L"abc", L"xxabc"), 2);
    EXPECT_EQ(HostStrScan(L"x", L"abc"), -1);
    EXPECT_EQ(HostStrScan(L"", L"abc"), 0);
    EXPECT_EQ(HostStrScan(L"abcd", L"abc"), -1);
    EXPECT_EQ(HostStrScan(nullptr, L"abc"), -1);
    EXPECT_EQ(HostStrScan(L"a", nullptr), -1);
}

TEST_F(HostStrings, CurrentDirectoryIsANewString) {
    wchar_t expected[MAX_PATH];
    ASSERT_GT(GetCurrentDirectoryW(MAX_PATH, expected), 0u);
    HostStr dir = HostDirGetCurrent();
    ASSERT_NE(dir, 0u);
    EXPECT_EQ(Text(dir), expected);
    EXPECT_EQ(ZkHostStrRefs(dir), 1);
    ZkHostStrRelease(dir);
}

TEST_F(HostStrings, HaltReturnsOnlyWhenAskedAndIsCounted) {
    int32_t before = ZkHostHaltCount();
    ZkHostHaltReturns(1);
    HostHalt();
    HostHalt();
    ZkHostHaltReturns(0);
    EXPECT_EQ(ZkHostHaltCount(), before + 2);
}

TEST_F(HostStrings, MakeAndReleaseAreNotHostAllocations) {
    int32_t calls = ZkHostAllocCalls();
    ZkHostFailAllocations(1);
    HostStr s = ZkHostStrMake(nullptr);
    ASSERT_NE(s, 0u);
    EXPECT_EQ(Text(s), L"");
    EXPECT_EQ(ZkHostAllocCalls(), calls);
    HostStr slot = 0;
    EXPECT_EQ(HostStrAlloc(&slot, 2), 0) << "the pending failure is still there";
    ZkHostStrRelease(s);
}

} // namespace
