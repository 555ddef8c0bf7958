// ZelFileSetDateTime: one date-time as the creation, access and write time
// of the files a pattern matches, at the two-second grain of a DOS time.
#include "frame/win/guard.h"
#include "os/core/filesums.h"
#include "os/win/file_walk.h"

namespace {

using namespace zk::os;

// The date-time as a file time, read through the host's date parts and
// packed as a DOS date and time taken to be local time.
bool DosFileTime(const HostDateTime &date, FILETIME &out) {
    const WORD dosDate = PackDosDate(HostDateYear(date), HostDateMonth(date), HostDateDay(date));
    const WORD dosTime = PackDosTime(HostDateHour(date), HostDateMinute(date), HostDateSecond(date));
    FILETIME local;
    return DosDateTimeToFileTime(dosDate, dosTime, &local) && LocalFileTimeToFileTime(&local, &out);
}

int32_t SetDateTime(const wchar_t *pattern, const HostDateTime &date) {
    FileWalk walk(pattern);
    if (!walk.Found())
        return walk.error();
    int32_t count = 0;
    while (walk.Next()) {
        if (walk.IsDirectory())
            continue;
        ++count;
        FILETIME time;
        SetLastError(0); // the conversion may refuse a date without saying why
        if (!DosFileTime(date, time))
            return LastErrorCode();
        FileHandle file(ZelFileOpenEx(walk.Path().c_str(), nullptr, 0, OF_WRITE));
        if (!file.Valid())
            return LastErrorCode();
        if (!SetFileTime(file.get(), &time, &time, &time))
            return LastErrorCode();
    }
    return count;
}

} // namespace

int32_t ZKAPI ZelFileSetDateTime(const wchar_t *pattern, HostDateTime date) {
    if (!pattern)
        return ZEL_INVALID_PARAMETER;
    return zk::Quietly([&] { return SetDateTime(pattern, date); }, [] { return ZEL_NOT_ENOUGH_MEMORY; });
}
