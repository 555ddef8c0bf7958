// Menus in host frames: which frame a call reaches, what reaches the frame's
// own structure and what reaches the platform menu only, and the answers on
// a frame of neither host class. Ids the library makes for new items, on
// each kind of window that can carry the menu block, their reuse after
// deletion, the records behind them, and what a failed allocation leaves.
#include "menu/win/menu_ops.h"
#include "menu/win/menu_store.h"
#include "menu_support.h"
#include "zkharness.h"

using namespace menutest;

namespace {

class MenuFrames : public MenuTest {};

using Log = std::vector<std::wstring>;
std::wstring N(int32_t id) { return std::to_wstring(id); }

TEST_F(MenuFrames, CheckAndEnableGoToTheFramesStructureAndThePlatform) {
    const FrameMenu m = MakeFrameMenu();
    HWND frame = Frame(HOST_FRAME_Frame, m.bar);
    TakeLog(frame);
    struct Case {
        int32_t (*call)(HMENU, int32_t);
        int32_t selector;
        Log log;
        UINT platformBit; // the bit the platform state must show, or 0 for clear
        UINT bit;
    } cases[] = {
        {ZelMenuCheck, kOpen, {L"SetMenuCheck(" + N(kOpen) + L",1)"}, MF_CHECKED, MF_CHECKED},
        // Unchecking also has the frame update its state; checking does not.
        {ZelMenuUncheck, kOpen, {L"SetMenuCheck(" + N(kOpen) + L",0)", L"UpdateMenuState(1)"}, 0, MF_CHECKED},
        // A position is read as the item's id there.
        {ZelMenuCheck, 3, {L"SetMenuCheck(" + N(kExit) + L",1)"}, MF_CHECKED, MF_CHECKED},
        {ZelMenuDisable, kUndo, {L"SetMenuEnable(-5,0)", L"UpdateMenuState(1)"}, MF_GRAYED, MF_GRAYED},
        {ZelMenuEnable, kUndo, {L"SetMenuEnable(-5,1)", L"UpdateMenuState(1)"}, 0, MF_GRAYED},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.log.front());
        HMENU menu = c.selector == kUndo ? m.edit : m.file;
        EXPECT_EQ(c.call(menu, c.selector), 1);
        EXPECT_EQ(TakeLog(frame), c.log);
        const UINT by = c.selector >= 0 && c.selector < 1024 ? MF_BYPOSITION : MF_BYCOMMAND;
        EXPECT_EQ(GetMenuState(menu, static_cast<UINT>(c.selector), by) & c.bit, c.platformBit);
    }
    EXPECT_EQ(HostFrameGetMenuCheck(frame, kExit), 1);
    EXPECT_EQ(ZelMenuIsChecked(m.file, 3), 1);
    EXPECT_EQ(ZelMenuIsEnabled(m.edit, kUndo), 1);
}

TEST_F(MenuFrames, WhatReachesOnlyThePlatformMenuIsNotInTheFramesAnswers) {
    const FrameMenu m = MakeFrameMenu();
    HWND frame = Frame(HOST_FRAME_Frame, m.bar);
    // A platform-only change: the frame's structure still says unchecked.
    CheckMenuItem(m.file, kNew, MF_BYCOMMAND | MF_CHECKED);
    EXPECT_EQ(ZelMenuIsChecked(m.file, kNew), 0);
    // A font item goes to the platform menu only, until the frame attaches again.
    const int32_t id = ZelMenuInsertFont(frame, m.file, -1, nullptr, L"&Font item");
    ASSERT_GT(id, 0);
    EXPECT_EQ(GetMenuState(m.file, static_cast<UINT>(id), MF_BYCOMMAND), 0u);
    EXPECT_EQ(HostFrameMenuHasItem(frame, id), 0);
    EXPECT_EQ(ZelMenuIsEnabled(m.file, id), 0);
    // The record keeps its text for the library's own answers.
    EXPECT_EQ(Take(ZelMenuGetText(frame, m.file, id)), L"&Font item");
    // Setting a picture asks the frame, which lacks the item: nothing changes.
    const ZelPicHandle pic = Picture(RGB(255, 0, 0));
    EXPECT_EQ(ZelMenuSetPicture(frame, m.file, id, pic, pic, L"Changed"), 0);
    EXPECT_EQ(Take(ZelMenuGetText(frame, m.file, id)), L"&Font item");
    // Deleting any item has the frame attach its menu again.
    TakeLog(frame);
    EXPECT_EQ(ZelMenuDelete(frame, m.file, 1), 1);
    EXPECT_EQ(TakeLog(frame), Log{L"AttachMenu"});
    EXPECT_EQ(HostFrameMenuHasItem(frame, id), 1);
    EXPECT_EQ(HostFrameMenuHasItem(frame, kOpen), 0);
}

