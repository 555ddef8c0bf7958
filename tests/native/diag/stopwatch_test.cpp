// The stopwatch from its start to its report, with ticks and clock set by hand.
#include <gtest/gtest.h>

#include "diag/core/diagnostics.h"
#include "fake_system.h"

using namespace zk::diag;
using diagtest::FakeSystem;

namespace {

class Stopwatch : public ::testing::Test {
protected:
    void TearDown() override {
        if (!diag.Samples().Exists()) {
            EXPECT_EQ(system.memory.Live(), 0u) << "blocks left behind";
        }
    }
    FakeSystem system;
    Diagnostics diag{system};
};

TEST_F(Stopwatch, NothingToTimeWithoutABeginning) {
    EXPECT_EQ(diag.SetTime(u"early"), 0);
    EXPECT_EQ(diag.EndTime(u"run", 0), 0);
    EXPECT_TRUE(system.debug.empty());
    EXPECT_TRUE(system.memory.allocs.empty());
}

TEST_F(Stopwatch, BeginAndEndGiveTheTotalAlone) {
    ASSERT_EQ(diag.BeginTime(), 1);
    system.Advance(1509); // ticks count in hundredths: 150 of them
    ASSERT_EQ(diag.EndTime(u"run", 0), 1);
    EXPECT_EQ(system.DebugText(), u"Total run: 0:01.50\n\n");
    EXPECT_EQ((std::vector<std::u16string>{u"Total ", u"run", u": ", u"0:01.50", u"\n", u"\n"}), system.debug);
    EXPECT_FALSE(diag.Samples().Exists());
    EXPECT_EQ(system.clockTexts, 0);
}

TEST_F(Stopwatch, WithThreeSamplesTheMiddleOneHasALine) {
    diag.SetFlags(kClockTime, 1);
    ASSERT_EQ(diag.BeginTime(), 1);
    system.Advance(1230, 1);
    ASSERT_EQ(diag.SetTime(u"open"), 1);
    system.Advance(61000, 61);
    ASSERT_EQ(diag.SetTime(u"read"), 1);
    system.Advance(999, 5); // after the last sample: not counted
    ASSERT_EQ(diag.EndTime(u"all", 0), 1);
    EXPECT_EQ(system.DebugText(), u"Begin: (10:00:00 AM)\n"
                                  u"open: 0:01.23 (10:00:01 AM)\n"
                                  u"read: 1:01.00 (10:01:02 AM)\n"
                                  u"Total all: 1:02.23\n\n");
}

TEST_F(Stopwatch, TwoSamplesUseTheLastAsTheEnd) {
    ASSERT_EQ(diag.BeginTime(), 1);
    system.Advance(500);
    ASSERT_EQ(diag.SetTime(u"mark"), 1);
    system.Advance(9000);
    ASSERT_EQ(diag.EndTime(u"end", 0), 1);
    // No sample was added at the end, and the last one's label is not shown.
    EXPECT_EQ(system.DebugText(), u"Total end: 0:00.50\n\n");
}

TEST_F(Stopwatch, ALevelTooHighKeepsTheSamplesForALaterReport) {
    diag.SetLevel(2);
    ASSERT_EQ(diag.BeginTime(), 1);
    system.Advance(300);
    EXPECT_EQ(diag.EndTime(u"run", 3), 0);
    EXPECT_TRUE(system.debug.empty());
    EXPECT_EQ(diag.Samples().Count(), 1u);
    system.Advance(400);
    EXPECT_EQ(diag.EndTime(u"run", 2), 1);
    EXPECT_EQ(system.DebugText(), u"Total run: 0:00.70\n\n");
}

TEST_F(Stopwatch, TheBoxGathersTheReportWithoutTheClosingLineFeeds) {
    diag.SetFlags(kMessageBox | kClockTime, 1);
    ASSERT_EQ(diag.BeginTime(), 1);
    system.Advance(50, 1);
    ASSERT_EQ(diag.SetTime(u"step"), 1);
    system.Advance(50, 1);
    ASSERT_EQ(diag.SetTime(u"last"), 1);
    ASSERT_EQ(diag.EndTime(u"run", 0), 1);
    EXPECT_TRUE(system.debug.empty());
    ASSERT_EQ(system.boxes.size(), 1u);
    EXPECT_EQ(system.boxes[0].caption, 308u);
    EXPECT_EQ(system.boxes[0].text, u"Begin: (10:00:00 AM)\n"
                                    u"step: 0:00.05 (10:00:01 AM)\n"
                                    u"last: 0:00.05 (10:00:02 AM)\n"
                                    u"Total run: 0:00.10");
}

TEST_F(Stopwatch, ALongBoxReportLosesWhatCameBeforeItsNewBlock) {
    diag.SetFlags(kMessageBox, 1);
    ASSERT_EQ(diag.BeginTime(), 1);
    for (char16_t c : {u'A', u'B', u'C'}) {
        system.Advance(10);
        ASSERT_EQ(diag.SetTime(std::u16string(200, c).c_str()), 1);
    }
    ASSERT_EQ(diag.EndTime(u"run", 0), 1);
    // Two lines make 420 characters; the third label passes 512 and stands alone.
    ASSERT_EQ(system.boxes.size(), 1u);
    EXPECT_EQ(system.boxes[0].text, std::u16string(200, u'C') + u": 0:00.01\nTotal run: 0:00.03");
}

TEST_F(Stopwatch, ATotalTextIsNotCutButALabelIs) {
    const std::u16string longText(300, u't');
    ASSERT_EQ(diag.BeginTime(), 1);
    ASSERT_EQ(diag.SetTime(longText.c_str()), 1);
    ASSERT_EQ(diag.SetTime(u"x"), 1);
    ASSERT_EQ(diag.EndTime(longText.c_str(), 0), 1);
    EXPECT_EQ(system.DebugText(),
              std::u16string(254, u't') + u": 0:00.00\nx: 0:00.00\nTotal " + longText + u": 0:00.00\n\n");
}

TEST_F(Stopwatch, BlocksThatCannotBeHadGiveZero) {
    system.memory.FailNext(1);
    EXPECT_EQ(diag.BeginTime(), 0);
    EXPECT_FALSE(diag.Samples().Exists());
    EXPECT_EQ(diag.SetTime(u"x"), 0);

    // The block comes but the first sample finds no room.
    system.memory.FailNext(1, 1);
    EXPECT_EQ(diag.BeginTime(), 0);
    EXPECT_TRUE(diag.Samples().Exists());
    EXPECT_EQ(diag.Samples().Count(), 0u);
    // A run without samples reports nothing and ends.
    EXPECT_EQ(diag.EndTime(u"none", 0), 1);
    EXPECT_TRUE(system.debug.empty());
    EXPECT_FALSE(diag.Samples().Exists());
}

TEST_F(Stopwatch, AnEndThatCannotRecordOrGatherKeepsTheRun) {
    ASSERT_EQ(diag.BeginTime(), 1);
    system.memory.FailNext(1);
    EXPECT_EQ(diag.EndTime(u"run", 0), 0); // no room for the end's sample
    EXPECT_EQ(diag.Samples().Count(), 1u);

    diag.SetFlags(kMessageBox, 1);
    system.Advance(100);
    system.memory.FailNext(1, 1); // the end's sample comes, the report's block does not
    EXPECT_EQ(diag.EndTime(u"run", 0), 0);
    EXPECT_EQ(diag.Samples().Count(), 2u);
    EXPECT_TRUE(system.boxes.empty());

    ASSERT_EQ(diag.EndTime(u"run", 0), 1);
    ASSERT_EQ(system.boxes.size(), 1u);
    EXPECT_EQ(system.boxes[0].text, u"Total run: 0:00.10");
}

} // namespace
