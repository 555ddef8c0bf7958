#include "calendar/core/date_checks.h"

#include "calendar/core/date_ops.h"
#include "calendar/core/datetime.h"

namespace zk::cal {

namespace {

bool Skipped(bool saving, const char16_t *text, int enforce) {
    const bool empty = !text || !*text;
    return !saving || (enforce != 1 && empty);
}

} // namespace

DateTextVerdict CheckDateTimePicture(bool saving, const char16_t *text, int enforce) {
    if (Skipped(saving, text, enforce))
        return DateTextVerdict::Passed;
    return DateOps().isValidPicture(text ? text : u"") == 0 ? DateTextVerdict::BadPicture : DateTextVerdict::Passed;
}

DateTextVerdict CheckDateTimeValue(bool saving, const char16_t *text, int enforce) {
    if (Skipped(saving, text, enforce))
        return DateTextVerdict::Passed;
    CDateTime value(HostDateTime{});
    return value.Parse(text ? text : u"") == 0 ? DateTextVerdict::BadDateTime : DateTextVerdict::Passed;
}

} // namespace zk::cal
