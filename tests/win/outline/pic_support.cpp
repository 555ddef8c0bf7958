#include "pic_support.h"

#include "files_support.h"

namespace pictest {

TempFile::TempFile(const std::wstring &name, const Bytes &bytes) {
    wchar_t folder[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, folder);
    path_ = std::wstring(folder) + name;
    EXPECT_TRUE(filestest::Write(path_, std::string(bytes.begin(), bytes.end())));
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
