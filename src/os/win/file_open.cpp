// ZelFileOpenEx: the library's one way of opening a file by name.
#include "os/win/files.h"

#include <cwchar>

HANDLE ZelFileOpenEx(const wchar_t *name, wchar_t *foundPath, uint32_t foundPathSize, uint32_t flags) {
    if (!name) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return INVALID_HANDLE_VALUE;
    }
    if (flags & OF_PARSE)
        return nullptr;
    if (flags & OF_DELETE)
        return DeleteFileW(name) ? nullptr : INVALID_HANDLE_VALUE;

    const wchar_t *path = name;
    DWORD disposition = OPEN_EXISTING;
    if ((flags & OF_CREATE) && !(flags & OF_EXIST)) {
        // The name is reported back as it is; the file made is the one
        // named, even when the report had to be cut to fit.
        if (foundPath && foundPathSize > 0) {
            std::wcsncpy(foundPath, name, foundPathSize - 1);
            foundPath[foundPathSize - 1] = 0;
        }
        disposition = CREATE_ALWAYS;
        flags = OF_WRITE; // creating is writing, and nothing else
    } else if (foundPath) {
        if (foundPathSize == 0) {
            SetLastError(ERROR_INSUFFICIENT_BUFFER);
            return INVALID_HANDLE_VALUE;
        }
        const DWORD length = SearchPathW(nullptr, name, nullptr, foundPathSize, foundPath, nullptr);
        if (length == 0) {
            // The search reports a name it cannot use as a bad parameter;
            // to the caller that is a file it did not find.
            if (GetLastError() == ERROR_INVALID_PARAMETER)
                SetLastError(ERROR_FILE_NOT_FOUND);
            return INVALID_HANDLE_VALUE;
        }
        if (length >= foundPathSize) { // found, but the path does not fit
            SetLastError(ERROR_FILENAME_EXCED_RANGE);
            return INVALID_HANDLE_VALUE;
        }
        path = foundPath;
    }
    if (flags & OF_EXIST)
        return nullptr;

    const DWORD access = (flags & OF_READWRITE) ? GENERIC_READ | GENERIC_WRITE
                         : (flags & OF_WRITE)   ? GENERIC_WRITE
                                                : GENERIC_READ;
    const DWORD share = (flags & OF_SHARE_EXCLUSIVE)    ? 0
                        : (flags & OF_SHARE_DENY_WRITE) ? FILE_SHARE_READ
                                                        : FILE_SHARE_READ | FILE_SHARE_WRITE;
    return CreateFileW(path, access, share, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
}
