// The bootstrap of host-created classes: the object made at WM_NCCREATE,
// ZKM_ControlCreate sent or posted as OrlParentWindowOnly answers, the
// forms of attachment, and the window owning its object.
#include "designer_win_test.h"

using namespace designertest;
using zkt::ExpectedMessage;

namespace {

class Bootstrap : public testing::Test {
protected:
    void SetUp() override {
        zkt::PumpMessages();
        constructed = TestControl::constructed;
        destroyed = TestControl::destroyed;
    }
    void TearDown() override { ZkHostSetParentWindowOnly(parent, 0); }
    int made() const { return TestControl::constructed - constructed; }
    int gone() const { return TestControl::destroyed - destroyed; }

    zkt::TestWindow parent;
    int constructed = 0, destroyed = 0;
};

const std::vector<UINT> kNoise = [] {
    std::vector<UINT> noise = zkt::CommonNoise();
    for (UINT m : {WM_GETMINMAXINFO, WM_NCCALCSIZE, WM_SHOWWINDOW, WM_WINDOWPOSCHANGING, WM_WINDOWPOSCHANGED, WM_MOVE,
                   WM_SIZE, WM_PAINT, WM_NCPAINT, WM_ERASEBKGND, WM_SETFONT, WM_CHILDACTIVATE, WM_PARENTNOTIFY,
                   WM_GETTEXT, WM_QUERYUISTATE, WM_GETOBJECT})
        noise.push_back(m);
    return noise;
}();

std::vector<zkt::RecordedMessage> Of(const zkt::MessageRecorder &recorder, HWND window) {
    std::vector<zkt::RecordedMessage> mine;
    for (const auto &m : recorder.messages())
        if (m.hwnd == window)
            mine.push_back(m);
    return mine;
}

TEST_F(Bootstrap, WhileTheHostBuildsTheFormTheAnnouncementIsPostedAfterCreation) {
    zkt::MessageRecorder recorder;
    recorder.WatchAll();
    HWND window = MakeControl(kHostClass, parent);
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(made(), 1);
    auto *object = zk::Window::FromHandle(window);
    ASSERT_NE(object, nullptr) << "the object exists as soon as the window does";
    EXPECT_EQ(HostKeptPointer(window), 0) << "nothing announced during creation";
    zkt::PumpMessages();
    const LPARAM pointer = reinterpret_cast<LPARAM>(object);
    EXPECT_EQ(HostKeptPointer(window), pointer);
    EXPECT_TRUE(zkt::MatchSequence(Of(recorder, window),
                                   {{WM_NCCREATE, zkt::sent},
                                    {WM_CREATE, zkt::sent},
                                    {ZKM_ControlCreate, zkt::posted | zkt::wparam | zkt::lparam, 0, pointer}},
                                   kNoise));
    DestroyWindow(window);
}

TEST_F(Bootstrap, AWindowMadeOnItsOwnUnderItsParentAnnouncesAtOnce) {
    ZkHostSetParentWindowOnly(parent, 1);
    zkt::MessageRecorder recorder;
    recorder.WatchAll();
    HWND window = MakeControl(kHostClass, parent);
    ASSERT_NE(window, nullptr);
    const LPARAM pointer = reinterpret_cast<LPARAM>(zk::Window::FromHandle(window));
    EXPECT_NE(pointer, 0);
    EXPECT_EQ(HostKeptPointer(window), pointer) << "known when CreateWindowExW returns";
    zkt::PumpMessages();
    EXPECT_TRUE(zkt::MatchSequence(Of(recorder, window),
                                   {{WM_NCCREATE, zkt::sent},
                                    {ZKM_ControlCreate, zkt::sent | zkt::wparam | zkt::lparam, 0, pointer},
                                    {WM_CREATE, zkt::sent}},
                                   kNoise));
    EXPECT_EQ(recorder.count(ZKM_ControlCreate, window), 1);
    DestroyWindow(window);
}

TEST_F(Bootstrap, OnItsOwnProcedureTheObjectIsSubclassedInFrontOfDefWindowProc) {
    HWND window = MakeControl(kSubclassClass, parent);
    ASSERT_NE(window, nullptr);
    auto *object = zk::Window::FromHandle(window);
    ASSERT_NE(object, nullptr);
    EXPECT_EQ(reinterpret_cast<WNDPROC>(GetWindowLongPtrW(window, GWLP_WNDPROC)), &zk::Window::FrameProcedure);
    EXPECT_EQ(object->DefaultProcedure(), &DefWindowProcW);
    SetWindowTextW(window, L"text");
    wchar_t text[8] = {};
    GetWindowTextW(window, text, 8);
    EXPECT_STREQ(text, L"text") << "what the object leaves reaches DefWindowProcW";
    DestroyWindow(window);
    EXPECT_EQ(gone(), 1);
}

TEST_F(Bootstrap, UnderAHostClassTheObjectIsAttachedAndTheHostKeepsItsProcedure) {
    HWND window = MakeControl(kHostClass, parent);
    ASSERT_NE(window, nullptr);
    auto *object = static_cast<TestControl *>(zk::Window::FromHandle(window));
    ASSERT_NE(object, nullptr);
    EXPECT_NE(reinterpret_cast<WNDPROC>(GetWindowLongPtrW(window, GWLP_WNDPROC)), &zk::Window::FrameProcedure);
    EXPECT_EQ(object->DefaultProcedure(), nullptr);
    EXPECT_EQ(SendMessageW(window, WM_GETDLGCODE, 0, 0), DLGC_WANTARROWS | DLGC_WANTCHARS)
        << "messages pass through the bootstrap to the object";
    DestroyWindow(window);
    EXPECT_EQ(gone(), 1);
}

TEST_F(Bootstrap, AnObjectThatCannotBeMadeEndsCreationOrIsAnnouncedAsNull) {
    EXPECT_EQ(MakeControl(kFailingClass, parent), nullptr) << "WM_NCCREATE answers 0";
    EXPECT_EQ(gone(), 1) << "the half-made object is not kept";

    zkt::MessageRecorder recorder;
    recorder.WatchAll();
    HWND window = MakeControl(kFailingKeepClass, parent);
    ASSERT_NE(window, nullptr) << "the keeping form goes on without an object";
    EXPECT_EQ(zk::Window::FromHandle(window), nullptr);
    zkt::PumpMessages();
    ASSERT_EQ(recorder.count(ZKM_ControlCreate, window), 1);
    for (const auto &m : recorder.messages()) {
        if (m.message == ZKM_ControlCreate) {
            EXPECT_EQ(m.lParam, 0);
        }
    }
    DestroyWindow(window);
}

} // namespace
