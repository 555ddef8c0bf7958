// Reading and changing the text of a row, of any length.
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>

#include "outline/win/lbx_exports.h"
#include "outline/win/listfn_target.h"

namespace zk::lbx {

namespace {

// The empty string in the slot, dropping what the slot held.
HostStr EmptyInto(HostStr &slot) {
    zk::StrAllocRetry(&slot, 2);
    zk::StrWrite(slot, L"", 0);
    return slot;
}

// Reads an item's text past any buffer size: the text query, told by the
// item's one-shot switch, hands out the address of the text field.
LRESULT ReadByReference(const LbxTarget &t, int32_t row, LbxItem *item, const wchar_t **chars) {
    item->textByRef = 1;
    const void *field = nullptr;
    const LRESULT got = t.Send(LB_GETTEXT, CB_GETLBTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&field));
    if (LbxIsItem(item)) {
        item->textByRef = 0; // in case the query did not take it
    }
    *chars = field ? LbxW(LbxTextAtField(field)) : nullptr;
    return got;
}

} // namespace

HostStr GetText(HWND window, int32_t row) {
    LbxTarget t;
    if (!TargetOf(window, &t)) {
        return ZelStrEmpty();
    }
    const LRESULT length = t.Send(LB_GETTEXTLEN, CB_GETLBTEXTLEN, static_cast<WPARAM>(row));
    if (length < 0 || length > (INT32_MAX - 2) / 2) {
        return ZelStrEmpty();
    }
    HostStr slot = 0;
    zk::StrAllocRetry(&slot, static_cast<int32_t>(2 * length + 2));
    wchar_t *buffer = zk::StrBuffer(slot);
    if (!buffer) {
        return EmptyInto(slot);
    }
    LbxChild child{};
    LbxItem *item = LbxGetChildCopy(window, &child) ? LbxItemOf(LbxBaseRow(child, window, t.combo, row)) : nullptr;
    LRESULT got = 0;
    if (item) {
        const wchar_t *chars = nullptr;
        got = ReadByReference(t, row, item, &chars);
        if (got < 1 || !chars) {
            return EmptyInto(slot);
        }
        got = std::min(got, length);
        std::memcpy(buffer, chars, static_cast<size_t>(got) * sizeof(wchar_t));
        buffer[got] = 0;
    } else {
        got = t.Send(LB_GETTEXT, CB_GETLBTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(buffer));
        if (got < 1) {
            return EmptyInto(slot);
        }
    }
    if (got < length) {
        HostStrSetLength(&slot, static_cast<int32_t>(got + 1));
    }
    return slot;
}

// An adopted row: a text no longer than the old one is stored in the item;
// a longer one gets a new item in the row, with every field of the old.
int32_t SetAdoptedText(const LbxChild &child, const LbxTarget &t, int32_t row, std::u16string_view text) {
    LbxItem *item = LbxItemOf(LbxBaseRow(child, t.window, t.combo, row));
    if (!item) {
        return -1;
    }
    LbxItem *target = item;
    if (text.size() <= item->text.size()) {
        item->text.assign(text);
    } else {
        auto fresh = std::make_unique<LbxItem>();
        fresh->text.assign(text); // the one step that may fail, before anything changed
        fresh->node = item->node;
        fresh->picNormal = item->picNormal;
        fresh->picSelected = item->picSelected;
        fresh->font = item->font;
        fresh->color = item->color;
        fresh->flags = item->flags;
        fresh->value = item->value;
        if (fresh->node) {
            fresh->node->item = fresh.get();
        }
        CallBase(child, t.window, t.Pick(LB_SETITEMDATA, CB_SETITEMDATA), static_cast<WPARAM>(row),
                 reinterpret_cast<LPARAM>(fresh.get()));
        delete item;
        target = fresh.release();
    }
    LbxNormalizeText(child.style, target->text, LbxPlatformCase());
    RedrawRow(t.window, t.combo, row, RDW_INVALIDATE);
    return 0;
}

// A plain row: a new row with the same value takes the old one's place.
int32_t SetPlainText(const LbxTarget &t, int32_t row, const wchar_t *text) {
    if (row < 0 || row >= t.Count()) {
        return -1;
    }
    const bool multi = t.MultiSelect();
    const bool wasSelected = multi && SendMessageW(t.window, LB_GETSEL, static_cast<WPARAM>(row), 0) > 0;
    const int32_t selection = multi ? -1 : HostListGetSelection(t.window);
    const int32_t value = static_cast<int32_t>(t.Send(LB_GETITEMDATA, CB_GETITEMDATA, static_cast<WPARAM>(row)));
    HostWinSetRedraw(t.window, 0);
    const int32_t added = LbxAddValue(t, row, text, value);
    if (added >= 0) {
        HostListDelete(t.window, row + 1);
    }
    HostWinSetRedraw(t.window, 1);
    if (added < 0) {
        return -1;
    }
    if (multi) {
        if (wasSelected) {
            HostListSetMultiSelection(t.window, row, 1);
        }
    } else {
        HostListSetSelection(t.window, selection);
    }
    return 0;
}

} // namespace zk::lbx
