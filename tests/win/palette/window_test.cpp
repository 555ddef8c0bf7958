// The palette as a window: its classes, creation on a form with the block
// stored on its design item, the pop-up and drop-down mode, and what real
// mouse and key messages post, in order.
#include <cstring>

#include "block_bytes.h"
#include "frame/win/host.h"
#include "palette_support.h"

namespace {

using paltest::FormPalette;
using zk::pal::Hit;
using zkt::Posted;

// The frame objects linked into this program read the library's strings.
class Library : public testing::Environment {
    void SetUp() override { zk::ModuleInstance = GetModuleHandleW(L"ZKLIB.dll"); }
};
const auto *const library = testing::AddGlobalTestEnvironment(new Library);

long Find(const std::vector<Posted> &posted, HWND hwnd, UINT message) {
    for (size_t i = 0; i < posted.size(); ++i)
        if (posted[i].hwnd == hwnd && posted[i].message == message)
            return static_cast<long>(i);
    return -1;
}

TEST(PaletteClass, TheFormsClassIsRegisteredAsTheLibraryLoads) {
    WNDCLASSEXW wc{};
    wc.cbSize = sizeof wc;
    ASSERT_TRUE(GetClassInfoExW(GetModuleHandleW(L"ZKLIB.dll"), L"ZK:cPalette:10", &wc));
    EXPECT_EQ(wc.style, 0x6080u);
    EXPECT_NE(wc.hCursor, nullptr);
    EXPECT_EQ(zk::pal::CColorPalette().GetFrameWidth(), -1) << "no frame before creation";
}

TEST(PaletteCreation, TheAnnouncedPointerIsTheDefaultPalette) {
    FormPalette p;
    ASSERT_NE(p.control(), 0);
    EXPECT_EQ(ZelPalStyleGet(p.control()), PALS_EnableRecent);
    EXPECT_EQ(p.Focus(), (Hit{0, 0}));
    const auto &m = p.object().Model();
    EXPECT_EQ(m.MainCount(), 8);
    ASSERT_EQ(m.Counts().lines, 1);
    EXPECT_EQ(m.GetMenuEntry(0)->text, u"Other Color...") << "string 80";
    EXPECT_EQ(p.object().GetFrameWidth(), p.layout().Frame().Width());
    LOGFONTW font{};
    GetObjectW(reinterpret_cast<HFONT>(SendMessageW(p.hwnd(), WM_GETFONT, 0, 0)), sizeof font, &font);
    EXPECT_EQ(font.lfWeight, FW_BOLD);
    EXPECT_STREQ(font.lfFaceName, L"MS Sans Serif");
    EXPECT_EQ(SendMessageW(p.hwnd(), WM_GETDLGCODE, 0, 0), 0x81);
}

TEST(PaletteCreation, SettingTheFontCopiesItAndZeroTakesTheSystemFont) {
    FormPalette p;
    const int32_t before = p.layout().LineHeight();
    HFONT given = CreateFontW(-30, 0, 0, 0, FW_NORMAL, 0, 0, 0, 0, 0, 0, 0, 0, L"Tahoma");
    SendMessageW(p.hwnd(), WM_SETFONT, reinterpret_cast<WPARAM>(given), 0);
    EXPECT_NE(reinterpret_cast<HFONT>(SendMessageW(p.hwnd(), WM_GETFONT, 0, 0)), given) << "its own copy";
    DeleteObject(given);
    EXPECT_GT(p.layout().LineHeight(), before);
    SendMessageW(p.hwnd(), WM_SETFONT, 0, 0);
    LOGFONTW mine{}, system{};
    GetObjectW(reinterpret_cast<HFONT>(SendMessageW(p.hwnd(), WM_GETFONT, 0, 0)), sizeof mine, &mine);
    GetObjectW(GetStockObject(SYSTEM_FONT), sizeof system, &system);
    EXPECT_STREQ(mine.lfFaceName, system.lfFaceName);
}

TEST(PaletteCreation, AutoSizeGivesABorderedWindowTheFramesSize) {
    FormPalette p({10, 10, 50, 120});
    SetWindowLongW(p.hwnd(), GWL_STYLE, GetWindowLongW(p.hwnd(), GWL_STYLE) | WS_BORDER);
    SetWindowPos(p.hwnd(), nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_FRAMECHANGED);
    ZelPalStyleSet(p.control(), PALS_AutoSize, 1);
    ZelPalMenuAdd(p.control(), L"Auto", 1); // the next layout sizes the window
    RECT window{};
    GetWindowRect(p.hwnd(), &window);
    EXPECT_EQ(window.right - window.left, p.layout().FitWidth());
    EXPECT_EQ(window.bottom - window.top, p.layout().FitHeight());
    EXPECT_EQ(p.layout().ZoneWidth(), 8 * (p.layout().ZoneWidth() / 8)) << "eight base widths: narrower than that";
}

// A form whose design item holds a palette block.
class StoredBlock : public testing::Test {
protected:
    void Store(const std::vector<uint8_t> &bytes) { ASSERT_TRUE(design.Store(L"ZK:ColorPalette", bytes)); }

