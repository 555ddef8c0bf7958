#include "outline/core/image_reader.h"

namespace zk::lbx::image {
namespace {

constexpr size_t kFileHeader = 14;
constexpr size_t kInfoHeader = 40;
constexpr size_t kIconDir = 6;
constexpr size_t kIconEntry = 16;

uint16_t U16(const uint8_t *p) { return static_cast<uint16_t>(p[0] | (p[1] << 8)); }
uint32_t U32(const uint8_t *p) { return U16(p) | (static_cast<uint32_t>(U16(p + 2)) << 16); }
int32_t I32(const uint8_t *p) { return static_cast<int32_t>(U32(p)); }

bool ValidBitCount(uint16_t bits) {
    return bits == 1 || bits == 4 || bits == 8 || bits == 16 || bits == 24 || bits == 32;
}

// The fields of a BITMAPINFOHEADER that a reader trusts.
struct Info {
    int32_t width;
    int32_t height;
    uint16_t bitCount;
    uint32_t colours;
    uint32_t sizeImage;
};

// Checks an info header at p (kInfoHeader bytes readable). heightAllowedNegative:
// a BMP may be top-down, an icon image may not.
std::optional<Info> ReadInfo(const uint8_t *p, bool heightAllowedNegative) {
    Info info{};
    if (U32(p) != kInfoHeader)
        return std::nullopt;
    info.width = I32(p + 4);
    info.height = I32(p + 8);
    const uint16_t planes = U16(p + 12);
    info.bitCount = U16(p + 14);
    const uint32_t compression = U32(p + 16);
    info.sizeImage = U32(p + 20);
    const uint32_t used = U32(p + 32);
    const uint32_t important = U32(p + 36);
    if (info.width <= 0 || info.width > kMaxSide)
        return std::nullopt;
    if (info.height == 0 || info.height < -kMaxSide || info.height > kMaxSide)
        return std::nullopt;
    if (info.height < 0 && !heightAllowedNegative)
        return std::nullopt;
    if (planes != 1 || !ValidBitCount(info.bitCount) || compression != 0)
        return std::nullopt;
    const uint32_t most = info.bitCount <= 8 ? (1u << info.bitCount) : 256u;
    if (used > most)
        return std::nullopt;
    info.colours = used ? used : (info.bitCount <= 8 ? most : 0);
    if (important > info.colours)
        return std::nullopt;
    return info;
}

} // namespace

uint64_t RowBytes(int64_t width, int64_t bitCount) {
    if (width <= 0 || width > kMaxSide || bitCount <= 0 || bitCount > 32)
        return 0;
    return static_cast<uint64_t>((width * bitCount + 31) / 32) * 4;
}

std::optional<Bmp> ReadBmp(const uint8_t *data, size_t size) {
    if (!data || size < kFileHeader + kInfoHeader)
        return std::nullopt;
    if (data[0] != 'B' || data[1] != 'M')
        return std::nullopt;
    const uint32_t fileSize = U32(data + 2);
    const uint32_t bitsOffset = U32(data + 10);
    const auto info = ReadInfo(data + kFileHeader, true);
    if (!info)
        return std::nullopt;
    Bmp bmp;
    bmp.width = info->width;
    bmp.topDown = info->height < 0;
    bmp.height = bmp.topDown ? -info->height : info->height;
    bmp.bitCount = info->bitCount;
    bmp.colours = info->colours;
    bmp.infoOffset = kFileHeader;
    const uint64_t table = kFileHeader + kInfoHeader + uint64_t{info->colours} * 4;
    const uint64_t bytes = RowBytes(bmp.width, bmp.bitCount) * static_cast<uint64_t>(bmp.height);
    // The pixels lie after the colour table; a declared image size may be
    // 0, else it covers the rows; the declared file size, if given, holds
    // the pixels and fits the buffer.
    if (bitsOffset < table || bitsOffset > size)
        return std::nullopt;
    if (info->sizeImage != 0 && info->sizeImage < bytes)
        return std::nullopt;
    const uint64_t end = bitsOffset + (info->sizeImage ? info->sizeImage : bytes);
    if (end > size)
        return std::nullopt;
    if (fileSize != 0 && (fileSize > size || fileSize < end))
        return std::nullopt;
    bmp.bitsOffset = bitsOffset;
    bmp.bitsBytes = static_cast<size_t>(bytes);
    return bmp;
}

std::optional<IcoImage> ReadIcoFirstImage(const uint8_t *data, size_t size) {
    if (!data || size < kIconDir + kIconEntry)
        return std::nullopt;
    const uint16_t reserved = U16(data);
    const uint16_t type = U16(data + 2);
    const uint16_t count = U16(data + 4);
    if (reserved != 0 || type != 1 || count == 0)
        return std::nullopt;
    const uint64_t directory = kIconDir + uint64_t{count} * kIconEntry;
    if (directory > size)
        return std::nullopt;
    const uint8_t *entry = data + kIconDir;
    const uint16_t planes = U16(entry + 4);
    const uint16_t bits = U16(entry + 6);
    const uint32_t bytes = U32(entry + 8);
    const uint32_t offset = U32(entry + 12);
    if (planes > 1 || (bits != 0 && !ValidBitCount(bits)))
        return std::nullopt;
    if (offset < directory || bytes < kInfoHeader || uint64_t{offset} + bytes > size)
        return std::nullopt;
    const auto info = ReadInfo(data + offset, false);
    if (!info || info->height % 2 != 0)
        return std::nullopt;
    const int32_t rows = info->height / 2;
    const uint64_t needed = kInfoHeader + uint64_t{info->colours} * 4 + RowBytes(info->width, info->bitCount) * rows +
                            RowBytes(info->width, 1) * rows;
    if (needed > bytes)
        return std::nullopt;
    IcoImage image;
    image.offset = offset;
    image.bytes = bytes;
    image.width = info->width;
    image.height = rows;
    image.bitCount = info->bitCount;
    return image;
}

size_t BmpClaimedSize(const uint8_t *data, size_t size) {
    if (!data || size < kFileHeader + kInfoHeader || data[0] != 'B' || data[1] != 'M')
        return 0;
    const uint32_t fileSize = U32(data + 2);
    if (fileSize != 0)
        return fileSize;
    const auto info = ReadInfo(data + kFileHeader, true);
    if (!info)
        return 0;
    const int64_t rows = info->height < 0 ? -int64_t{info->height} : info->height;
    const uint64_t bytes = info->sizeImage ? info->sizeImage : RowBytes(info->width, info->bitCount) * rows;
    const uint64_t end = uint64_t{U32(data + 10)} + bytes;
    return end > SIZE_MAX ? SIZE_MAX : static_cast<size_t>(end);
}

size_t IcoClaimedSize(const uint8_t *data, size_t size) {
    if (!data || size < kIconDir + kIconEntry || U16(data) != 0 || U16(data + 2) != 1 || U16(data + 4) == 0)
        return 0;
    const uint64_t end = uint64_t{U32(data + kIconDir + 12)} + U32(data + kIconDir + 8);
    const uint64_t directory = kIconDir + uint64_t{U16(data + 4)} * kIconEntry;
    const uint64_t claimed = end > directory ? end : directory;
    return claimed > SIZE_MAX ? SIZE_MAX : static_cast<size_t>(claimed);
}

} // namespace zk::lbx::image
