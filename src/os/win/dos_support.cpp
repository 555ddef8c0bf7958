#include "os/win/dos_support.h"

namespace zk::dos {

std::optional<std::wstring> ReadVariable(const wchar_t *name) {
    std::wstring value(kPathLimit, L'\0');
    SetLastError(0);
    DWORD length = GetEnvironmentVariableW(name, value.data(), static_cast<DWORD>(value.size()));
    // Too small: the answer is the size needed, terminator included. The
    // value may grow between the calls, so ask until it fits.
    while (length >= value.size()) {
        value.assign(length, L'\0');
        length = GetEnvironmentVariableW(name, value.data(), static_cast<DWORD>(value.size()));
    }
    if (length == 0 && GetLastError() == ERROR_ENVVAR_NOT_FOUND)
        return std::nullopt;
    value.resize(length);
    return value;
}

bool AllocOnce(HostStr *slot, int32_t bytes) {
    if (HostStrAlloc(slot, bytes))
        return true;
    if (ZelErrorRecovery(zk::kRecoveryCaption) == ZEL_RECOVERY_HALT)
        HostHalt();
    return false;
}

void SetName(HostArray array, int32_t index, const wchar_t *name) {
    HostArraySetString(array, zk::StrFromChars(name, static_cast<size_t>(lstrlenW(name))), index);
}

void SetDate(HostArray array, int32_t index, const FILETIME &created) {
    HostDateTime date{};
    FILETIME local;
    SYSTEMTIME parts;
    if (FileTimeToLocalFileTime(&created, &local) && FileTimeToSystemTime(&local, &parts)) {
        const os::CivilTime civil{parts.wYear, parts.wMonth, parts.wDay, parts.wHour, parts.wMinute, parts.wSecond};
        if (const std::optional<os::CivilTime> shown = os::ListingTime(civil))
            HostDateConstruct(&date, shown->year, shown->month, shown->day, shown->hour, shown->minute, shown->second);
    }
    HostArraySetDateTime(array, &date, index);
}

void SetAttributes(HostArray array, int32_t index, DWORD attributes) {
    HostNumber number{};
    HostNumberFromShort(static_cast<int32_t>(attributes), &number);
    HostArraySetNumber(array, &number, index);
}

void SetSize(HostArray array, int32_t index, DWORD lowSize) {
    HostNumber number{};
    HostNumberFromULong(lowSize, &number);
    HostArraySetNumber(array, &number, index);
}

void CloseListing(std::initializer_list<HostArray> arrays, int32_t last) {
    for (HostArray array : arrays)
        HostArraySetBounds(array, 0, last);
}

int32_t LastError() {
    const DWORD error = GetLastError();
    return error ? -static_cast<int32_t>(error) : -1;
}

} // namespace zk::dos
