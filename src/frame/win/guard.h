// The guarded export: nothing thrown inside an export reaches the host. A
// caught exception becomes one debugger line and the export's failure value.
#pragma once

#include "frame/core/errors.h"
#include "frame/win/host.h"

#include <utility>

namespace zk {

// String 48 in a box: the control pointer the host holds is null because the
// application swallowed the control's announcement.
void NullControlBox(const wchar_t *functionName);

// Runs body; any exception ends it with failure after the trace of string traceId.
template <class R, class Body>
R Guarded(const wchar_t *functionName, UINT traceId, R failure, Body &&body) noexcept {
    try {
        return std::forward<Body>(body)();
    } catch (...) {
        try {
            ZelReportError(traceId, functionName);
        } catch (...) {
        }
        return failure;
    }
}

// The same with a literal failure text in place of a string resource.
template <class R, class Body>
R GuardedText(const wchar_t *functionName, const wchar_t *failureText, R failure, Body &&body) noexcept {
    try {
        return std::forward<Body>(body)();
    } catch (...) {
        TraceLine(functionName, failureText);
        return failure;
    }
}

// The plain utilities report only by their failure value: an exception ends
// the export with fallback(), without a trace.
template <class Body, class Fallback>
auto Quietly(Body &&body, Fallback &&fallback) noexcept -> decltype(body()) {
    try {
        return std::forward<Body>(body)();
    } catch (...) {
        try {
            return fallback();
        } catch (...) {
            return {};
        }
    }
}

// A string result whose failure value is the empty string.
template <class Body>
HostStr StringResult(Body &&body) noexcept {
    return Quietly(std::forward<Body>(body), [] { return ZelStrEmpty(); });
}

// An exported control function: a null control pointer shows string 48 and
// ends with the failure value; otherwise body(control) runs under the guard.
// Each export holds its own name with parentheses and its row's failure
// value, and gives the row's words as a string resource (GuardedControl) or
// as a literal text (GuardedControlText):
//
//   int32_t ZKAPI ZelPalColorGet(CColorPalette *control, int32_t role) {
//       return zk::GuardedControlText(L"ZelPalColorGet()", L"Unable to ...", -1, control,
//                                     [&](CColorPalette &c) { return ...; });
//   }
// The body of a control export behind the null check: string 48 and a user
// exception for a null control pointer.
template <class R, class Control, class Body>
auto NullChecked(const wchar_t *functionName, Control *control, Body &body) {
    return [functionName, control, &body]() -> R {
        if (!control) {
            NullControlBox(functionName);
            throw UserException();
        }
        return body(*control);
    };
}

template <class R, class Control, class Body>
R GuardedControl(const wchar_t *functionName, UINT traceId, R failure, Control *control, Body &&body) noexcept {
    return Guarded(functionName, traceId, failure, NullChecked<R>(functionName, control, body));
}

// As GuardedControl, with the row's words given as text, without the
// " - " before them and the line feed after them, which the trace adds.
template <class R, class Control, class Body>
R GuardedControlText(const wchar_t *functionName, const wchar_t *failureText, R failure, Control *control,
                     Body &&body) noexcept {
    return GuardedText(functionName, failureText, failure, NullChecked<R>(functionName, control, body));
}

} // namespace zk
