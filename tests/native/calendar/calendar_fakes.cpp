#include "calendar_fakes.h"

#include <gtest/gtest.h>

#include <ostream>

#include "core/hostnum.h"

namespace caltest {

namespace {

HostDateTime &Clock() {
    static HostDateTime now = DefaultNow();
    return now;
}

HostDateTime *FixedCurrent(HostDateTime *out) {
    if (out)
        *out = Clock();
    return out;
}

// Every test of this program runs on the fakes, bound before the first test.
class Bound : public testing::Environment {
    void SetUp() override {
        zk::cal::HostDateOps ops = zk::cal::PortableDateOps();
        ops.current = FixedCurrent;
        zk::cal::BindDateOps(ops);
        zk::cal::BindPlatform({ResourceText, SysColor});
    }
};
const auto *const bound = testing::AddGlobalTestEnvironment(new Bound);

const char *AreaName(zk::cal::CalArea area) {
    switch (area) {
    case zk::cal::CalArea::Window:
        return "window";
    case zk::cal::CalArea::Grid:
        return "grid";
    case zk::cal::CalArea::Caption:
        return "caption";
    case zk::cal::CalArea::WeekdayHeader:
        return "header";
    case zk::cal::CalArea::CaptionAndHeader:
        return "caption+header";
    case zk::cal::CalArea::Buttons:
        return "buttons";
    case zk::cal::CalArea::Body:
        return "body";
    }
    return "?";
}

} // namespace

HostDateTime DefaultNow() { return Record(2024, 3, 15, 13, 45, 10); }

void SetClock(const HostDateTime &now) { Clock() = now; }

ClockAt::ClockAt(const HostDateTime &now) : saved_(Clock()) { Clock() = now; }
ClockAt::~ClockAt() { Clock() = saved_; }

std::u16string ResourceText(uint32_t id) {
    const std::string digits = "#" + std::to_string(id);
    return std::u16string(digits.begin(), digits.end());
}

HostDateTime Record(int year, int month, int day, int hour, int minute, int second, int microsecond) {
    return zkh::dateFromParts(year, month, day, hour, minute, second, microsecond);
}

std::ostream &operator<<(std::ostream &out, const Ymd &d) {
    return out << d.year << '-' << d.month << '-' << d.day;
}

void RecordingWindow::Invalidate(zk::cal::CalArea area, bool erase) {
    events.push_back(std::string("inv ") + AreaName(area) + (erase ? " erase" : ""));
}

void RecordingWindow::InvalidateCell(int32_t cell) { events.push_back("cell " + std::to_string(cell)); }

std::vector<std::string> RecordingWindow::Take() {
    std::vector<std::string> taken;
    taken.swap(events);
    return taken;
}

Shown::Shown(int year, int month, bool created) {
    window.created = created;
    cal.SetDisplayMonth(year, month, 0);
    cal.AttachWindow(&window);
}

} // namespace caltest
