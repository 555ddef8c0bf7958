// CDateTime and CDateTimeSpan: every sum and every part is a host operation.
#include "calendar/core/datetime.h"

#include "calendar/core/date_ops.h"

namespace zk::cal {

namespace {

HostDateTime Cleaned(HostDateTime record) {
    record.length &= 0x0F;
    return record;
}

} // namespace

CDateTime::CDateTime() {
    detail::EnsureNameTables();
    SetNow();
}

CDateTime::CDateTime(const HostDateTime &record) : value_(Cleaned(record)) { detail::EnsureNameTables(); }

CDateTime::CDateTime(const CDateTime &other) : value_(other.value_) { detail::EnsureNameTables(); }

CDateTime::CDateTime(int32_t year, int32_t month, int32_t day, int32_t, int32_t, int32_t) {
    detail::EnsureNameTables();
    DateOps().construct(&value_, year, month, day, 0, 0, 0);
}

CDateTime &CDateTime::operator=(const HostDateTime &record) {
    value_ = Cleaned(record);
    return *this;
}

CDateTime &CDateTime::operator=(const CDateTime &other) {
    value_ = other.value_;
    return *this;
}

CDateTime CDateTime::Now() {
    HostDateTime now{};
    DateOps().current(&now);
    return CDateTime(now);
}

void CDateTime::SetNow() { DateOps().current(&value_); }

int32_t CDateTime::GetYear() const { return DateOps().year(value_); }
int32_t CDateTime::GetMonth() const { return DateOps().month(value_); }
int32_t CDateTime::GetDay() const { return DateOps().day(value_); }

int32_t CDateTime::GetWeekday() const {
    const int32_t weekday = DateOps().weekday(value_);
    return weekday == 0 ? 7 : weekday;
}

void CDateTime::GetRecord(HostDateTime *out) const {
    if (out)
        *out = value_;
}

std::u16string CDateTime::Format(const char16_t *picture) const { return DateOps().format(value_, picture); }

int CDateTime::Parse(const char16_t *text) {
    HostDateTime parsed{};
    DateOps().parse(&parsed, text);
    parsed.length &= 0x0F;
    if (parsed.length == 0)
        return 0;
    value_ = parsed;
    return 1;
}

CDateTime CDateTime::Plus(double days) const {
    HostDateTime next{};
    next.length = static_cast<uint8_t>(DateOps().addDouble(next.digits, value_.digits, DigitsLength(), days));
    return CDateTime(Raw{}, next);
}

CDateTime CDateTime::NextDay() const { return Plus(1.0); }
CDateTime CDateTime::PreviousDay() const { return Plus(-1.0); }

CDateTime &CDateTime::Increment() {
    value_ = NextDay().value_;
    return *this;
}

CDateTime &CDateTime::Decrement() {
    value_ = PreviousDay().value_;
    return *this;
}

CDateTime &CDateTime::operator++() { return Increment(); }

CDateTime CDateTime::operator++(int) { return Increment(); }

CDateTime CDateTime::operator+(const CDateTimeSpan &span) const {
    HostDateTime sum{};
    sum.length = static_cast<uint8_t>(
        DateOps().add(sum.digits, value_.digits, DigitsLength(), span.value_.digits, span.value_.length));
    return CDateTime(Raw{}, sum);
}

CDateTime &CDateTime::operator+=(const CDateTimeSpan &span) {
    value_ = (*this + span).value_;
    return *this;
}

CDateTimeSpan CDateTime::operator-(const CDateTime &other) const {
    CDateTimeSpan difference;
    difference.value_.length = static_cast<uint8_t>(DateOps().subtract(
        difference.value_.digits, value_.digits, DigitsLength(), other.value_.digits, other.DigitsLength()));
    return difference;
}

CDateTimeSpan::CDateTimeSpan(int32_t days, int32_t, int32_t, int32_t) {
    // Zero as the host writes it: the difference of two equal dates.
    const CDateTime now;
    const CDateTime a(now.GetYear(), now.GetMonth(), now.GetDay(), 0, 0, 0);
    const CDateTime b(now.GetYear(), now.GetMonth(), now.GetDay(), 0, 0, 0);
    *this = a - b;
    AddDays(days);
}

CDateTimeSpan &CDateTimeSpan::AddDays(int32_t count) {
    HostNumber sum{};
    sum.length =
        static_cast<uint8_t>(DateOps().addDouble(sum.digits, value_.digits, value_.length, static_cast<double>(count)));
    value_ = sum;
    return *this;
}

int32_t CDateTimeSpan::GetDays() const {
    int32_t days = 0;
    DateOps().toLong(&value_, &days);
    return days;
}

void CDateTimeSpan::GetRecord(HostNumber *out) const {
    if (out)
        *out = value_;
}

} // namespace zk::cal
