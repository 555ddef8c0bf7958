// Gathering the report for a box: the capacity arithmetic kept as it was
// (characters against bytes, 16-bit cuts, text lost on a new block), with
// the block always large enough for what is written.
#include <gtest/gtest.h>

#include "diag/core/report_sink.h"
#include "fake_system.h"

using namespace zk::diag;
using diagtest::FakeSystem;

namespace {

TEST(ReportSink, CharactersUpToTheCapacityInBytesStayInTheBlock) {
    FakeSystem system;
    ReportSink out(system, true);
    ASSERT_TRUE(out.Open());
    const std::u16string half(256, u'a');
    out.Put(half.c_str());
    out.Put(half.c_str()); // 512 characters against 512 bytes: not above, kept
    EXPECT_EQ(out.Text(), half + half);
    EXPECT_EQ(system.memory.allocs.size(), 1u);
    out.Put(u"b"); // 513: a new block of 512 + 512 + 2 bytes, the text lost
    EXPECT_EQ(out.Text(), u"b");
    EXPECT_EQ(out.Capacity(), 1026u);
}

TEST(ReportSink, TheNewCapacityIsCutTo16Bits) {
    FakeSystem system;
    ReportSink out(system, true);
    ASSERT_TRUE(out.Open());
    const std::u16string piece(32768, u'p');
    out.Put(piece.c_str()); // (512 + 512 + 65536) & 0xFFFF
    EXPECT_EQ(out.Capacity(), 1024u);
    EXPECT_EQ(out.Text(), piece);
    out.Put(u"x"); // 32769 > 1024
    EXPECT_EQ(out.Text(), u"x");
    EXPECT_EQ(out.Capacity(), 1024u + 512 + 2);
}

TEST(ReportSink, ALengthThatWrapsIn16BitsIsAppendedInFull) {
    FakeSystem system;
    ReportSink out(system, true);
    ASSERT_TRUE(out.Open());
    const std::u16string piece(30000, u'w');
    out.Put(piece.c_str()); // capacity (1024 + 60000) & 0xFFFF = 61024
    EXPECT_EQ(out.Capacity(), 61024u);
    out.Put(piece.c_str()); // 60000: appended
    out.Put(piece.c_str()); // 90000 keeps 24464: appended as well, the block grows
    EXPECT_EQ(out.Text().size(), 90000u);
    EXPECT_EQ(out.Capacity(), 61024u);
    EXPECT_FALSE(system.memory.reallocs.empty());
}

TEST(ReportSink, ABlockThatCannotBeHadDropsThePiece) {
    FakeSystem system;
    ReportSink failing(system, true);
    system.memory.FailNext(1);
    EXPECT_FALSE(failing.Open());

    ReportSink out(system, true);
    ASSERT_TRUE(out.Open());
    out.Put(std::u16string(500, u'a').c_str());
    system.memory.FailNext(1);
    out.Put(std::u16string(20, u'b').c_str()); // the old text goes, the new block does not come
    EXPECT_EQ(out.Text(), u"");
    EXPECT_EQ(out.Capacity(), 512u);
    out.Put(u"c"); // no block: a new one, sized from the capacity there was
    EXPECT_EQ(out.Text(), u"c");
    EXPECT_EQ(out.Capacity(), 1026u);
    out.Show(308);
    ASSERT_EQ(system.boxes.size(), 1u);
    EXPECT_EQ(system.boxes[0].text, u"c");
}

TEST(ReportSink, AGrowthThatFailsKeepsTheTextSoFar) {
    FakeSystem system;
    ReportSink out(system, true);
    ASSERT_TRUE(out.Open());
    const std::u16string piece(30000, u'w');
    out.Put(piece.c_str());
    out.Put(piece.c_str());
    system.memory.FailNext(1);
    out.Put(piece.c_str());
    EXPECT_EQ(out.Text().size(), 60000u);
}

} // namespace
