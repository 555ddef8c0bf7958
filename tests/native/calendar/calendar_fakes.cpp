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
    return zkh::DateFromParts(year, month, day, hour, minute, second, microsecond);
}

std::ostream &operator<<(std::ostream &out, const Ymd &d) { return out << d.year << '-' << d.month << '-' << d.day; }

std::string PartName(const zk::cal::MonthLayout &layout, const zk::Rect &r) {
    using A = zk::cal::Area;
    const std::pair<A, const char *> areas[] = {
        {A::Window, "window"},
        {A::Grid, "grid"},
        {A::Caption, "caption"},
        {A::WeekdayHeader, "header"},
        {A::CaptionAndHeader, "caption+header"},
        {A::Buttons, "buttons"},
        {A::Body, "body"},
    };
    for (const auto &[area, name] : areas)
        if (layout.AreaRect(area) == r)
            return name;
    if (r == layout.LeftButton())
        return "button left";
    if (r == layout.RightButton())
        return "button right";
    for (int32_t cell = 0; cell < zk::cal::kCellCount; ++cell)
        if (layout.CellRect(cell) == r)
            return "cell " + std::to_string(cell);
    return {};
}

Shown::Shown(int year, int month, bool created) {
    layout.Compute(140, 100, 8, 12);
    window.created = created;
    window.namer = [this](const zk::Rect &r) { return PartName(layout, r); };
    cal.SetDisplayMonth(year, month, 0);
    cal.AttachView(&window, &layout);
}

} // namespace caltest
