// The answer of every exported control function to a null control pointer:
// the box of string 48 naming the function, the row's failure value, and
// the row's words in the debugger output.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>

namespace zkt {

struct NullControlCall {
    const wchar_t *name;  // as the box and the trace name it, with parentheses
    int64_t failure;      // the row's failure value
    const wchar_t *words; // the traced words; null when the function traces none
    std::function<int64_t()> call;
};

// Makes the call with a dialog answerer and a debugger capture in place.
::testing::AssertionResult NullControlAnswers(const NullControlCall &row);

} // namespace zkt
