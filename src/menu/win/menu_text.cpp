// Item texts: the record's copy for the library's items, the host frame's
// structure for a menu in its tree, the platform menu otherwise.
#include <vector>

#include "frame/win/host.h"
#include "menu/win/menu_frames.h"
#include "menu/win/menu_ops.h"
#include "menu/win/menu_popup.h"
#include "menu/win/menu_store.h"

namespace zk::menu {
namespace {

// A text the host copies into a buffer and whose whole length it answers.
template <class Read>
std::wstring HostText(Read &&read) {
    std::vector<wchar_t> buffer(256);
    int32_t length = read(buffer.data(), static_cast<int32_t>(buffer.size()));
    if (length >= static_cast<int32_t>(buffer.size())) {
        buffer.assign(static_cast<size_t>(length) + 1, L'\0');
        length = read(buffer.data(), static_cast<int32_t>(buffer.size()));
    }
    return length > 0 ? std::wstring(buffer.data()) : std::wstring();
}

HostStr Result(const std::wstring &text) { return StrFromView(text); }

} // namespace

HostStr GetText(HWND window, HMENU menu, int32_t selector) {
    Opening open;
    if (!Open(window, menu, true, open))
        return ZelStrEmpty();
    MenuRecord record{};
    const int32_t id = IdOf(menu, selector);
    if (HLOCAL block = BlockOf(open.frame); block && ReadRecord(block, menu, id, record) && record.text) {
        const std::u16string text = ReadText(static_cast<HLOCAL>(record.text));
        if (!text.empty())
            return Result(std::wstring(text.begin(), text.end()));
    }
    const UINT by = PositionUnlessNegative(selector);
    const UINT state = GetMenuState(menu, static_cast<UINT>(selector), by);
    if (ZelMenuInFrame(open.frame, menu)) {
        const bool popup = state != static_cast<UINT>(-1) && (state & MF_POPUP);
        const INT_PTR key = popup ? reinterpret_cast<INT_PTR>(GetSubMenu(menu, selector)) : id;
        HWND frame = open.frame;
        std::wstring text = HostText([&](wchar_t *b, int32_t n) { return HostFrameGetMenuText(frame, key, b, n); });
        if (state == static_cast<UINT>(-1) && text.empty() && HostFrameIsWindowsMenu(frame, menu))
            text = HostText([&](wchar_t *b, int32_t n) {
                return HostFrameGetWindowsMenuText(frame, static_cast<int32_t>(key), b, n);
            });
        if (!text.empty())
            return Result(text);
    }
    wchar_t text[256] = L"";
    const int length = GetMenuStringW(menu, static_cast<UINT>(selector), text, 256, by);
    return Result(std::wstring(text, length > 0 ? static_cast<size_t>(length) : 0));
}

int32_t SetText(HWND window, HMENU menu, int32_t selector, const wchar_t *text) {
    Opening open;
    if (!Open(window, menu, true, open))
        return 0;
    const std::u16string value = TextArgument(text);
    HWND frame = open.frame;
    const int32_t id = IdOf(menu, selector);
    MenuRecord record{};
    if (HLOCAL block = BlockOf(frame); block && ReadRecord(block, menu, id, record)) {
        HLOCAL copy = NewText(value);
        if (!copy)
            return 0;
        record.text = copy;
        StoreRecord(block, record);
        const UINT current = GetMenuState(menu, static_cast<UINT>(id), MF_BYCOMMAND);
        if (current != static_cast<UINT>(-1))
            ModifyMenuW(menu, static_cast<UINT>(id), current, static_cast<UINT_PTR>(id), Wide(value));
    }
    const UINT by = PositionUnlessNegative(selector);
    const UINT state = GetMenuState(menu, static_cast<UINT>(selector), by);
    const bool popup = state != static_cast<UINT>(-1) && (state & MF_POPUP);
    BOOL modified = FALSE;
    if (state != static_cast<UINT>(-1)) {
        const UINT_PTR item =
            popup ? reinterpret_cast<UINT_PTR>(GetSubMenu(menu, selector)) : static_cast<UINT_PTR>(id);
        modified = ModifyMenuW(menu, static_cast<UINT>(selector), (popup ? MF_POPUP : state) | by, item, Wide(value));
    }
    int32_t result = modified ? 1 : 0;
    if (!popup && ZelMenuInFrame(frame, menu)) {
        result = HostFrameSetMenuText(frame, id, Wide(value));
        if (result)
            RefreshBar(frame);
    } else {
        RefreshBar(frame);
    }
    if (HWND tracking = GetTrackingMenu(); tracking && selector >= 0)
        UpdatePopupItemText(tracking, menu, selector);
    return result;
}

} // namespace zk::menu
