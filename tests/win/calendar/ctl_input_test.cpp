// Mouse, keyboard, timers and focus through real messages: what the
// control posts to itself and to its form, and where the focus ends.
#include "ctl_support.h"

#include <algorithm>

namespace {

using ctltest::FormCalendar;
using ctltest::Ymd;

// Ctrl held as GetKeyState reads it, for the length of a scope.
class CtrlHeld {
public:
    CtrlHeld() {
        GetKeyboardState(saved_);
        BYTE state[256];
        std::copy(std::begin(saved_), std::end(saved_), state);
        state[VK_CONTROL] = 0x80;
        SetKeyboardState(state);
    }
    ~CtrlHeld() { SetKeyboardState(saved_); }

private:
    BYTE saved_[256] = {};
};

TEST(CalendarMouse, AReleaseOnTheGridPostsSelectToItselfOnAForm) {
    FormCalendar c;
    SetFocus(c.form);
    zkt::PumpMessages();
    zkt::MessageRecorder posted;
    posted.WatchAll();
    c.MouseAtCell(WM_LBUTTONDOWN, 25);
    EXPECT_EQ(GetFocus(), c.hwnd()) << "a press takes the focus";
    EXPECT_EQ(GetCapture(), c.hwnd());
    EXPECT_EQ(c.Focus(), (Ymd{2024, 3, 21}));
    c.MouseAtCell(WM_LBUTTONUP, 25);
    EXPECT_EQ(GetCapture(), nullptr);
    zkt::PumpMessages();
    EXPECT_NE(posted.find(c.hwnd(), HostMsgSelect, 25), -1);
    EXPECT_NE(posted.FindCommand(c.form, CALN_FocusChange), -1);
    EXPECT_EQ(posted.FindCommand(c.form, CALN_CloseUp), -1);
}

TEST(CalendarMouse, InAPopUpTheSelectionIsPostedBeforeTheCloseUp) {
    FormCalendar c;
    ZelCalSetStyle(c.control(), CALS_PopUp, 1);
    zkt::PumpMessages();
    zkt::MessageRecorder posted;
    posted.WatchAll();
    c.MouseAtCell(WM_LBUTTONDOWN, 30);
    EXPECT_EQ(GetCapture(), nullptr) << "a pop-up does not capture";
    c.MouseAtCell(WM_LBUTTONUP, 30);
    zkt::PumpMessages();
    const long select = posted.find(c.hwnd(), HostMsgSelect, 30);
    const long close = posted.FindCommand(c.form, CALN_CloseUp);
    ASSERT_NE(select, -1);
    ASSERT_NE(close, -1);
    EXPECT_LT(select, close);
}

TEST(CalendarMouse, ADoubleClickIsPostedAndDraggingBelowScrollsAWeekPerTick) {
    FormCalendar c;
    zkt::MessageRecorder posted;
    posted.WatchAll();
    c.MouseAtCell(WM_LBUTTONDBLCLK, 12);
    c.MouseAtCell(WM_LBUTTONUP, 12);
    zkt::PumpMessages();
    EXPECT_NE(posted.find(c.hwnd(), HostMsgDoubleClick, 12), -1);
    c.MouseAtCell(WM_LBUTTONDOWN, 19);
    const auto &client = c.layout().Client();
    c.Mouse(WM_MOUSEMOVE, 40, client.bottom + 15, MK_LBUTTON);
    SendMessageW(c.hwnd(), WM_TIMER, 500, 0);
    SendMessageW(c.hwnd(), WM_TIMER, 500, 0);
    EXPECT_EQ(c.Focus(), (Ymd{2024, 3, 29}));
    c.Mouse(WM_MOUSEMOVE, 40, -15, MK_LBUTTON);
    SendMessageW(c.hwnd(), WM_TIMER, 501, 0);
    EXPECT_EQ(c.Focus(), (Ymd{2024, 3, 22}));
    c.Mouse(WM_LBUTTONUP, 40, -15);
    zkt::PumpMessages();
    EXPECT_EQ(posted.FindCommand(c.form, CALN_CloseUp), -1);
}

TEST(CalendarMouse, AHeldMonthButtonRepeatsOnItsTimerAndTheGridCatchesUpAfter) {
    FormCalendar c;
    const auto &r = c.layout().RightButton();
    c.Mouse(WM_LBUTTONDOWN, r.left + 3, r.top + 3);
    EXPECT_EQ(c.object().Model().DisplayMonth(), 4) << "the first step at once";
    EXPECT_EQ(c.object().State() & zk::cal::CALF_RightDown, zk::cal::CALF_RightDown);
    // The 250 ms timer, pumped for at most three seconds.
    EXPECT_TRUE(zkt::PumpUntil([&] { return c.object().Model().DisplayMonth() >= 6; }, 100000, 3000));
    c.Mouse(WM_LBUTTONUP, r.left + 3, r.top + 3);
    const int month = c.object().Model().DisplayMonth();
    ValidateRect(c.hwnd(), nullptr);
    EXPECT_TRUE(zkt::PumpUntil([&] { return GetUpdateRect(c.hwnd(), nullptr, FALSE) != 0; }, 100000, 2000))
        << "timer 502 invalidates the window";
    EXPECT_EQ(c.object().Model().DisplayMonth(), month) << "no step after the release";
}

TEST(CalendarMouse, LeavingAHeldButtonStopsItsRepeat) {
    FormCalendar c;
    const auto &r = c.layout().LeftButton();
    c.Mouse(WM_LBUTTONDOWN, r.left + 3, r.top + 3, MK_CONTROL);
    EXPECT_EQ(c.Focus(), (Ymd{2023, 3, 15})) << "with Ctrl a year back";
    c.Mouse(WM_MOUSEMOVE, 100, 100, MK_LBUTTON);
    EXPECT_TRUE(c.object().State() & zk::cal::CALF_Outside);
    SendMessageW(c.hwnd(), WM_CANCELMODE, 0, 0);
    EXPECT_EQ(c.object().State() & (zk::cal::CALF_LeftDown | zk::cal::CALF_RightDown), 0);
    EXPECT_FALSE(KillTimer(c.hwnd(), 506)) << "no timer left running";
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST(CalendarKeys, PageUpIsForwardAndCtrlPageUpAsksForTheSameDayNextYear) {
    FormCalendar c;
    SendMessageW(c.hwnd(), WM_KEYDOWN, VK_PRIOR, 0);
    EXPECT_EQ(c.Focus(), (Ymd{2024, 4, 15}));
    ZelCalSetFocusDate(c.control(), ctltest::Date(2024, 2, 29));
    {
        CtrlHeld ctrl;
        SendMessageW(c.hwnd(), WM_KEYDOWN, VK_PRIOR, 0);
    }
    EXPECT_EQ(c.Focus(), (Ymd{2025, 3, 1})) << "29 February 2025 as the host builds it";
    SendMessageW(c.hwnd(), WM_CHAR, 't', 0);
    EXPECT_EQ(c.Focus(), (Ymd{2024, 3, 15}));
}

TEST(CalendarKeys, ReturnOnAFormDoesNothingEscapeClosesAPopUpAndNoKeyboardNoMove) {
    FormCalendar c;
    zkt::MessageRecorder parent;
    parent.watch(c.form);
    EXPECT_EQ(SendMessageW(c.hwnd(), WM_KEYDOWN, VK_RETURN, 0), 0);
    EXPECT_EQ(c.Focus(), (Ymd{2024, 3, 15}));
    zkt::PumpMessages();
    EXPECT_TRUE(parent.notifications(c.hwnd()).empty());
    ZelCalSetStyle(c.control(), CALS_PopUp, 1);
    SendMessageW(c.hwnd(), WM_KEYDOWN, VK_ESCAPE, 0);
    zkt::PumpMessages();
    EXPECT_EQ(parent.notifications(c.hwnd()), (std::vector<int>{CALN_CloseUp}));
    ZelCalSetStyle(c.control(), CALS_EnableKeyboard, 0);
    SendMessageW(c.hwnd(), WM_KEYDOWN, VK_RIGHT, 0);
    EXPECT_EQ(c.Focus(), (Ymd{2024, 3, 15}));
}

TEST(CalendarFocus, AFormsCalendarLosesTheFocusQuietly) {
    FormCalendar c;
    HWND other = c.form.AddEdit(9, {300, 10, 80, 20});
    SetFocus(c.hwnd());
    const auto &r = c.layout().RightButton();
    c.Mouse(WM_LBUTTONDOWN, r.left + 3, r.top + 3);
    zkt::PumpMessages();
    zkt::MessageRecorder parent;
    parent.watch(c.form);
    SetFocus(other);
    zkt::PumpMessages();
    const auto codes = parent.notifications(c.hwnd());
    EXPECT_EQ(std::count(codes.begin(), codes.end(), CALN_KillFocus), 0);
    EXPECT_EQ(std::count(codes.begin(), codes.end(), CALN_CloseUp), 0);
    // Nothing is pending: the next tick of the held button still steps.
    SendMessageW(c.hwnd(), WM_TIMER, 503, 0);
    EXPECT_EQ(c.object().Model().DisplayMonth(), 5);
    c.Mouse(WM_LBUTTONUP, r.left + 3, r.top + 3);
}

TEST(CalendarHostValues, PaintsKeysAndPressesLeaveNoHostStringBehind) {
    FormCalendar c;
    ZelCalSetStyle(c.control(), CALS_MultipleSelection | CALS_ShowSpecial, 1);
    ZelCalMarkDate(c.control(), ctltest::Date(2024, 3, 3), 1);
    c.Paint(); // the library's one formatting slot exists from here on
    const int32_t strings = ZkHostLiveStrings();
    for (int round = 0; round < 3; ++round) {
        c.Paint();
        SendMessageW(c.hwnd(), WM_KEYDOWN, VK_NEXT, 0);
        SendMessageW(c.hwnd(), WM_KEYDOWN, VK_SPACE, 0);
        c.MouseAtCell(WM_LBUTTONDOWN, 17);
        c.MouseAtCell(WM_LBUTTONUP, 17);
    }
    zkt::PumpMessages();
    EXPECT_EQ(ZkHostLiveStrings(), strings);
}

} // namespace