LRESULT CALLBACK PlainProc(HWND w, UINT m, WPARAM wp, LPARAM lp) { return DefWindowProcW(w, m, wp, lp); }

TEST_F(MenuFrames, AFrameOfNeitherHostClassChecksThePlatformAndAnswersZero) {
    // A window of the frame's class name that the host did not make.
    WNDCLASSW wc{};
    wc.lpfnWndProc = PlainProc;
    wc.hInstance = GetModuleHandleW(nullptr);
    wc.lpszClassName = L"Marlo:AccFrame";
    RegisterClassW(&wc);
    const FrameMenu m = MakeFrameMenu();
    HWND stranger = Keep(CreateWindowExW(0, wc.lpszClassName, L"stranger", WS_OVERLAPPEDWINDOW, 0, 0, 200, 100, nullptr,
                                         m.bar, wc.hInstance, nullptr));
    ASSERT_TRUE(stranger);
    EXPECT_EQ(HostFrameKind(stranger), HOST_FRAME_None);
    EXPECT_EQ(ZelMenuCheck(m.file, kOpen), 0);
    EXPECT_EQ(GetMenuState(m.file, kOpen, MF_BYCOMMAND) & MF_CHECKED, static_cast<UINT>(MF_CHECKED));
    EXPECT_EQ(ZelMenuDisable(m.file, kOpen), 0);
    EXPECT_EQ(GetMenuState(m.file, kOpen, MF_BYCOMMAND) & MF_GRAYED, static_cast<UINT>(MF_GRAYED));
    // The answers then come from the platform.
    EXPECT_EQ(ZelMenuIsChecked(m.file, 1), 1);
    EXPECT_EQ(ZelMenuIsEnabled(m.file, 1), 0);
    // A menu outside any frame's tree is the platform's alone.
    HMENU loose = CreatePopupMenu();
    AppendMenuW(loose, MF_STRING, kCopy, L"Copy");
    EXPECT_EQ(ZelMenuCheck(loose, 0), 1);
    EXPECT_EQ(ZelMenuCheck(loose, 7), 0);
    DestroyMenu(loose);
    DestroyWindow(stranger);
    UnregisterClassW(wc.lpszClassName, wc.hInstance);
}

TEST_F(MenuFrames, TextsComeFromTheRecordTheStructureOrTheWindowsMenu) {
    const FrameMenu m = MakeFrameMenu();
    HWND mdi = Frame(HOST_FRAME_MDIFrame, m.bar);
    HWND child = Frame(HOST_FRAME_MDIChild, nullptr, 0, mdi);
    SetWindowTextW(child, L"Report");
    EXPECT_EQ(HostFrameIsWindowsMenu(mdi, m.window), 1);
    EXPECT_EQ(HostFrameIsWindowsMenu(mdi, m.file), 0);
    struct Case {
        HMENU menu;
        int32_t selector;
        const wchar_t *text;
    } cases[] = {
        {m.file, 0, L"&New\tCtrl+N"},     // the structure's text
        {m.bar, 1, L"&Edit"},             // a popup, by its submenu
        {m.edit, kUndo, L"&Undo"},        // the host's range
        {m.window, 0xFF00, L"&1 Report"}, // no such item: the Windows menu lists the child
        {m.window, 0xFF01, L""},
    };
    for (const Case &c : cases)
        EXPECT_EQ(Take(ZelMenuGetText(mdi, c.menu, c.selector)), c.text) << c.selector;
    // From an MDI child the same frame answers; a stale window gives the empty string.
    EXPECT_EQ(Take(ZelMenuGetText(child, m.file, 0)), L"&New\tCtrl+N");
    EXPECT_EQ(Take(ZelMenuGetText(reinterpret_cast<HWND>(INT_PTR{0x7FFF0}), m.file, 0)), L"");
}

