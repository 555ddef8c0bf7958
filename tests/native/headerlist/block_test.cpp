// The block of cListView: its golden bytes, the versions a reader meets,
// round trips, and the records' own serialisation.
#include <gtest/gtest.h>

#include <vector>

#include "block_bytes.h"
#include "headerlist/core/headerlist_block.h"

namespace {

using zk::hdr::SPropHeaderListBox;

std::vector<uint8_t> Cat(std::initializer_list<std::vector<uint8_t>> parts) {
    std::vector<uint8_t> all;
    for (const auto &p : parts)
        all.insert(all.end(), p.begin(), p.end());
    return all;
}

std::vector<uint8_t> U32(uint32_t v) { return {uint8_t(v), uint8_t(v >> 8), uint8_t(v >> 16), uint8_t(v >> 24)}; }

// The two columns of the sample: a count, the first with its class, the second by index.
constexpr size_t kColumnsBytes = 2 + 18 + 20 + 2 + 20;

// The block with two columns, a colour, a style and a sort; its lists are the defaults.
SPropHeaderListBox Sample() {
    SPropHeaderListBox block;
    block.columns.RemoveAll();
    block.columns.Add(std::make_unique<zk::hdr::SHdrLBColumn>(u"Id", 1, 40));
    block.columns.Add(std::make_unique<zk::hdr::SHdrLBColumn>(u"Nm", 2, -1));
    block.backColour = 0x00112233;
    block.style = 0x0001;
    block.maxItemLength = 64;
    block.sortColumn = 1;
    block.sortOrder = 1;
    return block;
}

TEST(HeaderListBlock, GoldenBytes) {
    SPropHeaderListBox block = Sample();
    const std::vector<uint8_t> images = zk::hdr::MakeImageStream(32, 32, 1);
    const std::vector<uint8_t> small = zk::hdr::MakeImageStream(16, 16, 1);
    const std::vector<uint8_t> columns = {
        0x02, 0x00, // two columns
        0xFF, 0xFF, 0x01, 0x00, 0x0C, 0x00, 'S',  'H',  'd', 'r', 'L', 'B', 'C',  'o', 'l', 'u', 'm',  'n', // new class
        0x01, 0x00, 0x00, 0x00, 0xFF, 0xFE, 0xFF, 0x02, 'I', 0,   'd', 0,   0x01, 0,   0,   0,   0x28, 0,    0,    0,
        0x01, 0x80, // the class again (index 1)
        0x01, 0x00, 0x00, 0x00, 0xFF, 0xFE, 0xFF, 0x02, 'N', 0,   'm', 0,   0x02, 0,   0,   0,   0xFF, 0xFF, 0xFF, 0xFF,
    };
    ASSERT_EQ(columns.size(), kColumnsBytes);
    const std::vector<uint8_t> want = Cat({columns, U32(2), U32(0x00112233), U32(0xFFFFFFFF), U32(0xFFFFFFFF), U32(1),
                                           U32(64), U32(1), images, small, U32(1)});
    EXPECT_EQ(zkt::StoredBytes(block), want);
    // The default lists are the platform's icon sizes: 32 and 16 without it.
    EXPECT_EQ(images.size(), 28u + 2 * 14 + 2 * 40 + 8 + 128 * 3 * 32 + 16 * 32);
}

TEST(HeaderListBlock, RoundTripAndReadersOfEachVersion) {
    SPropHeaderListBox block = Sample();
    std::vector<uint8_t> bytes = zkt::StoredBytes(block);
    SPropHeaderListBox back;
    ASSERT_TRUE(zk::LoadBlockBytes(bytes.data(), bytes.size(), back));
    EXPECT_EQ(zkt::StoredBytes(back), bytes);
    EXPECT_EQ(back.largeImages.GetImageCount(), 1);

    // Version 1: no sort order; what the load reset stays.
    const size_t versionAt = kColumnsBytes;
    bytes[versionAt] = 1;
    bytes.resize(bytes.size() - 4);
    SPropHeaderListBox one;
    ASSERT_TRUE(zk::LoadBlockBytes(bytes.data(), bytes.size(), one));
    EXPECT_EQ(one.sortOrder, 0);
    EXPECT_EQ(one.sortColumn, 1);

    // Version 0: the columns only; the rest as the reset left it, nothing of the defaults.
    bytes[versionAt] = 0;
    SPropHeaderListBox zero;
    EXPECT_TRUE(zk::LoadBlockBytes(bytes.data(), versionAt + 4, zero));
    EXPECT_EQ(zero.columns.size(), 2u);
    EXPECT_EQ(zero.maxItemLength, 0);
    EXPECT_EQ(zero.largeImages.Handle(), nullptr);
    EXPECT_EQ(zero.backColour, zk::hdr::kViewColour);
}

TEST(HeaderListBlock, DamagedImageStreamsStopTheRead) {
    SPropHeaderListBox block = Sample();
    const std::vector<uint8_t> bytes = zkt::StoredBytes(block);
    const size_t imagesAt = kColumnsBytes + 4 + 24;
    struct Case {
        size_t at;
        uint8_t value;
    } cases[] = {{imagesAt, 'X'}, {imagesAt + 2, 0x02}, {imagesAt + 28, 'C'}, {imagesAt + 28 + 14, 41}};
    for (const Case &c : cases) {
        std::vector<uint8_t> damaged = bytes;
        damaged[c.at] = c.value;
        SPropHeaderListBox back;
        EXPECT_FALSE(zk::LoadBlockBytes(damaged.data(), damaged.size(), back)) << c.at;
        EXPECT_EQ(back.maxItemLength, 64) << "what was read before stays";
    }
    for (size_t cut : {imagesAt + 10, imagesAt + 60, bytes.size() - 5}) {
        SPropHeaderListBox back;
        EXPECT_FALSE(zk::LoadBlockBytes(bytes.data(), cut, back)) << cut;
    }
}

TEST(HeaderListBlock, AssignmentCopiesEverythingButSharesNothing) {
    SPropHeaderListBox block = Sample();
    block.dropDown = 1;
    SPropHeaderListBox copy;
    copy = block;
    EXPECT_EQ(zkt::StoredBytes(copy), zkt::StoredBytes(block));
    EXPECT_EQ(copy.dropDown, 1);
    EXPECT_NE(copy.columns.at(0), block.columns.at(0));
    EXPECT_NE(copy.largeImages.Handle(), block.largeImages.Handle());
}

TEST(HeaderListRecords, ColumnAndRowSerialisation) {
    zk::CMemFile file;
    zk::hdr::SHdrLBItem row(u"a", 0xABCD);
    row.SetAtGrow(2, u"c");
    zk::CArchive out(file, zk::CArchive::store);
    row.Serialize(out);
    const std::vector<uint8_t> want =
        Cat({{0x03, 0x00, 0xFF, 0xFE, 0xFF, 0x01, 'a', 0, 0xFF, 0xFE, 0xFF, 0x00, 0xFF, 0xFE, 0xFF, 0x01, 'c', 0},
             U32(1),
             U32(0xABCD)});
    EXPECT_EQ(std::vector<uint8_t>(file.Data(), file.Data() + file.GetLength()), want);

    // A column record of version 0 leaves the column as it was.
    zk::CMemFile zero;
    zero.Write(U32(0).data(), 4);
    zero.SeekToBegin();
    zk::CArchive in(zero, zk::CArchive::load);
    zk::hdr::SHdrLBColumn column(u"kept", 2, 77);
    column.Serialize(in);
    EXPECT_EQ(column.text, u"kept");
    EXPECT_EQ(column.width, 77);
}

} // namespace
