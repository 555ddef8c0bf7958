// ZelStrChoose and ZelNumberChoose: one of two values by a condition.
#include "frame/win/host.h"

HostStr ZKAPI ZelStrChoose(uint32_t condition, HostStr a, HostStr b) {
    const HostStr chosen = condition ? a : b;
    // The caller owns the result, so the chosen string gets one more
    // reference; no string at all gives the family's failure value instead.
    if (!chosen)
        return ZelStrEmpty();
    HostStrAddRef(chosen);
    return chosen;
}

// The whole record, null numbers included: the digits are not looked at.
HostNumber ZKAPI ZelNumberChoose(uint32_t condition, HostNumber a, HostNumber b) { return condition ? a : b; }
