// The spin field's record: 18 bytes to the host, 17 back, 15 copied.
#include "controls/core/spin_block.h"
#include "designer_test.h"

using namespace designertest;
using zk::SpinBlock;

namespace {

TEST(SpinRecord, ImageIsTheRecordLittleEndianAndTwoZeros) {
    SpinBlock block;
    const auto image = zk::SpinBlockImage(block);
    EXPECT_EQ(Bytes(image.begin(), image.end()),
              (Bytes{0x01, 0, 0, 0, 0xFF, 0xFF, 0xFF, 0x7F, 0x01, 0, 0, 0, 0, 0, 0, 0, 0, 0}))
        << "defaults 1, 0x7FFFFFFF, 1, 0";
}

TEST(SpinRecord, SeventeenBytesCopyFifteenAndKeepTheTopByteOfTheAdjust) {
    SpinBlock stored{-5, 1000, 25, -2};
    const auto image = zk::SpinBlockImage(stored);
    SpinBlock block;
    ASSERT_TRUE(zk::SpinBlockApply(image.data(), 17, block));
    EXPECT_EQ(block.minimum, -5);
    EXPECT_EQ(block.maximum, 1000);
    EXPECT_EQ(block.increment, 25);
    EXPECT_EQ(block.decimalAdjust, 0x00FFFFFE) << "a negative adjust loses its top byte to the default";
    SpinBlock small;
    const uint8_t bytes[17] = {2, 0, 0, 0, 9, 0, 0, 0, 3, 0, 0, 0, 1, 0, 0, 0x80, 0};
    ASSERT_TRUE(zk::SpinBlockApply(bytes, 17, small));
    EXPECT_EQ(small.decimalAdjust, 1) << "byte 15 is never copied";
}

TEST(SpinRecord, AnyOtherLengthLeavesTheDefaults) {
    const uint8_t bytes[32] = {9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9};
    for (int64_t length : {0, 15, 16, 18, 31, -1}) {
        SpinBlock block;
        EXPECT_FALSE(zk::SpinBlockApply(bytes, length, block)) << length;
        EXPECT_EQ(block.minimum, 1);
        EXPECT_EQ(block.maximum, 0x7FFFFFFF);
        EXPECT_EQ(block.increment, 1);
        EXPECT_EQ(block.decimalAdjust, 0);
    }
    SpinBlock block;
    EXPECT_FALSE(zk::SpinBlockApply(nullptr, 17, block));
}

} // namespace
