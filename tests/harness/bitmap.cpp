#include "zkt_bitmap.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace zkt {
namespace {

// A DIB stores blue in the low byte, a COLORREF red.
COLORREF ToColorRef(std::uint32_t bgrx) { return RGB((bgrx >> 16) & 0xFF, (bgrx >> 8) & 0xFF, bgrx & 0xFF); }

std::uint32_t ToBgrx(COLORREF color) {
    return (static_cast<std::uint32_t>(GetRValue(color)) << 16) | (static_cast<std::uint32_t>(GetGValue(color)) << 8) |
           GetBValue(color);
}

void put16(std::vector<unsigned char> &out, std::uint16_t v) {
    out.push_back(static_cast<unsigned char>(v));
    out.push_back(static_cast<unsigned char>(v >> 8));
}

void put32(std::vector<unsigned char> &out, std::uint32_t v) {
    put16(out, static_cast<std::uint16_t>(v));
    put16(out, static_cast<std::uint16_t>(v >> 16));
}

} // namespace

Bitmap::Bitmap(int width, int height) {
    if (width <= 0 || height <= 0) {
        return;
    }
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height; // top-down: row 0 is the top
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    void *bits = nullptr;
    bitmap_ = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    dc_ = CreateCompatibleDC(nullptr);
    if (!bitmap_ || !dc_) {
        release();
        return;
    }
    previous_ = SelectObject(dc_, bitmap_);
    bits_ = static_cast<std::uint32_t *>(bits);
    width_ = width;
    height_ = height;
}

Bitmap::~Bitmap() { release(); }

Bitmap::Bitmap(Bitmap &&other) noexcept { *this = std::move(other); }

Bitmap &Bitmap::operator=(Bitmap &&other) noexcept {
    if (this != &other) {
        release();
        std::swap(dc_, other.dc_);
        std::swap(bitmap_, other.bitmap_);
        std::swap(previous_, other.previous_);
        std::swap(bits_, other.bits_);
        std::swap(width_, other.width_);
        std::swap(height_, other.height_);
    }
    return *this;
}

void Bitmap::release() {
    if (dc_ && previous_) {
        SelectObject(dc_, previous_);
    }
    if (dc_) {
        DeleteDC(dc_);
    }
    if (bitmap_) {
        DeleteObject(bitmap_);
    }
    dc_ = nullptr;
    bitmap_ = nullptr;
    previous_ = nullptr;
    bits_ = nullptr;
    width_ = height_ = 0;
}

COLORREF Bitmap::pixel(int x, int y) const {
    if (!bits_ || x < 0 || y < 0 || x >= width_ || y >= height_) {
        return CLR_INVALID;
    }
    GdiFlush(); // GDI may still hold drawing for the section
    return ToColorRef(bits_[static_cast<size_t>(y) * width_ + x]);
}

void Bitmap::fill(COLORREF color) {
    if (!bits_) {
        return;
    }
    GdiFlush();
    std::fill(bits_, bits_ + static_cast<size_t>(width_) * height_, ToBgrx(color));
}

int Bitmap::count(COLORREF color, RECT area) const {
    if (!bits_) {
        return 0;
    }
    GdiFlush();
    const std::uint32_t want = ToBgrx(color);
    const int left = std::max(0, static_cast<int>(area.left));
    const int top = std::max(0, static_cast<int>(area.top));
    const int right = std::min(width_, static_cast<int>(area.right));
    const int bottom = std::min(height_, static_cast<int>(area.bottom));
    int n = 0;
    for (int y = top; y < bottom; ++y) {
        const std::uint32_t *row = bits_ + static_cast<size_t>(y) * width_;
        for (int x = left; x < right; ++x) {
            n += (row[x] & 0xFFFFFF) == want;
        }
    }
    return n;
}

int Bitmap::count(COLORREF color) const { return count(color, RECT{0, 0, width_, height_}); }

std::vector<unsigned char> Bitmap::BmpBytes() const {
    if (!bits_) {
        return {};
    }
    GdiFlush();
    // 24 bits and no alpha: a 32-bit file with alpha 0 converts to a
    // transparent picture.
    const std::uint32_t stride = (static_cast<std::uint32_t>(width_) * 3 + 3) & ~3u;
    const std::uint32_t imageSize = stride * static_cast<std::uint32_t>(height_);
    std::vector<unsigned char> out;
    out.reserve(54 + imageSize);
    out.push_back('B');
    out.push_back('M');
    put32(out, 54 + imageSize);
    put32(out, 0);
    put32(out, 54);
    put32(out, 40);
    put32(out, static_cast<std::uint32_t>(width_));
    put32(out, static_cast<std::uint32_t>(height_)); // bottom-up rows
    put16(out, 1);
    put16(out, 24);
    put32(out, BI_RGB);
    put32(out, imageSize);
    put32(out, 2835); // 72 dpi
    put32(out, 2835);
    put32(out, 0);
    put32(out, 0);
    for (int y = height_ - 1; y >= 0; --y) {
        const std::uint32_t *row = bits_ + static_cast<size_t>(y) * width_;
        for (int x = 0; x < width_; ++x) {
            out.push_back(static_cast<unsigned char>(row[x]));
            out.push_back(static_cast<unsigned char>(row[x] >> 8));
            out.push_back(static_cast<unsigned char>(row[x] >> 16));
        }
        out.resize(out.size() + (stride - static_cast<std::uint32_t>(width_) * 3), 0);
    }
    return out;
}

bool Bitmap::SaveBmp(const std::wstring &path) const {
    const std::vector<unsigned char> out = BmpBytes();
    if (out.empty()) {
        return false;
    }
    HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return false;
    }
    DWORD written = 0;
    const BOOL ok = WriteFile(file, out.data(), static_cast<DWORD>(out.size()), &written, nullptr);
    CloseHandle(file);
    return ok && written == out.size();
}

} // namespace zkt
