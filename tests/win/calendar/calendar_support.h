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

#include "array_support.h"
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

// A string array of the given texts, from index `low`.
HostArray Strings(const std::vector<std::wstring> &texts, int32_t low = 0);

// Every test gets a new calendar and must leave no host string or array behind.
class CalendarExports : public arraytest::ArrayTest {
protected:
    void SetUp() override {
        ArrayTest::SetUp();
        object_ = std::make_unique<zk::cal::CCalendar>();
        calendar = &object_->Model();
    }
    void TearDown() override {
        calendar = nullptr;
        object_.reset();
        ArrayTest::TearDown();
    }
    ZelCalControl control() const { return reinterpret_cast<ZelCalControl>(object_.get()); }

    // The model the exports work on.
    zk::cal::CalendarModel *calendar = nullptr;

private:
    std::unique_ptr<zk::cal::CCalendar> object_;
};

} // namespace caltest
