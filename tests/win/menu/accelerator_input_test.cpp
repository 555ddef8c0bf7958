// Accelerators on synthetic key input: the hook sends each accelerator's
// message once for its exact modifiers and never for others, leaves keys
// alone when the target is in the background, and goes with the last one.
#include <vector>

#include "window_support.h"

using namespace menutest;

namespace {

constexpr UINT kFired = WM_APP + 1;
constexpr WORD kKey = 'K';
// A key no accelerator has: when it has come through, so has all input before it.
constexpr WORD kSentinel = VK_F13;
constexpr WORD kModifierKeys[] = {VK_SHIFT, VK_CONTROL, VK_MENU};

class Accelerators : public ::testing::Test {
protected:
    void SetUp() override {
        Listen(form);
        Focus(form);
    }
    void TearDown() override {
        for (ZelAccelHandle a : loaded)
            ZelWinFreeAccelerator(a);
    }

    // Counts the key reaching the window and the sentinel's release, and
    // records the accelerators' messages.
    void Listen(zkt::TestWindow &target) {
        target.OnMessage([this](HWND window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT &) {
            if (message == kFired) {
                fired.push_back({window, static_cast<uint32_t>(lParam)});
                return true;
            }
            if ((message == WM_KEYDOWN || message == WM_SYSKEYDOWN) && wParam == kKey)
                ++keysReached;
            if (message == WM_KEYUP && wParam == kSentinel)
                sentinelSeen = true;
            // Alt released on its own would open the window menu: not wanted here.
            if (message == WM_SYSCOMMAND && (wParam & 0xFFF0) == SC_KEYMENU)
                return true;
            return false;
        });
    }

    static void Focus(HWND window) {
        SetForegroundWindow(window);
        SetFocus(window);
        zkt::PumpMessages();
    }

    ZelAccelHandle Load(HWND window, uint32_t modifiers, uint32_t value) {
        const ZelAccelHandle a = ZelWinLoadAccelerator(window, kFired, modifiers, kKey, value);
        if (a)
            loaded.push_back(a);
        return a;
    }

    static void Key(WORD key, bool up) {
        INPUT input{};
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = key;
        input.ki.dwFlags = up ? KEYEVENTF_KEYUP : 0;
        SendInput(1, &input, sizeof input);
    }

    // Presses the key with the modifiers of a value (shift 1, control 2,
    // alt 4) and waits until the input has been handled.
    void Press(uint32_t modifiers) {
        fired.clear();
        keysReached = 0;
        sentinelSeen = false;
        for (int i = 0; i < 3; ++i)
            if (modifiers & (1u << i))
                Key(kModifierKeys[i], false);
        Key(kKey, false);
        Key(kKey, true);
        for (int i = 2; i >= 0; --i)
            if (modifiers & (1u << i))
                Key(kModifierKeys[i], true);
        Key(kSentinel, false);
        Key(kSentinel, true);
        ASSERT_TRUE(zkt::PumpUntil([&] { return sentinelSeen; }, 10000, 5000)) << "the input did not arrive";
    }

