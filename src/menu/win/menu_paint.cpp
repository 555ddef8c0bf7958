#include "menu/win/menu_paint.h"

#include <algorithm>
#include <string>

#include "frame/win/dib32.h"
#include "frame/win/gdi.h"
#include "frame/win/masked_blit.h"
#include "menu/core/menu_layout.h"
#include "menu/win/menu_store.h"
#include "outline/win/pic.h"

namespace zk::menu {
namespace {

// OBM_CHECK of the system's bitmaps (its name needs OEMRESOURCE).
constexpr WORD kCheckBitmap = 32760;

int32_t CheckWidth() { return LOWORD(GetMenuCheckMarkDimensions()); }

// A record's picture, if it is still alive.
const PIC *Live(const PIC *picture) { return lbx::PicIsLive(picture) ? picture : nullptr; }

bool IsBitmap(const PIC &picture) { return picture.type == lbx::PIC_TypeBitmap; }

SIZE Extent(HDC dc, std::u16string_view text) {
    SIZE size{0, 0};
    GetTextExtentPoint32W(dc, reinterpret_cast<const wchar_t *>(text.data()), static_cast<int>(text.size()), &size);
    return size;
}

void DrawPicture(HDC dc, const PIC &picture, const ItemLayout &at) {
    if (IsBitmap(picture)) {
        MaskedBlit(dc, at.picture.x, at.picture.y, picture.width, at.pictureRows, picture.bitmap, picture.mask);
        return;
    }
    if ((picture.type == lbx::PIC_TypeIcon || picture.type == lbx::PIC_TypeMemoryIcon) && picture.icon)
        DrawIcon(dc, at.picture.x, at.picture.y, picture.icon);
}

// The platform's check mark at the item's left edge: black on the menu
// colour, or inverted (white) when the item has just been selected.
void DrawCheck(HDC dc, const RECT &item, bool selected, const DrawMetrics &metrics) {
    Bitmap check(LoadBitmapW(nullptr, MAKEINTRESOURCEW(kCheckBitmap)));
    BITMAP bits{};
    if (!check || !GetObjectW(check, sizeof(bits), &bits))
        return;
    DrawMetrics m = metrics;
    m.checkHeight = bits.bmHeight;
    const ItemLayout at = LayoutItem(m);
    MemoryDC source(dc);
    if (!source)
        return;
    Selected in(source, check);
    const COLORREF oldBack = SetBkColor(dc, RGB(255, 255, 255));
    const COLORREF oldText = SetTextColor(dc, RGB(0, 0, 0));
    if (selected) {
        PatBlt(source, 0, 0, bits.bmWidth, bits.bmHeight, DSTINVERT);
        BitBlt(dc, item.left, at.check.y, bits.bmWidth, bits.bmHeight, source, 0, 0, SRCPAINT);
    } else {
        BitBlt(dc, item.left, at.check.y, bits.bmWidth, bits.bmHeight, source, 0, 0, SRCAND);
    }
    SetTextColor(dc, oldText);
    SetBkColor(dc, oldBack);
}

} // namespace

bool MeasureMenuItem(HWND window, HLOCAL block, MEASUREITEMSTRUCT &item) {
    item.itemWidth = 0;
    item.itemHeight = 0;
    MenuRecord record{};
    bool found = false;
    WithTable(block, [&](MenuBlock &b, MenuRecord *records) {
        const int32_t at = FindRecordById(records, b.count, static_cast<int32_t>(item.itemID));
        if (at >= 0) {
            record = records[at];
            found = true;
        }
    });
    if (!found)
        return false;
    ItemMetrics m;
    m.checkWidth = CheckWidth();
    for (const PIC *p : {Live(record.picture), Live(record.selectedPicture)}) {
        if (p) {
            m.pictureWidth = std::max(m.pictureWidth, p->width);
            m.pictureHeight = std::max(m.pictureHeight, p->height);
        }
    }
    const std::u16string text = ReadText(static_cast<HLOCAL>(record.text));
    if (!text.empty()) {
        ClientDC dc(window);
        HGDIOBJ font = record.font ? static_cast<HGDIOBJ>(record.font) : GetStockObject(SYSTEM_FONT);
        Selected in(dc, font);
        TEXTMETRICW tm{};
        GetTextMetricsW(dc, &tm);
        m.hasText = true;
        m.textWidth = Extent(dc, text).cx;
        m.fontHeight = tm.tmHeight;
    }
    const ItemSize size = MeasureItem(m);
    item.itemWidth = static_cast<UINT>(size.width);
    item.itemHeight = static_cast<UINT>(size.height);
    return true;
}

bool DrawMenuItem(HLOCAL block, const DRAWITEMSTRUCT &item) {
    // The item data is the menu, as the library inserted the item; a text
    // set on an owner-drawn item since has made the data that text's
    // pointer, and the id alone finds the record then, as in measuring.
    const int32_t id = static_cast<int32_t>(item.itemID);
    MenuRecord record{};
    bool found = false;
    WithTable(block, [&](MenuBlock &b, MenuRecord *records) {
        int32_t at = FindRecord(records, b.count, reinterpret_cast<void *>(item.itemData), id);
        if (at < 0)
            at = FindRecordById(records, b.count, id);
        if (at >= 0) {
            record = records[at];
            found = true;
        }
    });
    if (!found)
        return false;
    HMENU menu = static_cast<HMENU>(record.menu);
    HDC dc = item.hDC;
    const bool selectAction = (item.itemAction & ODA_SELECT) != 0;
    const bool selected = selectAction && (item.itemState & ODS_SELECTED);
    FillRect(dc, &item.rcItem, GetSysColorBrush(selected ? COLOR_HIGHLIGHT : COLOR_MENU));
    const PIC *picture = Live(selected ? record.selectedPicture : record.picture);
    if (!picture)
        return false;

    DrawMetrics m;
    m.item = FromRECT(item.rcItem);
    m.pictureWidth = picture->width;
    m.pictureHeight = picture->height;
    m.centrePicture = IsBitmap(*picture);
    // The DC is the menu's: what is changed on it goes back (SaveDC would
    // cost more than the whole drawing).
    COLORREF oldText = CLR_INVALID;
    int oldMode = 0;
    HGDIOBJ oldFont = nullptr;
    const std::u16string text = ReadText(static_cast<HLOCAL>(record.text));
    if (!text.empty()) {
        if (record.font)
            oldFont = SelectObject(dc, static_cast<HFONT>(record.font));
        const bool greyed = (item.itemState & (ODS_DISABLED | ODS_GRAYED)) != 0;
        oldText = SetTextColor(dc, greyed     ? GetSysColor(COLOR_GRAYTEXT)
                                   : selected ? GetSysColor(COLOR_HIGHLIGHTTEXT)
                                              : RGB(0, 0, 0));
        oldMode = SetBkMode(dc, TRANSPARENT);
        const TabParts parts = SplitAtTab(text);
        if (parts.hasTab) {
            // Only the text after a tab needs the check width, which the
            // platform works out afresh on every call (slowly under Wine).
            m.afterTabWidth = Extent(dc, parts.after).cx;
            m.twoSpacesWidth = Extent(dc, u"  ").cx;
            m.checkWidth = CheckWidth();
        }
        const ItemLayout at = LayoutItem(m);
        const UINT format = DT_SINGLELINE | DT_VCENTER;
        RECT box = ToRECT(at.text);
        DrawTextW(dc, reinterpret_cast<const wchar_t *>(parts.before.data()), static_cast<int>(parts.before.size()),
                  &box, format);
        if (parts.hasTab) {
            box = ToRECT(at.afterTab);
            DrawTextW(dc, reinterpret_cast<const wchar_t *>(parts.after.data()), static_cast<int>(parts.after.size()),
                      &box, format);
        }
    }
    DrawPicture(dc, *picture, LayoutItem(m));
    const UINT state = GetMenuState(menu, static_cast<UINT>(id), MF_BYCOMMAND);
    if (state != static_cast<UINT>(-1) && (state & MF_CHECKED))
        DrawCheck(dc, item.rcItem, selected, m);
    if (oldFont)
        SelectObject(dc, oldFont);
    if (oldMode)
        SetBkMode(dc, oldMode);
    if (oldText != CLR_INVALID)
        SetTextColor(dc, oldText);
    return true;
}

HBITMAP MakeBackgroundlessBitmap(const PIC &picture) {
    const int width = picture.width, height = picture.height;
    if (width <= 0 || height <= 0)
        return nullptr;
    HDC screen = GetDC(nullptr);
    MemoryDC dc(screen);
    Bitmap combined(screen ? CreateCompatibleBitmap(screen, width, height) : nullptr);
    if (screen)
        ReleaseDC(nullptr, screen);
    if (!dc || !combined)
        return nullptr;
    {
        Selected in(dc, combined);
        PatBlt(dc, 0, 0, width, height, BLACKNESS);
        if (IsBitmap(picture))
            MaskedBlit(dc, 0, 0, width, height, picture.bitmap, picture.mask);
        else if (picture.icon)
            DrawIconEx(dc, 0, 0, picture.icon, width, height, 0, nullptr, DI_NORMAL);
    }
    // To 32 bits, black made transparent.
    BITMAPINFO info = Dib32Info(width, height);
    void *bits = nullptr;
    Bitmap result(CreateDib32(dc, width, height, &bits));
    if (!result || GetDIBits(dc, combined, 0, static_cast<UINT>(height), bits, &info, DIB_RGB_COLORS) != height)
        return nullptr;
    auto *pixel = static_cast<uint32_t *>(bits);
    for (int i = 0; i < width * height; ++i)
        pixel[i] = (pixel[i] & 0x00FFFFFFu) ? (pixel[i] | 0xFF000000u) : 0u;
    return result.Release();
}

} // namespace zk::menu
