// What the drive, directory and path exports share: text between the
// platform's and the core's form, variables read at any length, the single
// allocation attempt of the path builders, the elements of a listing and
// the one loop of the pattern listings.
#pragma once

#include <windows.h>

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

#include "frame/win/host.h"
#include "os/core/dos_listing.h"

namespace zk::dos {

// wchar_t is 16 bits on Windows: the core's text is the same code units.
inline std::u16string_view U16(std::wstring_view text) {
    return {reinterpret_cast<const char16_t *>(text.data()), text.size()};
}
inline std::wstring_view Wide(std::u16string_view text) {
    return {reinterpret_cast<const wchar_t *>(text.data()), text.size()};
}
inline std::u16string_view U16(const wchar_t *text) { return U16(std::wstring_view(text)); }

// The copy of a pattern or path the platform calls get: MAX_PATH characters
// with the terminator.
inline constexpr size_t kPathLimit = MAX_PATH;
inline constexpr int32_t kNameTooLong = -static_cast<int32_t>(ERROR_FILENAME_EXCED_RANGE);

// An environment variable's value, read into 260 characters and again at
// the size asked for when it was longer; nothing when it is not set.
std::optional<std::wstring> ReadVariable(const wchar_t *name);

// One try at a host string of `bytes` bytes into *slot. A failure asks the
// user once (Halt halts) and is not tried again: false.
bool AllocOnce(HostStr *slot, int32_t bytes);

// The platform's boxes about drives without a disk stay hidden for a call.
class QuietDriveErrors {
public:
    QuietDriveErrors() : saved_(SetErrorMode(SEM_NOOPENFILEERRORBOX)) {}
    ~QuietDriveErrors() { SetErrorMode(saved_); }
    QuietDriveErrors(const QuietDriveErrors &) = delete;
    QuietDriveErrors &operator=(const QuietDriveErrors &) = delete;

private:
    UINT saved_;
};

// Elements of a listing, written at `index` (the array grows to hold it).
void SetName(HostArray array, int32_t index, const wchar_t *name);
void SetDate(HostArray array, int32_t index, const FILETIME &created);
void SetAttributes(HostArray array, int32_t index, DWORD attributes);
void SetSize(HostArray array, int32_t index, DWORD lowSize);
// Bounds 0 and `last` on every array (last -1 empties them).
void CloseListing(std::initializer_list<HostArray> arrays, int32_t last);

// A search handle closed on every path.
class Search {
public:
    Search(const wchar_t *pattern, WIN32_FIND_DATAW &entry) : handle_(FindFirstFileW(pattern, &entry)) {}
    ~Search() {
        if (Found())
            FindClose(handle_);
    }
    Search(const Search &) = delete;
    Search &operator=(const Search &) = delete;
    bool Found() const { return handle_ != INVALID_HANDLE_VALUE; }
    HANDLE get() const { return handle_; }

private:
    HANDLE handle_;
};

// -GetLastError(), or -1 when the platform left no error number.
int32_t LastError();

// The pattern listings' loop: every entry that take(entry) accepts is
// written at the next index by write(entry, index); then the arrays get
// their bounds. The count, or a negative code with the arrays untouched.
template <class Take, class Write>
int32_t Enumerate(const wchar_t *pattern, std::initializer_list<HostArray> arrays, Take &&take, Write &&write) {
    if (!pattern)
        return ZEL_INVALID_PARAMETER;
    if (std::wstring_view(pattern).size() >= kPathLimit)
        return kNameTooLong;
    WIN32_FIND_DATAW entry;
    const Search search(pattern, entry);
    if (!search.Found())
        return LastError();
    int32_t last = -1;
    do {
        if (take(entry))
            write(entry, ++last);
    } while (FindNextFileW(search.get(), &entry)); // any failure ends the listing
    CloseListing(arrays, last);
    return last + 1;
}

inline std::u16string_view NameOf(const WIN32_FIND_DATAW &entry) { return U16(entry.cFileName); }

} // namespace zk::dos
