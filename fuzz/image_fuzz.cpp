// Bytes of any shape into the readers of pictures in memory: BMP and ICO
// headers, and the design-time picture list. Whatever a reader accepts must
// lie inside the bytes given (every byte of it is read here, so the
// sanitizer sees any overrun), and a picture list read must write back to
// bytes that read the same.
#include <cstddef>
#include <cstdint>
#include <vector>

#include "outline/core/image_reader.h"
#include "outline/core/pic_items.h"

namespace {

void check(bool condition) {
    if (!condition)
        __builtin_trap();
}

volatile uint8_t sink;

void touch(const uint8_t *data, size_t size, size_t offset, size_t bytes) {
    check(offset <= size && bytes <= size - offset);
    uint8_t x = 0;
    for (size_t i = 0; i < bytes; ++i)
        x ^= data[offset + i];
    sink = x;
}

void images(const uint8_t *data, size_t size) {
    using namespace zk::lbx::image;
    if (const auto bmp = ReadBmp(data, size)) {
        check(bmp->width > 0 && bmp->width <= kMaxSide && bmp->height > 0 && bmp->height <= kMaxSide);
        touch(data, size, bmp->infoOffset, 40 + size_t{bmp->colours} * 4);
        touch(data, size, bmp->bitsOffset, bmp->bitsBytes);
        check(bmp->bitsBytes == RowBytes(bmp->width, bmp->bitCount) * static_cast<uint64_t>(bmp->height));
        const size_t claimed = BmpClaimedSize(data, size);
        check(claimed != 0 && claimed <= size);
    }
    if (const auto ico = ReadIcoFirstImage(data, size)) {
        check(ico->width > 0 && ico->height > 0);
        touch(data, size, ico->offset, ico->bytes);
        check(ico->bytes >=
              40 + RowBytes(ico->width, ico->bitCount) * ico->height + RowBytes(ico->width, 1) * ico->height);
        const size_t claimed = IcoClaimedSize(data, size);
        check(claimed != 0 && claimed <= size);
    }
}

void PicItems(const uint8_t *data, size_t size) {
    std::vector<zk::lbx::PICITEM> items;
    if (!zk::lbx::PicItemsRead(data, size, items)) {
        check(items.empty());
        return;
    }
    const std::vector<uint8_t> again = zk::lbx::PicItemsWrite(items);
    std::vector<zk::lbx::PICITEM> back;
    check(zk::lbx::PicItemsRead(again.data(), again.size(), back));
    check(back == items);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    images(data, size);
    PicItems(data, size);
    return 0;
}
