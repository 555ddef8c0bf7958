// A list adopted before it is created (as a host class does from its
// creation hook) sees its own WM_CREATE through the engine.
#include "model_fixture.h"
#include "zkhost.h"
#include "zkhostctl.h"

namespace {

using namespace outlinetest;

HHOOK hook = nullptr;
uint32_t adoptStyle = 0;
const wchar_t *verticalBar = nullptr; // designer attribute 225, index 1, when given
HostOutline outline = 0;

LRESULT CALLBACK AdoptAtCreation(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HCBT_CREATEWND) {
        auto *create = reinterpret_cast<CBT_CREATEWNDW *>(lParam);
        if (create->lpcs->lpszClass && !IS_INTRESOURCE(create->lpcs->lpszClass) &&
            lstrcmpiW(create->lpcs->lpszClass, L"ListBox") == 0) {
            HWND list = reinterpret_cast<HWND>(wParam);
            if (verticalBar) {
                const HostItem item = ZkHostDesignAddItem(outline, 0, 1);
                HostDesignSetAttribute(outline, item, 225, verticalBar, 1);
                ZkHostDesignBindWindow(outline, item, list);
            }
            ZelListSetStyle(list, adoptStyle, nullptr);
        }
    }
    return CallNextHookEx(hook, code, wParam, lParam);
}

HWND CreateAdopted(zkt::TestWindow &form, uint32_t style, const wchar_t *bar = nullptr) {
    adoptStyle = style;
    verticalBar = bar;
    hook = SetWindowsHookExW(WH_CBT, AdoptAtCreation, nullptr, GetCurrentThreadId());
    // Created without a vertical bar; a list that was not created with one
    // leaves the bar as others set it.
    HWND list = form.AddListBox(kListId, {0, 0, 120, 100}, (kListStyle & ~WS_VSCROLL) | LBS_DISABLENOSCROLL);
    UnhookWindowsHookEx(hook);
    return list;
}

TEST(ListCreate, AWideExtentIsTwiceTheWidthAndTheVerticalBarShows) {
    zkt::TestWindow form;
    HWND list = CreateAdopted(form, LBX_StyleWideExtent);
    ASSERT_EQ(Send(list, ZKM_LbxProbe), 1);
    RECT frame{};
    GetWindowRect(list, &frame);
    EXPECT_EQ(Send(list, LB_GETHORIZONTALEXTENT), 2 * (frame.right - frame.left));
    // No designer attribute says "no": the vertical bar is shown.
    EXPECT_TRUE(GetWindowLongW(list, GWL_STYLE) & WS_VSCROLL);
    EXPECT_GE(ZelListAddColor(list, L"row", 0), 0);
    EXPECT_EQ(RowText(list, 0), L"row");
}

TEST(ListCreate, WithoutTheWideStyleTheExtentStaysZero) {
    zkt::TestWindow form;
    HWND list = CreateAdopted(form, LBX_StyleOwnerDraw);
    EXPECT_EQ(Send(list, LB_GETHORIZONTALEXTENT), 0);
}

TEST(ListCreate, TheDesignersNoKeepsTheVerticalBarHidden) {
    outline = ZkHostDesignNewOutline();
    ASSERT_NE(outline, 0u);
    {
        zkt::TestWindow form;
        HWND hidden = CreateAdopted(form, LBX_StyleOwnerDraw, L"No");
        EXPECT_FALSE(GetWindowLongW(hidden, GWL_STYLE) & WS_VSCROLL);
        HWND shown = CreateAdopted(form, LBX_StyleOwnerDraw, L"yes");
        EXPECT_TRUE(GetWindowLongW(shown, GWL_STYLE) & WS_VSCROLL);
    }
    ZkHostDesignFreeOutline(outline);
}

} // namespace