TEST_F(MenuFrames, SetTextReachesTheStructureAndRefreshesTheBarOrTheRibbon) {
    struct Case {
        int32_t kind;
        uint32_t options;
        const wchar_t *refresh;
    } cases[] = {
        {HOST_FRAME_Frame, 0, L"UpdateMenuBar"},
        {HOST_FRAME_MDIFrame, 0, L"UpdateMenuBar"},
        {HOST_FRAME_MDIFrame, ZKHOST_FRAME_Ribbon, L"RibbonRefresh"},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.refresh);
        const FrameMenu m = MakeFrameMenu();
        HWND frame = Frame(c.kind, m.bar, c.options);
        EXPECT_EQ(HostFrameRibbonInUse(frame), c.options ? 1 : 0);
        TakeLog(frame);
        EXPECT_EQ(ZelMenuSetText(frame, m.file, kOpen, L"&Open again\\tCtrl+O"), 1);
        EXPECT_EQ(TakeLog(frame), (Log{L"SetMenuText(" + N(kOpen) + L")", c.refresh}));
        wchar_t text[64] = L"";
        HostFrameGetMenuText(frame, kOpen, text, 64);
        EXPECT_STREQ(text, L"&Open again\tCtrl+O");
        // A command id above the positions is a position to the platform
        // here: the frame's structure alone takes the new text.
        EXPECT_EQ(PlatformText(m.file, 1, MF_BYPOSITION), L"&Open...");
        // A popup's text reaches the platform; the bar is refreshed all the same.
        EXPECT_EQ(ZelMenuSetText(frame, m.bar, 0, L"&Document"), 1);
        EXPECT_EQ(TakeLog(frame), Log{c.refresh});
        EXPECT_EQ(GetSubMenu(m.bar, 0), m.file);
        DestroyWindow(frame);
    }
}

TEST_F(MenuFrames, EachWindowFindsTheFrameThatCarriesItsBlock) {
    const FrameMenu m = MakeFrameMenu();
    HWND frame = Frame(HOST_FRAME_Frame, m.bar);
    HWND form =
        CreateWindowExW(0, L"Static", L"form", WS_CHILD | WS_VISIBLE, 0, 40, 100, 40, frame, nullptr, nullptr, nullptr);
    // The form has no menu of its own: its frame's own menu stands in.
    EXPECT_EQ(ZelMenuGetHandle(form), m.bar);
    EXPECT_EQ(ZelMenuGetHandle(frame), m.bar);
    EXPECT_EQ(ZelMenuGetSystemHandle(form), GetSystemMenu(frame, FALSE));
    const ZelPicHandle pic = Picture(RGB(0, 0, 255));
    TakeLog(frame);
    const int32_t id = ZelMenuInsertPicture(form, m.edit, -1, pic, pic, L"&Paint");
    ASSERT_EQ(id, kHelp + 1);
    EXPECT_EQ(TakeLog(frame),
              (Log{L"AttachMenu", L"InsertMenu(" + N(id) + L")", L"SetMenuPicture(" + N(id) + L",bitmap)"}));
    EXPECT_EQ(ZkHostFrameMenuPicture(frame, id), 1);
    // In a frame's tree the item stays a string: the frame shows the picture.
    EXPECT_EQ(GetMenuState(m.edit, static_cast<UINT>(id), MF_BYCOMMAND) & MF_OWNERDRAW, 0u);
    // The block is on the frame: its subclass reports the command.
    SendMessageW(frame, WM_COMMAND, static_cast<WPARAM>(id), 0);
    EXPECT_EQ(TakeLog(frame), Log{L"MenuCommand(" + N(id) + L")"});
    // Not on the frame's own bar, which a dialog has.
    const FrameMenu d = MakeFrameMenu();
    HWND dialog = Frame(HOST_FRAME_Dialog, d.bar);
    EXPECT_EQ(ZelMenuInsertPicture(dialog, d.bar, -1, pic, pic, L"Bar"), 0);
    EXPECT_EQ(ZelMenuInsertPicture(dialog, d.file, -1, pic, 0, L"No selected picture"), 0);
    EXPECT_EQ(ZelMenuInsertPicture(dialog, d.file, -1, pic, pic + 8, L"Forged"), 0);
    EXPECT_GT(ZelMenuInsertPicture(dialog, d.file, -1, pic, pic, L"Popup"), 0);
    EXPECT_EQ(GetMenuItemCount(d.file), 5);
}

