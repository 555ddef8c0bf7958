// The guarded export: nothing thrown inside an export reaches the host. A
// caught exception becomes one debugger line and the export's failure value.
#pragma once

#include "frame/win/host.h"

#include <utility>

namespace zk {

// The library's own exceptions, thrown inside guarded bodies only.
struct Exception {
    virtual ~Exception() = default;
};
struct UserException : Exception {};       // the body has already told the user
struct MemoryException : Exception {};     // a block the library needs could not be had
struct InvalidArgException : Exception {}; // an index or argument outside what a body accepts
struct ResourceException : Exception {};   // a window class or resource could not be set up

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
template <class R, class Control, class Body>
R GuardedControl(const wchar_t *functionName, UINT traceId, R failure, Control *control,
                 Body &&body) noexcept {
    return Guarded(functionName, traceId, failure, [&]() -> R {
        if (!control) {
            NullControlBox(functionName);
            throw UserException();
        }
        return body(*control);
    });
}

} // namespace zk
