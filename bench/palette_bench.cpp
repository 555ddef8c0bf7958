// The cost of one full paint of the palette (40 main colours, 4 menu
// entries and the other-colour line, 8 recent colours; bevels, texts and
// the focus frame, off screen and one copy) against a window of the same
// size whose paint fills the same 48 cells with FillRect and draws the
// same five texts. Both are painted through the same route (invalidate,
// update) the same number of times, in alternating rounds; the ratio of the
// medians is printed beside its bound of 1.5.
//
// Then a focus move: the area its paint covers against the client area (and,
// told for context, its time against a full paint). The program fails when
// the palette does not paint what it should, or when a focus move changes a
// pixel outside the area it marked.
#include <windows.h>

#include <cstdio>
#include <string>
#include <vector>

#include "bench.h"
#include "zklib.h"

namespace {

using namespace bench;

constexpr int kWidth = 240, kHeight = 200;
constexpr int kMain = 40, kRecent = 8;
const wchar_t *const kTexts[] = {L"Automatic", L"None", L"Transparent", L"Custom...", L"Other Color..."};

COLORREF MainColour(int i) { return RGB(40 + 5 * i, 255 - 6 * i, (97 * i) & 0xFF); }

// The baseline: a fill, 48 cells each with a brush of its colour, five texts.
HFONT baselineFont = nullptr;
void PlainCells(HDC dc) {
    const int cw = (kWidth - 7) / 7 - 1, ch = 17;
    for (int cell = 0; cell < kMain + kRecent; ++cell) {
        const int top = cell < kMain ? 3 + (cell / 7) * (ch + 1) : 150 + ((cell - kMain) / 7) * (ch + 1);
        RECT r{3 + (cell % 7) * (cw + 1), top, 0, 0};
        r.right = r.left + cw;
        r.bottom = r.top + ch;
        HBRUSH brush = CreateSolidBrush(MainColour(cell));
        FillRect(dc, &r, brush);
        DeleteObject(brush);
    }
    const HGDIOBJ old = SelectObject(dc, baselineFont);
    for (int i = 0; i < 5; ++i) {
        RECT r{5, 112 + 19 * i, kWidth - 5, 112 + 19 * i + 15};
        DrawTextW(dc, kTexts[i], -1, &r, DT_VCENTER | DT_SINGLELINE);
    }
    SelectObject(dc, old);
}

LRESULT CALLBACK PlainProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return PlainPaint(window, message, wParam, lParam, &PlainCells);
}

// The region each paint of the palette covered, summed, and the last one.
WNDPROC paletteProc = nullptr;
HRGN lastPainted = nullptr;
double paintedArea = 0;
LRESULT CALLBACK Watcher(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_PAINT && lastPainted) {
        GetUpdateRgn(window, lastPainted, FALSE);
        std::vector<char> data(GetRegionData(lastPainted, 0, nullptr));
        auto *rgn = reinterpret_cast<RGNDATA *>(data.data());
        if (!data.empty() && GetRegionData(lastPainted, static_cast<DWORD>(data.size()), rgn)) {
            const RECT *rects = reinterpret_cast<const RECT *>(rgn->Buffer);
            for (DWORD i = 0; i < rgn->rdh.nCount; ++i)
                paintedArea += double(rects[i].right - rects[i].left) * (rects[i].bottom - rects[i].top);
        }
    }
    return CallWindowProcW(paletteProc, window, message, wParam, lParam);
}

// The colour dialog of the other-colour entry, answered with OK as soon as
// it shows.
BOOL CALLBACK PressOk(HWND window, LPARAM) {
    wchar_t name[16] = {};
    GetClassNameW(window, name, 16);
    if (lstrcmpW(name, L"#32770") == 0 && IsWindowVisible(window))
        PostMessageW(window, WM_COMMAND, IDOK, 0);
    return TRUE;
}
VOID CALLBACK AnswerDialog(HWND, UINT, UINT_PTR, DWORD) { EnumThreadWindows(GetCurrentThreadId(), &PressOk, 0); }

// Eight recent colours, chosen the only way there is: through the dialog.
void ChooseRecentColours(HWND palette) {
    const UINT_PTR timer = SetTimer(nullptr, 0, 20, &AnswerDialog);
    for (int i = 0; i < kRecent; ++i)
        SendMessageW(palette, ZKM_PaletteCommand, reinterpret_cast<WPARAM>(palette), 0);
    KillTimer(nullptr, timer);
}

struct Capture {
    HDC dc = nullptr;
    HBITMAP bitmap = nullptr;
    HGDIOBJ old = nullptr;
    std::vector<COLORREF> pixels;
    void Take(HWND window) {
        HDC screen = GetDC(window);
        dc = CreateCompatibleDC(screen);
        bitmap = CreateCompatibleBitmap(screen, kWidth, kHeight);
        old = SelectObject(dc, bitmap);
        SendMessageW(window, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc), PRF_CLIENT);
        pixels.clear();
        for (int y = 0; y < kHeight; ++y)
            for (int x = 0; x < kWidth; ++x)
                pixels.push_back(GetPixel(dc, x, y));
        SelectObject(dc, old);
        DeleteObject(bitmap);
        DeleteDC(dc);
        ReleaseDC(window, screen);
    }
};

} // namespace

