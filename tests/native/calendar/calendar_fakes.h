// What the calendar tests put in place of the host and the window: the
// reference host's arithmetic with a fixed clock (2024-03-15 13:45:10),
// resource texts "#<id>", system colours 0x00C0FF00 + index, a window that
// records what the model asks of it, and the C++ library's calendar as an
// independent check.
#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "calendar/core/calendar_model.h"
#include "calendar/core/date_ops.h"
#include "calendar/core/datetime.h"
#include "fake_effects.h"

namespace caltest {

using zk::cal::CDateTime;

// Moves the clock for the length of a scope.
class ClockAt {
public:
    explicit ClockAt(const HostDateTime &now);
    ~ClockAt();

private:
    HostDateTime saved_;
};

std::u16string ResourceText(uint32_t id);
inline uint32_t SysColor(int32_t index) { return 0x00C0FF00u + static_cast<uint32_t>(index); }

// A record straight from the reference host, bypassing the classes.
HostDateTime Record(int year, int month, int day, int hour = 0, int minute = 0, int second = 0, int microsecond = 0);

inline std::chrono::sys_days Days(int year, int month, int day) {
    return std::chrono::sys_days(std::chrono::year(year) / std::chrono::month(static_cast<unsigned>(month)) /
                                 std::chrono::day(static_cast<unsigned>(day)));
}
// 1 Sunday .. 7 Saturday.
inline int Weekday(std::chrono::sys_days d) { return static_cast<int>(std::chrono::weekday(d).c_encoding()) + 1; }
inline int MonthLength(int year, int month) {
    const auto first = Days(year, month, 1);
    return static_cast<int>(
        (std::chrono::sys_days((std::chrono::year_month_day(first) + std::chrono::months(1))) - first).count());
}
struct Ymd {
    int year, month, day;
    bool operator==(const Ymd &) const = default;
};
inline Ymd Parts(std::chrono::sys_days d) {
    const std::chrono::year_month_day ymd(d);
    return {static_cast<int>(ymd.year()), static_cast<int>(static_cast<unsigned>(ymd.month())),
            static_cast<int>(static_cast<unsigned>(ymd.day()))};
}
inline Ymd Parts(const CDateTime &d) { return {d.GetYear(), d.GetMonth(), d.GetDay()}; }
std::ostream &operator<<(std::ostream &out, const Ymd &d);

// The parts of a calendar laid out in `layout` by name ("grid", "caption",
// "cell 14", "button left"...); empty for any other rectangle.
std::string PartName(const zk::cal::MonthLayout &layout, const zk::Rect &r);

// A model on display at year/month with a window attached, whose client is
// 140 x 100 with cells of 20 x 12.
struct Shown {
    Shown(int year, int month, bool created = true);
    zk::cal::MonthLayout layout;
    zk::cal::CalendarModel cal;
    zkt::FakeEffects window;
};

} // namespace caltest
