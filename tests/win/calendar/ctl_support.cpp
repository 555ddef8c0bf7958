#include "ctl_support.h"

#include <ostream>

namespace ctltest {

namespace {

class FixedClock : public testing::Environment {
    void SetUp() override {
        HostDateTime now{};
        HostDateConstruct(&now, 2024, 3, 15, 10, 30, 0);
        ZkHostSetClock(&now);
    }
    void TearDown() override { ZkHostSetClock(nullptr); }
};
const auto *const clock = testing::AddGlobalTestEnvironment(new FixedClock);

} // namespace

std::ostream &operator<<(std::ostream &out, const Ymd &d) { return out << d.year << '-' << d.month << '-' << d.day; }

Ymd FormCalendar::Focus() const {
    HostDateTime d{};
    ZelCalGetFocusDate(control(), &d);
    return {HostDateYear(d), HostDateMonth(d), HostDateDay(d)};
}

void FormCalendar::Mouse(UINT message, int x, int y, WPARAM keys) const {
    SendMessageW(hwnd(), message, keys, zkt::ClientPoint(x, y));
}

void FormCalendar::MouseAtCell(UINT message, int cell, WPARAM keys) const {
    const auto r = layout().CellRect(cell);
    Mouse(message, (r.left + r.right) / 2, (r.top + r.bottom) / 2, keys);
}

} // namespace ctltest
