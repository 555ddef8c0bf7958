// The scenario's log: every line goes to standard output and to a file.
#pragma once

#include <windows.h>
#include <string>

namespace gallery {

class Log {
public:
    Log() = default;
    ~Log();
    Log(const Log &) = delete;
    Log &operator=(const Log &) = delete;

    // Opens (truncates) the log file; standard output is used either way.
    bool Open(const std::wstring &path);
    void Line(const std::wstring &text);

private:
    void Write(HANDLE handle, const std::string &bytes);
    HANDLE file_ = INVALID_HANDLE_VALUE;
    HANDLE out_ = nullptr;
    bool outChecked_ = false;
};

std::string Utf8(const std::wstring &text);

} // namespace gallery