    struct Fired {
        HWND window;
        uint32_t value;
    };
    zkt::TestWindow form{200, 100, L"accelerators"};
    std::vector<ZelAccelHandle> loaded;
    std::vector<Fired> fired;
    int keysReached = 0;
    bool sentinelSeen = false;
};

TEST_F(Accelerators, EachModifierCombinationFiresItsOwnOnceAndSwallowsTheKey) {
    for (uint32_t m = 0; m < 8; ++m)
        ASSERT_NE(Load(form, m, 100 + m), 0);
    ASSERT_NE(Load(form, 8, 999), 0) << "loads, but never matches";
    for (uint32_t held = 0; held < 8; ++held) {
        Press(held);
        ASSERT_EQ(fired.size(), 1u) << "modifiers " << held;
        EXPECT_EQ(fired[0].window, form.hwnd());
        EXPECT_EQ(fired[0].value, 100 + held);
        EXPECT_EQ(keysReached, 0) << "down and up both swallowed, modifiers " << held;
    }
}

TEST_F(Accelerators, OtherModifiersAndBackgroundTargetsLetTheKeyThrough) {
    ASSERT_NE(Load(form, ACCEL_Control, 1), 0);
    Press(0);
    EXPECT_TRUE(fired.empty());
    EXPECT_EQ(keysReached, 1);
    Press(ACCEL_Control | ACCEL_Shift);
    EXPECT_TRUE(fired.empty()) << "an extra modifier held";

    // The target behind another window of the application.
    zkt::TestWindow front(100, 50, L"in front");
    HWND target = form.AddButton(1, {10, 10, 60, 24}, L"child");
    ZelWinFreeAccelerator(loaded.back());
    loaded.pop_back();
    ASSERT_NE(Load(target, ACCEL_Control, 2), 0);
    // The message goes to the target itself, not to the form.
    zkt::MessageRecorder atTarget;
    atTarget.watch(target);
    Focus(form);
    Press(ACCEL_Control);
    ASSERT_EQ(atTarget.count(kFired, target), 1) << "a window holding the target is in the foreground";
    for (const zkt::RecordedMessage &m : atTarget.messages())
        if (m.message == kFired)
            EXPECT_EQ(m.lParam, 2) << "the record's value";
    Focus(front);
    Listen(front);
    atTarget.clear();
    Press(ACCEL_Control);
    EXPECT_EQ(atTarget.count(kFired, target), 0);
    EXPECT_EQ(keysReached, 1) << "the key goes on to the window in front";
}

TEST_F(Accelerators, TheFirstLoadedDecidesEvenForABackgroundWindow) {
    zkt::TestWindow other(100, 50, L"other");
    ASSERT_NE(Load(other, 0, 1), 0);
    ASSERT_NE(Load(form, 0, 2), 0);
    Focus(form);
    Press(0);
    EXPECT_TRUE(fired.empty()) << "the first record's window is not in the foreground";
    EXPECT_EQ(keysReached, 1);
}

TEST_F(Accelerators, FreeingTheLastRemovesTheHookAndLoadingInstallsItAgain) {
    const ZelAccelHandle a = Load(form, 0, 7);
    ASSERT_NE(a, 0);
    Press(0);
    EXPECT_EQ(fired.size(), 1u);
    EXPECT_EQ(ZelWinFreeAccelerator(a), 1);
    loaded.clear();
    EXPECT_EQ(ZelWinFreeAccelerator(a), 0) << "already freed";
    EXPECT_EQ(ZelWinFreeAccelerator(0), 0);
    Press(0);
    EXPECT_TRUE(fired.empty());
    EXPECT_EQ(keysReached, 1) << "no hook swallows the key";
    ASSERT_NE(Load(form, 0, 8), 0);
    Press(0);
    ASSERT_EQ(fired.size(), 1u);
    EXPECT_EQ(fired[0].value, 8u);

    EXPECT_EQ(ZelWinLoadAccelerator(nullptr, kFired, 0, kKey, 1), 0);
    HWND gone = form.AddButton(2, {0, 0, 10, 10}, L"");
    DestroyWindow(gone);
    EXPECT_EQ(ZelWinLoadAccelerator(gone, kFired, 0, kKey, 1), 0);
}

TEST_F(Accelerators, ARecordDoesNotFireIntoItselfWhileItSends) {
    ASSERT_NE(Load(form, 0, 5), 0);
    // The handler sees the key's release come back into the hook, as it
    // would through a message loop of its own.
    int nested = 0;
    LRESULT nestedResult = 0;
    form.OnMessage([&](HWND, UINT message, WPARAM wParam, LPARAM lParam, LRESULT &result) {
        if (message == kFired) {
            fired.push_back({form.hwnd(), static_cast<uint32_t>(lParam)});
            if (++nested == 1)
                nestedResult = KeyboardHookProc(HC_ACTION, kKey, static_cast<LPARAM>(0xC0000001));
            return true;
        }
        if (message == WM_KEYUP && wParam == kSentinel)
            sentinelSeen = true;
        return false;
    });
    Press(0);
    EXPECT_EQ(fired.size(), 1u) << "the nested release does not send again";
    EXPECT_EQ(nestedResult, 1) << "and the key is still eaten";
    Press(0);
    EXPECT_EQ(fired.size(), 1u) << "the next press sends as before";
}

} // namespace
