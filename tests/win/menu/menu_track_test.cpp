// Real popup menus tracked on a host frame: mnemonics of owner-drawn items,
// the order in which the frame hears of a chosen item, and a text changed
// while its popup is open. Tracking is modal: keys are queued before it
// starts, and a thread timer ends any menu still open after a give-up time.
#include <vector>

#include "menu_support.h"
#include "zkharness.h"

using namespace menutest;

namespace {

bool gaveUp = false;

void CALLBACK GiveUp(HWND, UINT, UINT_PTR, DWORD) {
    gaveUp = true;
    EndMenu();
}

// Tracks `popup` on `owner` with `keys` (WM_CHAR, or virtual keys when
// `virtualKey`) queued; `during` runs from a timer while the popup is open.
void (*duringTracking)() = nullptr;
void CALLBACK During(HWND, UINT, UINT_PTR timer, DWORD) {
    KillTimer(nullptr, timer);
    if (duringTracking)
        duringTracking();
}

struct Key {
    UINT message;
    WPARAM code;
};

bool Track(HWND owner, HMENU popup, std::vector<Key> keys, void (*during)() = nullptr) {
    gaveUp = false;
    duringTracking = during;
    for (const Key &k : keys)
        PostMessageW(owner, k.message, k.code, 0);
    const UINT_PTR giveUp = SetTimer(nullptr, 0, 5000, GiveUp);
    const UINT_PTR soon = during ? SetTimer(nullptr, 0, 30, During) : 0;
    TrackPopupMenuEx(popup, TPM_LEFTALIGN | TPM_TOPALIGN | TPM_LEFTBUTTON, 120, 120, owner, nullptr);
    KillTimer(nullptr, giveUp);
    if (soon)
        KillTimer(nullptr, soon);
    zkt::PumpMessages();
    return !gaveUp;
}

// What reaches the procedure below the library's subclass, in order.
std::vector<UINT> below;
WNDPROC hostProc = nullptr;
LRESULT CALLBACK Below(HWND w, UINT m, WPARAM wp, LPARAM lp) {
    if (m == WM_COMMAND || m == ZKM_MenuCommand || m == WM_MENUCHAR)
        below.push_back(m);
    return CallWindowProcW(hostProc, w, m, wp, lp);
}

class MenuTrack : public MenuTest {
protected:
    void SetUp() override {
        MenuTest::SetUp();
        frame_ = Frame(HOST_FRAME_Frame, MakeFrameMenu().bar);
        hostProc =
            reinterpret_cast<WNDPROC>(SetWindowLongPtrW(frame_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Below)));
        below.clear();
        popup_ = CreatePopupMenu();
        SetForegroundWindow(frame_);
    }
    void TearDown() override {
        DestroyMenu(popup_);
        MenuTest::TearDown();
    }
    HWND frame_ = nullptr;
    HMENU popup_ = nullptr;
};

TEST_F(MenuTrack, AMnemonicOfANegativeIdClosesTheMenuAndTellsTheFrame) {
    // The host's own owner-drawn item, which has no text the platform could read.
    AppendMenuW(popup_, MF_OWNERDRAW, static_cast<UINT_PTR>(static_cast<UINT>(kUndo)), nullptr);
    ASSERT_EQ(ZelMenuSetFont(frame_, popup_, kUndo, nullptr, L"&Undo"), 1);
    ASSERT_TRUE(GetMenuState(popup_, static_cast<UINT>(kUndo), MF_BYCOMMAND) & MF_OWNERDRAW);
    TakeLog(frame_);
    zkt::MessageRecorder recorder;
    recorder.watch(frame_);
    ASSERT_TRUE(Track(frame_, popup_, {{WM_CHAR, 'u'}}));
    EXPECT_EQ(TakeLog(frame_), std::vector<std::wstring>{L"MenuCommand(-5)"});
    EXPECT_TRUE(zkt::MatchNamed(recorder.messages(), {{WM_MENUCHAR, zkt::sent}, {ZKM_MenuCommand, zkt::sent}}));
    EXPECT_EQ(recorder.count(WM_COMMAND), 0);
    // The subclass answered the key itself: the host never saw it.
    EXPECT_EQ(below, std::vector<UINT>{ZKM_MenuCommand});
}

TEST_F(MenuTrack, AMnemonicOfTheApplicationsItemChoosesItAndTheFrameHearsFirst) {
    const ZelPicHandle pic = Picture(RGB(255, 0, 0));
    ZelMenuInsertPicture(frame_, popup_, -1, pic, pic, L"&Open");
    const int32_t id = ZelMenuInsertPicture(frame_, popup_, -1, pic, pic, L"&Print\\tCtrl+P");
    ASSERT_GT(id, 0);
    TakeLog(frame_);
    zkt::MessageRecorder recorder;
    recorder.watch(frame_);
    ASSERT_TRUE(Track(frame_, popup_, {{WM_CHAR, 'P'}}));
    EXPECT_EQ(TakeLog(frame_), std::vector<std::wstring>{L"MenuCommand(" + std::to_wstring(id) + L")"});
    // Position 1 executed; the command is posted, and the frame is told
    // (sent) before the procedure below the library gets the command.
    EXPECT_TRUE(zkt::MatchNamed(recorder.messages(), {{WM_MENUCHAR, zkt::sent},
                                                      {WM_COMMAND, zkt::posted | zkt::wparam, static_cast<WPARAM>(id)},
                                                      {ZKM_MenuCommand, zkt::sent | zkt::lparam, 0, id}}));
    EXPECT_EQ(below, (std::vector<UINT>{ZKM_MenuCommand, WM_COMMAND}));
}

TEST_F(MenuTrack, AKeyNoRecordAnswersGoesToTheHost) {
    const ZelPicHandle pic = Picture(RGB(255, 0, 0));
    ZelMenuInsertPicture(frame_, popup_, -1, pic, pic, L"&Open");
    ASSERT_TRUE(Track(frame_, popup_, {{WM_CHAR, 'z'}, {WM_KEYDOWN, VK_ESCAPE}}));
    EXPECT_TRUE(TakeLog(frame_).empty());
    EXPECT_EQ(below, std::vector<UINT>{WM_MENUCHAR});
}

HWND trackedFrame = nullptr;
HMENU trackedPopup = nullptr;
int paintsAfterSetText = -1;

void RenameWhileOpen() {
    HWND popup = FindWindowW(L"#32768", nullptr);
    zkt::MessageRecorder recorder;
    recorder.watch(popup);
    ZelMenuSetText(trackedFrame, trackedPopup, 0, L"&Renamed");
    paintsAfterSetText = recorder.count(WM_PAINT, popup);
    EndMenu();
}

TEST_F(MenuTrack, ATextChangedWhileItsPopupIsOpenShowsAtOnce) {
    AppendMenuW(popup_, MF_STRING, kCopy, L"&Copy");
    trackedFrame = frame_;
    trackedPopup = popup_;
    paintsAfterSetText = -1;
    TakeLog(frame_);
    ASSERT_TRUE(Track(frame_, popup_, {}, RenameWhileOpen));
    EXPECT_GE(paintsAfterSetText, 1);
    EXPECT_EQ(PlatformText(popup_, 0, MF_BYPOSITION), L"&Renamed");
    EXPECT_EQ(TakeLog(frame_), std::vector<std::wstring>{L"UpdateMenuBar"});
}

} // namespace
