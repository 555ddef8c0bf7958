// File streams of the host: C streams opened with the classic OpenFile
// flags, raw reads and writes, and lines of text in the system code page.
#include <fcntl.h>
#include <io.h>

#include <cstdio>
#include <string>

#include "guard.h"
#include "strstore.h"
#include "zkhost.h"

using namespace hostwin;

namespace {

enum class Access { Read, Write, ReadWrite };

// Opens the file and closes it again: OF_EXIST only asks whether it can be had.
int32_t Probe(const wchar_t *name, DWORD access, DWORD disposition) {
    HANDLE h = CreateFileW(name, access, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, disposition,
                           FILE_ATTRIBUTE_NORMAL, nullptr);
    if (h == INVALID_HANDLE_VALUE)
        return 0;
    CloseHandle(h);
    return 1;
}

// A stream over a handle of the wanted access: the system reports why an
// open fails through the last error, which the C runtime would not keep.
FILE *Stream(const wchar_t *name, Access access, DWORD disposition) {
    DWORD rights = access == Access::Read    ? GENERIC_READ
                   : access == Access::Write ? GENERIC_WRITE
                                             : GENERIC_READ | GENERIC_WRITE;
    HANDLE h = CreateFileW(name, rights, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, disposition,
                           FILE_ATTRIBUTE_NORMAL, nullptr);
    if (h == INVALID_HANDLE_VALUE)
        return nullptr;
    int mode = access == Access::Read ? _O_RDONLY : access == Access::Write ? _O_WRONLY : _O_RDWR;
    int fd = _open_osfhandle(reinterpret_cast<intptr_t>(h), mode | _O_BINARY);
    if (fd == -1) {
        CloseHandle(h);
        SetLastError(ERROR_TOO_MANY_OPEN_FILES);
        return nullptr;
    }
    FILE *f = _fdopen(fd, access == Access::Read ? "rb" : access == Access::Write ? "wb" : "r+b");
    if (!f) {
        _close(fd);
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    }
    return f;
}

// How many bytes of line can be kept within limit without cutting a
// double-byte character.
size_t WholeCharacters(const std::string &line, size_t limit) {
    size_t n = 0;
    while (n < line.size()) {
        size_t step = IsDBCSLeadByte(static_cast<BYTE>(line[n])) && n + 1 < line.size() ? 2 : 1;
        if (n + step > limit)
            break;
        n += step;
    }
    return n;
}

} // namespace

extern "C" {

// Read (0), write (1) or read-write (2) access to an existing file;
// OF_CREATE makes the file anew, with write access unless read-write is
// asked; OF_EXIST opens and closes at once and gives no stream. Share bits
// are not modelled. 1 on success, else 0 with the reason as the last error.
int32_t ZKAPI HostFileOpen(HostFile *file, const wchar_t *name, int32_t flags) {
    if (file)
        *file = nullptr;
    int mode = flags & 0x3;
    if (!file || !name || mode == 3) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return 0;
    }
    bool create = (flags & OF_CREATE) != 0;
    Access access = mode == OF_READWRITE         ? Access::ReadWrite
                    : mode == OF_WRITE || create ? Access::Write
                                                 : Access::Read;
    DWORD disposition = create ? CREATE_ALWAYS : OPEN_EXISTING;
    if (flags & OF_EXIST) {
        // A question about the file must not empty it: with OF_CREATE it
        // may make the file, but an existing one keeps its bytes.
        DWORD rights = access == Access::Read ? GENERIC_READ : GENERIC_WRITE;
        return Probe(name, rights, create ? OPEN_ALWAYS : OPEN_EXISTING);
    }
    *file = Stream(name, access, disposition);
    return *file ? 1 : 0;
}

int32_t ZKAPI HostFileClose(HostFile file) {
    if (!file) {
        SetLastError(ERROR_INVALID_HANDLE);
        return 0;
    }
    return std::fclose(file) == 0 ? 1 : 0;
}

int32_t ZKAPI HostFileRead(HostFile file, void *buffer, int32_t bytes) {
    if (!file || !buffer || bytes <= 0)
        return 0;
    return static_cast<int32_t>(std::fread(buffer, 1, static_cast<size_t>(bytes), file));
}

int32_t ZKAPI HostFileWrite(HostFile file, const void *buffer, int32_t bytes) {
    if (!file || !buffer || bytes <= 0)
        return 0;
    return static_cast<int32_t>(std::fwrite(buffer, 1, static_cast<size_t>(bytes), file));
}

// One line, without its line end (LF or CR LF), as a new string in the
// slot; a limit of 0 or more keeps only that many bytes of it, the rest of
// the line being read all the same. 0 at the end of the file, the slot
// then left as it was.
int32_t ZKAPI HostFileReadString(HostFile file, HostStr *slot, int32_t limit) {
    return Guard<int32_t>(0, [&] {
        if (!file || !slot)
            return 0;
        std::string line;
        bool any = false, ended = false;
        for (int c; (c = std::getc(file)) != EOF;) {
            any = true;
            if (c == '\n') {
                ended = true;
                break;
            }
            line.push_back(static_cast<char>(c));
        }
        if (!any)
            return 0;
        if (ended && !line.empty() && line.back() == '\r')
            line.pop_back();
        if (limit >= 0 && line.size() > size_t(limit))
            line.resize(WholeCharacters(line, size_t(limit)));
        std::wstring text;
        if (!line.empty()) {
            int n = MultiByteToWideChar(CP_ACP, 0, line.data(), static_cast<int>(line.size()), nullptr, 0);
            text.resize(static_cast<size_t>(n));
            MultiByteToWideChar(CP_ACP, 0, line.data(), static_cast<int>(line.size()), text.data(), n);
        }
        HostStr handle = StrFromText(text);
        if (!handle)
            return 0;
        StrStore(slot, handle);
        return 1;
    });
}

// The text in the system code page, then CR LF.
int32_t ZKAPI HostFileWriteString(HostFile file, const wchar_t *text) {
    return Guard<int32_t>(0, [&] {
        if (!file) {
            SetLastError(ERROR_INVALID_HANDLE);
            return 0;
        }
        std::string bytes;
        if (text && *text) {
            int n = WideCharToMultiByte(CP_ACP, 0, text, -1, nullptr, 0, nullptr, nullptr);
            if (n <= 0)
                return 0;
            bytes.resize(static_cast<size_t>(n));
            WideCharToMultiByte(CP_ACP, 0, text, -1, bytes.data(), n, nullptr, nullptr);
            bytes.pop_back(); // the terminator
        }
        bytes += "\r\n";
        return std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size() ? 1 : 0;
    });
}

} // extern "C"