int main(int argc, char **argv) {
    Run run("bench_palette", argc, argv);
    const int paints = run.Size(20, 200), rounds = run.Size(1, 7);
    // The baseline window has the palette's class style: the same paint route.
    HWND form = MakeForm(L"ZkPaletteBenchForm", L"ZkPaletteBenchPlain", &PlainProc, CS_PARENTDC | CS_BYTEALIGNWINDOW,
                         2 * kWidth + 40, kHeight + 60);
    HWND palette = CreateWindowExW(0, L"ZK:cPalette:10", L"", WS_CHILD | WS_VISIBLE, 10, 10, kWidth, kHeight, form,
                                   reinterpret_cast<HMENU>(INT_PTR{1}), GetModuleHandleW(nullptr), nullptr);
    HWND plain = CreateWindowW(L"ZkPaletteBenchPlain", L"", WS_CHILD | WS_VISIBLE, kWidth + 20, 10, kWidth, kHeight,
                               form, nullptr, GetModuleHandleW(nullptr), nullptr);
    MSG m{};
    ZelPalControl control = 0;
    if (palette && PeekMessageW(&m, palette, ZKM_ControlCreate, ZKM_ControlCreate, PM_REMOVE))
        control = static_cast<ZelPalControl>(m.lParam);
    if (!run.Check(control != 0, "no palette control announced"))
        return run.Finish();
    baselineFont = reinterpret_cast<HFONT>(SendMessageW(palette, WM_GETFONT, 0, 0));
    for (int i = 0; i < kMain; ++i)
        ZelPalColorMainSet(control, i, MainColour(i));
    for (int i = 0; i < 4; ++i)
        ZelPalMenuAdd(control, kTexts[i], static_cast<uint16_t>(100 + i));
    ChooseRecentColours(palette);
    ZelPalStyleSet(control, PALS_KeepSelection, 1);
    ZelPalFocusSet(control, PALZ_Main, 10);
    while (PeekMessageW(&m, nullptr, 0, 0, PM_REMOVE))
        DispatchMessageW(&m);
    run.Check(ZelPalColorPaletteGet(control, PALP_Recent, kRecent - 1) != -1, "eight recent colours not chosen");
    run.Check(ZelPalColorPaletteGet(control, PALP_Main, kMain - 1) == static_cast<int32_t>(MainColour(kMain - 1)),
              "the main colours not taken");

    std::vector<double> times, plainTimes;
    for (int round = 0; round < rounds; ++round) {
        times.push_back(PaintTimes(palette, paints));
        plainTimes.push_back(PaintTimes(plain, paints));
    }
    Capture full;
    full.Take(palette);
    int mainPixels = 0;
    for (COLORREF c : full.pixels)
        mainPixels += c == MainColour(kMain - 1);
    run.Check(mainPixels >= 100, "the last main colour is not painted");
    std::printf("  palette paint %.1f us, plain paint %.1f us (medians of %d rounds of %d)\n",
                Median(times) / paints * 1e6, Median(plainTimes) / paints * 1e6, rounds, paints);
    run.Figure("palette paint / FillRect cells and texts", Median(times) / Median(plainTimes), Want::AtMost, 1.5);

    // A focus move paints the cells it leaves and enters, and nothing else.
    paletteProc =
        reinterpret_cast<WNDPROC>(SetWindowLongPtrW(palette, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Watcher)));
    lastPainted = CreateRectRgn(0, 0, 0, 0);
    Capture before, after;
    before.Take(palette);
    paintedArea = 0;
    ZelPalFocusSet(control, PALZ_Main, 18);
    after.Take(palette);
    int outside = 0;
    for (int y = 0; y < kHeight; ++y)
        for (int x = 0; x < kWidth; ++x)
            if (before.pixels[y * kWidth + x] != after.pixels[y * kWidth + x] && !PtInRegion(lastPainted, x, y))
                ++outside;
    run.Check(paintedArea > 0, "the focus move painted nothing");
    run.Check(outside == 0, "a focus move changed pixels outside the area it painted");
    run.Figure("focus move: painted area / client area", paintedArea / (double(kWidth) * kHeight), Want::AtMost, 0.1);
    std::vector<double> moveTimes;
    const int moves = run.Size(20, 400);
    for (int round = 0; round < rounds; ++round) {
        const double start = Seconds();
        for (int i = 0; i < moves; ++i)
            ZelPalFocusSet(control, PALZ_Main, 10 + i % 2 * 8);
        moveTimes.push_back(Seconds() - start);
    }
    // Under Wine a paint's fixed costs (the update region, BeginPaint, the
    // copy to the window's surface) outweigh the few cells drawn: told, not bound.
    run.Note("focus move / full paint (time)", (Median(moveTimes) / moves) / (Median(times) / paints));
    SetWindowLongPtrW(palette, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(paletteProc));
    DeleteObject(lastPainted);
    lastPainted = nullptr;
    DestroyWindow(form);
    return run.Finish();
}
