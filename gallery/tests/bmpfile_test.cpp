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
    picture.pixels = {0xFF0000, 0x00FF00, 0x0000FF, 0x123456, 0xFFFFFF, 0x000000};
    const std::wstring path = TempFile(L"zkgallery-odd.bmp");
    ASSERT_TRUE(WriteBmp24(path, picture));

    WIN32_FILE_ATTRIBUTE_DATA attributes{};
    ASSERT_TRUE(GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &attributes));
    EXPECT_EQ(14u + 40u + 2u * 12u, attributes.nFileSizeLow);

    const Picture back = Load(path);
    EXPECT_EQ(3, back.width);
    EXPECT_EQ(2, back.height);
    EXPECT_EQ(picture.pixels, back.pixels);
    DeleteFileW(path.c_str());
}

TEST(GalleryBmpFile, AlphaBitsOfTheCaptureDoNotReachTheFile) {
    Picture picture;
    picture.width = 1;
    picture.height = 1;
    picture.pixels = {0xFF336699};
    const std::wstring path = TempFile(L"zkgallery-alpha.bmp");
    ASSERT_TRUE(WriteBmp24(path, picture));
    EXPECT_EQ(std::vector<uint32_t>{0x336699}, Load(path).pixels);
    DeleteFileW(path.c_str());
}

TEST(GalleryBmpFile, RefusesPicturesWithoutPixelsOrWithTheWrongCount) {
    const std::wstring path = TempFile(L"zkgallery-bad.bmp");
    EXPECT_FALSE(WriteBmp24(path, Picture{}));
    Picture wrong;
    wrong.width = 2;
    wrong.height = 2;
    wrong.pixels = {1, 2, 3};
    EXPECT_FALSE(WriteBmp24(path, wrong));
    EXPECT_EQ(INVALID_FILE_ATTRIBUTES, GetFileAttributesW(path.c_str()));
}

TEST(GalleryBmpFile, UniformIgnoresAlphaAndSeesOneDifferentPixel) {
    Picture picture;
    picture.width = 2;
    picture.height = 1;
    picture.pixels = {0x00C0C0C0, 0xFFC0C0C0};
    EXPECT_TRUE(picture.Uniform());
    picture.pixels[1] = 0x00C0C0C1;
    EXPECT_FALSE(picture.Uniform());
}

} // namespace
