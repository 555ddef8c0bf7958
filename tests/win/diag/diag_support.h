// The debug exports keep process-wide state: every test starts from the
// flags, level and stopwatch a fresh process has, with the host's clock fixed.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <regex>
#include <string>

#include "zkharness.h"
#include "zkhost.h"
#include "zkhostctl.h"
#include "zklib.h"

namespace diagwin {

// An elapsed time as the stopwatch writes it.
inline const std::wstring kSpan = L"[0-9]+:[0-5][0-9]\\.[0-9][0-9]";

inline bool Matches(const std::wstring &text, const std::wstring &pattern) {
    return std::regex_match(text, std::wregex(pattern));
}

// 2024-03-05 22:20:30, written "10:20:30 PM".
inline HostDateTime FixedClock() {
    HostDateTime clock{};
    HostDateConstruct(&clock, 2024, 3, 5, 22, 20, 30);
    return clock;
}

inline void ResetDiagnostics() {
    ZelDebugSetFlags(0xFFFFFFFFu, 0);
    ZelDebugSetFlags(DBG_Elapsed, 1);
    ZelDebugSetLevel(0);
    // A run a failed test left behind ends here, its report unheard.
    zkt::DebugOutputCapture quiet;
    ZelDebugEndTime(L"", 0);
}

class Diag : public ::testing::Test {
protected:
    void SetUp() override {
        ResetDiagnostics();
        const HostDateTime clock = FixedClock();
        ZkHostSetClock(&clock);
    }
    void TearDown() override {
        ResetDiagnostics();
        ZkHostSetClock(nullptr);
    }
};

} // namespace diagwin
