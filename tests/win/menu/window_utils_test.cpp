// The plain window functions: forms seen through their frames, children by
// caption, selections, tab order, styles and properties; the wait cursor's
// depth through nested and unbalanced calls, in the host's form and with
// the mouse captured.
#include <algorithm>

#include "array_support.h"
#include "window_support.h"

using namespace menutest;

namespace {

// The text of a string the library made, which is the test's to release.
std::wstring HostText(HostStr handle) {
    const std::wstring text = arraytest::Text(handle);
    ZkHostStrRelease(handle);
    return text;
}

// A form of the host inside its frame, as the host shows forms.
class FramedForm : public ::testing::Test {
protected:
    void SetUp() override {
        form = frame.AddChild(L"Static", 1, {0, 0, 300, 200}, 0, L"the form itself");
        ZkHostSetWinType(form, HOST_WT_FORM, 0);
    }
    zkt::TestWindow frame{320, 240, L"Orders"};
    HWND form = nullptr;
};

TEST_F(FramedForm, TextStateAndPlaceAreTheFramesOwn) {
    EXPECT_EQ(HostText(ZelWinGetText(form)), L"Orders");
    EXPECT_EQ(ZelWinIsWindow(form), 1);
    EXPECT_EQ(ZelWinIsRestored(form), 1);

    EXPECT_NE(ZelWinShow(form, SW_SHOWMAXIMIZED), 0) << "the frame was visible";
    EXPECT_TRUE(IsZoomed(frame));
    EXPECT_EQ(ZelWinIsMaximized(form), 1);
    EXPECT_EQ(ZelWinIsRestored(form), 0);
    // Restored from the maximised state first: a window minimised from it
    // is restored to maximised again.
    ZelWinShow(form, SW_SHOWNORMAL);
    EXPECT_EQ(ZelWinIsRestored(form), 1);
    ZelWinShow(form, SW_SHOWMINIMIZED);
    EXPECT_EQ(ZelWinIsMinimized(form), 1);
    ZelWinShow(form, SW_SHOWNORMAL);
    EXPECT_EQ(ZelWinIsRestored(form), 1);

    EXPECT_EQ(ZelWinMove(form, 50, 60, 300, 200), 1);
    RECT r{};
    GetWindowRect(frame, &r);
    EXPECT_EQ(r.left, 50);
    EXPECT_EQ(r.top, 60);
    EXPECT_EQ(r.right - r.left, 300);

    // Without a frame there is nothing to see.
    ZkHostSetWinType(form, HOST_WT_FORM, 0);
    HWND orphan = CreateWindowExW(0, L"Static", L"alone", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr,
                                  GetModuleHandleW(nullptr), nullptr);
    ZkHostSetWinType(orphan, HOST_WT_FORM, 0);
    EXPECT_EQ(ZelWinIsWindow(orphan), 0);
    EXPECT_EQ(HostText(ZelWinGetText(orphan)), L"");
    DestroyWindow(orphan);
    EXPECT_EQ(HostText(ZelWinGetText(nullptr)), L"");
}

TEST_F(FramedForm, ATableIsShownThroughItsHolder) {
    HWND holder = CreateWindowExW(0, L"Static", L"", WS_CHILD | WS_VISIBLE, 0, 0, 100, 100, form, nullptr,
                                  GetModuleHandleW(nullptr), nullptr);
    HWND table = CreateWindowExW(0, L"Static", L"", WS_CHILD | WS_VISIBLE, 0, 0, 50, 50, holder, nullptr,
                                 GetModuleHandleW(nullptr), nullptr);
    ZkHostSetWinType(holder, HOST_WT_TABLEHOLDER, 0);
    ZkHostSetWinType(table, HOST_WT_TABLE, 0);
    EXPECT_NE(ZelWinShow(table, SW_HIDE), 0);
    EXPECT_FALSE(IsWindowVisible(holder));
    EXPECT_NE(GetWindowLongW(table, GWL_STYLE) & WS_VISIBLE, 0) << "the table itself stays as it was";

    ZkHostSetWinType(holder, 0, 0); // no holder: the table shows itself
    ZelWinShow(table, SW_HIDE);
    EXPECT_EQ(GetWindowLongW(table, GWL_STYLE) & WS_VISIBLE, 0);
}

TEST(WindowUtils, ChildrenAreFoundByTheirCaptionWithoutItsMnemonic) {
    zkt::TestWindow form;
    HWND open = form.AddButton(1, {10, 10, 80, 24}, L"&Open");
    HWND check = form.AddButton(2, {10, 40, 80, 24}, L"Op&en", BS_AUTOCHECKBOX);
    HWND both = form.AddButton(3, {10, 70, 80, 24}, L"Save && &Close");
    EXPECT_EQ(ZelWinGetHandle(form, L"open", 0x7FFFFFFF), FirstInZOrder(form, {open, check}));
    EXPECT_EQ(ZelWinGetHandle(form, L"OPEN", HOST_WT_CHECKBOX), check);
    EXPECT_EQ(ZelWinGetHandle(form, L"save & &close", 0x7FFFFFFF), both) << "only the first & goes";
    EXPECT_EQ(ZelWinGetHandle(form, L"save & close", 0x7FFFFFFF), nullptr);
    EXPECT_EQ(ZelWinGetHandle(form, L"&Open", 0x7FFFFFFF), nullptr);
    EXPECT_EQ(ZelWinGetHandle(form, nullptr, 0x7FFFFFFF), nullptr);
    EXPECT_EQ(ZelWinGetHandle(nullptr, L"open", 0x7FFFFFFF), nullptr);
}

TEST(WindowUtils, SelectionTabOrderAndStyle) {
    zkt::TestWindow form;
    HWND edit = form.AddEdit(1, {10, 10, 100, 22}, WS_TABSTOP, L"abcdef");
    HWND combo = form.AddComboBox(2, {10, 40, 100, 100}, CBS_DROPDOWN);
    HWND button = form.AddButton(3, {10, 80, 80, 24}, L"button", WS_TABSTOP);
    SetWindowTextW(combo, L"uvwxyz");

    DWORD start = 0, end = 0;
    EXPECT_EQ(ZelWinSetSelect(edit, 1, 3), 1);
    SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    EXPECT_EQ(start, 1u);
    EXPECT_EQ(end, 3u);
    EXPECT_EQ(ZelWinSetSelect(combo, 2, 4), 1);
    SendMessageW(combo, CB_GETEDITSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    EXPECT_EQ(start, 2u);
    EXPECT_EQ(end, 4u);
    EXPECT_EQ(ZelWinSetSelect(button, 0, 1), 0);

    EXPECT_NE(ZelWinSetTabOrder(edit, button), 0);
    EXPECT_EQ(GetWindow(button, GW_HWNDNEXT), edit);
    EXPECT_EQ(ZelWinSetTabOrder(button, nullptr), 1);
    EXPECT_EQ(GetWindowLongW(button, GWL_STYLE) & WS_TABSTOP, 0);
    EXPECT_EQ(ZelWinSetTabOrder(edit, reinterpret_cast<HWND>(0x1234)), 0);

    EXPECT_EQ(ZelWinGetStyle(edit) & WS_TABSTOP, WS_TABSTOP);
    EXPECT_NE(ZelWinSetStyle(edit, WS_TABSTOP | ES_UPPERCASE, 0), 0);
    EXPECT_EQ(ZelWinGetStyle(edit) & (WS_TABSTOP | ES_UPPERCASE), 0);
    EXPECT_EQ(ZelWinGetStyle(nullptr), -1);
    EXPECT_EQ(ZelWinSetStyle(nullptr, 1, 1), 0);
    EXPECT_EQ(ZelWinIsChild(form, edit), 1);
    EXPECT_EQ(ZelWinIsChild(edit, form), 0);
}

TEST(WindowUtils, PropertiesOfTheApplication) {
    zkt::TestWindow form;
    EXPECT_EQ(ZelWinSetProp(form, L"App:Count", 0x1234), 1);
    EXPECT_EQ(ZelWinSetProp(form, L"App:Zero", 0), 1);
    EXPECT_EQ(ZelWinGetProp(form, L"App:Count"), 0x1234);
    EXPECT_EQ(ZelWinGetProp(form, L"app:count"), 0x1234) << "names ignore case, as atoms do";
    EXPECT_EQ(ZelWinSetProp(nullptr, L"App:Count", 1), 0);

    const HostArray names = HostArrayCreate(HOST_TYPE_STRING), values = HostArrayCreate(HOST_TYPE_NUMBER);
    const int32_t count = ZelWinEnumProps(form, names, values);
    EXPECT_GE(count, 2);
    EXPECT_EQ(arraytest::BoundsOf(names), (arraytest::Bounds{count, 0, count - 1}));
    EXPECT_EQ(arraytest::BoundsOf(values), (arraytest::Bounds{count, 0, count - 1}));
    const std::vector<std::wstring> texts = arraytest::TextsOf(names);
    const auto at = std::find(texts.begin(), texts.end(), L"App:Count");
    ASSERT_NE(at, texts.end());
    EXPECT_EQ(std::count(texts.begin(), texts.end(), L"App:Count"), 1);
    EXPECT_EQ(arraytest::LongsOf(values)[at - texts.begin()], 0x1234);
    HostArrayDestroy(names);
    HostArrayDestroy(values);

    EXPECT_EQ(ZelWinRemoveProp(form, L"App:Zero"), 1) << "a property holding 0 is still one";
    EXPECT_EQ(ZelWinRemoveProp(form, L"App:Zero"), 0);
    EXPECT_EQ(ZelWinRemoveProp(form, L"App:Count"), 1);
    EXPECT_EQ(ZelWinGetProp(form, L"App:Count"), 0);
}

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
