// Owner-drawn menu items and building menus through the library.
//
// Drawing: one item with a masked picture and a text, through the host
// frame's WM_DRAWITEM (the library's subclass finds the record, its text and
// pictures, and draws), against the bare work of the same item in the same
// DC: FillRect, three BitBlt from memory DCs made beforehand, DrawTextW.
//
// Building: a popup of 100 items through ZelMenuInsert against a loop of
// InsertMenuW. Each new id walks the frame's whole menu tree for its
// highest id, and an item in the frame's tree has the frame read its
// structure again (unless the caller defers that), so the cost of an item
// grows with the menu: the ratios are printed, with no bound.
#include <windows.h>

#include <cstdio>
#include <vector>

#include "bench.h"
#include "zkhost.h"
#include "zkhostctl.h"
#include "zklib.h"

namespace {

using namespace bench;

constexpr int kItemWidth = 220, kItemHeight = 20, kPicture = 16;
constexpr COLORREF kInk = RGB(200, 0, 0);

struct Canvas {
    HDC dc = nullptr;
    HBITMAP bitmap = nullptr;
    HGDIOBJ old = nullptr;
    Canvas() {
        HDC screen = GetDC(nullptr);
        dc = CreateCompatibleDC(screen);
        bitmap = CreateCompatibleBitmap(screen, kItemWidth, kItemHeight);
        old = SelectObject(dc, bitmap);
        ReleaseDC(nullptr, screen);
    }
    ~Canvas() {
        SelectObject(dc, old);
        DeleteObject(bitmap);
        DeleteDC(dc);
    }
};

// The same item drawn by hand: what a drawing of it cannot do without.
struct Bare {
    HDC image, mask;
    HGDIOBJ oldImage, oldMask;
    Bare(HBITMAP bitmap, HBITMAP maskBitmap) {
        image = CreateCompatibleDC(nullptr);
        mask = CreateCompatibleDC(nullptr);
        oldImage = SelectObject(image, bitmap);
        oldMask = SelectObject(mask, maskBitmap);
    }
    ~Bare() {
        SelectObject(image, oldImage);
        SelectObject(mask, oldMask);
        DeleteDC(image);
        DeleteDC(mask);
    }
    void Draw(HDC dc, const RECT &item) const {
        FillRect(dc, &item, GetSysColorBrush(COLOR_MENU));
        const int y = item.top + (kItemHeight - kPicture) / 2;
        SetBkColor(dc, RGB(255, 255, 255));
        SetTextColor(dc, RGB(0, 0, 0));
        BitBlt(dc, item.left, y, kPicture, kPicture, image, 0, 0, SRCINVERT);
        BitBlt(dc, item.left, y, kPicture, kPicture, mask, 0, 0, SRCAND);
        BitBlt(dc, item.left, y, kPicture, kPicture, image, 0, 0, SRCINVERT);
        RECT text{item.left + kPicture + 2, item.top, item.right, item.bottom};
        SetBkMode(dc, TRANSPARENT);
        DrawTextW(dc, L"&Save as", -1, &text, DT_SINGLELINE | DT_VCENTER);
    }
};

struct PictureBits {
    HBITMAP bitmap, mask;
};

void Drawing(Run &run, HWND frame, HMENU popup, ZelPicHandle picture, const PictureBits &bits) {
    const int draws = run.Size(200, 4000), rounds = run.Size(1, 7);
    const int32_t id = ZelMenuInsertPicture(frame, popup, -1, picture, picture, L"&Save as");
    if (!run.Check(id > 0, "the owner-drawn item was not inserted"))
        return;
    Canvas ours, bare;
    DRAWITEMSTRUCT item{ODT_MENU,
                        0,
                        static_cast<UINT>(id),
                        ODA_DRAWENTIRE,
                        0,
                        reinterpret_cast<HWND>(popup),
                        ours.dc,
                        {0, 0, kItemWidth, kItemHeight},
                        reinterpret_cast<ULONG_PTR>(popup)};
    const Bare hand(bits.bitmap, bits.mask);
    std::vector<double> library, baseline;
    for (int round = 0; round < rounds; ++round) {
        library.push_back(TimeOf([&] {
            for (int i = 0; i < draws; ++i)
                SendMessageW(frame, WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&item));
        }));
        baseline.push_back(TimeOf([&] {
            for (int i = 0; i < draws; ++i)
                hand.Draw(bare.dc, item.rcItem);
        }));
    }
    // Both drew a picture where it goes: not the menu's colour at its centre.
    const COLORREF menu = GetSysColor(COLOR_MENU);
    run.Check(GetPixel(ours.dc, kPicture / 2, kItemHeight / 2) != menu, "the library drew no picture");
    run.Check(GetPixel(bare.dc, kPicture / 2, kItemHeight / 2) == kInk, "the bare drawing drew no picture");
    std::printf("  WM_DRAWITEM %.2f us, bare drawing %.2f us (medians of %d rounds of %d)\n",
                Median(library) / draws * 1e6, Median(baseline) / draws * 1e6, rounds, draws);
    run.Figure("owner-drawn item / FillRect + 3 BitBlt + DrawTextW", Median(library) / Median(baseline), Want::AtMost,
               1.3);
}

