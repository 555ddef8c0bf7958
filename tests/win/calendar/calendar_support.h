// What the calendar export tests share: a calendar control object made
// directly, without a window (so its model is not created), handed to the
// exports as the host would hand its pointer; host dates and arrays; and a
// check that no test leaks.
#pragma once

#include <windows.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "calendar/core/calendar_model.h"
#include "calendar/win/calendar_window.h"
#include "zkharness.h"
#include "zkhost.h"
#include "zkhostctl.h"
#include "zklib.h"

namespace caltest {

inline HostDateTime Date(int year, int month, int day, int hour = 0, int minute = 0, int second = 0) {
    HostDateTime d{};
    HostDateConstruct(&d, year, month, day, hour, minute, second);
    return d;
}

inline std::wstring Text(HostDateTime d) {
    HostStr text = HostDateToStr(d, L"yyyy-MM-dd hh:mm:ss", nullptr);
    int32_t size = 0;
    const wchar_t *chars = HostStrLock(text, &size);
    std::wstring out = chars ? chars : L"<none>";
    ZkHostStrRelease(text);
    return out;
}

inline int32_t Long(HostArray array, int32_t index) {
    HostNumber n{};
    HostArrayGetNumber(array, &n, index);
    int32_t value = -12345;
    HostNumberToLong(&n, &value);
    return value;
}

inline int32_t Count(HostArray array) {
    int32_t low = 0, high = 0;
    return HostArrayGetBounds(array, &low, &high);
}

// A string array of the given texts, from index `low`.
HostArray Strings(const std::vector<std::wstring> &texts, int32_t low = 0);

// Every test gets a new calendar and must leave no host string or array behind.
class CalendarExports : public testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;
    ZelCalControl control() const { return reinterpret_cast<ZelCalControl>(object_.get()); }

    // The model the exports work on.
    zk::cal::CalendarModel *calendar = nullptr;

private:
    std::unique_ptr<zk::cal::CCalendar> object_;
    int32_t strings_ = 0, arrays_ = 0;
};

} // namespace caltest
