// The wait cursor's depth through nested and unbalanced calls, in the
// host's form and with the mouse captured.
#include "window_support.h"

namespace {

HCURSOR Wait() { return LoadCursorW(nullptr, IDC_WAIT); }

std::wstring ClassOf(HWND window) {
    wchar_t name[64] = {};
    GetClassNameW(window, name, 64);
    return name;
}

TEST(WaitCursor, HostFormNestsAndOverUnwindsToZero) {
    const int32_t hostBefore = ZkHostWaitCursorDepth();
    EXPECT_EQ(ZelWaitCursor(WAIT_HostOn), 1);
    EXPECT_EQ(ZelWaitCursor(WAIT_HostOn), 2);
    EXPECT_EQ(ZkHostWaitCursorDepth(), hostBefore + 1) << "the host is asked once";
    EXPECT_EQ(ZelWaitCursor(WAIT_HostOff), 1);
    EXPECT_EQ(ZkHostWaitCursorDepth(), hostBefore + 1) << "still on";
    EXPECT_EQ(ZelWaitCursor(WAIT_HostOff), 0);
    EXPECT_EQ(ZkHostWaitCursorDepth(), hostBefore);
    // Off at depth 0 stays at 0 and tells the host again.
    ZelWaitCursor(WAIT_HostOn);
    ZelWaitCursor(WAIT_HostOn);
    HostWaitCursor(1); // on twice at the host: the next two offs reach it
    EXPECT_EQ(ZelWaitCursor(WAIT_HostOff), 1);
    EXPECT_EQ(ZelWaitCursor(WAIT_HostOff), 0);
    EXPECT_EQ(ZelWaitCursor(WAIT_HostOff), 0);
    EXPECT_EQ(ZkHostWaitCursorDepth(), hostBefore);
    EXPECT_EQ(ZelWaitCursor(6), 0) << "another mode does nothing";
}

TEST(WaitCursor, CaptureFormHoldsTheMouseUntilTheLastOff) {
    zkt::TestWindow form;
    SetCursor(LoadCursorW(nullptr, IDC_ARROW));
    const HCURSOR before = GetCursor();
    EXPECT_EQ(ZelWaitCursor(WAIT_CaptureOn), 1);
    HWND capture = GetCapture();
    ASSERT_NE(capture, nullptr);
    EXPECT_EQ(ClassOf(capture), L"Zel:MouseCapture");
    EXPECT_FALSE(IsWindowVisible(capture));
    EXPECT_EQ(GetCursor(), Wait());
    // The host form counts into the same depth.
    EXPECT_EQ(ZelWaitCursor(WAIT_HostOn), 2);
    EXPECT_EQ(ZelWaitCursor(WAIT_CaptureOff), 1);
    EXPECT_EQ(GetCapture(), capture);
    EXPECT_EQ(ZelWaitCursor(WAIT_CaptureOff), 0);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(GetCursor(), before);

    // Unbalanced: off without on releases the capture and puts back the
    // cursor saved last.
    SetCapture(form);
    SetCursor(LoadCursorW(nullptr, IDC_CROSS));
    EXPECT_EQ(ZelWaitCursor(WAIT_CaptureOff), 0);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(GetCursor(), before);
    EXPECT_EQ(ZelWaitCursor(WAIT_CaptureOn), 1);
    EXPECT_EQ(GetCapture(), capture) << "the same hidden window, never destroyed";
    EXPECT_EQ(ZelWaitCursor(WAIT_CaptureOff), 0);
}

TEST(WaitCursor, PlainFormIsNotCounted) {
    SetCursor(LoadCursorW(nullptr, IDC_IBEAM));
    const HCURSOR before = GetCursor();
    EXPECT_EQ(ZelWaitCursor(WAIT_PlainOn), 0);
    EXPECT_EQ(GetCursor(), Wait());
    EXPECT_EQ(ZelWaitCursor(WAIT_PlainOff), 0);
    EXPECT_EQ(GetCursor(), before);
}

} // namespace
