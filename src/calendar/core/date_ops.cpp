// The operations in force and the portable ones.
#include "calendar/core/date_ops.h"

#include <cstring>
#include <ctime>

#include "core/hostnum.h"

namespace zk::cal {

namespace {

constexpr int kDigitBytes = sizeof(HostNumber{}.digits);

HostDateTime Clean(HostDateTime value) {
    value.length &= 0x0F;
    return value;
}

zkh::DateParts Parts(const HostDateTime &value) {
    const HostDateTime d = Clean(value);
    return zkh::DateIsNull(d) ? zkh::DateParts{} : zkh::DateToParts(d);
}

HostDateTime *Current(HostDateTime *out) {
    if (!out)
        return out;
    const std::time_t now = std::time(nullptr);
    const std::tm *local = std::localtime(&now);
    *out = local ? zkh::DateFromParts(local->tm_year + 1900, local->tm_mon + 1, local->tm_mday, local->tm_hour,
                                      local->tm_min, local->tm_sec)
                 : HostDateTime{};
    return out;
}

HostDateTime *Construct(HostDateTime *out, int32_t year, int32_t month, int32_t day, int32_t hour, int32_t minute,
                        int32_t second) {
    if (out)
        *out = zkh::DateFromParts(year, month, day, hour, minute, second);
    return out;
}

int32_t Year(const HostDateTime &v) { return Parts(v).year; }
int32_t Month(const HostDateTime &v) { return Parts(v).month; }
int32_t Day(const HostDateTime &v) { return Parts(v).day; }
int32_t Weekday(const HostDateTime &v) { return Parts(v).weekday; }

std::u16string Format(const HostDateTime &value, const char16_t *picture) {
    const HostDateTime d = Clean(value);
    if (zkh::DateIsNull(d) || !picture)
        return {};
    return zkh::DateFormat(d, picture);
}

HostDateTime *Parse(HostDateTime *out, const char16_t *text) {
    if (!out)
        return out;
    HostDateTime parsed{};
    *out = text && zkh::DateParse(text, parsed) ? parsed : HostDateTime{};
    return out;
}

int32_t IsValidDateTime(const char16_t *text) {
    HostDateTime parsed{};
    return text && zkh::DateParse(text, parsed) ? 1 : 0;
}

int32_t IsValidPicture(const char16_t *text) { return text && zkh::PictureIsValid(text) ? 1 : 0; }

// The operands are copied first, as the host does, so that out may be either.
bool Operand(const uint8_t *digits, int32_t length, uint8_t (&copy)[kDigitBytes]) {
    std::memset(copy, 0, sizeof copy);
    if (length < 0 || length > kDigitBytes || (length > 0 && !digits))
        return false;
    if (length > 0)
        std::memcpy(copy, digits, size_t(length));
    return true;
}

int32_t Add(uint8_t *out, const uint8_t *a, int32_t aLength, const uint8_t *b, int32_t bLength) {
    uint8_t x[kDigitBytes], y[kDigitBytes];
    if (!out || !Operand(a, aLength, x) || !Operand(b, bLength, y))
        return 0;
    return zkh::NumberAdd(out, x, aLength, y, bLength);
}

int32_t Subtract(uint8_t *out, const uint8_t *a, int32_t aLength, const uint8_t *b, int32_t bLength) {
    uint8_t x[kDigitBytes], y[kDigitBytes];
    if (!out || !Operand(a, aLength, x) || !Operand(b, bLength, y))
        return 0;
    return zkh::NumberSubtract(out, x, aLength, y, bLength);
}

int32_t AddDouble(uint8_t *out, const uint8_t *a, int32_t aLength, double b) {
    uint8_t x[kDigitBytes];
    if (!out || !Operand(a, aLength, x))
        return 0;
    return zkh::NumberAddDouble(out, x, aLength, b);
}

int32_t ToLong(const HostNumber *number, int32_t *value) {
    int64_t v = 0;
    const bool ok = number && number->length <= kDigitBytes && !zkh::IsNull(*number) &&
                    zkh::NumberToInt64(*number, v) && v >= INT32_MIN && v <= INT32_MAX;
    if (value)
        *value = ok ? static_cast<int32_t>(v) : 0;
    return ok ? 1 : 0;
}

std::u16string NoText(uint32_t) { return {}; }
uint32_t Black(int32_t) { return 0; }

HostDateOps &DateSlot() {
    static HostDateOps ops = PortableDateOps();
    return ops;
}

PlatformOps &PlatformSlot() {
    static PlatformOps ops = PortablePlatform();
    return ops;
}

} // namespace

HostDateOps PortableDateOps() {
    return {Current, Construct,       Year,           Month, Day,      Weekday,   Format,
            Parse,   IsValidDateTime, IsValidPicture, Add,   Subtract, AddDouble, ToLong};
}

PlatformOps PortablePlatform() { return {NoText, Black}; }

const HostDateOps &DateOps() { return DateSlot(); }
const PlatformOps &Platform() { return PlatformSlot(); }

HostDateOps BindDateOps(const HostDateOps &ops) {
    const HostDateOps old = DateSlot();
    DateSlot() = ops;
    return old;
}

PlatformOps BindPlatform(const PlatformOps &ops) {
    const PlatformOps old = PlatformSlot();
    PlatformSlot() = ops;
    return old;
}

} // namespace zk::cal
