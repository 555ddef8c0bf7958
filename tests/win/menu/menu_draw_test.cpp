// Owner-drawn items as the frame's subclass measures and draws them into a
// memory DC, the check-mark bitmap of a plain item, and what is left once
// the frame is gone.
#include "menu_support.h"
#include "zkharness.h"

using namespace menutest;

namespace {

class MenuDraw : public MenuTest {
protected:
    // A frame with a popup outside its tree, holding one owner-drawn item.
    void SetUp() override {
        MenuTest::SetUp();
        frame_ = Frame(HOST_FRAME_Frame, MakeFrameMenu().bar);
        popup_ = CreatePopupMenu();
        id_ = ZelMenuInsertPicture(frame_, popup_, -1, Picture(kRed), Picture(kGreen), L"&Save\\tCtrl+S");
        ASSERT_GT(id_, 0);
        ASSERT_TRUE(GetMenuState(popup_, static_cast<UINT>(id_), MF_BYCOMMAND) & MF_OWNERDRAW);
    }
    void TearDown() override {
        DestroyMenu(popup_);
        MenuTest::TearDown();
    }

    LRESULT Draw(zkt::Bitmap &canvas, UINT action, UINT state, int32_t id = 0, ULONG_PTR data = 0) {
        DRAWITEMSTRUCT item{};
        item.CtlType = ODT_MENU;
        item.itemID = static_cast<UINT>(id ? id : id_);
        item.itemAction = action;
        item.itemState = state;
        item.hwndItem = reinterpret_cast<HWND>(popup_);
        item.hDC = canvas.dc();
        item.rcItem = {0, 0, canvas.width(), canvas.height()};
        item.itemData = data ? data : reinterpret_cast<ULONG_PTR>(popup_);
        return SendMessageW(frame_, WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&item));
    }

    static constexpr COLORREF kRed = RGB(255, 0, 0), kGreen = RGB(0, 160, 0);
    HWND frame_ = nullptr;
    HMENU popup_ = nullptr;
    int32_t id_ = 0;
};

SIZE Extent(const wchar_t *text) {
    HDC dc = CreateCompatibleDC(nullptr);
    SelectObject(dc, GetStockObject(SYSTEM_FONT));
    SIZE size{};
    GetTextExtentPoint32W(dc, text, lstrlenW(text), &size);
    DeleteDC(dc);
    return size;
}

int CheckWidth() { return LOWORD(GetMenuCheckMarkDimensions()); }

// Columns of an area that hold a colour.
bool Holds(const zkt::Bitmap &canvas, COLORREF colour, int left, int right) {
    return canvas.count(colour, RECT{left, 0, right, canvas.height()}) > 0;
}

TEST_F(MenuDraw, TheItemIsMeasuredFromItsTextPicturesAndCheckMark) {
    MEASUREITEMSTRUCT item{};
    item.CtlType = ODT_MENU;
    item.itemID = static_cast<UINT>(id_);
    EXPECT_EQ(SendMessageW(frame_, WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&item)), TRUE);
    HDC dc = CreateCompatibleDC(nullptr);
    SelectObject(dc, GetStockObject(SYSTEM_FONT));
    TEXTMETRICW tm{};
    GetTextMetricsW(dc, &tm);
    DeleteDC(dc);
    EXPECT_EQ(static_cast<int>(item.itemWidth), Extent(L"&Save\tCtrl+S").cx + CheckWidth() + 16 + 4);
    EXPECT_EQ(static_cast<int>(item.itemHeight), std::max({CheckWidth(), 16, static_cast<int>(tm.tmHeight)}));
    // An item without a record is left to the old procedure, sized 0.
    item.itemID = 4242;
    item.itemWidth = item.itemHeight = 99;
    EXPECT_EQ(SendMessageW(frame_, WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&item)), 0);
    EXPECT_EQ(item.itemWidth, 0u);
}

