// Which accelerator a key with its modifiers calls, and what the hook does.
#include <gtest/gtest.h>

#include "menu/core/accelerator_match.h"

using namespace zk::menu;

namespace {

constexpr KeyState kNone{}, kShift{true, false, false}, kControl{false, true, false}, kAlt{false, false, true},
    kShiftControl{true, true, false}, kAll{true, true, true};

TEST(AccelMatch, ModifiersMatchExactly) {
    struct Case {
        uint32_t modifiers;
        KeyState held;
        bool match;
    } cases[] = {
        {0, kNone, true},
        {1, kShift, true},
        {2, kControl, true},
        {3, kShiftControl, true},
        {4, kAlt, true},
        {7, kAll, true},
        // Extra keys held do not match a value without them.
        {0, kShift, false},
        {1, kShiftControl, false},
        {3, kAll, false},
        // Nor does a value with keys that are not held.
        {3, kShift, false},
        {4, kNone, false},
        // Values above 7 never match.
        {8, kNone, false},
        {9, kShift, false},
        {0xFFFFFFFF, kAll, false},
    };
    for (const Case &c : cases)
        EXPECT_EQ(ModifiersMatch(c.modifiers, c.held), c.match) << "modifiers " << c.modifiers;
}

TEST(AccelMatch, FirstLoadedOfAKeyAndModifiersDecides) {
    AccelIndex index;
    index.Add('K', {1, 0});
    index.Add('K', {2, ACCEL_Control});
    index.Add('K', {3, 0});
    index.Add('L', {4, 8});
    ASSERT_NE(index.FirstMatch('K', kNone), nullptr);
    EXPECT_EQ(index.FirstMatch('K', kNone)->handle, 1u);
    EXPECT_EQ(index.FirstMatch('K', kControl)->handle, 2u);
    EXPECT_EQ(index.FirstMatch('K', kShift), nullptr);
    EXPECT_EQ(index.FirstMatch('M', kNone), nullptr);
    EXPECT_TRUE(index.HasKey('L'));
    EXPECT_EQ(index.FirstMatch('L', kNone), nullptr);

    index.Remove('K', 1);
    EXPECT_EQ(index.FirstMatch('K', kNone)->handle, 3u) << "the next of the same key and modifiers";
    index.Remove('K', 99); // unknown: nothing happens
    index.Remove('K', 2);
    index.Remove('K', 3);
    EXPECT_FALSE(index.HasKey('K'));
}

TEST(AccelMatch, KeyActions) {
    EXPECT_EQ(DecideKey(false, false, false), KeyAction::Pass);
    EXPECT_EQ(DecideKey(false, true, false), KeyAction::Pass);
    EXPECT_EQ(DecideKey(true, false, false), KeyAction::Swallow);
    EXPECT_EQ(DecideKey(true, false, true), KeyAction::Swallow);
    EXPECT_EQ(DecideKey(true, true, false), KeyAction::Send);
    EXPECT_EQ(DecideKey(true, true, true), KeyAction::Skip);
}

} // namespace
