// CGenericControl: defaults, colour roles, the font and its metrics, the
// message handlers, notifications and the generic block.
#include "designer_win_test.h"

using namespace designertest;

namespace {

class GenericControl : public testing::Test {
protected:
    void SetUp() override {
        window = MakeControl(kSubclassClass, parent, 42);
        ASSERT_NE(window, nullptr);
        control = static_cast<TestControl *>(zk::Window::FromHandle(window));
        ASSERT_NE(control, nullptr);
        zkt::PumpMessages();
    }
    void TearDown() override {
        if (IsWindow(window))
            DestroyWindow(window);
    }

    zkt::TestWindow parent;
    HWND window = nullptr;
    TestControl *control = nullptr;
};

TEST_F(GenericControl, SettingARoleGivesTheColourInForceAndMayRedraw) {
    ValidateRect(window, nullptr);
    EXPECT_EQ(control->SetRoleColor(2, RGB(10, 20, 30), 0), GetSysColor(COLOR_GRAYTEXT)) << "the system's before";
    EXPECT_FALSE(GetUpdateRect(window, nullptr, FALSE)) << "redraw 0 invalidates nothing";
    EXPECT_EQ(control->GetRoleColor(2), RGB(10, 20, 30));
    EXPECT_EQ(control->SetRoleColor(2, RGB(40, 50, 60), 1), RGB(10, 20, 30));
    EXPECT_TRUE(GetUpdateRect(window, nullptr, FALSE)) << "redraw 1 invalidates the window";
    EXPECT_EQ(control->GetRoleColor(2), RGB(40, 50, 60));
    EXPECT_EQ(control->GetRoleColor(1), GetSysColor(COLOR_WINDOWTEXT)) << "other roles still follow";
    EXPECT_EQ(control->GetRoleColor(4), CLR_INVALID);
    EXPECT_EQ(control->GetRoleColor(-1), CLR_INVALID);
    EXPECT_EQ(control->SetRoleColor(4, RGB(1, 2, 3), 0), CLR_INVALID);
}

TEST_F(GenericControl, ADerivingEntryFollowsTextOrWindowColour) {
    control->UseRoleTable({COLOR_WINDOW, zk::kFollows, zk::kFollows, COLOR_WINDOWFRAME});
    EXPECT_EQ(control->IsDerivedRoleColor(2), 1);
    EXPECT_EQ(control->GetRoleColor(1), GetSysColor(COLOR_WINDOWTEXT));
    EXPECT_EQ(control->GetRoleColor(2), GetSysColor(COLOR_WINDOW));
    control->SetRoleColor(2, RGB(1, 1, 1), 0);
    EXPECT_EQ(control->IsDerivedRoleColor(2), 0) << "an explicit colour does not derive";
}

TEST_F(GenericControl, CreationSetsNotifyWindowAndDefaultFont) {
    EXPECT_EQ(control->NotifyWindow(), parent.hwnd());
    EXPECT_EQ(control->StateFlags(), 0);
    const HFONT font = reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0));
    ASSERT_NE(font, nullptr);
    EXPECT_EQ(font, control->Font());
    LOGFONTW lf{};
    ASSERT_TRUE(GetObjectW(font, sizeof lf, &lf));
    HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    EXPECT_EQ(lf.lfHeight, (-8 * dpi) / 72);
    EXPECT_EQ(lf.lfWeight, FW_BOLD);
    EXPECT_EQ(lf.lfPitchAndFamily, 34);
    EXPECT_STREQ(lf.lfFaceName, L"MS Sans Serif");
}

TEST_F(GenericControl, SetFontKeepsACopyAndZeroMeansTheSystemFont) {
    HFONT given = CreateFontW(-20, 0, 0, 0, FW_NORMAL, 0, 0, 0, 0, 0, 0, 0, 0, L"Tahoma");
    EXPECT_EQ(SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(given), 0), 0);
    DeleteObject(given);
    LOGFONTW kept{};
    ASSERT_TRUE(GetObjectW(control->Font(), sizeof kept, &kept)) << "the control's copy outlives the caller's";
    EXPECT_EQ(kept.lfHeight, -20);

    SendMessageW(window, WM_SETFONT, 0, 0);
    const HFONT system = static_cast<HFONT>(GetStockObject(SYSTEM_FONT));
    EXPECT_NE(control->Font(), system) << "a copy, not the stock object";
    LOGFONTW want{}, got{};
    GetObjectW(system, sizeof want, &want);
    GetObjectW(control->Font(), sizeof got, &got);
    EXPECT_EQ(got.lfHeight, want.lfHeight);
    EXPECT_STREQ(got.lfFaceName, want.lfFaceName);
}

TEST_F(GenericControl, EnableAndShowKeepTheStateBits) {
    EnableWindow(window, FALSE);
    EXPECT_EQ(control->StateFlags(), zk::kStateDisabled);
    ShowWindow(window, SW_HIDE);
    EXPECT_EQ(control->StateFlags(), zk::kStateDisabled | zk::kStateHidden);
    EnableWindow(window, TRUE);
    EXPECT_EQ(control->StateFlags(), zk::kStateHidden);
    ShowWindow(window, SW_SHOW);
    EXPECT_EQ(control->StateFlags(), 0);
    EXPECT_TRUE(IsWindowEnabled(window)) << "the default handling still ran";
}

TEST_F(GenericControl, NotificationsArePostedWithIdCodeAndWindow) {
    zkt::MessageRecorder recorder;
    recorder.watch(parent);
    control->ControlNotify(1);
    EXPECT_EQ(recorder.count(WM_COMMAND), 0) << "posted, not sent";
    zkt::PumpMessages();
    EXPECT_TRUE(zkt::MatchNamed(recorder.messages(), {{WM_COMMAND, zkt::posted | zkt::wparam | zkt::lparam,
                                                       MAKEWPARAM(42, 1), reinterpret_cast<LPARAM>(window)}}));
}

TEST_F(GenericControl, AltUpClosesThePopUpOnlyInPopUpMode) {
    zkt::MessageRecorder recorder;
    recorder.watch(parent);
    SendMessageW(window, WM_SYSKEYDOWN, VK_UP, 0x20000000);
    zkt::PumpMessages();
    EXPECT_EQ(recorder.count(WM_COMMAND), 0) << "outside pop-up mode the key goes to the default handling";
    control->PopUp() = 1;
    SendMessageW(window, WM_SYSKEYDOWN, VK_DOWN, 0x20000000);
    zkt::PumpMessages();
    EXPECT_EQ(recorder.count(WM_COMMAND), 0);
    SendMessageW(window, WM_SYSKEYDOWN, VK_UP, 0x20000000);
    zkt::PumpMessages();
    EXPECT_EQ(recorder.count(WM_COMMAND), 1);
    EXPECT_EQ(recorder.notifications(window), std::vector<int>{8});
}

TEST_F(GenericControl, TheGenericBlockSwapsItsSecondAndThirdStyle) {
    zk::SPropGeneric block;
    block.style1 = 11, block.style2 = 12, block.style3 = 13, block.style4 = 14, block.style5 = 15, block.style6 = 16;
    control->ApplyGenericBlock(block);
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(control->Flags(i), 11 + i) << "flag " << i;
}

} // namespace