TEST_F(MenuDraw, PictureBackgroundTextAndTheTextAfterTheTab) {
    const int width = 240, height = 24;
    const int right = width - Extent(L"  ").cx - CheckWidth(); // where the text after the tab ends
    const int after = Extent(L"Ctrl+S").cx;
    struct Case {
        const char *name;
        UINT action, state;
        COLORREF background, picture, text;
    } cases[] = {
        {"normal", ODA_DRAWENTIRE, 0, GetSysColor(COLOR_MENU), kRed, RGB(0, 0, 0)},
        // Selected by a draw of the whole item only: still the normal look.
        {"entire, selected", ODA_DRAWENTIRE, ODS_SELECTED, GetSysColor(COLOR_MENU), kRed, RGB(0, 0, 0)},
        {"selected", ODA_SELECT, ODS_SELECTED, GetSysColor(COLOR_HIGHLIGHT), kGreen, GetSysColor(COLOR_HIGHLIGHTTEXT)},
        {"greyed", ODA_DRAWENTIRE, ODS_GRAYED, GetSysColor(COLOR_MENU), kRed, GetSysColor(COLOR_GRAYTEXT)},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        zkt::Bitmap canvas(width, height);
        EXPECT_EQ(Draw(canvas, c.action, c.state), TRUE);
        EXPECT_EQ(canvas.pixel(width - 1, 0), c.background);
        // The picture at the left, centred in height; its white ground is transparent.
        EXPECT_EQ(canvas.pixel(8, height / 2), c.picture);
        EXPECT_EQ(canvas.pixel(0, height / 2), c.background);
        // "&Save" from the picture's width + 2 on; "Ctrl+S" ends two spaces
        // and a check width short of the right edge.
        EXPECT_FALSE(Holds(canvas, c.text, 16, 18));
        EXPECT_TRUE(Holds(canvas, c.text, 18, 60));
        EXPECT_TRUE(Holds(canvas, c.text, right - after, right - after + 4));
        EXPECT_TRUE(Holds(canvas, c.text, right - 4, right));
        EXPECT_FALSE(Holds(canvas, c.text, right + 1, width));
        EXPECT_FALSE(Holds(canvas, c.text, 80, right - after - 1));
    }
}

TEST_F(MenuDraw, TheCheckMarkIsBlackAndInvertedWhenSelected) {
    CheckMenuItem(popup_, static_cast<UINT>(id_), MF_BYCOMMAND | MF_CHECKED);
    const int height = 24;
    zkt::Bitmap normal(200, height), selected(200, height);
    Draw(normal, ODA_DRAWENTIRE, ODS_CHECKED);
    Draw(selected, ODA_SELECT, ODS_SELECTED | ODS_CHECKED);
    const RECT mark{0, 0, 14, height};
    EXPECT_GT(normal.count(RGB(0, 0, 0), mark), 8);
    EXPECT_GT(selected.count(RGB(255, 255, 255), mark), 8);
    CheckMenuItem(popup_, static_cast<UINT>(id_), MF_BYCOMMAND | MF_UNCHECKED);
    zkt::Bitmap unchecked(200, height), uncheckedSelected(200, height);
    Draw(unchecked, ODA_DRAWENTIRE, 0);
    Draw(uncheckedSelected, ODA_SELECT, ODS_SELECTED);
    EXPECT_EQ(unchecked.count(RGB(0, 0, 0), mark), 0);
    EXPECT_EQ(uncheckedSelected.count(RGB(255, 255, 255), mark), 0);
}

TEST_F(MenuDraw, AnItemWithAFontAloneIsLeftToTheOldProcedure) {
    AppendMenuW(popup_, MF_STRING, kCopy, L"&Copy");
    HFONT font = ZelFontLoad(L"Tahoma", 10, FONT_Bold);
    EXPECT_EQ(ZelMenuSetFont(frame_, popup_, 1, font, L""), 1);
    EXPECT_TRUE(GetMenuState(popup_, kCopy, MF_BYCOMMAND) & MF_OWNERDRAW);
    zkt::Bitmap canvas(120, 20);
    EXPECT_EQ(Draw(canvas, ODA_DRAWENTIRE, 0, kCopy), 0);
    EXPECT_EQ(canvas.count(RGB(0, 0, 0)), 0);
    // The record keeps the item's text: it was taken from the menu.
    EXPECT_EQ(Take(ZelMenuGetText(frame_, popup_, 1)), L"&Copy");
    // A picture item without a text draws its picture alone.
    EXPECT_EQ(ZelMenuInsertPicture(frame_, popup_, -1, Picture(kRed), Picture(kGreen), nullptr), id_ + 1);
    zkt::Bitmap bare(60, 20);
    EXPECT_EQ(Draw(bare, ODA_DRAWENTIRE, 0, id_ + 1), TRUE);
    EXPECT_EQ(bare.pixel(8, 10), kRed);
    DestroyWindow(frame_);
    ZelFontFree(font);
}

