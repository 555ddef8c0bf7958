#include "menu/win/menu_subclass.h"

#include <vector>

#include "menu/win/menu_frames.h"
#include "menu/win/menu_paint.h"
#include "menu/win/menu_store.h"

namespace zk::menu {
namespace {

char16_t CaseOf(char16_t key, bool upper) {
    const auto mapped = reinterpret_cast<ULONG_PTR>(
        (upper ? CharUpperW : CharLowerW)(reinterpret_cast<LPWSTR>(static_cast<ULONG_PTR>(key))));
    return static_cast<char16_t>(LOWORD(mapped));
}

// A key of an open menu whose owner-drawn items the platform cannot read:
// the first record of the menu whose mnemonic is the key answers.
LRESULT MenuChar(HWND window, HLOCAL block, WNDPROC old, WPARAM wParam, LPARAM lParam) {
    HMENU menu = reinterpret_cast<HMENU>(lParam);
    const auto key = static_cast<char16_t>(LOWORD(wParam));
    const char16_t lower = CaseOf(key, false), upper = CaseOf(key, true);
    bool found = false;
    int32_t id = 0;
    WithTable(block, [&](MenuBlock &b, MenuRecord *records) {
        for (int32_t i = 0; i < b.count && !found; ++i) {
            if (records[i].menu != menu)
                continue;
            if (MnemonicMatches(ReadText(static_cast<HLOCAL>(records[i].text)), lower, upper)) {
                found = true;
                id = records[i].id;
            }
        }
    });
    if (!found)
        return CallWindowProcW(old, window, WM_MENUCHAR, wParam, lParam);
    if (id >= 0) {
        const int32_t position = PositionOf(menu, id);
        return position >= 0 ? MAKELRESULT(position, MNC_EXECUTE) : 0;
    }
    SendMessageW(window, ZKM_MenuCommand, 0, id);
    return MAKELRESULT(0, MNC_CLOSE);
}

// Every application item whose id matches the command's low word is
// reported, with its whole id, before the old procedure sees the command.
void ReportCommand(HWND window, HLOCAL block, WPARAM wParam) {
    std::vector<int32_t> ids;
    try {
        WithTable(block,
                  [&](MenuBlock &b, MenuRecord *records) { ids = CommandTargets(records, b.count, LOWORD(wParam)); });
    } catch (...) {
        return;
    }
    for (int32_t id : ids)
        SendMessageW(window, ZKM_MenuCommand, 0, id);
}

void Clear(HWND window, HLOCAL block) {
    WithTable(block, [&](MenuBlock &b, MenuRecord *records) {
        if (b.count > 0 && records[0].menu == GetSystemMenu(window, FALSE))
            return;
        for (int32_t i = 0; i < b.count; ++i) {
            FreeText(static_cast<HLOCAL>(records[i].text));
            records[i].text = nullptr;
        }
        b.count = 0;
    });
}

} // namespace

LRESULT CALLBACK MenuSubclassProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    HLOCAL block = BlockOf(window);
    MenuBlock copy{};
    if (!block || !LocalCopy(block, &copy) || !copy.oldProc)
        return DefWindowProcW(window, message, wParam, lParam);
    const auto old = reinterpret_cast<WNDPROC>(copy.oldProc);
    try {
        switch (message) {
        case WM_MENUCHAR:
            return MenuChar(window, block, old, wParam, lParam);
        case WM_COMMAND:
            if (HIWORD(wParam) == 0 || HIWORD(wParam) == 0xFFFF)
                ReportCommand(window, block, wParam);
            break;
        case WM_SYSCOMMAND:
            ReportCommand(window, block, wParam);
            break;
        case ZKM_MenuClear:
            Clear(window, block);
            return 1;
        case WM_DESTROY:
            DestroyBlock(window, block);
            break;
        case WM_MEASUREITEM: {
            auto *item = reinterpret_cast<MEASUREITEMSTRUCT *>(lParam);
            if (wParam == 0 && item && item->CtlType == ODT_MENU && MeasureMenuItem(window, block, *item))
                return TRUE;
            break;
        }
        case WM_DRAWITEM: {
            const auto *item = reinterpret_cast<const DRAWITEMSTRUCT *>(lParam);
            if (item && item->CtlType == ODT_MENU && DrawMenuItem(block, *item))
                return TRUE;
            break;
        }
        default:
            break;
        }
    } catch (...) {
        // Nothing thrown reaches the platform; the message goes on.
    }
    return CallWindowProcW(old, window, message, wParam, lParam);
}

} // namespace zk::menu
