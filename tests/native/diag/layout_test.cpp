// The packed sample record and the elapsed-time text.
#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "diag/core/elapsed_text.h"
#include "diag/core/sample.h"

using namespace zk::diag;

namespace {

HostDateTime Clock(uint8_t fill) {
    HostDateTime clock{};
    clock.length = 24;
    for (int i = 0; i < 24; ++i)
        clock.digits[i] = static_cast<uint8_t>(fill + i);
    return clock;
}

TEST(SampleLayout, FieldsLieWhereTheRecordSays) {
    EXPECT_EQ(kSampleBytes, 797u);
    std::vector<uint8_t> bytes(kSampleBytes, 0xEE);
    WriteSample(bytes.data(), 0x01020304, Clock(0x40), u"ab");
    EXPECT_EQ((std::vector<uint8_t>{4, 3, 2, 1}), std::vector<uint8_t>(bytes.begin(), bytes.begin() + 4));
    EXPECT_EQ(bytes[4], 24);
    EXPECT_EQ(bytes[5], 0x40);
    EXPECT_EQ(bytes[28], 0x40 + 23);
    EXPECT_EQ((std::vector<uint8_t>{'a', 0, 'b', 0, 0, 0}),
              std::vector<uint8_t>(bytes.begin() + 29, bytes.begin() + 35));
    // The whole label field is written, none of what follows.
    EXPECT_EQ(bytes[kSampleBytes - 1], 0);
}

TEST(SampleLayout, LabelIsCutTo254AndNullIsEmpty) {
    std::vector<uint8_t> bytes(kSampleBytes);
    const std::u16string longLabel(300, u'x');
    WriteSample(bytes.data(), 1, HostDateTime{}, longLabel.c_str());
    EXPECT_EQ(ReadSample(bytes.data()).label, std::u16string(254, u'x'));
    EXPECT_EQ(bytes[29 + 2 * 254], 0);
    WriteSample(bytes.data(), 1, HostDateTime{}, nullptr);
    EXPECT_EQ(ReadSample(bytes.data()).label, u"");
}

TEST(SampleLayout, AFieldWithoutTerminatorIsReadToItsEnd) {
    std::vector<uint8_t> bytes(kSampleBytes, 'z');
    EXPECT_EQ(ReadSample(bytes.data()).label.size(), kLabelChars);
}

TEST(ElapsedText, MinutesSecondsHundredths) {
    EXPECT_EQ(ElapsedText(0), u"0:00.00");
    EXPECT_EQ(ElapsedText(5999), u"0:59.99");
    // Minutes are not padded nor wrapped into hours.
    EXPECT_EQ(ElapsedText(6000 * 125 + 101), u"125:01.01");
    EXPECT_EQ(ElapsedText(4294967295u), u"715827:52.95");
}

} // namespace
