// What the process writes with OutputDebugStringW/A while the object lives.
#pragma once

#include <windows.h>

#include <cstddef>
#include <mutex>
#include <string>
#include <vector>

namespace zkt {

// Catches the debugger-print exceptions that OutputDebugString raises
// (DBG_PRINTEXCEPTION_WIDE_C, DBG_PRINTEXCEPTION_C) in a vectored handler,
// so every module and every thread of the process is covered, and lets the
// caller go on as if a debugger had taken the text. Wine 8 raises only the
// narrow exception, converting the text to the ANSI code page: characters
// outside it arrive as '?'.
// Captures nest: the innermost one alive receives the text.
class DebugOutputCapture {
public:
    DebugOutputCapture();
    ~DebugOutputCapture();
    DebugOutputCapture(const DebugOutputCapture &) = delete;
    DebugOutputCapture &operator=(const DebugOutputCapture &) = delete;

    // Everything written, as one text.
    std::wstring text() const;
    // The complete lines (ended by a line feed, which is dropped with a
    // carriage return before it); text after the last line feed is left out.
    std::vector<std::wstring> lines() const;
    // How many OutputDebugString calls were seen.
    std::size_t calls() const;
    void clear();

    // Called by the exception handler.
    void append(const std::wstring &piece);

private:
    mutable std::mutex lock_;
    std::wstring text_;
    std::size_t calls_ = 0;
};

} // namespace zkt
