// Ids the library makes for new items, on each kind of window that can
// carry the menu block, their reuse after deletion, the records behind
// them, and what a failed allocation leaves.
#include "menu/win/menu_ops.h"
#include "menu/win/menu_store.h"
#include "menu_support.h"
#include "zkharness.h"

using namespace menutest;

namespace {

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
    EXPECT_EQ(TakeLog(frame), (std::vector<std::wstring>{L"InsertMenu(" + std::to_wstring(first) + L")"}));
    const int32_t second = ZelMenuInsert(frame, m.file, 1, L"Second", 0);
    EXPECT_EQ(TakeLog(frame),
              (std::vector<std::wstring>{L"AttachMenu", L"InsertMenu(" + std::to_wstring(second) + L")"}));
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
    EXPECT_EQ(TakeLog(frame), (std::vector<std::wstring>{L"MenuCommand(" + std::to_wstring(ids[24]) + L")",
                                                         L"MenuCommand(" + std::to_wstring(ids[11]) + L")",
                                                         L"MenuCommand(" + std::to_wstring(ids[0]) + L")"}));

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
    EXPECT_EQ(TakeLog(child), (std::vector<std::wstring>{L"MenuCommand(" + std::to_wstring(id) + L")"}));
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
