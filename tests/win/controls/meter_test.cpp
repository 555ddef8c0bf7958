// The meter painted into a memory context: no value, the fill edge of wide,
// tall and square meters with the text split in colour, and its one export.
#include "controls_support.h"

namespace {

HWND MakeMeter(HWND parent, int width, int height, void *parameter = ctltest::runTime) {
    return CreateWindowExW(0, L"ZK:cMeter:10", L"", WS_CHILD | WS_VISIBLE, 5, 5, width, height, parent, nullptr,
                           GetModuleHandleW(nullptr), parameter);
}

TEST(Meter, AtRunTimeOnlyTheBackgroundUntilAValueIsSet) {
    zkt::TestWindow form(200, 200);
    HWND meter = MakeMeter(form, 100, 20);
    EXPECT_EQ(GetWindowWord(meter, 0), 0xFFFF);
    const zkt::Bitmap empty = zkt::PrintClient(meter);
    EXPECT_EQ(empty.count(GetSysColor(COLOR_WINDOW)), 100 * 20);
    HWND design = MakeMeter(form, 100, 20, nullptr);
    EXPECT_EQ(GetWindowWord(design, 0), 30) << "the designer's canvas shows 30%";
    EXPECT_EQ(ZelWinSetMeter(meter, 37), 0);
    EXPECT_EQ(ZelWinSetMeter(meter, 101), -87);
    EXPECT_EQ(ZelWinSetMeter(meter, 0xFFFFFFFF), -87);
    EXPECT_EQ(GetWindowWord(meter, 0), 37) << "a refused value changes nothing";
    SetWindowWord(meter, 0, 250);
    zkt::Bitmap untouched = zkt::PrintClient(meter);
    EXPECT_EQ(untouched.count(RGB(0, 0, 0)), 100 * 20) << "a word above 100 paints nothing";
}

TEST(Meter, TheFillEdgeByShapeWithTheTextInvertedOverTheFill) {
    const COLORREF back = GetSysColor(COLOR_WINDOW), text = GetSysColor(COLOR_WINDOWTEXT);
    struct Case {
        int width, height, percent;
        RECT empty, filled; // in the client area, clear of the text
    };
    const Case cases[] = {
        {100, 20, 50, {50, 0, 100, 2}, {0, 0, 50, 2}},   // wide: from the left
        {20, 100, 50, {0, 0, 20, 40}, {0, 60, 20, 100}}, // tall: from the bottom
        {40, 40, 25, {0, 0, 2, 30}, {0, 30, 40, 40}},    // square counts as tall
        {100, 20, 0, {0, 0, 100, 2}, {0, 0, 0, 0}},      {100, 20, 100, {0, 0, 0, 0}, {0, 0, 100, 2}},
    };
    zkt::TestWindow form(200, 200);
    for (const Case &c : cases) {
        HWND meter = MakeMeter(form, c.width, c.height);
        ASSERT_EQ(ZelWinSetMeter(meter, static_cast<uint32_t>(c.percent)), 0);
        const zkt::Bitmap b = zkt::PrintClient(meter);
        const auto area = [](const RECT &r) { return (r.right - r.left) * (r.bottom - r.top); };
        EXPECT_EQ(b.count(back, c.empty), area(c.empty)) << c.width << "x" << c.height << " at " << c.percent;
        EXPECT_EQ(b.count(text, c.filled), area(c.filled)) << c.width << "x" << c.height << " at " << c.percent;
        EXPECT_EQ(b.count(back) + b.count(text), c.width * c.height) << "two colours only";
        DestroyWindow(meter);
    }
    // 50% of 100 by 20: the text "50%" stands across the edge at x 50, in
    // the text colour on the right and in the background colour on the left.
    HWND meter = MakeMeter(form, 100, 20);
    ZelWinSetMeter(meter, 50);
    const zkt::Bitmap b = zkt::PrintClient(meter);
    EXPECT_GT(b.count(text, {50, 0, 100, 20}), 0) << "letters right of the edge";
    EXPECT_GT(b.count(back, {0, 0, 50, 20}), 0) << "inverted letters left of it";
    EXPECT_EQ(b.pixel(49, 0), text);
    EXPECT_EQ(b.pixel(50, 0), back) << "the edge at x 50";
}

TEST(Meter, ColourQuestionsGoToTheParent) {
    zkt::TestWindow form(200, 200);
    int asked = 0;
    form.OnMessage([&](HWND, UINT message, WPARAM, LPARAM, LRESULT &result) {
        if (message != WM_CTLCOLORSTATIC)
            return false;
        ++asked;
        result = 77;
        return true;
    });
    HWND meter = MakeMeter(form, 100, 20);
    EXPECT_EQ(SendMessageW(meter, WM_CTLCOLORSTATIC, 0, 0), 77);
    EXPECT_EQ(asked, 1);
}

} // namespace
