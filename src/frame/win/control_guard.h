// The guarded form of every exported control function, in its two kinds of
// failure words. Each export holds its own name with parentheses and its
// row's failure value:
//
//   int32_t ZKAPI ZelPalColorGet(CColorPalette *control, int32_t role) {
//       return zk::GuardedControl(L"ZelPalColorGet()", IDS_..., -1, control,
//                                 [&](CColorPalette &c) { return ...; });
//   }
//
// A null control shows string 48 with the function's name and ends with the
// failure value; an exception in the body ends with it after one debugger
// line: the name, " - ", the row's words and a line feed. The words are a
// string resource (GuardedControl, frame/guard.h) or, in the calendar's
// rows, a literal text (GuardedControlText).
#pragma once

#include "frame/win/guard.h"

namespace zk {

// As GuardedControl, with the row's words given as text, without the
// " - " before them and the line feed after them, which the trace adds.
template <class R, class Control, class Body>
R GuardedControlText(const wchar_t *functionName, const wchar_t *failureText, R failure, Control *control,
                     Body &&body) noexcept {
    return GuardedText(functionName, failureText, failure, [&]() -> R {
        if (!control) {
            NullControlBox(functionName);
            throw UserException();
        }
        return body(*control);
    });
}

} // namespace zk
