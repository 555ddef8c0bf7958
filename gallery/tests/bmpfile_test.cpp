// The 24-bit BMP files, read back through the system's own loader.
#include <windows.h>

#include <gtest/gtest.h>

#include "bmpfile.h"

namespace {

using gallery::Picture;

std::wstring TempFile(const wchar_t *name) {
    wchar_t folder[MAX_PATH];
    GetTempPathW(MAX_PATH, folder);
    return std::wstring(folder) + name;
}

// The pixels of a BMP file as the system loads them, top-down 0x00RRGGBB.
Picture Load(const std::wstring &path) {
    Picture out;
    HBITMAP bitmap = static_cast<HBITMAP>(
        LoadImageW(nullptr, path.c_str(), IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE | LR_CREATEDIBSECTION));
    if (!bitmap)
        return out;
    BITMAP info{};
    GetObjectW(bitmap, sizeof(info), &info);
    BITMAPINFO request{};
    request.bmiHeader.biSize = sizeof(request.bmiHeader);
    request.bmiHeader.biWidth = info.bmWidth;
    request.bmiHeader.biHeight = -info.bmHeight;
    request.bmiHeader.biPlanes = 1;
    request.bmiHeader.biBitCount = 32;
    request.bmiHeader.biCompression = BI_RGB;
    out.width = info.bmWidth;
    out.height = info.bmHeight;
    out.pixels.resize(static_cast<size_t>(info.bmWidth) * info.bmHeight);
    HDC dc = GetDC(nullptr);
    GetDIBits(dc, bitmap, 0, info.bmHeight, out.pixels.data(), &request, DIB_RGB_COLORS);
    ReleaseDC(nullptr, dc);
    DeleteObject(bitmap);
    for (uint32_t &p : out.pixels)
        p &= 0xFFFFFF;
    return out;
}

TEST(GalleryBmpFile, RoundTripsAnOddWidthPictureTopRowFirst) {
    // Three pixels a row: rows are padded to four bytes in the file.
    Picture picture;
    picture.width = 3;
    picture.height = 2;
    picture.pixels = {0xFF0000, 0x00FF00, 0x0000FF, 0x123456, 0xFFFFFF, 0xFF000000};
    const std::wstring path = TempFile(L"zkgallery-odd.bmp");
    ASSERT_TRUE(WriteBmp24(path, picture));

    WIN32_FILE_ATTRIBUTE_DATA attributes{};
    ASSERT_TRUE(GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &attributes));
    EXPECT_EQ(14u + 40u + 2u * 12u, attributes.nFileSizeLow);

    const Picture back = Load(path);
    EXPECT_EQ(3, back.width);
    EXPECT_EQ(2, back.height);
    picture.pixels[5] = 0; // the alpha bits of a capture do not reach the file
    EXPECT_EQ(picture.pixels, back.pixels);
    DeleteFileW(path.c_str());
}

} // namespace