// 100 items into a fresh popup: through the library, or with InsertMenuW.
double Build(HWND frame, HMENU popup, int items, bool library, int16_t flags) {
    return TimeOf([&] {
        for (int i = 0; i < items; ++i) {
            if (library)
                ZelMenuInsert(frame, popup, -1, L"Item", flags);
            else
                InsertMenuW(popup, static_cast<UINT>(-1), MF_BYPOSITION | MF_STRING, static_cast<UINT_PTR>(0x9000 + i),
                            L"Item");
        }
    });
}

void Building(Run &run, HWND frame, HMENU frameMenu) {
    const int items = 100, rounds = run.Size(1, 7);
    struct Way {
        const char *name;
        bool inTree;
        int16_t flags;
    } ways[] = {
        {"100-item popup: ZelMenuInsert / InsertMenuW, outside the tree", false, 0},
        {"100-item popup: ZelMenuInsert / InsertMenuW, in the frame's tree", true, 0},
        {"  the same, the frame's attach deferred (top bit)", true, static_cast<int16_t>(MENU_NoAttach)},
    };
    for (const Way &way : ways) {
        std::vector<double> library, baseline;
        bool counted = true;
        for (int round = 0; round < rounds; ++round) {
            HMENU popup = CreatePopupMenu(), plain = CreatePopupMenu();
            if (way.inTree)
                AppendMenuW(frameMenu, MF_POPUP, reinterpret_cast<UINT_PTR>(popup), L"&Bench");
            library.push_back(Build(frame, popup, items, true, way.flags));
            baseline.push_back(Build(frame, plain, items, false, 0));
            counted = counted && GetMenuItemCount(popup) == items && GetMenuItemCount(plain) == items;
            // The items are the library's: each one's id is reported when chosen.
            counted = counted && GetMenuItemID(popup, items - 1) == GetMenuItemID(popup, 0) + items - 1;
            if (way.inTree)
                DeleteMenu(frameMenu, static_cast<UINT>(GetMenuItemCount(frameMenu) - 1), MF_BYPOSITION);
            else
                DestroyMenu(popup);
            DestroyMenu(plain);
            SendMessageW(frame, ZKM_MenuClear, 0, 0);
        }
        run.Check(counted, "a popup does not hold its 100 items with consecutive ids");
        std::printf("  %s: %.1f us an item through the library, %.2f us with InsertMenuW\n", way.name,
                    Median(library) / items * 1e6, Median(baseline) / items * 1e6);
        run.Note(way.name, Median(library) / Median(baseline));
    }
}

} // namespace

int main(int argc, char **argv) {
    Run run("bench_menu", argc, argv);
    // A frame whose own menu has a File popup of a few items, as an application's.
    HMENU bar = CreateMenu(), file = CreatePopupMenu();
    for (int i = 0; i < 8; ++i)
        AppendMenuW(file, MF_STRING, static_cast<UINT_PTR>(0xE100 + i), L"Command");
    AppendMenuW(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(file), L"&File");
    HWND frame = ZkHostFrameCreate(HOST_FRAME_Frame, nullptr, L"bench", bar, 0);
    // A 16 x 16 picture of the library's own, its top-left colour transparent.
    const ZelPicHandle picture = ZelPicLoad(PIC_LoadModule | PIC_FormatBitmap, L"ZKLIB.dll", L"FILEDOC");
    HMENU context = CreatePopupMenu();
    if (run.Check(frame && picture, "no frame or picture")) {
        // The bare drawing's bitmap and mask of a picture of the same size.
        PictureBits bits{};
        HDC screen = GetDC(nullptr);
        bits.bitmap = CreateCompatibleBitmap(screen, kPicture, kPicture);
        bits.mask = CreateBitmap(kPicture, kPicture, 1, 1, nullptr);
        ReleaseDC(nullptr, screen);
        {
            HDC dc = CreateCompatibleDC(nullptr);
            HGDIOBJ old = SelectObject(dc, bits.bitmap);
            RECT all{0, 0, kPicture, kPicture};
            FillRect(dc, &all, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
            HBRUSH ink = CreateSolidBrush(kInk);
            RECT square{3, 3, kPicture - 3, kPicture - 3};
            FillRect(dc, &square, ink);
            DeleteObject(ink);
            SelectObject(dc, bits.mask);
            FillRect(dc, &all, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
            FillRect(dc, &square, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
            SelectObject(dc, old);
            DeleteDC(dc);
        }
        Drawing(run, frame, context, picture, bits);
        Building(run, frame, bar);
        DeleteObject(bits.bitmap);
        DeleteObject(bits.mask);
    }
    DestroyMenu(context);
    DestroyWindow(frame);
    ZelPicFree(picture);
    return run.Finish();
}
