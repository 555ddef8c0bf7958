// The outline engine's art inside ZKLIB.dll (the row pictures, the
// splitter's pattern and cursors), and adopted lists that show rows with
// colours, fonts, pictures, tabs and a disabled row.
#include "artpanel.h"
#include "capture.h"
#include "form.h"
#include "pictures.h"
#include "report.h"
#include "steps.h"
#include "zklib.h"

#include <string>
#include <vector>

namespace gallery {
namespace {

const wchar_t *const kRowPictures[] = {
    L"BKCLOSED", L"BKOPEN",   L"BKSHELF2", L"BKSHELF3", L"CHKBLK",  L"CHKBXOFF", L"CHKBXON",  L"CHKWHT",   L"CKBXOFF2",
    L"CKBXON2",  L"DESKTOP",  L"DIABLKC",  L"DIABLKO",  L"DIAWHTC", L"DIAWHTO",  L"DRVCD",    L"DRVCD2",   L"DRVCD3",
    L"DRVFLOP2", L"DRVFLOPY", L"DRVHARD",  L"DRVHARD2", L"DRVNET",  L"DRVNET2",  L"DRVNETX",  L"DRVRAM",   L"DRVRAM2",
    L"EMPTY",    L"FDR",      L"FDRCUR",   L"FDRCURM",  L"FDRCURP", L"FDRMNUS",  L"FDROPEN",  L"FDRPLUS",  L"FILEALL",
    L"FILEDOC",  L"FILEPROG", L"FILESYS",  L"FLDR",     L"FLDR2",   L"FLDRCUR",  L"FLDRCUR2", L"FLDRCURM", L"FLDRCURP",
    L"FLDRMNUS", L"FLDROPEN", L"FLDROPN2", L"FLDRPLUS", L"FONPRTR", L"FONTRTYP", L"MINUSDK",  L"MINUSLT",  L"MINUSWHT",
    L"MYCOMP",   L"NETNEIGH", L"PLUSDK",   L"PLUSLT",   L"PLUSWHT", L"PREVDIR",  L"RADIOOFF", L"RADIOON",  L"RADOFF2",
    L"RADON2",   L"TBLDEL",   L"TBLEDIT",  L"TBLNEW"};
constexpr int kRowPictureCount = static_cast<int>(sizeof(kRowPictures) / sizeof(kRowPictures[0]));

// A copy of a bitmap on a background, its top-left colour made transparent
// the way a list shows it.
HBITMAP OnBackground(HBITMAP bitmap, int width, int height, int background) {
    HDC screen = GetDC(nullptr);
    HDC from = CreateCompatibleDC(screen);
    HDC to = CreateCompatibleDC(screen);
    HDC maskDc = CreateCompatibleDC(screen);
    HBITMAP result = CreateCompatibleBitmap(screen, width, height);
    HBITMAP mask = CreateBitmap(width, height, 1, 1, nullptr);
    HGDIOBJ oldFrom = SelectObject(from, bitmap);
    HGDIOBJ oldTo = SelectObject(to, result);
    HGDIOBJ oldMask = SelectObject(maskDc, mask);
    SetBkColor(from, GetPixel(from, 0, 0));
    BitBlt(maskDc, 0, 0, width, height, from, 0, 0, SRCCOPY);
    RECT all{0, 0, width, height};
    FillRect(to, &all, GetSysColorBrush(background));
    SetBkColor(to, RGB(255, 255, 255));
    SetTextColor(to, RGB(0, 0, 0));
    BitBlt(to, 0, 0, width, height, from, 0, 0, SRCINVERT);
    BitBlt(to, 0, 0, width, height, maskDc, 0, 0, SRCAND);
    BitBlt(to, 0, 0, width, height, from, 0, 0, SRCINVERT);
    SelectObject(maskDc, oldMask);
    SelectObject(to, oldTo);
    SelectObject(from, oldFrom);
    DeleteObject(mask);
    DeleteDC(maskDc);
    DeleteDC(to);
    DeleteDC(from);
    ReleaseDC(nullptr, screen);
    return result;
}

// Pictures and fonts the showcase lists paint with: the application's, so
// they live as long as the process (the lists live as long as the form).
struct Kept {
    std::vector<ZelPicHandle> pictures;
    std::vector<HFONT> fonts;
    ~Kept() {
        for (ZelPicHandle p : pictures)
            ZelPicFree(p);
        for (HFONT f : fonts)
            ZelFontFree(f);
    }
};
Kept &Keep() {
    static Kept kept;
    return kept;
}

ZelPicHandle RowPicture(const wchar_t *name) {
    const ZelPicHandle p = ZelPicLoad(PIC_LoadModule | PIC_FormatBitmap, L"ZKLIB.dll", name);
    if (p)
        Keep().pictures.push_back(p);
    return p;
}

HFONT RowFont(const wchar_t *face, int points, uint32_t style) {
    HFONT f = ZelFontLoad(face, points, style);
    if (f)
        Keep().fonts.push_back(f);
    return f;
}

} // namespace

void RunOutlineArtSteps(Report &report, Form &form, ArtPanel &panel) {
    report.Section(L"Outline art in ZKLIB.dll (twice their size)");
    const int items = kRowPictureCount + 1 + 2;
    if (!panel.Create(form.Window(), form.Reserve(ArtPanel::HeightFor(items, Form::ColumnWidth())), form.Font()))
        report.LogCheck(L"outline art panel", L"not created", false);
    HMODULE library = GetModuleHandleW(L"ZKLIB.dll");
    int found = 0, loaded = 0;
    for (const wchar_t *name : kRowPictures) {
        HBITMAP bitmap = library ? LoadBitmapW(library, name) : nullptr;
        BITMAP info{};
        const bool ok = bitmap && GetObjectW(bitmap, sizeof(info), &info) && info.bmWidth == 16 && info.bmHeight == 16;
        found += ok ? 1 : 0;
        report.LogCheck(std::wstring(L"LoadBitmapW(ZKLIB, \"") + name + L"\")",
                        bitmap ? std::to_wstring(info.bmWidth) + L"x" + std::to_wstring(info.bmHeight) : L"missing", ok,
                        L"16x16");
        // The library's own loader, as the populate functions call it.
        const ZelPicHandle pic = ZelPicLoad(0x8201, L"ZKLIB.dll", name);
        loaded += pic ? 1 : 0;
        report.LogCheck(std::wstring(L"ZelPicLoad(0x8201, \"ZKLIB.dll\", \"") + name + L"\")",
                        pic ? L"a picture" : L"0", pic != 0);
        if (pic)
            ZelPicFree(pic);
        // The white pictures are meant for selected rows: shown on the highlight.
        const int background = std::wstring(name).find(L"WHT") != std::wstring::npos ? COLOR_HIGHLIGHT : COLOR_WINDOW;
        panel.AddBitmap(name, ok ? OnBackground(bitmap, 16, 16, background) : nullptr);
        if (bitmap)
            DeleteObject(bitmap);
    }
    report.Number(L"row pictures of 16x16", found, kRowPictureCount);
    report.Number(L"row pictures loaded with their masks", loaded, kRowPictureCount);

    HBITMAP pattern = library ? LoadBitmapW(library, L"IDB_PatternGray") : nullptr;
    BITMAP info{};
    const bool patternOk = pattern && GetObjectW(pattern, sizeof(info), &info) && info.bmWidth == 8;
    report.Check(L"splitter pattern \"IDB_PatternGray\"",
                 patternOk ? std::to_wstring(info.bmWidth) + L"x" + std::to_wstring(info.bmHeight) : L"missing",
                 patternOk, L"8x8");
    panel.AddBitmap(L"PATTERN\nGRAY", pattern);
    int cursors = 0;
    for (const wchar_t *name : {L"IDC_VSplit", L"IDC_HSplit"}) {
        HICON cursor = library ? static_cast<HICON>(LoadImageW(library, name, IMAGE_CURSOR, 0, 0, 0)) : nullptr;
        cursors += cursor ? 1 : 0;
        panel.AddIcon(std::wstring(name).substr(4), cursor, 32);
    }
    report.Number(L"splitter cursors", cursors, 2);
}

void RunOutlineListSteps(Report &report, Form &form, Pictures &pictures) {
    report.Section(L"Adopted list and combo box");
    const RECT area = form.Reserve(190);
    const int half = (area.right - area.left - 8) / 2;
    HINSTANCE instance = GetModuleHandleW(nullptr);
    HWND list = CreateWindowExW(WS_EX_CLIENTEDGE, L"LISTBOX", L"",
                                WS_CHILD | WS_VISIBLE | WS_VSCROLL | LBS_NOTIFY | LBS_OWNERDRAWVARIABLE, area.left,
                                area.top, half, 190, form.Window(), nullptr, instance, nullptr);
    HWND combo = CreateWindowExW(0, L"COMBOBOX", L"",
                                 WS_CHILD | WS_VISIBLE | WS_VSCROLL | CBS_DROPDOWNLIST | CBS_OWNERDRAWVARIABLE,
                                 area.left + half + 8, area.top, half, 160, form.Window(), nullptr, instance, nullptr);
    SendMessageW(list, WM_SETFONT, reinterpret_cast<WPARAM>(form.Font()), FALSE);
    SendMessageW(combo, WM_SETFONT, reinterpret_cast<WPARAM>(form.Font()), FALSE);
    report.Number(L"ZelListSetStyle(list, OwnerDraw)", ZelListSetStyle(list, LBX_StyleOwnerDraw, nullptr), 1);
    CREATESTRUCTW create{};
    create.style = static_cast<LONG>(GetWindowLongW(combo, GWL_STYLE));
    report.Number(L"ZelListSetStyle(combo, OwnerDraw)", ZelListSetStyle(combo, LBX_StyleOwnerDraw, &create), 1);

    // Tab stops in dialog units, as the host sets them.
    int stops[] = {64};
    SendMessageW(list, LB_SETTABSTOPS, 1, reinterpret_cast<LPARAM>(stops));
    int bad = 0;
    auto row = [&](int32_t result) { bad += result < 0 ? 1 : 0; };
    row(ZelListAddPicture(list, L"Folder", RowPicture(L"FDR"), RowPicture(L"FDROPEN")));
    row(ZelListAddColor(list, L"Red text", RGB(200, 0, 0)));
    row(ZelListAddColor(list, L"Green text", RGB(0, 128, 0)));
    row(ZelListAddColor(list, L"Disabled row", 0x01000000 | RGB(128, 128, 128)));
    row(ZelListAddFont(list, L"Bold Tahoma 9", RowFont(L"Tahoma", 9, FONT_Bold)));
    row(ZelListAddFont(list, L"Italic Tahoma 8", RowFont(L"Tahoma", 8, FONT_Italic | FONT_Underline)));
    row(ZelListAddColor(list, L"Name\tValue", RGB(0, 0, 128)));
    row(ZelListAddPicture(list, L"Document", RowPicture(L"FILEDOC"), RowPicture(L"FILEDOC")));
    row(ZelListAddPicture(list, L"My computer", RowPicture(L"MYCOMP"), RowPicture(L"MYCOMP")));
    row(ZelListAddPicture(list, L"Checked", RowPicture(L"CHKBXON"), RowPicture(L"CHKBXON")));
    SendMessageW(list, LB_SETCURSEL, 0, 0);

    row(ZelListAddPicture(combo, L"A:", RowPicture(L"DRVFLOP2"), RowPicture(L"DRVFLOP2")));
    row(ZelListAddPicture(combo, L"C: System", RowPicture(L"DRVHARD2"), RowPicture(L"DRVHARD2")));
    row(ZelListAddPicture(combo, L"D:", RowPicture(L"DRVCD3"), RowPicture(L"DRVCD3")));
    row(ZelListAddPicture(combo, L"N: \\\\server\\share", RowPicture(L"DRVNET2"), RowPicture(L"DRVNET2")));
    SendMessageW(combo, CB_SETCURSEL, 1, 0);
    report.Number(L"rows that failed to add", bad, 0);
    report.Number(L"rows of the list", SendMessageW(list, LB_GETCOUNT, 0, 0), 10);
    report.Hex(L"ZelListGetFlags(list, 3) & LBX_ItemDisabled",
               static_cast<uint32_t>(ZelListGetFlags(list, 3)) & LBX_ItemDisabled, LBX_ItemDisabled);
    report.Hex(L"ZelListGetColor(list, 1)", static_cast<uint32_t>(ZelListGetColor(list, 1)), RGB(200, 0, 0));
    int32_t top = 0, left = 0, bottom = 0, right = 0;
    report.Number(L"ZelListGetTextRectangle(list, 0)", ZelListGetTextRectangle(list, 0, &top, &left, &bottom, &right),
                  1);
    report.Number(L"ZelListSetScrollWidth(list, -1)", ZelListSetScrollWidth(list, -1), 0);
    // The combo box shows in the picture of the whole form: printed on its
    // own, Wine's combo box leaves its owner-drawn field out.
    if (pictures.Enabled())
        pictures.Save(L"outline-list", CaptureControl(list));
}

} // namespace gallery
