// The sample buffer: its block, its growth and the 16-bit cut of its capacity.
#include <gtest/gtest.h>

#include "diag/core/sample_buffer.h"
#include "fake_system.h"

using namespace zk::diag;
using diagtest::FakeBlocks;

namespace {

HostDateTime At(uint8_t second) {
    HostDateTime clock{};
    clock.length = 1;
    clock.digits[0] = second;
    return clock;
}

TEST(SampleBuffer, StartTakes512BytesAndTheFirstSampleGrowsIt) {
    FakeBlocks memory;
    SampleBuffer buffer(memory);
    ASSERT_TRUE(buffer.Start());
    EXPECT_EQ((std::vector<uint32_t>{512}), memory.allocs);
    EXPECT_EQ(buffer.Capacity(), 512u);
    // used + sample + 512 each time the block is too small.
    ASSERT_TRUE(buffer.Add(10, At(1), u"a"));
    ASSERT_TRUE(buffer.Add(20, At(2), u"b"));
    ASSERT_TRUE(buffer.Add(30, At(3), u"c"));
    EXPECT_EQ((std::vector<uint32_t>{1309, 2106, 2903}), memory.reallocs);
    EXPECT_EQ(buffer.Count(), 3u);
    EXPECT_EQ(buffer.Used(), 3 * 797u);
    std::vector<Sample> samples;
    ASSERT_TRUE(buffer.Read(samples));
    ASSERT_EQ(samples.size(), 3u);
    EXPECT_EQ(samples[1].hundredths, 20u);
    EXPECT_EQ(samples[1].clock.digits[0], 2);
    EXPECT_EQ(samples[2].label, u"c");
}

TEST(SampleBuffer, ARestartEmptiesTheBlockItHas) {
    FakeBlocks memory;
    SampleBuffer buffer(memory);
    ASSERT_TRUE(buffer.Start());
    ASSERT_TRUE(buffer.Add(1, At(0), u"a"));
    ASSERT_TRUE(buffer.Add(2, At(0), u"b"));
    ASSERT_TRUE(buffer.Start());
    EXPECT_EQ(memory.allocs.size(), 1u);
    EXPECT_EQ(buffer.Count(), 0u);
    EXPECT_EQ(buffer.Used(), 0u);
    // Room for the next sample is there already.
    ASSERT_TRUE(buffer.Add(3, At(0), u"c"));
    EXPECT_EQ(memory.reallocs.size(), 2u);
    std::vector<Sample> samples;
    ASSERT_TRUE(buffer.Read(samples));
    ASSERT_EQ(samples.size(), 1u);
    EXPECT_EQ(samples[0].label, u"c");
}

TEST(SampleBuffer, The16BitCapacityHolds81SamplesAndRefusesThe82nd) {
    FakeBlocks memory;
    SampleBuffer buffer(memory);
    ASSERT_TRUE(buffer.Start());
    for (uint32_t i = 0; i < 81; ++i)
        ASSERT_TRUE(buffer.Add(i, At(0), u"s")) << i;
    EXPECT_EQ(memory.reallocs.back(), 80 * 797u + 797 + 512);
    EXPECT_EQ(buffer.Capacity(), 65069u);
    const size_t resizes = memory.reallocs.size();
    // 81 * 797 + 797 + 512 = 65866 keeps 330 in 16 bits: too small, refused.
    EXPECT_FALSE(buffer.Add(81, At(0), u"s"));
    EXPECT_EQ(memory.reallocs.size(), resizes);
    EXPECT_EQ(buffer.Count(), 81u);
    EXPECT_EQ(buffer.Capacity(), 65069u);
    std::vector<Sample> samples;
    ASSERT_TRUE(buffer.Read(samples));
    ASSERT_EQ(samples.size(), 81u);
    EXPECT_EQ(samples[80].hundredths, 80u);
}

TEST(SampleBuffer, FailuresKeepWhatWasThere) {
    FakeBlocks memory;
    SampleBuffer buffer(memory);
    memory.FailNext(1);
    EXPECT_FALSE(buffer.Start());
    EXPECT_FALSE(buffer.Exists());

    ASSERT_TRUE(buffer.Start());
    ASSERT_TRUE(buffer.Add(1, At(0), u"kept"));
    memory.FailNext(1);
    EXPECT_FALSE(buffer.Add(2, At(0), u"lost"));
    memory.refuseLocks = true;
    EXPECT_FALSE(buffer.Add(3, At(0), u"x"));
    memory.refuseLocks = false;
    EXPECT_EQ(buffer.Count(), 1u);
    std::vector<Sample> samples;
    ASSERT_TRUE(buffer.Read(samples));
    ASSERT_EQ(samples.size(), 1u);
    EXPECT_EQ(samples[0].label, u"kept");
}

} // namespace