TEST_F(MenuFrames, StaleMenusAndWindowsGiveTheFailureValues) {
    const FrameMenu m = MakeFrameMenu();
    HWND frame = Frame(HOST_FRAME_Frame, m.bar);
    HWND gone = CreateWindowExW(0, L"Static", L"", 0, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    DestroyWindow(gone);
    HMENU dead = CreatePopupMenu();
    DestroyMenu(dead);
    const ZelPicHandle pic = Picture(RGB(0, 0, 0));
    for (HMENU menu : {dead, static_cast<HMENU>(nullptr)}) {
        EXPECT_EQ(ZelMenuGetCount(menu), -1);
        EXPECT_EQ(ZelMenuGetPosition(menu, kNew), -1);
        EXPECT_EQ(ZelMenuGetPopupHandle(menu, 0), nullptr);
        EXPECT_EQ(ZelMenuCheck(menu, 0), 0);
        EXPECT_EQ(ZelMenuUncheck(menu, 0), 0);
        EXPECT_EQ(ZelMenuEnable(menu, 0), 0);
        EXPECT_EQ(ZelMenuDisable(menu, 0), 0);
        EXPECT_EQ(ZelMenuIsChecked(menu, 0), 0);
        EXPECT_EQ(ZelMenuIsEnabled(menu, 0), 0);
    }
    struct Pair {
        HWND window;
        HMENU menu;
    } pairs[] = {{gone, m.file}, {nullptr, m.file}, {frame, dead}, {frame, nullptr}};
    for (const Pair &p : pairs) {
        EXPECT_EQ(Take(ZelMenuGetText(p.window, p.menu, 0)), L"");
        EXPECT_EQ(ZelMenuSetText(p.window, p.menu, 0, L"x"), 0);
        EXPECT_EQ(ZelMenuInsert(p.window, p.menu, -1, L"x", 0), 0);
        EXPECT_EQ(ZelMenuInsertFont(p.window, p.menu, -1, nullptr, L"x"), 0);
        EXPECT_EQ(ZelMenuInsertPicture(p.window, p.menu, -1, pic, pic, L"x"), 0);
        EXPECT_EQ(ZelMenuSetFont(p.window, p.menu, 0, nullptr, L"x"), 0);
        EXPECT_EQ(ZelMenuSetPicture(p.window, p.menu, 0, pic, pic, L"x"), 0);
        EXPECT_EQ(ZelMenuDelete(p.window, p.menu, 0), 0);
    }
    EXPECT_EQ(ZelMenuGetHandle(gone), nullptr);
    EXPECT_EQ(ZelMenuGetSystemHandle(gone), nullptr);
    EXPECT_EQ(ZelMenuGetCount(m.file), 4); // nothing reached the live menu
    // Host operations on windows that are no frames answer 0.
    EXPECT_EQ(HostFrameKind(gone), HOST_FRAME_None);
    EXPECT_EQ(HostFrameAttachMenu(gone, m.bar), 0);
    EXPECT_EQ(HostFrameSetMenuCheck(nullptr, m.file, 0, kNew, 1), 0);
    EXPECT_EQ(HostFrameGetRibbonBar(frame), nullptr);
    EXPECT_EQ(HostFrameIsWindowsMenu(frame, m.window), 0); // a frame has no Windows menu
}

class MenuIds : public MenuTest {};

// The window and menu an insert addresses for one kind of window.
struct Target {
    HWND window;
    HMENU menu;
};

TEST_F(MenuIds, IdsComeAboveTheTreeAndComeBackThroughLastIdAndTheFreeIds) {
    enum Kind { kFrame, kMdiFrame, kMdiChild, kDialog };
    for (Kind kind : {kFrame, kMdiFrame, kMdiChild, kDialog}) {
        SCOPED_TRACE(kind);
        const FrameMenu m = MakeFrameMenu();
        Target t{};
        switch (kind) {
        case kFrame:
            t = {Frame(HOST_FRAME_Frame, m.bar), m.file};
            break;
        case kMdiFrame:
            t = {Frame(HOST_FRAME_MDIFrame, m.bar), m.file};
            break;
        case kMdiChild: {
            HWND mdi = Frame(HOST_FRAME_MDIFrame, m.bar);
            HWND child = Frame(HOST_FRAME_MDIChild, nullptr, 0, mdi);
            t = {child, GetSystemMenu(child, FALSE)};
            break;
        }
        case kDialog:
            t = {Frame(HOST_FRAME_Dialog, m.bar), m.file};
            break;
        }
        ASSERT_TRUE(IsMenu(t.menu));
        const int32_t a = ZelMenuInsert(t.window, t.menu, -1, L"One", 0);
        const int32_t b = ZelMenuInsert(t.window, t.menu, -1, L"Two", 0);
        const int32_t c = ZelMenuInsert(t.window, t.menu, -1, L"Three", 0);
        // Above every id of the tree the insert walks: the frame menu's
        // highest is kHelp; a system menu has its own.
        if (kind != kMdiChild) {
            EXPECT_EQ(a, kHelp + 1);
        }
        EXPECT_GT(a, 0);
        EXPECT_EQ(b, a + 1);
        EXPECT_EQ(c, a + 2);
        EXPECT_EQ(ZelMenuGetPosition(t.menu, b), ZelMenuGetCount(t.menu) - 2);

        // Not the highest: the id goes to the free ids and comes back first.
        EXPECT_EQ(ZelMenuDelete(t.window, t.menu, b), 1);
        EXPECT_EQ(ZelMenuGetPosition(t.menu, b), -1);
        EXPECT_EQ(ZelMenuInsert(t.window, t.menu, -1, L"Two again", 0), b);
        // The highest: lastId steps back and the same id is made again.
        EXPECT_EQ(ZelMenuDelete(t.window, t.menu, c), 1);
        EXPECT_EQ(ZelMenuInsert(t.window, t.menu, -1, L"Three again", 0), c);
        EXPECT_EQ(ZelMenuInsert(t.window, t.menu, -1, L"Four", 0), c + 1);
        if (kind == kFrame) { // the item is in the frame's structure too
            EXPECT_EQ(HostFrameMenuHasItem(t.window, c + 1), 1);
        }
    }
}

TEST_F(MenuIds, APlainWindowWithAPlatformMenuCarriesNoBlock) {
    zkt::TestWindow plain;
    const FrameMenu m = MakeFrameMenu();
    SetMenu(plain, m.bar);
    EXPECT_EQ(ZelMenuGetHandle(plain), m.bar);
    EXPECT_EQ(ZelMenuInsert(plain, m.file, -1, L"Nowhere", 0), 0);
    EXPECT_EQ(ZelMenuGetCount(m.file), 4);
    // Menu functions without a window work on the platform menu alone.
    EXPECT_EQ(ZelMenuCheck(m.file, 1), 1);
    EXPECT_EQ(ZelMenuIsChecked(m.file, 1), 1);
    EXPECT_EQ(ZelMenuDisable(m.edit, kUndo), 1);
    EXPECT_EQ(ZelMenuIsEnabled(m.edit, kUndo), 0);
    EXPECT_EQ(ZelMenuSetText(plain, m.file, 0, L"&Fresh\\tF2"), 1);
    EXPECT_EQ(PlatformText(m.file, 0, MF_BYPOSITION), L"&Fresh\tF2");
    EXPECT_EQ(Take(ZelMenuGetText(plain, m.file, 0)), L"&Fresh\tF2");
}

TEST_F(MenuIds, TheTopBitDefersTheFramesAttachToTheNextInsert) {
    const FrameMenu m = MakeFrameMenu();
    HWND frame = Frame(HOST_FRAME_Frame, m.bar);
    TakeLog(frame);
    const int32_t first = ZelMenuInsert(frame, m.file, 0, L"First", static_cast<int16_t>(MENU_NoAttach));
    EXPECT_EQ(TakeLog(frame), (Log{L"InsertMenu(" + N(first) + L")"}));
    const int32_t second = ZelMenuInsert(frame, m.file, 1, L"Second", 0);
    EXPECT_EQ(TakeLog(frame), (Log{L"AttachMenu", L"InsertMenu(" + N(second) + L")"}));
    EXPECT_EQ(HostFrameMenuHasItem(frame, first), 1);
    EXPECT_EQ(HostFrameMenuHasItem(frame, second), 1);
    // The frame's own bar (a dialog's) is redrawn instead.
    const FrameMenu d = MakeFrameMenu();
    HWND dialog = Frame(HOST_FRAME_Dialog, d.bar);
    EXPECT_GT(ZelMenuInsert(dialog, d.bar, -1, L"&Tools", 0), 0);
    EXPECT_EQ(ZelMenuGetCount(d.bar), 5);
}

TEST_F(MenuIds, RecordsGrowByTenAndEveryOneReportsItsCommand) {
    const FrameMenu m = MakeFrameMenu();
    HWND frame = Frame(HOST_FRAME_Frame, m.bar);
    HMENU context = CreatePopupMenu();
    std::vector<int32_t> ids;
    for (int i = 0; i < 25; ++i)
        ids.push_back(ZelMenuInsert(frame, context, -1, L"Item", 0));
    for (size_t i = 1; i < ids.size(); ++i)
        ASSERT_EQ(ids[i], ids[0] + static_cast<int32_t>(i));
    TakeLog(frame);
    // Notification codes 0 and 0xFFFF are commands; others are not.
    SendMessageW(frame, WM_COMMAND, MAKEWPARAM(ids[24], 0), 0);
    SendMessageW(frame, WM_COMMAND, MAKEWPARAM(ids[11], 0xFFFF), 0);
    SendMessageW(frame, WM_COMMAND, MAKEWPARAM(ids[3], 1), 0);
    SendMessageW(frame, WM_SYSCOMMAND, static_cast<WPARAM>(ids[0]), 0);
    EXPECT_EQ(TakeLog(frame), (Log{L"MenuCommand(" + N(ids[24]) + L")", L"MenuCommand(" + N(ids[11]) + L")",
                                   L"MenuCommand(" + N(ids[0]) + L")"}));

    // The host's clear forgets every record; the ids go on from lastId.
    EXPECT_EQ(SendMessageW(frame, ZKM_MenuClear, 0, 0), 1);
    SendMessageW(frame, WM_COMMAND, MAKEWPARAM(ids[24], 0), 0);
    EXPECT_TRUE(TakeLog(frame).empty());
    EXPECT_EQ(ZelMenuInsert(frame, context, -1, L"After", 0), ids[24] + 1);
    DestroyMenu(context);
}

TEST_F(MenuIds, AClearLeavesRecordsOfTheSystemMenu) {
    const FrameMenu m = MakeFrameMenu();
    HWND mdi = Frame(HOST_FRAME_MDIFrame, m.bar);
    HWND child = Frame(HOST_FRAME_MDIChild, nullptr, 0, mdi);
    const int32_t id = ZelMenuInsert(child, GetSystemMenu(child, FALSE), -1, L"&Pin", 0);
    ASSERT_GT(id, 0);
    EXPECT_EQ(SendMessageW(child, ZKM_MenuClear, 0, 0), 1);
    TakeLog(child);
    SendMessageW(child, WM_SYSCOMMAND, static_cast<WPARAM>(id), 0);
    EXPECT_EQ(TakeLog(child), (Log{L"MenuCommand(" + N(id) + L")"}));
}

// The library's own code in this program, so that its allocations can be
// made to fail; its window is used by nothing else.
TEST_F(MenuIds, AFailedAllocationLeavesTheRecordsAsTheyWere) {
    const FrameMenu m = MakeFrameMenu();
    HWND frame = Frame(HOST_FRAME_Frame, m.bar);
    HMENU context = CreatePopupMenu();
    int32_t last = 0;
    for (int i = 0; i < 10; ++i)
        last = zk::menu::Insert(frame, context, -1, L"Item", 0);
    ASSERT_EQ(last, kHelp + 10);
    const int blocks = zk::menu::LiveLocalBlocks();
    zk::menu::FailLocalAllocations(1); // the records' growth
    EXPECT_EQ(zk::menu::Insert(frame, context, -1, L"Eleventh", 0), 0);
    EXPECT_EQ(GetMenuItemCount(context), 10);
    zk::menu::FailLocalAllocations(1); // the text of a font item
    EXPECT_EQ(zk::menu::InsertFont(frame, context, -1, nullptr, L"Font"), 0);
    EXPECT_EQ(GetMenuItemCount(context), 10);
    EXPECT_EQ(zk::menu::LiveLocalBlocks(), blocks);
    // Nothing was taken: the next id is the one the failed inserts would have had.
    EXPECT_EQ(zk::menu::Insert(frame, context, -1, L"Eleventh", 0), last + 1);
    zk::menu::FailLocalAllocations(0);
    DestroyWindow(frame);
    EXPECT_EQ(zk::menu::LiveLocalBlocks(), blocks - 2); // the block and its records, gone
    DestroyMenu(context);
}

} // namespace
