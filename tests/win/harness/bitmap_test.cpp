// Pictures: the memory bitmap, the BMP writer and the window captures.
#include "zkharness.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <fstream>
#include <iterator>
#include <vector>

namespace {

const COLORREF kRed = RGB(255, 0, 0);
const COLORREF kOdd = RGB(0x12, 0x34, 0x56);
const COLORREF kGreen = RGB(0, 160, 0);

void FillRect(HDC dc, RECT r, COLORREF color) {
    HBRUSH brush = CreateSolidBrush(color);
    FillRect(dc, &r, brush);
    DeleteObject(brush);
}

TEST(Bitmap, PaintedPixelsReadBackAsColorRefs) {
    zkt::Bitmap picture(20, 10);
    ASSERT_TRUE(picture.valid());
    EXPECT_EQ(RGB(0, 0, 0), picture.pixel(0, 0));
    FillRect(picture.dc(), RECT{2, 1, 5, 3}, kOdd);
    SetPixel(picture.dc(), 19, 9, kRed);
    EXPECT_EQ(kOdd, picture.pixel(2, 1));
    EXPECT_EQ(kOdd, picture.pixel(4, 2));
    EXPECT_EQ(RGB(0, 0, 0), picture.pixel(5, 2));
    EXPECT_EQ(RGB(0, 0, 0), picture.pixel(2, 3)); // row 0 is the top
    EXPECT_EQ(kRed, picture.pixel(19, 9));
    EXPECT_EQ(6, picture.count(kOdd));
    EXPECT_EQ(2, picture.count(kOdd, RECT{3, 0, 4, 10}));
    EXPECT_EQ(CLR_INVALID, picture.pixel(20, 0));
    EXPECT_EQ(CLR_INVALID, picture.pixel(0, -1));
}

std::uint32_t le32(const std::vector<unsigned char> &b, size_t at) {
    return b[at] | b[at + 1] << 8 | b[at + 2] << 16 | static_cast<std::uint32_t>(b[at + 3]) << 24;
}

TEST(Bitmap, SavesA24BitBottomUpBmp) {
    zkt::Bitmap picture(3, 2);
    picture.fill(RGB(255, 255, 255));
    SetPixel(picture.dc(), 0, 0, kOdd); // top left
    SetPixel(picture.dc(), 2, 1, kRed); // bottom right
    wchar_t folder[MAX_PATH];
    GetTempPathW(MAX_PATH, folder);
    const std::wstring path = std::wstring(folder) + L"zkharness_save.bmp";
    ASSERT_TRUE(picture.SaveBmp(path));
    std::ifstream in(path.c_str(), std::ios::binary);
    ASSERT_TRUE(in.good());
    std::vector<unsigned char> b((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    in.close();
    DeleteFileW(path.c_str());
    const size_t stride = 12; // 3 pixels * 3 bytes, already a multiple of 4
    ASSERT_EQ(54 + 2 * stride, b.size());
    EXPECT_EQ('B', b[0]);
    EXPECT_EQ('M', b[1]);
    EXPECT_EQ(b.size(), le32(b, 2));
    EXPECT_EQ(54u, le32(b, 10));
    EXPECT_EQ(3u, le32(b, 18));
    EXPECT_EQ(2u, le32(b, 22)); // positive height: bottom row first
    EXPECT_EQ(24, b[28]);
    // First stored row is the bottom one: its last pixel is red (B, G, R).
    EXPECT_EQ(0, b[54 + 6]);
    EXPECT_EQ(0, b[54 + 7]);
    EXPECT_EQ(255, b[54 + 8]);
    // Second stored row is the top one: its first pixel is kOdd.
    EXPECT_EQ(0x56, b[54 + stride]);
    EXPECT_EQ(0x34, b[54 + stride + 1]);
    EXPECT_EQ(0x12, b[54 + stride + 2]);
}

// A child control that fills its client area with kGreen.
LRESULT CALLBACK GreenProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_PAINT || message == WM_PRINTCLIENT) {
        PAINTSTRUCT ps;
        HDC dc = message == WM_PAINT ? BeginPaint(hwnd, &ps) : reinterpret_cast<HDC>(wParam);
        RECT client;
        GetClientRect(hwnd, &client);
        FillRect(dc, client, kGreen);
        if (message == WM_PAINT) {
            EndPaint(hwnd, &ps);
        }
        return 0;
    }
    return DefWindowProcW(hwnd, message, wParam, lParam);
}

HWND AddGreenChild(zkt::TestWindow &window, zkt::Box box) {
    static const ATOM atom = [] {
        WNDCLASSW wc{};
        wc.lpfnWndProc = GreenProc;
        wc.hInstance = GetModuleHandleW(nullptr);
        wc.lpszClassName = L"ZkHarnessGreen";
        return RegisterClassW(&wc);
    }();
    EXPECT_NE(0, atom);
    return window.AddChild(L"ZkHarnessGreen", 5, box, 0);
}

// A window whose client area is white with a red square at (10, 10)-(30, 30),
// painted for WM_PAINT and WM_PRINTCLIENT alike.
void PaintSquare(HDC dc) { FillRect(dc, RECT{10, 10, 30, 30}, kRed); }

void InstallSquarePainter(zkt::TestWindow &window) {
    window.OnMessage([](HWND hwnd, UINT message, WPARAM wParam, LPARAM, LRESULT &result) {
        if (message == WM_PAINT) {
            PAINTSTRUCT ps;
            HDC dc = BeginPaint(hwnd, &ps);
            PaintSquare(dc);
            EndPaint(hwnd, &ps);
            result = 0;
            return true;
        }
        if (message == WM_PRINTCLIENT) {
            PaintSquare(reinterpret_cast<HDC>(wParam));
            result = 0;
            return true;
        }
        return false;
    });
}

TEST(Capture, ClientCaptureShowsWhatTheWindowPaints) {
    zkt::TestWindow window(120, 80);
    InstallSquarePainter(window);
    zkt::Bitmap picture = zkt::CaptureClient(window);
    ASSERT_TRUE(picture.valid());
    EXPECT_EQ(120, picture.width());
    EXPECT_EQ(80, picture.height());
    EXPECT_EQ(kRed, picture.pixel(10, 10));
    EXPECT_EQ(kRed, picture.pixel(29, 29));
    EXPECT_EQ(400, picture.count(kRed));
    // The background was erased with the class brush, not left black.
    EXPECT_EQ(GetSysColor(COLOR_WINDOW), picture.pixel(60, 60));
}

TEST(Capture, ScreenCaptureRepaintsAndIncludesChildren) {
    zkt::TestWindow window(200, 100);
    InstallSquarePainter(window);
    AddGreenChild(window, {100, 20, 60, 40});
    zkt::Bitmap picture = zkt::CaptureScreen(window);
    ASSERT_TRUE(picture.valid());
    EXPECT_EQ(200, picture.width());
    EXPECT_EQ(kRed, picture.pixel(15, 15));
    EXPECT_EQ(kGreen, picture.pixel(130, 40));
    EXPECT_EQ(GetSysColor(COLOR_WINDOW), picture.pixel(60, 80));
}

} // namespace
