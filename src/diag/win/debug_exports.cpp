// ZelDebugAssert, ZelDebugString, ZelDebugSetFlags, ZelDebugGetFlags,
// ZelDebugSetLevel, ZelDebugBeginTime, ZelDebugSetTime, ZelDebugEndTime.
#include "diag/core/diagnostics.h"
#include "diag/win/platform_system.h"
#include "frame/win/guard.h"

namespace {

static_assert(DBG_Elapsed == zk::diag::kElapsed && DBG_ClockTime == zk::diag::kClockTime &&
              DBG_MessageBox == zk::diag::kMessageBox);

// The process's one set of debug flags, level and stopwatch.
zk::diag::Diagnostics &State() {
    static zk::diag::WinSystem system;
    static zk::diag::Diagnostics state(system);
    return state;
}

const char16_t *CoreText(const wchar_t *text) { return reinterpret_cast<const char16_t *>(text); }

template <class Body>
int32_t Quiet(int32_t failure, Body &&body) noexcept {
    return zk::Quietly(std::forward<Body>(body), [failure] { return failure; });
}

} // namespace

int32_t ZKAPI ZelDebugAssert(int32_t condition, const wchar_t *text) {
    return Quiet(1, [&] { return State().Assert(condition, CoreText(text)); });
}

int32_t ZKAPI ZelDebugString(const wchar_t *text, uint16_t level) {
    return Quiet(0, [&] { return State().String(CoreText(text), level); });
}

uint32_t ZKAPI ZelDebugSetFlags(uint32_t flags, int32_t set) {
    return zk::Quietly([&] { return State().SetFlags(flags, set); }, [] { return State().Flags(); });
}

uint32_t ZKAPI ZelDebugGetFlags(void) {
    return zk::Quietly([] { return State().Flags(); }, [] { return zk::diag::kInitialFlags; });
}

int32_t ZKAPI ZelDebugSetLevel(uint16_t level) {
    return Quiet(1, [&] { return State().SetLevel(level); });
}

int32_t ZKAPI ZelDebugBeginTime(void) {
    return Quiet(0, [] { return State().BeginTime(); });
}

int32_t ZKAPI ZelDebugSetTime(const wchar_t *text) {
    return Quiet(0, [&] { return State().SetTime(CoreText(text)); });
}

int32_t ZKAPI ZelDebugEndTime(const wchar_t *text, uint16_t level) {
    return Quiet(0, [&] { return State().EndTime(CoreText(text), level); });
}