    zkt::StoredBlockItem design;
    uint8_t *parameter = design.parameter;
};

TEST_F(StoredBlock, IsAppliedAtCreation) {
    zk::pal::SPropPalette block;
    block.mainColors.RemoveAll();
    for (uint32_t c : {0x102030u, 0x405060u, 0x708090u})
        block.mainColors.Add(std::make_unique<zk::pal::SPaletteColor>(c));
    block.menus.Add(std::make_unique<zk::pal::SPaletteMenu>(u"Transparent", 42));
    block.enableRecent = 0;
    block.keepSelection = 1;
    block.recentMax = 4;
    Store(zkt::StoredBytes(block));
    FormPalette p({10, 10, 200, 160}, parameter);
    EXPECT_EQ(ZelPalStyleGet(p.control()), PALS_KeepSelection);
    EXPECT_EQ(ZelPalColorPaletteGet(p.control(), PALP_Main, 2), 0x708090);
    EXPECT_EQ(ZelPalColorPaletteGet(p.control(), PALP_Main, 3), -1);
    EXPECT_EQ(ZelPalMRUMaxGet(p.control()), 4);
    ASSERT_EQ(p.object().Model().Counts().lines, 1) << "the application's entry, no other-colour entry";
    EXPECT_EQ(p.object().Model().GetMenuEntry(0)->id, 42);
    EXPECT_EQ(p.layout().Main().Height(), p.layout().MainCellHeight() - 1) << "laid out for three colours";
}

TEST_F(StoredBlock, AShortBlockOrNoStoredFlagKeepTheDefaults) {
    zk::pal::SPropPalette block;
    block.keepSelection = 1;
    std::vector<uint8_t> bytes = zkt::StoredBytes(block);
    Store(std::vector<uint8_t>(bytes.begin(), bytes.end() - 3));
    {
        FormPalette p({10, 10, 200, 160}, parameter);
        EXPECT_EQ(ZelPalStyleGet(p.control()), PALS_EnableRecent) << "a block that does not read to its end";
    }
    Store(bytes);
    parameter[4] = 0;
    FormPalette p({10, 10, 200, 160}, parameter);
    EXPECT_EQ(ZelPalStyleGet(p.control()), PALS_EnableRecent) << "without the stored flag nothing is read";
}

TEST(PaletteMouse, AReleaseOnACellPostsSelectToItselfAndTheFocusChangeToTheForm) {
    FormPalette p;
    SetFocus(p.form);
    zkt::DrainQueue();
    p.MouseAt(WM_LBUTTONDOWN, 0, 5);
    EXPECT_EQ(GetFocus(), p.hwnd()) << "a press takes the focus";
    EXPECT_EQ(GetCapture(), p.hwnd());
    p.MouseAt(WM_MOUSEMOVE, 0, 6);
    p.MouseAt(WM_LBUTTONUP, 0, 6);
    EXPECT_EQ(GetCapture(), nullptr);
    const auto posted = zkt::DrainQueue();
    const long select = Find(posted, p.hwnd(), HostMsgSelect);
    ASSERT_NE(select, -1);
    EXPECT_EQ(posted[static_cast<size_t>(select)].wParam, 0u);
    EXPECT_EQ(posted[static_cast<size_t>(select)].lParam, 6);
    const auto codes = p.Notifications(posted);
    EXPECT_EQ(std::count(codes.begin(), codes.end(), PALN_FocusChange), 3)
        << "the focus taken shows the focus cell again, then 5, then 6";
    EXPECT_EQ(p.Focus(), (Hit{0, 6}));
}

// The other-colour line: the selection, then the command with id 0, both
// posted; the command opens the colour dialog, whose colour becomes the
// first recent colour with the focus on it.
TEST(PaletteMouse, TheOtherColourLinePostsSelectThenCommandZeroWhichOpensTheDialog) {
    FormPalette p;
    zkt::MessageRecorder recorder;
    recorder.watch(p.hwnd());
    p.MouseAt(WM_LBUTTONDOWN, 1, 0);
    p.MouseAt(WM_LBUTTONUP, 1, 0);
    {
        zkt::DialogAnswerer answerer(IDOK);
        zkt::DrainQueue();
        EXPECT_EQ(answerer.answered(), 1);
    }
    EXPECT_TRUE(zkt::MatchNamed(recorder.messages(), {{HostMsgSelect, zkt::posted | zkt::wparam | zkt::lparam, 1, 0},
                                                      {ZKM_PaletteCommand, zkt::posted | zkt::wparam | zkt::lparam,
                                                       reinterpret_cast<WPARAM>(p.hwnd()), 0}}));
    EXPECT_EQ(p.object().Model().RecentCount(), 1);
    EXPECT_EQ(p.Focus(), (Hit{2, 0}));
    // Cancelled, nothing is added; with recent colours off the command is the application's.
    {
        zkt::DialogAnswerer answerer(IDCANCEL);
        SendMessageW(p.hwnd(), ZKM_PaletteCommand, reinterpret_cast<WPARAM>(p.hwnd()), 0);
        EXPECT_EQ(answerer.answered(), 1);
    }
    EXPECT_EQ(p.object().Model().RecentCount(), 1);
    ZelPalStyleSet(p.control(), PALS_EnableRecent, 0);
    zkt::DialogAnswerer none(IDCANCEL);
    SendMessageW(p.hwnd(), ZKM_PaletteCommand, reinterpret_cast<WPARAM>(p.hwnd()), 0);
    EXPECT_EQ(none.answered(), 0);
    EXPECT_EQ(p.Focus(), (Hit{0, 0})) << "clearing the recent colours moved the focus";
}

TEST(PaletteKeys, ReturnPostsTheEntrysIdAndArrowsNotifyTheForm) {
    FormPalette p;
    ZelPalMenuAdd(p.control(), L"Automatic", 100);
    ZelPalFocusSet(p.control(), PALZ_Menu, 0);
    zkt::DrainQueue();
    zkt::MessageRecorder recorder;
    recorder.watch(p.hwnd());
    recorder.watch(p.form);
    SendMessageW(p.hwnd(), WM_KEYDOWN, VK_RETURN, 0);
    SendMessageW(p.hwnd(), WM_KEYDOWN, VK_LEFT, 0);
    zkt::DrainQueue();
    EXPECT_TRUE(zkt::MatchNamed(recorder.messages(),
                                {{WM_KEYDOWN, zkt::sent},
                                 {WM_KEYDOWN, zkt::sent},
                                 {ZKM_PaletteCommand, zkt::posted | zkt::lparam, 0, 100},
                                 {WM_COMMAND, zkt::posted | zkt::wparam, MAKEWPARAM(7, PALN_FocusChange), 0, p.form}}));
    EXPECT_EQ(p.Focus(), (Hit{0, 7}));
}

class Popup : public zkt::PopupTest<zk::pal::CColorPalette> {
protected:
    bool MakePopup(zk::pal::CColorPalette &control) override {
        return control.Create(RECT{60, 60, 260, 200}, notify, notify);
    }
};

TEST_F(Popup, IsAHiddenBorderedPopUpOfTheInnerClass) {
    EXPECT_EQ(static_cast<DWORD>(GetWindowLongW(window, GWL_STYLE)) & 0x82800000u, 0x82800000u);
    EXPECT_FALSE(IsWindowVisible(window)) << "hidden until the drop-down shows it";
    wchar_t name[32] = {};
    GetClassNameW(window, name, 32);
    EXPECT_STREQ(name, L"ZK:ColorPalette:10");
    EXPECT_EQ(GetClassLongW(window, GCL_STYLE), 0x6080);
    EXPECT_EQ(popup->NotifyWindow(), notify.hwnd());
    EXPECT_TRUE(popup->Model().Created());
}

TEST_F(Popup, InDropDownModeAReleaseSelectsThenClosesAndLosingTheFocusHides) {
    popup->Model().SetStyle(PALS_DropDown, 1);
    ShowWindow(window, SW_SHOW);
    SetFocus(window);
    ASSERT_EQ(GetFocus(), window);
    zkt::DrainQueue();
    const zk::Rect cell = popup->Layout().GetCellRect(0, 4, popup->Model().Counts());
    const LPARAM at = MAKELPARAM((cell.left + cell.right) / 2, (cell.top + cell.bottom) / 2);
    SendMessageW(window, WM_LBUTTONDOWN, 0, at);
    EXPECT_EQ(GetCapture(), nullptr) << "a pop-up does not capture";
    SendMessageW(window, WM_LBUTTONUP, 0, at);
    auto posted = zkt::DrainQueue();
    const long select = Find(posted, window, HostMsgSelect);
    long close = -1;
    for (size_t i = 0; i < posted.size(); ++i)
        if (posted[i].hwnd == notify.hwnd() && posted[i].message == WM_COMMAND && HIWORD(posted[i].wParam) == 8)
            close = static_cast<long>(i);
    ASSERT_NE(select, -1);
    ASSERT_NE(close, -1);
    EXPECT_LT(select, close);
    EXPECT_TRUE(IsWindowVisible(window)) << "it closes by notification, not by itself";
    SetFocus(edit);
    EXPECT_FALSE(IsWindowVisible(window));
    posted = zkt::DrainQueue();
    EXPECT_EQ(zkt::NotificationCodes(posted, notify, window), (std::vector<int>{PALN_CloseUp, PALN_KillFocus}));
    EXPECT_TRUE(IsWindow(window));
}

} // namespace
