// The two checks of date-time texts that the property dialogs run while
// saving: a picture the host accepts, and a text that parses as a date.
#pragma once

#include <string_view>

namespace zk::cal {

enum class DateTextVerdict {
    Passed,
    BadPicture,  // string 64
    BadDateTime, // string 65
};

// Each check runs only while saving; with enforce not 1 an empty text passes.
DateTextVerdict CheckDateTimePicture(bool saving, const char16_t *text, int enforce);
DateTextVerdict CheckDateTimeValue(bool saving, const char16_t *text, int enforce);

} // namespace zk::cal
