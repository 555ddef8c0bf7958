// The reference host's tests take the shared host helpers: text of a host
// string, numbers from text, and a fixture that checks no test leaks a
// string or an array.
#pragma once

#include "array_support.h"

namespace hosttest {

using arraytest::Bounds;
using arraytest::BoundsOf;
using arraytest::Long;
using arraytest::Text;
using arraytest::TextsOf;
inline HostNumber Num(const wchar_t *text) { return arraytest::Number(text); }
using HostTest = arraytest::ArrayTest;

} // namespace hosttest
