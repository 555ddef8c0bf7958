// Binds the date classes to the host runtime's exports and to the
// library's resources and system colours, as the library loads (the
// start-up table, frame/win/startup.cpp).
#include <cwchar>
#include <string>

#include "calendar/core/date_ops.h"
#include "calendar/win/calendar_bootstrap.h"
#include "frame/win/host.h"

namespace zk::cal {

namespace {

const wchar_t *Wide(const char16_t *text) { return reinterpret_cast<const wchar_t *>(text); }

HostDateTime *Current(HostDateTime *out) { return HostDateCurrent(out); }

HostDateTime *Construct(HostDateTime *out, int32_t year, int32_t month, int32_t day, int32_t hour, int32_t minute,
                        int32_t second) {
    return HostDateConstruct(out, year, month, day, hour, minute, second);
}

int32_t Year(const HostDateTime &v) { return HostDateYear(v); }
int32_t Month(const HostDateTime &v) { return HostDateMonth(v); }
int32_t Day(const HostDateTime &v) { return HostDateDay(v); }
int32_t Weekday(const HostDateTime &v) { return HostDateWeekday(v); }

// The host's text is read through its lock and copied. The string lives in
// one slot of the library's: each formatting overwrites the slot, and the
// host drops what it held, so a formatted date costs no lasting string.
std::u16string Format(const HostDateTime &value, const char16_t *picture) {
    static HostStr slot = 0;
    const HostStr text = HostDateToStr(value, Wide(picture), &slot);
    const HostStr handle = text ? text : slot;
    int32_t size = 0;
    const wchar_t *chars = handle ? HostStrLock(handle, &size) : nullptr;
    if (!chars || size <= 0)
        return {};
    const size_t length = wcsnlen(chars, static_cast<size_t>(size) / sizeof(wchar_t));
    return std::u16string(reinterpret_cast<const char16_t *>(chars), length);
}

HostDateTime *Parse(HostDateTime *out, const char16_t *text) { return HostStrToDate(out, Wide(text)); }
int32_t IsValidDateTime(const char16_t *text) { return HostStrIsValidDateTime(Wide(text)); }
int32_t IsValidPicture(const char16_t *text) { return HostStrIsValidPicture(Wide(text), 1); }

int32_t Add(uint8_t *out, const uint8_t *a, int32_t aLength, const uint8_t *b, int32_t bLength) {
    return HostNumberAdd(out, a, aLength, b, bLength);
}
int32_t Subtract(uint8_t *out, const uint8_t *a, int32_t aLength, const uint8_t *b, int32_t bLength) {
    return HostNumberSubtract(out, a, aLength, b, bLength);
}
int32_t AddDouble(uint8_t *out, const uint8_t *a, int32_t aLength, double b) {
    return HostNumberAddDouble(out, a, aLength, b);
}
int32_t ToLong(const HostNumber *number, int32_t *value) { return HostNumberToLong(number, value); }

std::u16string LoadLibraryText(uint32_t id) {
    const std::wstring text = LoadText(id);
    return std::u16string(reinterpret_cast<const char16_t *>(text.data()), text.size());
}

uint32_t SysColor(int32_t index) { return GetSysColor(index); }

} // namespace

void BindDatesToHost() {
    BindDateOps({Current, Construct, Year, Month, Day, Weekday, Format, Parse, IsValidDateTime, IsValidPicture, Add,
                 Subtract, AddDouble, ToLong});
    BindPlatform({LoadLibraryText, SysColor});
}

} // namespace zk::cal
