// The window-object framework: attachment, ownership, Default() and
// subclassing, exceptions inside handlers.
#include <algorithm>
#include <stdexcept>

#include "designer_win_test.h"
#include "frame/win/window.h"

namespace {

const wchar_t kFrameClass[] = L"ZKTest:Frame";

void RegisterFrameClass() {
    static bool done = false;
    if (done)
        return;
    WNDCLASSW wc{};
    wc.style = CS_GLOBALCLASS; // found whatever instance CreateEx names
    wc.lpfnWndProc = &zk::Window::FrameProcedure;
    wc.hInstance = GetModuleHandleW(nullptr);
    wc.lpszClassName = kFrameClass;
    done = RegisterClassW(&wc) != 0;
    ASSERT_TRUE(done);
}

// Counts what reaches it; may throw on one message; may live on the stack.
class Probe : public zk::Window {
public:
    std::vector<UINT> seen;
    UINT throwOn = 0;
    bool ownedByWindow = true;
    int *postNcDestroys = nullptr;
    int *destructions = nullptr;
    ~Probe() override {
        if (destructions)
            ++*destructions;
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        seen.push_back(message);
        if (message == throwOn && throwOn)
            throw std::runtime_error("handler");
        if (message == WM_APP) {
            // A message sent from inside a handler has its own Default().
            SendMessageW(GetSafeHwnd(), WM_APP + 1, 11, 12);
            return Default();
        }
        return Window::WindowProc(message, wParam, lParam);
    }
    void PostNcDestroy() override {
        if (postNcDestroys)
            ++*postNcDestroys;
        if (ownedByWindow)
            Window::PostNcDestroy();
    }
};

TEST(WindowFramework, CreateExAttachesFromTheFirstMessageAndTheWindowDeletesTheObject) {
    RegisterFrameClass();
    int posts = 0, deaths = 0;
    auto *probe = new Probe;
    probe->postNcDestroys = &posts;
    probe->destructions = &deaths;
    HWND window = probe->CreateEx(0, kFrameClass, L"t", WS_OVERLAPPED, 0, 0, 50, 50, nullptr, nullptr);
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(zk::Window::FromHandle(window), probe);
    EXPECT_EQ(probe->GetSafeHwnd(), window);
    ASSERT_FALSE(probe->seen.empty());
    EXPECT_TRUE(probe->seen[0] == WM_GETMINMAXINFO || probe->seen[0] == WM_NCCREATE);
    EXPECT_NE(std::find(probe->seen.begin(), probe->seen.end(), WM_CREATE), probe->seen.end());
    DestroyWindow(window);
    EXPECT_EQ(posts, 1);
    EXPECT_EQ(deaths, 1) << "the window owns its object";
    EXPECT_EQ(zk::Window::FromHandle(window), nullptr);
}

TEST(WindowFramework, AFailedCreationEndsTheObjectOnce) {
    RegisterFrameClass();
    int posts = 0, deaths = 0;
    auto *probe = new Probe;
    probe->postNcDestroys = &posts;
    probe->destructions = &deaths;
    probe->throwOn = WM_CREATE;
    EXPECT_EQ(probe->CreateEx(0, kFrameClass, L"", WS_OVERLAPPED, 0, 0, 10, 10, nullptr, nullptr), nullptr)
        << "a throwing WM_CREATE answers -1";
    EXPECT_EQ(posts, 1);
    EXPECT_EQ(deaths, 1);

    auto *lost = new Probe;
    lost->postNcDestroys = &posts;
    lost->destructions = &deaths;
    EXPECT_EQ(lost->CreateEx(0, L"ZKTest:NoSuchClass", L"", WS_OVERLAPPED, 0, 0, 10, 10, nullptr, nullptr), nullptr);
    EXPECT_EQ(posts, 2) << "a window that never came still ends its object";
    EXPECT_EQ(deaths, 2);
}

TEST(WindowFramework, AnExceptionInAHandlerAnswersZeroAndGoesNoFurther) {
    RegisterFrameClass();
    Probe probe;
    probe.ownedByWindow = false;
    ASSERT_TRUE(probe.CreateEx(0, kFrameClass, L"", WS_OVERLAPPED, 0, 0, 10, 10, nullptr, nullptr));
    probe.throwOn = WM_GETDLGCODE;
    EXPECT_EQ(SendMessageW(probe.GetSafeHwnd(), WM_GETDLGCODE, 0, 0), 0);
    probe.throwOn = WM_PAINT;
    InvalidateRect(probe.GetSafeHwnd(), nullptr, FALSE);
    SendMessageW(probe.GetSafeHwnd(), WM_PAINT, 0, 0);
    EXPECT_FALSE(GetUpdateRect(probe.GetSafeHwnd(), nullptr, FALSE)) << "a failed paint validates";
    DestroyWindow(probe.GetSafeHwnd());
}

// The former procedure of a subclassed window: records what it is given.
std::vector<std::pair<UINT, WPARAM>> formerSaw;
LRESULT CALLBACK Former(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message >= WM_APP)
        formerSaw.emplace_back(message, wParam);
    return DefWindowProcW(window, message, wParam, lParam);
}

TEST(WindowFramework, DefaultGivesEachMessageToTheFormerProcedureEvenWhenNested) {
    HWND window = CreateWindowExW(0, L"static", L"", WS_OVERLAPPED, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    ASSERT_NE(window, nullptr);
    SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Former));
    Probe probe;
    probe.ownedByWindow = false;
    ASSERT_TRUE(probe.SubclassWindow(window));
    EXPECT_EQ(probe.DefaultProcedure(), &Former);
    EXPECT_EQ(reinterpret_cast<WNDPROC>(GetWindowLongPtrW(window, GWLP_WNDPROC)), &zk::Window::FrameProcedure);
    formerSaw.clear();
    SendMessageW(window, WM_APP, 5, 6);
    EXPECT_EQ(formerSaw, (std::vector<std::pair<UINT, WPARAM>>{{WM_APP + 1, 11}, {WM_APP, 5}}));
    EXPECT_FALSE(probe.SubclassWindow(window)) << "one object per window";
    EXPECT_EQ(probe.UnsubclassWindow(), window);
    EXPECT_EQ(reinterpret_cast<WNDPROC>(GetWindowLongPtrW(window, GWLP_WNDPROC)), &Former);
    EXPECT_EQ(zk::Window::FromHandle(window), nullptr);
    DestroyWindow(window);
}

} // namespace
