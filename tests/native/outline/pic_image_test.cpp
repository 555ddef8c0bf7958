// Headers of BMP and ICO bytes: what passes is safe to hand to GDI.
#include <gtest/gtest.h>

#include <cstring>

#include "image_bytes.h"
#include "outline/core/image_reader.h"

using namespace zk::lbx;

using namespace zk::lbx::image;
using Bytes = std::vector<uint8_t>;

namespace {

using zkt::MakeBmp;
using zkt::MakeIco;
using zkt::Put16;
using zkt::Put32;

TEST(ImageReader, BitmapsOfEveryDepth) {
    for (uint16_t bits : {1, 4, 8, 16, 24, 32}) {
        const Bytes b = MakeBmp(13, 7, bits);
        const auto bmp = ReadBmp(b.data(), b.size());
        ASSERT_TRUE(bmp) << bits;
        EXPECT_EQ(bmp->width, 13);
        EXPECT_EQ(bmp->height, 7);
        EXPECT_FALSE(bmp->topDown);
        EXPECT_EQ(bmp->infoOffset, 14u);
        EXPECT_EQ(bmp->bitsOffset + bmp->bitsBytes, b.size());
        EXPECT_EQ(BmpClaimedSize(b.data(), 64), b.size());
    }
    const Bytes top = MakeBmp(5, -6, 24);
    const auto bmp = ReadBmp(top.data(), top.size());
    ASSERT_TRUE(bmp);
    EXPECT_TRUE(bmp->topDown);
    EXPECT_EQ(bmp->height, 6);
    const Bytes small = MakeBmp(4, 4, 8, 3);
    ASSERT_TRUE(ReadBmp(small.data(), small.size()));
    EXPECT_EQ(ReadBmp(small.data(), small.size())->colours, 3u);
}

TEST(ImageReader, ShortBitmapsFail) {
    const Bytes b = MakeBmp(9, 9, 4);
    for (size_t cut = 0; cut < b.size(); ++cut)
        EXPECT_FALSE(ReadBmp(b.data(), cut)) << cut;
    EXPECT_FALSE(ReadBmp(nullptr, 100));
}

TEST(ImageReader, LyingBitmapHeadersFail) {
    auto fails = [](auto change) {
        Bytes b = MakeBmp(8, 8, 8);
        change(b);
        return !ReadBmp(b.data(), b.size());
    };
    EXPECT_TRUE(fails([](Bytes &b) { b[1] = 'A'; }));
    EXPECT_TRUE(
        fails([](Bytes &b) { Put32(b, 2, static_cast<uint32_t>(b.size() + 1)); })); // file size beyond the bytes
    EXPECT_TRUE(fails([](Bytes &b) { Put32(b, 2, 100); }));                         // file size short of the pixels
    EXPECT_TRUE(fails([](Bytes &b) { Put32(b, 10, 54); }));                         // pixels inside the colour table
    EXPECT_TRUE(fails([](Bytes &b) { Put32(b, 10, static_cast<uint32_t>(b.size())); })); // pixels past the end
    EXPECT_TRUE(fails([](Bytes &b) { Put32(b, 10, 0xFFFFFFF0u); }));
    EXPECT_TRUE(fails([](Bytes &b) { Put32(b, 14, 108); }));         // another header size
    EXPECT_TRUE(fails([](Bytes &b) { Put32(b, 18, 0); }));           // width 0
    EXPECT_TRUE(fails([](Bytes &b) { Put32(b, 18, 0xFFFFFFFFu); })); // width -1
    EXPECT_TRUE(fails([](Bytes &b) { Put32(b, 18, 9); }));           // rows no longer fit
    EXPECT_TRUE(fails([](Bytes &b) { Put32(b, 22, 0); }));           // height 0
    EXPECT_TRUE(fails([](Bytes &b) { Put32(b, 22, 0x80000000u); })); // height INT_MIN
    EXPECT_TRUE(fails([](Bytes &b) { Put32(b, 22, 0x8000); }));      // beyond the side limit
    EXPECT_TRUE(fails([](Bytes &b) { Put16(b, 26, 2); }));           // planes
    EXPECT_TRUE(fails([](Bytes &b) { Put16(b, 28, 2); }));           // bit count
    EXPECT_TRUE(fails([](Bytes &b) { Put32(b, 30, 1); }));           // compressed
    EXPECT_TRUE(fails([](Bytes &b) { Put32(b, 34, 10); }));          // image size short of the rows
    EXPECT_TRUE(fails([](Bytes &b) { Put32(b, 34, 100000); }));      // image size past the end
    EXPECT_TRUE(fails([](Bytes &b) { Put32(b, 46, 257); }));         // too many colours
    EXPECT_TRUE(fails([](Bytes &b) { Put32(b, 50, 257); }));         // important beyond used
    // What may legitimately vary passes.
    EXPECT_FALSE(fails([](Bytes &b) { Put32(b, 2, 0); }));
    EXPECT_FALSE(fails([](Bytes &b) { Put32(b, 34, 64); }));
    EXPECT_FALSE(fails([](Bytes &b) { Put32(b, 38, 0xFFFFFFFFu); }));
}

TEST(ImageReader, FirstIconImage) {
    for (uint16_t bits : {1, 4, 8, 24, 32}) {
        const Bytes b = MakeIco(16, 16, bits, 2);
        // The second entry is left empty: only the first image is taken.
        const auto ico = ReadIcoFirstImage(b.data(), b.size());
        ASSERT_TRUE(ico) << bits;
        EXPECT_EQ(ico->width, 16);
        EXPECT_EQ(ico->height, 16);
        EXPECT_EQ(ico->bitCount, bits);
        EXPECT_EQ(ico->offset, 38u);
        EXPECT_EQ(ico->offset + ico->bytes, b.size());
        EXPECT_EQ(IcoClaimedSize(b.data(), 22), b.size());
    }
}

TEST(ImageReader, ShortOrLyingIconsFail) {
    const Bytes good = MakeIco(32, 32, 32);
    for (size_t cut = 0; cut < good.size(); ++cut)
        EXPECT_FALSE(ReadIcoFirstImage(good.data(), cut)) << cut;
    auto fails = [](auto change) {
        Bytes b = MakeIco(32, 32, 4);
        change(b);
        return !ReadIcoFirstImage(b.data(), b.size());
    };
    EXPECT_TRUE(fails([](Bytes &b) { Put16(b, 0, 1); }));            // reserved
    EXPECT_TRUE(fails([](Bytes &b) { Put16(b, 2, 2); }));            // a cursor
    EXPECT_TRUE(fails([](Bytes &b) { Put16(b, 4, 0); }));            // no image
    EXPECT_TRUE(fails([](Bytes &b) { Put16(b, 4, 9); }));            // entries past the end
    EXPECT_TRUE(fails([](Bytes &b) { Put16(b, 10, 3); }));           // planes
    EXPECT_TRUE(fails([](Bytes &b) { Put16(b, 12, 7); }));           // bit count
    EXPECT_TRUE(fails([](Bytes &b) { Put32(b, 14, 39); }));          // too few bytes for a header
    EXPECT_TRUE(fails([](Bytes &b) { Put32(b, 14, 100); }));         // too few for the rows
    EXPECT_TRUE(fails([](Bytes &b) { Put32(b, 14, 0xFFFFFFFFu); })); // bytes past the end
    EXPECT_TRUE(fails([](Bytes &b) { Put32(b, 18, 10); }));          // image inside the directory
    EXPECT_TRUE(fails([](Bytes &b) { Put32(b, 18, 0xFFFFFFF0u); }));
    EXPECT_TRUE(fails([](Bytes &b) { Put32(b, 22 + 8, 63); }));          // odd double height
    EXPECT_TRUE(fails([](Bytes &b) { Put32(b, 22 + 8, 0xFFFFFFC0u); })); // negative height
    EXPECT_TRUE(fails([](Bytes &b) { Put32(b, 22 + 4, 64); }));          // wider than its bytes
    EXPECT_TRUE(fails([](Bytes &b) { Put32(b, 22 + 16, 1); }));          // compressed
    EXPECT_TRUE(fails([](Bytes &b) { Put32(b, 22, 12); }));              // an old core header
    EXPECT_FALSE(fails([](Bytes &b) { Put16(b, 12, 0); }));              // bit count left open in the entry
}

TEST(ImageReader, ClaimedSizes) {
    Bytes b = MakeBmp(10, 10, 24);
    Put32(b, 2, 0);
    EXPECT_EQ(BmpClaimedSize(b.data(), 54), b.size()); // from the headers when no file size is given
    EXPECT_EQ(BmpClaimedSize(b.data(), 53), 0u);
    Bytes i = MakeIco(16, 16, 8);
    EXPECT_EQ(IcoClaimedSize(i.data(), 21), 0u);
    Put32(i, 18, 0xFFFFFFFFu);
    Put32(i, 14, 0xFFFFFFFFu);
    EXPECT_EQ(IcoClaimedSize(i.data(), 22), sizeof(size_t) == 8 ? 0x1FFFFFFFEull : SIZE_MAX);
    EXPECT_EQ(RowBytes(1, 1), 4u);
    EXPECT_EQ(RowBytes(33, 1), 8u);
    EXPECT_EQ(RowBytes(3, 24), 12u);
    EXPECT_EQ(RowBytes(0, 24), 0u);
}

} // namespace
