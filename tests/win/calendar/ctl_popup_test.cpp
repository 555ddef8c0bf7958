// The plain calendar as a drop-down's pop-up: made by CreatePopup, closed
// up when it loses the focus, and cancelling a held press at the next tick.
#include "ctl_support.h"

namespace {

class Popup : public zkt::PopupTest<zk::cal::CCalendar> {
protected:
    bool MakePopup(zk::cal::CCalendar &control) override {
        if (!control.CreatePopup(RECT{60, 60, 300, 240}, notify))
            return false;
        control.Model().AssignStyleFlag(CALS_PopUp, 1);
        return true;
    }
};

TEST_F(Popup, IsABorderedPopUpOfTheInnerClassWithoutParent) {
    EXPECT_EQ(static_cast<DWORD>(GetWindowLongW(window, GWL_STYLE)) & 0x82800000u, 0x82800000u);
    EXPECT_EQ(GetAncestor(window, GA_PARENT), GetDesktopWindow());
    wchar_t name[32] = {};
    GetClassNameW(window, name, 32);
    EXPECT_STREQ(name, L"ZK:Calendar:10");
    EXPECT_EQ(GetClassLongW(window, GCL_STYLE), 0x6880);
    EXPECT_EQ(popup->NotifyWindow(), notify.hwnd()) << "the notify window given";
    EXPECT_TRUE(popup->Model().Created());
}

TEST_F(Popup, LosingTheFocusHidesItClosesUpAndCancelsTheHeldButton) {
    ShowWindow(window, SW_SHOW);
    SetFocus(window);
    ASSERT_EQ(GetFocus(), window);
    const auto &r = popup->Layout().RightButton();
    SendMessageW(window, WM_LBUTTONDOWN, 0, MAKELPARAM(r.left + 3, r.top + 3));
    const int month = popup->Model().DisplayMonth();
    zkt::PumpMessages();
    zkt::MessageRecorder posted;
    posted.WatchAll();
    SetFocus(edit);
    EXPECT_FALSE(IsWindowVisible(window));
    zkt::PumpMessages();
    EXPECT_EQ(posted.notifications(window), (std::vector<int>{CALN_CloseUp, CALN_KillFocus}));
    SendMessageW(window, WM_TIMER, 503, 0);
    EXPECT_EQ(popup->Model().DisplayMonth(), month) << "the tick cancels instead of stepping";
    EXPECT_EQ(popup->State() & zk::cal::CALF_RightDown, 0);
    SendMessageW(window, WM_TIMER, 503, 0);
    EXPECT_NE(popup->Model().DisplayMonth(), month) << "once";
}

TEST_F(Popup, ReturnClosesUpWithTheSelectionOfAPressOnTheGrid) {
    ShowWindow(window, SW_SHOW);
    SetFocus(window);
    const auto cell = popup->Layout().CellRect(24);
    SendMessageW(window, WM_LBUTTONDOWN, 0, MAKELPARAM(cell.left + 3, cell.top + 3));
    zkt::PumpMessages();
    zkt::MessageRecorder posted;
    posted.WatchAll();
    SendMessageW(window, WM_KEYDOWN, VK_RETURN, 0);
    zkt::PumpMessages();
    EXPECT_NE(posted.find(window, HostMsgSelect, 24), -1);
    EXPECT_EQ(posted.notifications(window), (std::vector<int>{CALN_CloseUp, CALN_CloseUp}))
        << "one from the release, one from the key";
}

} // namespace
