// Pictures of windows: the whole top-level window with its children, and
// one control painted on demand.
#include <windows.h>

#include <gtest/gtest.h>

#include "capture.h"

namespace {

using gallery::Picture;

const wchar_t kClass[] = L"ZkGalleryCaptureTest";

// Fills its client area with the colour kept in its user data.
LRESULT CALLBACK SolidProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto fill = [window](HDC dc) {
        RECT client;
        GetClientRect(window, &client);
        HBRUSH brush = CreateSolidBrush(static_cast<COLORREF>(GetWindowLongPtrW(window, GWLP_USERDATA)));
        FillRect(dc, &client, brush);
        DeleteObject(brush);
    };
    switch (message) {
    case WM_ERASEBKGND:
        return 1;
    case WM_PAINT: {
        PAINTSTRUCT paint;
        fill(BeginPaint(window, &paint));
        EndPaint(window, &paint);
        return 0;
    }
    case WM_PRINTCLIENT:
        fill(reinterpret_cast<HDC>(wParam));
        return 0;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

struct GalleryCapture : ::testing::Test {
    void SetUp() override {
        WNDCLASSW cls{};
        cls.lpfnWndProc = SolidProc;
        cls.hInstance = GetModuleHandleW(nullptr);
        cls.lpszClassName = kClass;
        RegisterClassW(&cls);
        top = CreateWindowExW(WS_EX_TOPMOST, kClass, L"", WS_POPUP, 40, 40, 120, 80, nullptr, nullptr,
                              cls.hInstance, nullptr);
        child = CreateWindowExW(0, kClass, L"", WS_CHILD | WS_VISIBLE, 10, 20, 30, 40, top, nullptr,
                                cls.hInstance, nullptr);
        ASSERT_TRUE(top && child);
        SetWindowLongPtrW(top, GWLP_USERDATA, RGB(10, 200, 30));
        SetWindowLongPtrW(child, GWLP_USERDATA, RGB(200, 20, 100));
        ShowWindow(top, SW_SHOWNOACTIVATE);
        UpdateWindow(top);
    }
    void TearDown() override {
        if (top)
            DestroyWindow(top);
    }
    static uint32_t At(const Picture &p, int x, int y) {
        return p.pixels[static_cast<size_t>(y) * p.width + x] & 0xFFFFFF;
    }
    HWND top = nullptr;
    HWND child = nullptr;
};

TEST_F(GalleryCapture, TopLevelPictureHoldsTheWindowAndItsChildren) {
    const Picture picture = gallery::CaptureTopLevel(top);
    ASSERT_EQ(120, picture.width);
    ASSERT_EQ(80, picture.height);
    EXPECT_EQ(0x0AC81Eu, At(picture, 0, 0));      // RGB(10, 200, 30) as 0xRRGGBB
    EXPECT_EQ(0x0AC81Eu, At(picture, 119, 79));
    EXPECT_EQ(0xC81464u, At(picture, 10, 20));    // the child's first pixel
    EXPECT_EQ(0xC81464u, At(picture, 39, 59));    // and its last
    EXPECT_EQ(0x0AC81Eu, At(picture, 40, 60));
}

TEST_F(GalleryCapture, ControlPictureIsItsClientAreaPaintedOnDemand) {
    const Picture picture = gallery::CaptureControl(child);
    ASSERT_EQ(30, picture.width);
    ASSERT_EQ(40, picture.height);
    EXPECT_TRUE(picture.Uniform());
    EXPECT_EQ(0xC81464u, At(picture, 0, 0));
}

TEST_F(GalleryCapture, NoWindowGivesAnEmptyPicture) {
    EXPECT_TRUE(gallery::CaptureTopLevel(nullptr).Empty());
    EXPECT_TRUE(gallery::CaptureControl(nullptr).Empty());
    HWND gone = child;
    DestroyWindow(top);
    top = nullptr;
    EXPECT_TRUE(gallery::CaptureControl(gone).Empty());
}

} // namespace
