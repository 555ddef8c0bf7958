// ZelDebugSetFlags, ZelDebugGetFlags, ZelDebugSetLevel, ZelDebugString and
// ZelDebugAssert through the library's exports, with the debugger captured
// and the boxes answered.
#include "diag_support.h"

using namespace diagwin;

namespace {

// The flags a fresh process has, read before any test changes them.
uint32_t StartFlags = 0;
class StartState : public ::testing::Environment {
    void SetUp() override { StartFlags = ZelDebugGetFlags(); }
};
const auto *const startState = ::testing::AddGlobalTestEnvironment(new StartState);

// The icon a message box shows, read while it is up.
HICON BoxIcon(HWND box) {
    for (HWND child = GetWindow(box, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        if ((GetWindowLongW(child, GWL_STYLE) & SS_TYPEMASK) == SS_ICON)
            return reinterpret_cast<HICON>(SendMessageW(child, STM_GETICON, 0, 0));
    }
    return nullptr;
}

std::wstring BoxText(const zkt::AnsweredDialog &box) {
    const auto texts = box.StaticTexts();
    return texts.empty() ? std::wstring() : texts.back();
}

TEST_F(Diag, FlagsStartWithElapsedAndAreAddedOrRemoved) {
    EXPECT_EQ(StartFlags, DBG_Elapsed);
    EXPECT_EQ(ZelDebugSetFlags(DBG_ClockTime | DBG_MessageBox, 1), 0x000B0000u);
    EXPECT_EQ(ZelDebugGetFlags(), 0x000B0000u);
    EXPECT_EQ(ZelDebugSetFlags(DBG_Elapsed | DBG_MessageBox, 0), DBG_ClockTime);
    EXPECT_EQ(ZelDebugSetFlags(0x40000000u, -1), 0x40020000u);
    EXPECT_EQ(ZelDebugGetFlags(), 0x40020000u);
    EXPECT_EQ(ZelDebugSetLevel(9), 1);
}

TEST_F(Diag, AStringGoesToTheDebuggerWithALineFeed) {
    zkt::DebugOutputCapture capture;
    EXPECT_EQ(ZelDebugString(L"checkpoint 1", 0), 1);
    EXPECT_EQ(capture.text(), L"checkpoint 1\n");
    EXPECT_EQ(capture.calls(), 2u);
    capture.clear();
    EXPECT_EQ(ZelDebugString(nullptr, 0), 1);
    EXPECT_EQ(capture.lines(), std::vector<std::wstring>{L""});
}

TEST_F(Diag, TheLevelIsASixteenBitWord) {
    // A host that pushes a 32-bit value: only its low word is the level.
    using WideLevel = int32_t(ZKAPI *)(const wchar_t *, int32_t);
    const auto call = reinterpret_cast<WideLevel>(reinterpret_cast<void *>(&ZelDebugString));
    zkt::DebugOutputCapture capture;
    EXPECT_EQ(call(L"low word 0", 0x00010000), 1);
    EXPECT_EQ(capture.text(), L"low word 0\n");
}

TEST_F(Diag, WithTheBoxFlagAStringShowsABoxCaptionedDebug) {
    ZelDebugSetFlags(DBG_MessageBox, 1);
    zkt::DebugOutputCapture capture;
    zkt::DialogAnswerer answerer(IDOK);
    HICON icon = nullptr;
    answerer.SetInspector([&](HWND box) { icon = BoxIcon(box); });
    EXPECT_EQ(ZelDebugString(L"value is 42", 0), 1);
    EXPECT_EQ(ZelDebugString(L"not shown", 1), 0);
    ASSERT_EQ(answerer.answered(), 1);
    EXPECT_EQ(answerer.dialogs()[0].caption, L"Debug");
    EXPECT_EQ(BoxText(answerer.dialogs()[0]), L"value is 42");
    EXPECT_EQ(icon, LoadIconW(nullptr, IDI_EXCLAMATION));
    EXPECT_EQ(capture.calls(), 0u);
}

TEST_F(Diag, AFalseAssertionNamesTheActiveWindow) {
    zkt::TestWindow form;
    ZkHostSetWinName(form, L"frmOrders");
    SetForegroundWindow(form);
    SetActiveWindow(form);
    ASSERT_EQ(GetActiveWindow(), form.hwnd());
    // Whatever the flags say, the assertion shows a box.
    ZelDebugSetFlags(DBG_MessageBox, 0);
    zkt::DebugOutputCapture capture;
    zkt::DialogAnswerer answerer(IDOK);
    HICON icon = nullptr;
    answerer.SetInspector([&](HWND box) { icon = BoxIcon(box); });
    EXPECT_EQ(ZelDebugAssert(0, L"quantity below zero"), 1);
    EXPECT_EQ(ZelDebugAssert(0, nullptr), 1);
    ASSERT_EQ(answerer.answered(), 2);
    EXPECT_EQ(answerer.dialogs()[0].caption, L"Assertion Failure");
    EXPECT_EQ(BoxText(answerer.dialogs()[0]), L"frmOrders: quantity below zero");
    EXPECT_EQ(icon, LoadIconW(nullptr, IDI_EXCLAMATION));
    EXPECT_EQ(BoxText(answerer.dialogs()[1]), L"frmOrders: ");
    EXPECT_EQ(capture.calls(), 0u);
    ZkHostSetWinName(form, nullptr);
}

TEST_F(Diag, AssertionsDoNotPileUpHostStrings) {
    zkt::TestWindow form;
    ZkHostSetWinName(form, L"frmLeak");
    SetActiveWindow(form);
    zkt::DialogAnswerer answerer(IDOK);
    ZelDebugAssert(0, L"first");
    const int32_t live = ZkHostLiveStrings();
    for (int i = 0; i < 5; ++i)
        ZelDebugAssert(0, L"again");
    EXPECT_EQ(ZkHostLiveStrings(), live);
    EXPECT_EQ(answerer.answered(), 6);
}

} // namespace
