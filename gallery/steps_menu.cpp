// Menus on a host frame: the frame's bar shows its own menu structure, a
// picture the library gave one of its items included; a popup of the
// frame holds owner-drawn items with pictures, fonts, a text after a tab, a
// check mark and a disabled item, and is photographed open with its second
// item selected.
#include <windows.h>

#include <algorithm>
#include <string>

#include "capture.h"
#include "ownedstr.h"
#include "pictures.h"
#include "pump.h"
#include "report.h"
#include "steps.h"
#include "zkhost.h"
#include "zkhostctl.h"
#include "zklib.h"

namespace gallery {
namespace {

HMENU FrameMenu() {
    HMENU bar = CreateMenu(), file = CreatePopupMenu(), edit = CreatePopupMenu();
    AppendMenuW(file, MF_STRING, 0xE100, L"&New\tCtrl+N");
    AppendMenuW(file, MF_STRING, 0xE101, L"&Open...");
    AppendMenuW(file, MF_SEPARATOR, 0, nullptr);
    AppendMenuW(file, MF_STRING, 0xE141, L"E&xit");
    AppendMenuW(edit, MF_STRING, 0xE122, L"&Copy");
    AppendMenuW(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(file), L"&File");
    AppendMenuW(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(edit), L"&Edit");
    return bar;
}

// What the capture timer saw while the popup was open.
struct Shot {
    Picture picture;
    bool popupFound = false;
    bool gaveUp = false;
};
Shot shot;
HWND shotFrame = nullptr;

// The frame and the popup over it as one picture, each from its own surface.
Picture Compose(HWND frame, HWND popup) {
    RECT f{}, p{};
    GetWindowRect(frame, &f);
    GetWindowRect(popup, &p);
    const Picture under = CaptureTopLevel(frame), over = CaptureTopLevel(popup, false);
    if (under.Empty() || over.Empty())
        return {};
    Picture out;
    out.width = std::max(f.right, p.right) - f.left;
    out.height = std::max(f.bottom, p.bottom) - f.top;
    out.pixels.assign(static_cast<size_t>(out.width) * out.height, 0xFFFFFFu);
    auto place = [&](const Picture &picture, int left, int top) {
        for (int y = 0; y < picture.height && top + y < out.height; ++y)
            for (int x = 0; x < picture.width && left + x < out.width; ++x)
                if (top + y >= 0 && left + x >= 0)
                    out.pixels[static_cast<size_t>(top + y) * out.width + left + x] =
                        picture.pixels[static_cast<size_t>(y) * picture.width + x];
    };
    place(under, 0, 0);
    place(over, p.left - f.left, p.top - f.top);
    return out;
}

void CALLBACK TakeShot(HWND, UINT, UINT_PTR timer, DWORD) {
    KillTimer(nullptr, timer);
    HWND popup = FindWindowW(L"#32768", nullptr);
    shot.popupFound = popup != nullptr;
    if (popup)
        shot.picture = Compose(shotFrame, popup);
    EndMenu();
}

void CALLBACK GiveUp(HWND, UINT, UINT_PTR timer, DWORD) {
    KillTimer(nullptr, timer);
    shot.gaveUp = true;
    EndMenu();
}

} // namespace

void RunMenuSteps(Report &report, Pictures &pictures) {
    report.Section(L"Menus on a host frame");
    const ZelPicHandle folder = ZelPicLoad(PIC_LoadModule | PIC_FormatBitmap, L"ZKLIB.dll", L"FLDR");
    const ZelPicHandle folderOpen = ZelPicLoad(PIC_LoadModule | PIC_FormatBitmap, L"ZKLIB.dll", L"FLDROPEN");
    const ZelPicHandle document = ZelPicLoad(PIC_LoadModule | PIC_FormatBitmap, L"ZKLIB.dll", L"FILEDOC");
    const ZelPicHandle drive = ZelPicLoad(PIC_LoadModule | PIC_FormatBitmap, L"ZKLIB.dll", L"DRVHARD");
    const ZelPicHandle computer = ZelPicLoad(PIC_LoadModule | PIC_FormatBitmap, L"ZKLIB.dll", L"MYCOMP");
    const HFONT bold = ZelFontLoad(L"Tahoma", 9, FONT_Bold);
    const HFONT italic = ZelFontLoad(L"Tahoma", 9, FONT_Italic);
    HMENU bar = FrameMenu();
    HWND frame = ZkHostFrameCreate(HOST_FRAME_Frame, nullptr, L"Menus on a host frame", bar, 0);
    const bool ready = frame && folder && folderOpen && document && drive && computer && bold && italic;
    report.Check(L"host frame, pictures and fonts", ready ? L"made" : L"missing", ready);
    if (!ready) {
        if (frame)
            DestroyWindow(frame);
        return;
    }

    // An item of the frame's own menu with a picture: the frame shows it on its bar.
    const int32_t tools = ZelMenuInsertPicture(frame, bar, -1, computer, computer, L"&Tools");
    report.Number(L"ZelMenuInsertPicture on the bar: above the menu's highest id", tools, 0xE142);
    report.Number(L"the frame's structure holds its bitmap", ZkHostFrameMenuPicture(frame, tools), 1);
    report.Text(L"ZelMenuGetText of the bar item", OwnedStr(ZelMenuGetText(frame, bar, 2)).Text(), L"&Tools");

    // A popup of the frame, outside its menu: the library draws its items.
    HMENU popup = CreatePopupMenu();
    const int32_t open = ZelMenuInsertPicture(frame, popup, -1, folder, folderOpen, L"&Open folder\\tCtrl+O");
    const int32_t newDoc = ZelMenuInsertPicture(frame, popup, -1, document, document, L"&New document\\tCtrl+N");
    const int32_t disk = ZelMenuInsertPicture(frame, popup, -1, drive, drive, L"&Drive C:");
    const int32_t pc = ZelMenuInsertPicture(frame, popup, -1, computer, computer, L"&Computer");
    report.Number(L"ids of the popup's items", newDoc - open + disk - newDoc + pc - disk, 3);
    report.Number(L"ZelMenuSetFont bold", ZelMenuSetFont(frame, popup, 1, bold, L""), 1);
    report.Number(L"ZelMenuSetFont italic", ZelMenuSetFont(frame, popup, 2, italic, L""), 1);
    report.Number(L"ZelMenuCheck the drive", ZelMenuCheck(popup, 2), 1);
    report.Number(L"ZelMenuIsChecked", ZelMenuIsChecked(popup, 2), 1);
    report.Number(L"ZelMenuDisable the computer", ZelMenuDisable(popup, 3), 1);
    report.Number(L"ZelMenuIsEnabled", ZelMenuIsEnabled(popup, 3), 0);
    report.Text(L"ZelMenuGetText of an owner-drawn item", OwnedStr(ZelMenuGetText(frame, popup, 1)).Text(),
                L"&New document\tCtrl+N");
    report.Number(L"ZelMenuGetCount", ZelMenuGetCount(popup), 4);

    // Open it below the bar, the second item selected by two arrow keys.
    SetForegroundWindow(frame);
    RedrawWindow(frame, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    PumpPending();
    RECT place{};
    GetWindowRect(frame, &place);
    shot = Shot{};
    shotFrame = frame;
    PostMessageW(frame, WM_KEYDOWN, VK_DOWN, 0);
    PostMessageW(frame, WM_KEYDOWN, VK_DOWN, 0);
    const UINT_PTR take = SetTimer(nullptr, 0, 300, TakeShot);
    const UINT_PTR giveUp = SetTimer(nullptr, 0, 5000, GiveUp);
    TrackPopupMenuEx(popup, TPM_LEFTALIGN | TPM_TOPALIGN | TPM_LEFTBUTTON, place.left + 60, place.top + 70, frame,
                     nullptr);
    KillTimer(nullptr, take);
    KillTimer(nullptr, giveUp);
    PumpPending();
    report.Check(L"popup open for its picture", shot.popupFound ? L"open" : L"not found",
                 shot.popupFound && !shot.gaveUp);
    if (pictures.Enabled() && shot.popupFound)
        pictures.Save(L"menu-popup", shot.picture);

    report.Number(L"ZelMenuDelete of a popup item", ZelMenuDelete(frame, popup, 3), 1);
    DestroyMenu(popup);
    DestroyWindow(frame);
    for (ZelPicHandle p : {folder, folderOpen, document, drive, computer})
        ZelPicFree(p);
    ZelFontFree(bold);
    ZelFontFree(italic);
}

} // namespace gallery
