// Running out of memory while adding a mark or a rule: the window hears of
// it, the call answers 0, and the store stays as it was, at every
// allocation the call makes. The program's allocator fails on demand.
#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

#include "calendar/core/calendar_model.h"
#include "fake_effects.h"

namespace {

// Allocations still allowed before one fails; negative: no limit.
long AllowedAllocations = -1;
bool AllocationFailed = false;

} // namespace

void *operator new(std::size_t size) {
    if (AllowedAllocations == 0) {
        AllocationFailed = true;
        throw std::bad_alloc();
    }
    if (AllowedAllocations > 0)
        --AllowedAllocations;
    if (void *p = std::malloc(size ? size : 1))
        return p;
    throw std::bad_alloc();
}
// The replaced new takes its memory from malloc, so free is the matching
// release; the compiler cannot see that the two replacements go together.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wmismatched-new-delete"
void operator delete(void *p) noexcept { std::free(p); }
void operator delete(void *p, std::size_t) noexcept { std::free(p); }
#pragma GCC diagnostic pop

namespace {

using zk::cal::CDateTime;
using zk::cal::SSpecialRule;

// A window not yet created: it hears only notifications, and records them
// without allocating.
class Window final : public zkt::FakeEffects {
public:
    Window() { created = false; }
    void Notify(int32_t code) override { codes.push_back(code); }
    std::vector<int32_t> codes;
};

// Calls `add` with the n-th allocation failing, n = 0, 1, ... until a call
// gets through; each failed call must leave `size` as it was.
template <class Add, class Size>
int FailEachAllocationInTurn(Window &window, Add add, Size size) {
    for (long n = 0; n < 1000; ++n) {
        const size_t before = size();
        window.codes.clear();
        window.codes.reserve(4); // the window's own record must not allocate
        AllowedAllocations = n;
        AllocationFailed = false;
        const int result = add();
        const bool failed = AllocationFailed;
        AllowedAllocations = -1;
        if (!failed) {
            EXPECT_EQ(result, 1);
            EXPECT_EQ(size(), before + 1);
            EXPECT_TRUE(window.codes.empty());
            return static_cast<int>(n);
        }
        EXPECT_EQ(result, 0) << "allocation " << n;
        EXPECT_EQ(size(), before) << "allocation " << n;
        EXPECT_EQ(window.codes, std::vector<int32_t>{CALN_OutOfMemory}) << "allocation " << n;
    }
    ADD_FAILURE() << "the call never got through";
    return -1;
}

TEST(OutOfMemory, AddingAMark) {
    zk::cal::CalendarModel cal;
    Window window;
    cal.AttachView(&window, nullptr);
    cal.MarkDate(CDateTime(2024, 1, 1), 1, 0, 0);
    const CDateTime date(2024, 1, 2);
    const int allocations = FailEachAllocationInTurn(
        window, [&] { return cal.MarkDate(date, 1, 0, 0); }, [&] { return cal.Marks().size(); });
    EXPECT_GT(allocations, 0) << "adding a mark allocates";
    EXPECT_EQ(cal.IsMarked(CDateTime(2024, 1, 1)), 1);
}

TEST(OutOfMemory, AddingARule) {
    zk::cal::CalendarModel cal;
    Window window;
    cal.AttachView(&window, nullptr);
    const SSpecialRule rule(SPECIAL_Weekly, CDateTime(2024, 1, 1), 3, 0, 1, 2);
    const int allocations = FailEachAllocationInTurn(
        window, [&] { return cal.SetSpecialRule(rule, 1); }, [&] { return cal.Rules().size(); });
    EXPECT_GT(allocations, 0);
}

} // namespace
