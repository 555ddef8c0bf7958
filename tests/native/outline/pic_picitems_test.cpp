// The design-time picture list "ZK:PicItems", byte for byte.
#include <gtest/gtest.h>

#include "outline/core/pic_items.h"
#include "outline/core/pic_serial.h"

using namespace zk::lbx;

using namespace zk;
using Bytes = std::vector<uint8_t>;

namespace {

// Written by hand from the format: count, new-class tag with schema 1 and
// "PICITEM", fields; then class tag 0x8001 and fields.
const Bytes kTwoItems = {
    0x02, 0x00,                                                                 // count
    0xFF, 0xFF, 0x01, 0x00, 0x07, 0x00,                                         // new class, schema 1, name length 7
    'P',  'I',  'C',  'I',  'T',  'E',  'M',                                    //
    0x07, 0x00, 0x00, 0x00,                                                     // value 7
    0x00, 0x04,                                                                 // flags PIC_LoadFile
    0xFF, 0xFE, 0xFF, 0x02, 'O',  0,    'k',  0,                                // title "Ok"
    0xFF, 0xFE, 0xFF, 0x05, 'a',  0,    '.',  0,    'b',  0,    'm', 0, 'p', 0, // file "a.bmp"
    0xFF, 0xFE, 0xFF, 0x00,                                                     // resource ""
    0x01, 0x80,                                                                 // class tag: the class of map index 1
    0xFF, 0xFF, 0xFF, 0xFF,                                                     // value -1
    0x01, 0x82,                                                                 // flags 0x8201
    0xFF, 0xFE, 0xFF, 0x00,                                                     //
    0xFF, 0xFE, 0xFF, 0x09, 'Z',  0,    'K',  0,    'L',  0,    'I', 0, 'B', 0, '.', 0,
    'd',  0,    'l',  0,    'l',  0,    0xFF, 0xFE, 0xFF, 0x03, 'f', 0, 'd', 0, 'r', 0,
};

std::vector<PICITEM> TwoItems() { return {{7, 0x0400, u"Ok", u"a.bmp", u""}, {-1, 0x8201, u"", u"ZKLIB.dll", u"fdr"}}; }

TEST(PicItems, WrittenByteForByte) {
    EXPECT_EQ(PicItemsWrite(TwoItems()), kTwoItems);
    EXPECT_EQ(PicItemsWrite({}), (Bytes{0x00, 0x00}));
    std::vector<PICITEM> items;
    ASSERT_TRUE(PicItemsRead(kTwoItems.data(), kTwoItems.size(), items));
    EXPECT_EQ(items, TwoItems());
    EXPECT_FALSE(PicItemsRead(nullptr, 0, items));
}

TEST(PicItems, EveryLaterObjectNamesTheClassByIndexOne) {
    std::vector<PICITEM> many(40, PICITEM{1, 2, u"t", u"f", u"r"});
    const Bytes bytes = PicItemsWrite(many);
    std::vector<PICITEM> back;
    ASSERT_TRUE(PicItemsRead(bytes.data(), bytes.size(), back));
    EXPECT_EQ(back, many);
    size_t refs = 0;
    for (size_t i = 0; i + 1 < bytes.size(); ++i)
        refs += bytes[i] == 0x01 && bytes[i + 1] == 0x80;
    EXPECT_EQ(refs, 39u);
}

TEST(PicItems, ShortStreamsFailAndLeaveNothing) {
    for (size_t cut = 0; cut < kTwoItems.size(); ++cut) {
        std::vector<PICITEM> items{PICITEM{}};
        EXPECT_FALSE(PicItemsRead(kTwoItems.data(), cut, items)) << cut;
        EXPECT_TRUE(items.empty());
    }
}

TEST(PicItems, ForeignClassesSchemasAndReferencesFail) {
    auto bad = [](size_t at, uint8_t value) {
        Bytes b = kTwoItems;
        b[at] = value;
        std::vector<PICITEM> items;
        return !PicItemsRead(b.data(), b.size(), items) && items.empty();
    };
    EXPECT_TRUE(bad(4, 2));     // schema 2
    EXPECT_TRUE(bad(4, 0));     // schema 0
    EXPECT_TRUE(bad(8, 'X'));   // another class name
    EXPECT_TRUE(bad(6, 6));     // a shorter name: "PICITE"
    EXPECT_TRUE(bad(47, 0x02)); // 0x8002: the map index of the first object, not a class
    EXPECT_TRUE(bad(48, 0x00)); // 0x0001: a reference back to an object
    Bytes nullTag = {0x01, 0x00, 0x00, 0x00};
    std::vector<PICITEM> items;
    EXPECT_FALSE(PicItemsRead(nullTag.data(), nullTag.size(), items));
    // A huge count with few bytes behind it is refused before anything is read.
    Bytes huge = {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x0F};
    EXPECT_FALSE(PicItemsRead(huge.data(), huge.size(), items));
}

TEST(PicItems, BigObjectTagNamesTheClassToo) {
    Bytes b(kTwoItems.begin(), kTwoItems.begin() + 47);
    b.insert(b.end(), {0xFF, 0x7F, 0x01, 0x00, 0x00, 0x80});
    b.insert(b.end(), kTwoItems.begin() + 49, kTwoItems.end());
    std::vector<PICITEM> items;
    ASSERT_TRUE(PicItemsRead(b.data(), b.size(), items));
    EXPECT_EQ(items, TwoItems());
}

TEST(PicSerial, FieldsInOrder) {
    PicFields pic{1, 16, 32, 0x11223344, 0x55, 0, 0x8201, u"ZKLIB.dll", u"fdr"};
    picstream::Writer w;
    PicFieldsWrite(w, pic);
    const Bytes expected = {0x01, 16,  0, 0,    0,    32,   0, 0,    0,    0x44, 0x33, 0x22, 0x11, 0x55,
                            0,    0,   0, 0,    0,    0,    0, 0x01, 0x82, 0xFF, 0xFE, 0xFF, 9,    'Z',
                            0,    'K', 0, 'L',  0,    'I',  0, 'B',  0,    '.',  0,    'd',  0,    'l',
                            0,    'l', 0, 0xFF, 0xFE, 0xFF, 3, 'f',  0,    'd',  0,    'r',  0};
    EXPECT_EQ(w.Bytes(), expected);
    picstream::Reader r(expected.data(), expected.size());
    PicFields back;
    ASSERT_TRUE(PicFieldsRead(r, 1, back));
    EXPECT_EQ(back, pic);
    EXPECT_EQ(r.Remaining(), 0u);
}

TEST(PicSerial, SchemaZeroReadsNothing) {
    const Bytes bytes = {0x01, 0x02};
    picstream::Reader r(bytes.data(), bytes.size());
    PicFields pic;
    pic.width = 5;
    EXPECT_TRUE(PicFieldsRead(r, 0, pic));
    EXPECT_EQ(pic.width, 5u);
    EXPECT_EQ(r.Position(), 0u);
    picstream::Reader s(bytes.data(), bytes.size());
    EXPECT_FALSE(PicFieldsRead(s, 1, pic));
    EXPECT_EQ(pic.width, 5u);
}

} // namespace
