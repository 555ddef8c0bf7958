#include "calendar_fakes.h"

#include <gtest/gtest.h>

#include <ostream>

#include "core/hostnum.h"

namespace caltest {

namespace {

HostDateTime &Clock() {
    static HostDateTime now = Record(2024, 3, 15, 13, 45, 10);
    return now;
}

HostDateTime *FixedCurrent(HostDateTime *out) {
    if (out)
        *out = Clock();
    return out;
}

// Every test of the program runs on the fakes, bound before the first test.
class Bound : public testing::Environment {
    void SetUp() override {
        zk::cal::HostDateOps ops = zk::cal::PortableDateOps();
        ops.current = FixedCurrent;
        zk::cal::BindDateOps(ops);
        zk::cal::BindPlatform({ResourceText, SysColor});
    }
};
const auto *const bound = testing::AddGlobalTestEnvironment(new Bound);

} // namespace

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
    using A = zk::cal::CalArea;
    const char *name = "?";
    switch (area) {
    case A::Window: name = "window"; break;
    case A::Grid: name = "grid"; break;
    case A::Caption: name = "caption"; break;
    case A::WeekdayHeader: name = "header"; break;
    case A::CaptionAndHeader: name = "caption+header"; break;
    case A::Buttons: name = "buttons"; break;
    case A::Body: name = "body"; break;
    }
    events.push_back(std::string("inv ") + name + (erase ? " erase" : ""));
}

Shown::Shown(int year, int month, bool created) {
    window.created = created;
    cal.SetDisplayMonth(year, month, 0);
    cal.AttachWindow(&window);
}

} // namespace caltest
