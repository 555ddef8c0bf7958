// Nothing thrown inside an export reaches the host: a body that throws
// (a container out of memory, a conversion) ends with the failure value.
#pragma once

#include <utility>

namespace hostwin {

template <class R, class Body>
R Guard(R failure, Body &&body) noexcept {
    try {
        return std::forward<Body>(body)();
    } catch (...) {
        return failure;
    }
}

template <class Body>
void GuardVoid(Body &&body) noexcept {
    try {
        std::forward<Body>(body)();
    } catch (...) {
    }
}

} // namespace hostwin
