// Every string result of the family goes through the retry dialog when the
// host refuses the allocation: once per failure, the same size each time,
// Halt reaching HostHalt, and nothing left behind.
#include <functional>

#include "text_support.h"
#include "zkharness.h"

using namespace textwin;

namespace {

constexpr int kRetry = 203;
constexpr int kHalt = 204;

struct StringResult {
    const char *name;
    std::function<HostStr()> call;
    std::wstring expected;
};

class Retry : public HostTest {
protected:
    void SetUp() override {
        HostTest::SetUp();
        numbers_ = NumberArray({4, 5, 6});
        ZkHostHaltReturns(1);
    }
    void TearDown() override {
        ZkHostHaltReturns(0);
        ZkHostFailAllocations(0);
        HostArrayDestroy(numbers_);
        HostTest::TearDown();
    }
    HostArray numbers_ = 0;
};

TEST_F(Retry, EveryStringResultAsksUntilTheHostGivesIn) {
    const HostArray numbers = numbers_;
    const std::vector<StringResult> results = {
        {"ZelStrTrim", [] { return ZelStrTrim(L"  ab  "); }, L"ab"},
        {"ZelStrTrim empty", [] { return ZelStrTrim(L"   "); }, L""},
        {"ZelStrLeftTrim", [] { return ZelStrLeftTrim(L"  ab "); }, L"ab "},
        {"ZelStrRightTrim", [] { return ZelStrRightTrim(L" ab  "); }, L" ab"},
        {"ZelStrRightTrim null", [] { return ZelStrRightTrim(nullptr); }, L""},
        {"ZelStrPad", [] { return ZelStrPad(L"ab", 4); }, L"ab  "},
        {"ZelStrPad width 0", [] { return ZelStrPad(L"ab", 0); }, L""},
        {"ZelStrPadB short", [] { return ZelStrPadB(L"ab", 4); }, L"ab  "},
        {"ZelStrPadB cut", [] { return ZelStrPadB(L"abcdef", 3); }, L"abc"},
        {"ZelStrProper", [] { return ZelStrProper(L"mcdonald"); }, L"McDonald"},
        {"ZelStrExpand", [=] { return ZelStrExpand(L"{%,n}", numbers); }, L"4,5,6"},
        {"ZelStrExpand null", [] { return ZelStrExpand(nullptr, 0); }, L""},
        {"ZelStrChoose no string", [] { return ZelStrChoose(1, 0, 0); }, L""},
    };
    for (const StringResult &r : results) {
        SCOPED_TRACE(r.name);
        // The size the function asks for when all goes well.
        EXPECT_EQ(r.expected, Take(r.call()));
        const int32_t size = ZkHostLastAllocSize();
        const int32_t live = ZkHostLiveStrings();
        const int32_t calls = ZkHostAllocCalls();
        const int32_t halts = ZkHostHaltCount();

        ZkHostFailAllocations(3);
        HostStr handle = 0;
        {
            zkt::DialogAnswerer answerer({kRetry, kHalt, kRetry}, zkt::DialogMatch{L"Zelkova Kit"});
            handle = r.call();
            ASSERT_EQ(3, answerer.answered());
            for (const zkt::AnsweredDialog &d : answerer.dialogs()) {
                EXPECT_EQ(L"Zelkova Kit", d.caption);
                EXPECT_TRUE(d.HasControl(kRetry));
                EXPECT_TRUE(d.HasControl(kHalt));
            }
        }
        EXPECT_EQ(calls + 4, ZkHostAllocCalls()) << "one try, then one per answer";
        EXPECT_EQ(size, ZkHostLastAllocSize()) << "a retry asks for the same size";
        EXPECT_EQ(halts + 1, ZkHostHaltCount()) << "Halt calls HostHalt, then tries again";
        EXPECT_EQ(r.expected, Take(handle));
        EXPECT_EQ(live, ZkHostLiveStrings());
    }
}

} // namespace
