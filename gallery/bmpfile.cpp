#include "bmpfile.h"

#include <windows.h>

#include <algorithm>

namespace gallery {

bool Picture::Uniform() const {
    if (pixels.empty())
        return true;
    const uint32_t first = pixels.front() & 0xFFFFFF;
    return std::all_of(pixels.begin(), pixels.end(), [first](uint32_t p) { return (p & 0xFFFFFF) == first; });
}

bool WriteBmp24(const std::wstring &path, const Picture &picture) {
    if (picture.Empty() || picture.pixels.size() != static_cast<size_t>(picture.width) * picture.height)
        return false;
    const size_t stride = (static_cast<size_t>(picture.width) * 3 + 3) & ~static_cast<size_t>(3);
    const size_t imageBytes = stride * picture.height;

    BITMAPFILEHEADER file{};
    BITMAPINFOHEADER info{};
    file.bfType = 0x4D42; // "BM"
    file.bfOffBits = sizeof(file) + sizeof(info);
    file.bfSize = static_cast<DWORD>(file.bfOffBits + imageBytes);
    info.biSize = sizeof(info);
    info.biWidth = picture.width;
    info.biHeight = picture.height; // bottom-up
    info.biPlanes = 1;
    info.biBitCount = 24;
    info.biCompression = BI_RGB;
    info.biSizeImage = static_cast<DWORD>(imageBytes);

    std::vector<uint8_t> bytes(imageBytes, 0);
    for (int y = 0; y < picture.height; ++y) {
        const uint32_t *source = &picture.pixels[static_cast<size_t>(y) * picture.width];
        uint8_t *row = &bytes[(picture.height - 1 - y) * stride];
        for (int x = 0; x < picture.width; ++x) {
            row[3 * x + 0] = static_cast<uint8_t>(source[x]);       // blue
            row[3 * x + 1] = static_cast<uint8_t>(source[x] >> 8);  // green
            row[3 * x + 2] = static_cast<uint8_t>(source[x] >> 16); // red
        }
    }

    HANDLE handle = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return false;
    DWORD written = 0;
    bool ok = WriteFile(handle, &file, sizeof(file), &written, nullptr) && written == sizeof(file);
    ok = ok && WriteFile(handle, &info, sizeof(info), &written, nullptr) && written == sizeof(info);
    ok = ok && WriteFile(handle, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) &&
         written == bytes.size();
    CloseHandle(handle);
    return ok;
}

} // namespace gallery
