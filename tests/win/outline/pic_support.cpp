#include "pic_support.h"

namespace pictest {

TempFile::TempFile(const std::wstring &name, const Bytes &bytes) {
    wchar_t folder[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, folder);
    path_ = std::wstring(folder) + name;
    HANDLE file = CreateFileW(path_.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    if (file != INVALID_HANDLE_VALUE) {
        DWORD written = 0;
        WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
        CloseHandle(file);
    }
}

TempFile::~TempFile() { DeleteFileW(path_.c_str()); }

COLORREF BitmapPixel(HBITMAP bitmap, int x, int y) {
    HDC dc = CreateCompatibleDC(nullptr);
    HGDIOBJ old = SelectObject(dc, bitmap);
    const COLORREF c = GetPixel(dc, x, y);
    SelectObject(dc, old);
    DeleteDC(dc);
    return c;
}

} // namespace pictest
