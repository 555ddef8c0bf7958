// The date-time checks of the property dialogs as the dialogs call them:
// a failed check tells the user and fails the data exchange.
#pragma once

namespace zk::cal {

// False after the message box of string 64 or 65 with %1 the text.
bool DDV_DateTimePicture(bool saving, const wchar_t *text, int enforce);
bool DDV_DateTimeValue(bool saving, const wchar_t *text, int enforce);

} // namespace zk::cal
