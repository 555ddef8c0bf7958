// The calendar's property block: its byte image and the three versions a
// reader meets.
#include <gtest/gtest.h>

#include <vector>

#include "block_bytes.h"
#include "calendar/core/calendar_block.h"

namespace {

using Bytes = std::vector<uint8_t>;

// The generic part, then the calendar's from its version word on.
Bytes Head(uint32_t version) {
    Bytes b{1, 0, 0, 0, 1, 0, 1, 0, 1, 0}; // generic: version 1, styles 1 0 1 0 1 0
    for (int i = 0; i < 4; ++i)
        b.push_back(static_cast<uint8_t>(version >> (8 * i)));
    return b;
}

TEST(CalendarBlock, WritesVersionTwoWithAlternateButtonsLast) {
    zk::SPropCalendar block;
    block.style1 = 1;
    block.style2 = 0;
    block.style3 = 1;
    block.style4 = 0;
    block.style5 = 1;
    block.style6 = 0;
    block.alternateButtons = 1;
    block.etchedLook = 1;
    block.selectSpecial = 0;
    block.showGridlines = 1;
    block.initialDateMode = 1;
    block.initialDate = u"2024-02-29";
    Bytes expected = Head(2);
    for (uint8_t b : {1, 1, 0, 1, 1, 0}) // etched, selectExtra, selectSpecial, showExtra, gridlines, special
        expected.push_back(b);
    for (uint8_t b : {1, 0, 0, 0, 0xFF, 0xFE, 0xFF, 10})
        expected.push_back(b);
    for (char16_t ch : block.initialDate) {
        expected.push_back(static_cast<uint8_t>(ch));
        expected.push_back(0);
    }
    expected.push_back(1); // alternateButtons
    EXPECT_EQ(zkt::StoredBytes(block), expected);
}

TEST(CalendarBlock, ReadsBackWhatItWrote) {
    zk::SPropCalendar block;
    block.alternateButtons = 1;
    block.showSpecial = 1;
    block.initialDateMode = 1;
    block.initialDate = u"1999-12-31";
    bool complete = false;
    const zk::SPropCalendar back = zkt::ReadBlock<zk::SPropCalendar>(zkt::StoredBytes(block), &complete);
    EXPECT_TRUE(complete);
    EXPECT_EQ(back.alternateButtons, 1);
    EXPECT_EQ(back.showSpecial, 1);
    EXPECT_EQ(back.initialDateMode, 1);
    EXPECT_EQ(back.initialDate, u"1999-12-31");
}

TEST(CalendarBlock, VersionZeroReadsNothingOfTheCalendar) {
    Bytes bytes = Head(0);
    bytes.insert(bytes.end(), {1, 1, 1, 1, 1, 1}); // would be read by a later version
    bool complete = false;
    const zk::SPropCalendar block = zkt::ReadBlock<zk::SPropCalendar>(bytes, &complete);
    EXPECT_TRUE(complete);
    EXPECT_EQ(block.style1, 1) << "the generic part was read";
    EXPECT_EQ(block.etchedLook, 0);
    EXPECT_EQ(block.showGridlines, 0);
}

TEST(CalendarBlock, VersionOneStopsBeforeAlternateButtons) {
    Bytes bytes = Head(1);
    bytes.insert(bytes.end(), {1, 0, 0, 0, 1, 1, 0, 0, 0, 0, 0, /* alternate */ 1});
    const zk::SPropCalendar block = zkt::ReadBlock<zk::SPropCalendar>(bytes);
    EXPECT_EQ(block.etchedLook, 1);
    EXPECT_EQ(block.selectExtra, 0);
    EXPECT_EQ(block.showSpecial, 1);
    EXPECT_EQ(block.initialDate, u"");
    EXPECT_EQ(block.alternateButtons, 0) << "not in version 1";
    Bytes later = Head(7);
    later.insert(later.end(), {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1});
    EXPECT_EQ(zkt::ReadBlock<zk::SPropCalendar>(later).alternateButtons, 1) << "any later version reads everything";
}

TEST(CalendarBlock, AShortBlockIsNotComplete) {
    Bytes bytes = Head(2);
    bytes.insert(bytes.end(), {1, 1});
    bool complete = true;
    const zk::SPropCalendar block = zkt::ReadBlock<zk::SPropCalendar>(bytes, &complete);
    EXPECT_FALSE(complete);
    EXPECT_EQ(block.etchedLook, 1) << "fields read before the end keep their values";
    bool emptyComplete = true;
    zkt::ReadBlock<zk::SPropCalendar>(Bytes{}, &emptyComplete);
    EXPECT_FALSE(emptyComplete);
}

} // namespace
