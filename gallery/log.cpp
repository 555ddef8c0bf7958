#include "log.h"

namespace gallery {

std::string Utf8(const std::wstring &text) {
    if (text.empty())
        return {};
    const int size =
        WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), nullptr, 0, nullptr, nullptr);
    std::string out(static_cast<size_t>(size > 0 ? size : 0), '\0');
    if (size > 0)
        WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), out.data(), size, nullptr, nullptr);
    return out;
}

Log::~Log() {
    if (file_ != INVALID_HANDLE_VALUE)
        CloseHandle(file_);
}

bool Log::Open(const std::wstring &path) {
    file_ = CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL,
                        nullptr);
    return file_ != INVALID_HANDLE_VALUE;
}

void Log::Line(const std::wstring &text) {
    if (!outChecked_) {
        outChecked_ = true;
        // A GUI program started from a console gets no output handle of its
        // own; under Wine, or redirected, it has one already.
        out_ = GetStdHandle(STD_OUTPUT_HANDLE);
        if ((!out_ || out_ == INVALID_HANDLE_VALUE) && AttachConsole(ATTACH_PARENT_PROCESS))
            out_ = CreateFileW(L"CONOUT$", GENERIC_WRITE, FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
        if (out_ == INVALID_HANDLE_VALUE)
            out_ = nullptr;
    }
    const std::string bytes = Utf8(text) + "\n";
    if (out_)
        Write(out_, bytes);
    if (file_ != INVALID_HANDLE_VALUE)
        Write(file_, bytes);
}

void Log::Write(HANDLE handle, const std::string &bytes) {
    DWORD written = 0;
    WriteFile(handle, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
}

} // namespace gallery
