// Date-time exports over the core's calendar: parts of a record, building
// one, and the present moment from the local clock or a test's fixed clock.
#include "core/hostnum.h"
#include "zkhost.h"
#include "zkhostctl.h"

namespace {

bool ClockFixed = false;
HostDateTime FixedNow{};

// Only the low four bits of a date-time's length byte count.
HostDateTime Clean(HostDateTime value) {
    value.length &= 0x0F;
    return value;
}

zkh::DateParts Parts(const HostDateTime &value) {
    HostDateTime d = Clean(value);
    return zkh::DateIsNull(d) ? zkh::DateParts{} : zkh::DateToParts(d);
}

} // namespace

extern "C" {

int32_t ZKAPI HostDateYear(HostDateTime value) { return Parts(value).year; }
int32_t ZKAPI HostDateMonth(HostDateTime value) { return Parts(value).month; }
int32_t ZKAPI HostDateDay(HostDateTime value) { return Parts(value).day; }
int32_t ZKAPI HostDateHour(HostDateTime value) { return Parts(value).hour; }
int32_t ZKAPI HostDateMinute(HostDateTime value) { return Parts(value).minute; }
int32_t ZKAPI HostDateSecond(HostDateTime value) { return Parts(value).second; }
int32_t ZKAPI HostDateWeekday(HostDateTime value) { return Parts(value).weekday; }

HostDateTime *ZKAPI HostDateConstruct(HostDateTime *out, int32_t year, int32_t month, int32_t day, int32_t hour,
                                      int32_t minute, int32_t second) {
    if (out)
        *out = zkh::DateFromParts(year, month, day, hour, minute, second);
    return out;
}

HostDateTime *ZKAPI HostDateCurrent(HostDateTime *out) {
    if (!out)
        return out;
    if (ClockFixed) {
        *out = FixedNow;
        return out;
    }
    SYSTEMTIME now{};
    GetLocalTime(&now);
    *out = zkh::DateFromParts(now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond,
                              now.wMilliseconds * 1000);
    return out;
}

void ZKAPI ZkHostSetClock(const HostDateTime *now) {
    ClockFixed = now != nullptr;
    FixedNow = now ? *now : HostDateTime{};
}

} // extern "C"
