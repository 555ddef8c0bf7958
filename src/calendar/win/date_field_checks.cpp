#include "calendar/win/date_field_checks.h"

#include <string>

#include "calendar/core/calendar_ids.h"
#include "calendar/core/date_checks.h"
#include "frame/win/host.h"

namespace zk::cal {

namespace {

const char16_t *Core(const wchar_t *text) { return reinterpret_cast<const char16_t *>(text); }

// The box of AfxMessageBox: the application's name as caption, type 0.
bool Fail(UINT stringId, const wchar_t *text) {
    std::wstring message = LoadText(stringId);
    const size_t at = message.find(L"%1");
    if (at != std::wstring::npos)
        message.replace(at, 2, text ? text : L"");
    MessageBoxW(GetActiveWindow(), message.c_str(), kAppName, MB_OK);
    return false;
}

} // namespace

bool DDV_DateTimePicture(bool saving, const wchar_t *text, int enforce) {
    if (CheckDateTimePicture(saving, Core(text), enforce) == DateTextVerdict::Passed)
        return true;
    return Fail(IDS_CAL_BAD_PICTURE, text);
}

bool DDV_DateTimeValue(bool saving, const wchar_t *text, int enforce) {
    if (CheckDateTimeValue(saving, Core(text), enforce) == DateTextVerdict::Passed)
        return true;
    return Fail(IDS_CAL_BAD_DATETIME, text);
}

} // namespace zk::cal
