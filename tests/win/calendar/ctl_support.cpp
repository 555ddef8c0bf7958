#include "ctl_support.h"

#include <ostream>

namespace ctltest {

namespace {

class FixedClock : public testing::Environment {
    void SetUp() override {
        const HostDateTime now = [] {
            HostDateTime d{};
            HostDateConstruct(&d, 2024, 3, 15, 10, 30, 0);
            return d;
        }();
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

zkt::Bitmap FormCalendar::Paint() const {
    RECT client{};
    GetClientRect(hwnd(), &client);
    zkt::Bitmap picture(client.right, client.bottom);
    SendMessageW(hwnd(), WM_PRINTCLIENT, reinterpret_cast<WPARAM>(picture.dc()), PRF_CLIENT);
    return picture;
}

void FormCalendar::Mouse(UINT message, int x, int y, WPARAM keys) const {
    SendMessageW(hwnd(), message, keys,
                 MAKELPARAM(static_cast<WORD>(static_cast<short>(x)), static_cast<WORD>(static_cast<short>(y))));
}

void FormCalendar::MouseAtCell(UINT message, int cell, WPARAM keys) const {
    const auto r = layout().CellRect(cell);
    Mouse(message, (r.left + r.right) / 2, (r.top + r.bottom) / 2, keys);
}

int RowCount(const zkt::Bitmap &b, COLORREF colour, int y, int x0, int x1) {
    int n = 0;
    for (int x = x0; x < x1; ++x)
        n += b.pixel(x, y) == colour;
    return n;
}

int ColumnCount(const zkt::Bitmap &b, COLORREF colour, int x, int y0, int y1) {
    int n = 0;
    for (int y = y0; y < y1; ++y)
        n += b.pixel(x, y) == colour;
    return n;
}

} // namespace ctltest