TEST_F(MenuDraw, AFontOnAPictureItemDrawsItsText) {
    zkt::Bitmap plain(240, 24);
    Draw(plain, ODA_DRAWENTIRE, 0);
    HFONT font = ZelFontLoad(L"Tahoma", 16, FONT_Bold);
    // The text set with the font leaves the item's data a text pointer: the
    // record is found by the id.
    ASSERT_EQ(ZelMenuSetFont(frame_, popup_, 0, font, L""), 1);
    MENUITEMINFOW info{};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_DATA;
    GetMenuItemInfoW(popup_, static_cast<UINT>(id_), FALSE, &info);
    EXPECT_NE(info.dwItemData, reinterpret_cast<ULONG_PTR>(popup_));
    zkt::Bitmap bold(240, 24);
    EXPECT_EQ(Draw(bold, ODA_DRAWENTIRE, 0, id_, info.dwItemData), TRUE);
    EXPECT_EQ(bold.pixel(8, 12), kRed);
    EXPECT_GT(bold.count(RGB(0, 0, 0)), plain.count(RGB(0, 0, 0)) * 3 / 2);
    DestroyWindow(frame_);
    ZelFontFree(font);
}

// Everything the menu extensions make for a frame, done once.
void Scenario(HWND frame, HMENU popup, ZelPicHandle red, ZelPicHandle green, HBITMAP *checkBitmap) {
    for (int i = 0; i < 3; ++i)
        ZelMenuInsertPicture(frame, popup, -1, red, green, L"&Picture\\tF9");
    ZelMenuInsertFont(frame, popup, -1, nullptr, L"&Font");
    AppendMenuW(popup, MF_STRING, kCopy, L"&Copy");
    ZelMenuSetPicture(frame, popup, 4, red, green, L"&Copy again");
    MENUITEMINFOW info{};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_CHECKMARKS;
    GetMenuItemInfoW(popup, 4, TRUE, &info);
    *checkBitmap = info.hbmpChecked;
    ZelMenuSetFont(frame, popup, 3, nullptr, L"&Font again");
    ZelMenuSetText(frame, popup, 0, L"&Renamed");
    ZelMenuDelete(frame, popup, 1);
    zkt::Bitmap canvas(200, 20);
    DRAWITEMSTRUCT item{ODT_MENU,
                        0,
                        0,
                        ODA_SELECT,
                        ODS_SELECTED | ODS_CHECKED,
                        reinterpret_cast<HWND>(popup),
                        canvas.dc(),
                        {0, 0, 200, 20},
                        reinterpret_cast<ULONG_PTR>(popup)};
    CheckMenuItem(popup, 0, MF_BYPOSITION | MF_CHECKED);
    for (int i = 0; i < 5; ++i) {
        item.itemID = GetMenuItemID(popup, i);
        SendMessageW(frame, WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&item));
    }
    DestroyWindow(frame);
    DestroyMenu(popup);
}

TEST_F(MenuDraw, NothingIsLeftOnceTheFrameIsDestroyed) {
    const ZelPicHandle red = Picture(kRed), green = Picture(kGreen);
    HBITMAP check = nullptr;
    Scenario(Frame(HOST_FRAME_Frame, MakeFrameMenu().bar), CreatePopupMenu(), red, green, &check);
    ASSERT_TRUE(check);
    EXPECT_EQ(GetObjectType(check), 0u) << "the check-mark bitmap outlived its frame";
    const int gdi = GdiObjects(), heap = HeapBlocks();
    Scenario(Frame(HOST_FRAME_Frame, MakeFrameMenu().bar), CreatePopupMenu(), red, green, &check);
    EXPECT_EQ(GdiObjects(), gdi);
    EXPECT_EQ(HeapBlocks(), heap);
}

} // namespace
