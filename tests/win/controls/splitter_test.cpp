// The splitter on a real form: children set and found, a drag with real
// mouse messages (the band on the screen, the drop, the cancel), the host's
// paths for its own windows, the block, the paint and the exports' guard.
#include "controls_support.h"

#include <cstring>
#include <vector>

#include "frame/win/prop_block.h"

namespace {

using ctltest::InParent;
using ctltest::SplitterForm;

std::vector<LONG> Rect4(const RECT &r) { return {r.left, r.top, r.right, r.bottom}; }
std::vector<LONG> Rect4(LONG l, LONG t, LONG r, LONG b) { return {l, t, r, b}; }

// The gray pattern inverts every other pixel: a 2 by 2 square at (x, y)
// tells whether the band covers the point.
bool Inverted(const zkt::Bitmap &now, const zkt::Bitmap &before, int x, int y) {
    for (int dy = 0; dy < 2; ++dy)
        for (int dx = 0; dx < 2; ++dx)
            if (now.pixel(x + dx, y + dy) != before.pixel(x + dx, y + dy))
                return true;
    return false;
}

RECT ClientOnScreen(HWND window) {
    RECT r{};
    GetClientRect(window, &r);
    MapWindowPoints(window, nullptr, reinterpret_cast<POINT *>(&r), 2);
    return r;
}

// The form's item holds a splitter block; the run-time wrapper reads it
// from there when it is created.
class WithBlock : public testing::Test {
protected:
    void SetUp() override {
        outline = ZkHostDesignNewOutline();
        item = ZkHostDesignAddItem(outline, 0, 1);
    }
    void TearDown() override { ZkHostDesignFreeOutline(outline); }
    void Bind(HWND form) { ZkHostDesignBindWindow(outline, item, form); }
    void Store(zk::ctl::SPropSplitter block) {
        ASSERT_EQ(zk::StoreItemBlock(outline, item, zk::kPropSplitter, block), 1);
    }
    HostOutline outline = 0;
    HostItem item = 0;
};

TEST(SplitterForm, SettingTheChildrenTilesTheBarAndFillsTheParent) {
    SplitterForm s;
    ASSERT_NE(s.control(), 0);
    EXPECT_FALSE(s.object().DesignMode());
    EXPECT_EQ(GetPropW(s.form, L"TRSKIPACCTFRAME"), reinterpret_cast<HANDLE>(1));
    EXPECT_EQ(ZelSplitSetChild(s.control(), 1, s.left), nullptr);
    EXPECT_EQ(ZelSplitSetChild(s.control(), 2, s.right), nullptr);
    EXPECT_EQ(Rect4(InParent(s.bar())), Rect4(100, 0, 106, 300)) << "tiled: 6 wide, the parent's height";
    EXPECT_EQ(Rect4(InParent(s.left)), Rect4(0, 0, 100, 300));
    EXPECT_EQ(Rect4(InParent(s.right)), Rect4(106, 0, 400, 300));
    EXPECT_EQ(GetWindowLongPtrW(s.left, GWL_STYLE) & WS_BORDER, 0) << "a child loses its border";
    EXPECT_EQ(ZelSplitGetOrientation(s.control()), 1);
    EXPECT_EQ(ZelSplitMoveToDragPos(s.control()), 100) << "not dragging: where it is";
    EXPECT_EQ(ZelSplitTileToParent(s.control()), 1);
    EXPECT_EQ(ZelSplitSetChild(s.control(), 2, s.left), s.right) << "the old child";
    EXPECT_EQ(s.object().ChildOne(), nullptr) << "the same window for both stays in the slot named last";
    EXPECT_EQ(s.object().ChildTwo(), s.left);
    zkt::DialogAnswerer answerer(IDOK);
    EXPECT_EQ(ZelSplitSetChild(s.control(), 1, nullptr), nullptr);
    EXPECT_EQ(answerer.answered(), 0) << "window 0 fails without a message";
    EXPECT_EQ(s.object().ChildTwo(), s.left);
}

TEST(SplitterDrag, ARealDragMovesTheBarAndItsChildrenOnlyAtTheDrop) {
    SplitterForm s;
    s.SetChildren();
    zkt::MessageRecorder recorder;
    recorder.watch(s.left);
    recorder.watch(s.right);
    s.Mouse(WM_LBUTTONDOWN, 3, 50);
    EXPECT_EQ(GetCapture(), s.bar());
    s.Mouse(WM_MOUSEMOVE, 30, 60);
    s.Mouse(WM_MOUSEMOVE, 53, 70);
    EXPECT_EQ(recorder.count(WM_WINDOWPOSCHANGED), 0) << "the neighbours stay as they are while dragging";
    EXPECT_EQ(Rect4(InParent(s.bar())), Rect4(100, 0, 106, 300));
    s.Mouse(WM_LBUTTONUP, 53, 70);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(s.object().State(), 0) << "idle and shown again";
    EXPECT_TRUE(IsWindowVisible(s.bar()));
    EXPECT_EQ(Rect4(InParent(s.bar())), Rect4(150, 0, 156, 300));
    EXPECT_EQ(Rect4(InParent(s.left)), Rect4(0, 0, 150, 300));
    EXPECT_EQ(Rect4(InParent(s.right)), Rect4(156, 0, 400, 300));
    EXPECT_EQ(recorder.count(WM_WINDOWPOSCHANGED, s.left), 1) << "one batch, each child once";
    EXPECT_EQ(recorder.count(WM_WINDOWPOSCHANGED, s.right), 1);
}

TEST(SplitterDrag, ThePressAndAnyCancelLeaveTheScreenAsItWas) {
    SplitterForm s;
    s.SetChildren();
    RedrawWindow(s.form, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    const RECT area = ClientOnScreen(s.form);
    const zkt::Bitmap before = ctltest::Screen(area);
    zkt::MessageRecorder recorder;
    recorder.watch(s.left);
    recorder.watch(s.bar());

    s.Mouse(WM_LBUTTONDOWN, 2, 20);
    const zkt::Bitmap pressed = ctltest::Screen(area);
    EXPECT_FALSE(ctltest::SamePixels(before, pressed)) << "the band is inverted onto the screen";
    EXPECT_TRUE(Inverted(pressed, before, 102, 150));
    EXPECT_FALSE(Inverted(pressed, before, 90, 150)) << "outside the band";
    s.Mouse(WM_LBUTTONUP, 2, 20);
    EXPECT_TRUE(ctltest::SamePixels(before, ctltest::Screen(area))) << "press and release in place";
    EXPECT_EQ(recorder.count(WM_WINDOWPOSCHANGED), 0) << "nothing moves";
    EXPECT_EQ(recorder.count(WM_SHOWWINDOW), 0);

    s.Mouse(WM_LBUTTONDOWN, 2, 20);
    s.Mouse(WM_MOUSEMOVE, 40, 20);
    s.Mouse(WM_MOUSEMOVE, 41, 25);
    const zkt::Bitmap moved = ctltest::Screen(area);
    EXPECT_FALSE(Inverted(moved, before, 102, 150)) << "the strip the band left is restored";
    EXPECT_TRUE(Inverted(moved, before, 141, 150)) << "the band follows";
    SendMessageW(s.bar(), WM_CANCELMODE, 0, 0);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(s.object().State(), 0);
    EXPECT_TRUE(ctltest::SamePixels(before, ctltest::Screen(area))) << "a cancel removes the band";
    s.Mouse(WM_LBUTTONUP, 41, 25);
    EXPECT_EQ(Rect4(InParent(s.bar())), Rect4(100, 0, 106, 300)) << "a release after the cancel does nothing";
    EXPECT_EQ(recorder.count(WM_WINDOWPOSCHANGED), 0);
}

TEST(SplitterDrag, DraggedFullyLeftChildOneIsHiddenThroughTheHost) {
    SplitterForm s;
    s.SetChildren();
    s.Mouse(WM_LBUTTONDOWN, 3, 50);
    s.Mouse(WM_MOUSEMOVE, -500, 50);
    s.Mouse(WM_LBUTTONUP, -500, 50);
    EXPECT_EQ(Rect4(InParent(s.bar())), Rect4(-1, 0, 5, 300)) << "the limit lies a pixel past the edge";
    EXPECT_FALSE(IsWindowVisible(s.left));
    EXPECT_EQ(Rect4(InParent(s.right)), Rect4(5, 0, 400, 300));
    s.Mouse(WM_LBUTTONDOWN, 3, 50);
    s.Mouse(WM_LBUTTONUP, 900, 50);
    EXPECT_EQ(Rect4(InParent(s.bar())), Rect4(395, 0, 401, 300)) << "clamped at the right";
    EXPECT_TRUE(IsWindowVisible(s.left)) << "shown again";
    EXPECT_FALSE(IsWindowVisible(s.right));
}

TEST(SplitterChildren, AtRunTimeTheSiblingsArePassedOverOrPlaced) {
    WNDCLASSW handleClass{};
    handleClass.lpfnWndProc = DefWindowProcW;
    handleClass.hInstance = GetModuleHandleW(nullptr);
    handleClass.lpszClassName = L"Brandle:Handle";
    RegisterClassW(&handleClass);
    zkt::TestWindow form(400, 300);
    HWND handle = form.AddChild(L"Brandle:Handle", 5, {0, 0, 8, 8}, 0);
    HWND hidden = form.AddChild(L"Static", 6, {0, 0, 8, 8}, 0);
    ShowWindow(hidden, SW_HIDE);
    ZkHostSetWinType(hidden, 0x8000000, 0);
    HWND skipped = form.AddChild(L"Static", 7, {0, 0, 8, 8}, 0);
    HWND one = form.AddChild(L"Static", 1, {0, 0, 50, 50}, 0);
    HWND two = form.AddChild(L"Static", 2, {300, 0, 50, 50}, 0);
    HWND bar = CreateWindowExW(0, L"ZK:cSplitter:10", L"", WS_CHILD | WS_VISIBLE, 200, 0, 6, 300, form, nullptr,
                               GetModuleHandleW(nullptr), ctltest::runTime);
    zkt::PumpMessages();
    SendMessageW(bar, ZKM_Refresh, 0, 0);
    EXPECT_TRUE(IsWindowVisible(handle)) << "the host's handle is no child";
    EXPECT_EQ(Rect4(InParent(hidden)), Rect4(0, 0, 200, 300)) << "the hidden directly moved window counts";
    EXPECT_EQ(Rect4(InParent(skipped)), Rect4(0, 0, 8, 8)) << "and the window after it is passed over";
    EXPECT_EQ(Rect4(InParent(one)), Rect4(206, 0, 400, 300));
    EXPECT_EQ(Rect4(InParent(two)), Rect4(300, 0, 350, 50)) << "two found: the walk ends";
    UnregisterClassW(L"Brandle:Handle", GetModuleHandleW(nullptr));
}

TEST_F(WithBlock, InDesignModeTheOutlineGivesTheChildren) {
    zkt::TestWindow form(400, 300);
    const HostItem formItem = item;
    HWND left = form.AddChild(L"Static", 1, {0, 0, 50, 50}, WS_BORDER);
    HWND right = form.AddChild(L"Static", 2, {0, 0, 50, 50}, 0);
    ZkHostDesignBindWindow(outline, ZkHostDesignAddItem(outline, formItem, 22), left);
    const HostItem barItem = ZkHostDesignAddItem(outline, formItem, 22);
    ZkHostDesignBindWindow(outline, ZkHostDesignAddItem(outline, formItem, 22), right);
    ZkHostDesignAddItem(outline, formItem, 22); // an item without a window
    Bind(form);
    HWND bar = CreateWindowExW(0, L"ZK:cSplitter:10", L"", WS_CHILD | WS_VISIBLE, 120, 30, 2, 20, form, nullptr,
                               GetModuleHandleW(nullptr), nullptr);
    EXPECT_EQ(Rect4(InParent(bar)), Rect4(120, 0, 126, 300)) << "a design-mode bar tiles itself when made";
    ZkHostDesignBindWindow(outline, barItem, bar);
    SendMessageW(bar, ZKM_Refresh, 0, 0);
    EXPECT_EQ(Rect4(InParent(left)), Rect4(0, 0, 120, 300));
    EXPECT_EQ(Rect4(InParent(right)), Rect4(126, 0, 400, 300));
    EXPECT_NE(GetWindowLongPtrW(left, GWL_STYLE) & WS_BORDER, 0) << "found children keep their style";
    SetWindowPos(bar, nullptr, 200, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    EXPECT_EQ(Rect4(InParent(left)), Rect4(0, 0, 200, 300)) << "in design mode a moved bar places its children";
    EXPECT_EQ(Rect4(InParent(right)), Rect4(206, 0, 400, 300));
}

TEST(SplitterChildren, TheHostsOwnWindowsMoveInFormUnitsAndItsFrameStaysActive) {
    SplitterForm s;
    ZkHostSetWinType(s.left, 0x8000000, 0);
    // The form inside a host frame: the children's root is the frame.
    HWND frame = ZkHostFrameCreate(HOST_FRAME_Frame, nullptr, L"frame", nullptr, 0);
    ASSERT_NE(frame, nullptr);
    const LONG_PTR style = GetWindowLongPtrW(s.form, GWL_STYLE);
    SetWindowLongPtrW(s.form, GWL_STYLE, (style & ~static_cast<LONG_PTR>(WS_POPUP)) | WS_CHILD);
    SetParent(s.form, frame);
    zkt::MessageRecorder recorder;
    recorder.watch(frame);
    s.SetChildren();
    EXPECT_EQ(Rect4(InParent(s.left)), Rect4(0, 0, 100, 300)) << "through HostWinSetLocation and HostWinSetSize";
    EXPECT_EQ(Rect4(InParent(s.right)), Rect4(106, 0, 400, 300));
    int activations = 0;
    for (const zkt::RecordedMessage &m : recorder.messages())
        if (m.message == WM_NCACTIVATE && m.wParam == 1 && !m.posted)
            ++activations;
    EXPECT_EQ(activations, 2) << "one for each child set";
    SetParent(s.form, nullptr);
    SetWindowLongPtrW(s.form, GWL_STYLE, style);
    DestroyWindow(frame);
}

TEST_F(WithBlock, TheWrapperReadsItsBlockFromTheFormsItem) {
    zk::ctl::SPropSplitter block;
    block.orientation = zk::ctl::kHorizontalBar;
    block.displayHandle = 1;
    block.invertWhenDragging = 0;
    block.bevelLines = 0;
    Store(block);
    zkt::TestWindow form(400, 300);

    Bind(form);
    HWND top = form.AddChild(L"Static", 1, {0, 0, 400, 100}, SS_WHITERECT);
    HWND bottom = form.AddChild(L"Static", 2, {0, 106, 400, 194}, SS_WHITERECT);
    HWND bar = CreateWindowExW(0, L"ZK:cSplitter:10", L"", WS_CHILD | WS_VISIBLE, 0, 100, 400, 6, form, nullptr,
                               GetModuleHandleW(nullptr), ctltest::runTime);
    MSG m{};
    ASSERT_TRUE(PeekMessageW(&m, bar, ZKM_ControlCreate, ZKM_ControlCreate, PM_REMOVE));
    const auto control = static_cast<ZelSplitControl>(m.lParam);
    auto *splitter = reinterpret_cast<zk::ctl::CSplitter *>(control);
    EXPECT_EQ(ZelSplitGetOrientation(control), 0);
    ZelSplitSetChild(control, 1, top);
    ZelSplitSetChild(control, 2, bottom);
    RedrawWindow(form, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);

    SendMessageW(bar, WM_SETCURSOR, reinterpret_cast<WPARAM>(bar), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    EXPECT_EQ(GetCursor(), LoadCursorW(GetModuleHandleW(L"ZKLIB.dll"), L"IDC_HSplit"));

    const int handle = splitter->HandleSize();
    ASSERT_GT(handle, 0);
    const zkt::Bitmap painted = zkt::PrintClient(bar);
    const COLORREF face = GetSysColor(COLOR_BTNFACE);
    EXPECT_EQ(painted.pixel(10, 0), face) << "no edge lines";
    EXPECT_EQ(painted.pixel(10, 5), face);
    EXPECT_EQ(painted.pixel(400 - handle, 3), RGB(0, 0, 0)) << "the handle at the right end";
    EXPECT_EQ(painted.pixel(399 - handle, 3), face);

    const RECT area = ClientOnScreen(form);
    const zkt::Bitmap before = ctltest::Screen(area);
    SendMessageW(bar, WM_LBUTTONDOWN, MK_LBUTTON, zkt::ClientPoint(50, 2));
    const zkt::Bitmap pressed = ctltest::Screen(area);
    EXPECT_TRUE(Inverted(pressed, before, 390 - handle, 103));
    EXPECT_FALSE(Inverted(pressed, before, 400 - handle, 103)) << "the band stops short of the handle";
    SendMessageW(bar, WM_MOUSEMOVE, MK_LBUTTON, zkt::ClientPoint(50, 32));
    SendMessageW(bar, WM_LBUTTONUP, 0, zkt::ClientPoint(50, 32));
    EXPECT_EQ(Rect4(InParent(bar)), Rect4(0, 130, 400, 136));
    EXPECT_EQ(Rect4(InParent(top)), Rect4(0, 0, 400, 130));
    EXPECT_EQ(Rect4(InParent(bottom)), Rect4(0, 136, 400, 300));
}

TEST(SplitterPaint, TheEdgesRunAlongTheBarInTheSystemsColours) {
    SplitterForm s;
    s.SetChildren();
    const zkt::Bitmap p = zkt::PrintClient(s.bar());
    ASSERT_EQ(p.width(), 6);
    const COLORREF expected[6] = {GetSysColor(COLOR_BTNFACE),   GetSysColor(COLOR_BTNHIGHLIGHT),
                                  GetSysColor(COLOR_BTNFACE),   GetSysColor(COLOR_BTNFACE),
                                  GetSysColor(COLOR_BTNSHADOW), GetSysColor(COLOR_WINDOWFRAME)};
    for (int y : {0, 150, 299})
        for (int x = 0; x < 6; ++x)
            EXPECT_EQ(p.pixel(x, y), expected[x]) << x << "," << y;
}

TEST(SplitterExports, ANullControlShowsTheBoxAndFailsWithoutATrace) {
    zkt::DebugOutputCapture capture;
    zkt::DialogAnswerer answerer(IDOK);
    EXPECT_EQ(ZelSplitGetOrientation(0), -1);
    EXPECT_EQ(ZelSplitMoveToDragPos(0), -1);
    ZelSplitResizeObjects(0);
    EXPECT_EQ(ZelSplitSetChild(0, 1, GetDesktopWindow()), nullptr);
    EXPECT_EQ(ZelSplitTileToParent(0), 0);
    ASSERT_EQ(answerer.answered(), 5);
    const auto texts = answerer.dialogs()[3].StaticTexts();
    ASSERT_FALSE(texts.empty());
    EXPECT_EQ(texts.back().rfind(L"Function 'ZelSplitSetChild()' unable to act", 0), 0u);
    EXPECT_EQ(capture.calls(), 0u);
}

} // namespace
