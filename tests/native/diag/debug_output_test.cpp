// Flags, level, the debug string and the assertion box.
#include <gtest/gtest.h>

#include "diag/core/diagnostics.h"
#include "fake_system.h"

using namespace zk::diag;
using diagtest::FakeSystem;

namespace {

TEST(DebugFlags, StartWithElapsedAndAreAddedOrRemoved) {
    FakeSystem system;
    Diagnostics diag(system);
    EXPECT_EQ(diag.Flags(), 0x00010000u);
    EXPECT_EQ(diag.Level(), 0);
    EXPECT_EQ(diag.SetFlags(kMessageBox | kClockTime, 1), 0x000B0000u);
    EXPECT_EQ(diag.SetFlags(kElapsed, 0), 0x000A0000u);
    EXPECT_EQ(diag.SetFlags(0x80000001u, 7), 0x800A0001u);
    EXPECT_EQ(diag.SetFlags(0xFFFFFFFFu, 0), 0u);
    EXPECT_EQ(diag.Flags(), 0u);
    EXPECT_EQ(diag.SetLevel(65535), 1);
    EXPECT_EQ(diag.Level(), 65535);
}

TEST(DebugString, GoesToTheDebuggerWithALineFeed) {
    FakeSystem system;
    Diagnostics diag(system);
    EXPECT_EQ(diag.String(u"hello", 0), 1);
    EXPECT_EQ(diag.String(nullptr, 0), 1);
    EXPECT_EQ((std::vector<std::u16string>{u"hello", u"\n", u"", u"\n"}), system.debug);
    EXPECT_TRUE(system.boxes.empty());
}

TEST(DebugString, ALevelAboveTheDebugLevelIsDropped) {
    FakeSystem system;
    Diagnostics diag(system);
    EXPECT_EQ(diag.String(u"one", 1), 0);
    diag.SetLevel(3);
    EXPECT_EQ(diag.String(u"four", 4), 0);
    EXPECT_EQ(diag.String(u"three", 3), 1);
    EXPECT_EQ(diag.String(u"zero", 0), 1);
    EXPECT_EQ(system.DebugText(), u"three\nzero\n");
}

TEST(DebugString, WithTheBoxFlagShowsABoxCaptionedDebug) {
    FakeSystem system;
    Diagnostics diag(system);
    diag.SetFlags(kMessageBox, 1);
    EXPECT_EQ(diag.String(u"look", 0), 1);
    EXPECT_EQ(diag.String(u"hidden", 2), 0);
    ASSERT_EQ(system.boxes.size(), 1u);
    EXPECT_EQ(system.boxes[0].text, u"look");
    EXPECT_EQ(system.boxes[0].caption, 309u);
    EXPECT_TRUE(system.debug.empty());
}

TEST(DebugAssert, AFalseConditionNamesTheActiveWindow) {
    FakeSystem system;
    Diagnostics diag(system);
    EXPECT_EQ(diag.Assert(0, u"count is wrong"), 1);
    system.windowName = u"";
    EXPECT_EQ(diag.Assert(0, nullptr), 1);
    ASSERT_EQ(system.boxes.size(), 2u);
    EXPECT_EQ(system.boxes[0].text, u"frmMain: count is wrong");
    EXPECT_EQ(system.boxes[0].caption, 306u);
    EXPECT_EQ(system.boxes[1].text, u": ");
    // The text had a block of its own, sized to it, and gave it back.
    EXPECT_EQ(system.memory.allocs[0], 2u * 23 + 2);
    EXPECT_EQ(system.memory.Live(), 0u);
    // The debug flags do not steer the assertion.
    EXPECT_TRUE(system.debug.empty());
}

TEST(DebugAssert, WithoutABlockTheWindowNameStandsAlone) {
    FakeSystem system;
    Diagnostics diag(system);
    system.memory.FailNext(1);
    EXPECT_EQ(diag.Assert(0, u"lost"), 1);
    ASSERT_EQ(system.boxes.size(), 1u);
    EXPECT_EQ(system.boxes[0].text, u"frmMain");
    EXPECT_EQ(system.boxes[0].caption, 306u);
}

} // namespace
