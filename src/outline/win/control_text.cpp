// Text, data and selection queries of adopted controls answered through
// their items, so that host code sees an ordinary list.
#include <cstring>

#include "outline/win/lbx_procs.h"

namespace zk::lbx {

namespace {

bool IsNoData(std::uintptr_t word) { return word == 0 || word == static_cast<std::uintptr_t>(-1); }

} // namespace

LRESULT BaseAddRow(const LbxChild &child, HWND window, bool combo, UINT message, WPARAM row, LPARAM item) {
    const LRESULT added = CallBase(child, window, message, row, item);
    if (added >= 0 &&
        LbxBaseRow(child, window, combo, static_cast<int32_t>(added)) != static_cast<std::uintptr_t>(item)) {
        CallBase(child, window, combo ? CB_SETITEMDATA : LB_SETITEMDATA, static_cast<WPARAM>(added), item);
    }
    return added;
}

LRESULT UserRecord(HWND window, WPARAM set, LPARAM buffer) {
    auto *bytes = reinterpret_cast<unsigned char *>(buffer);
    if (!bytes) {
        return 0;
    }
    ChildEdit(window, [&](LbxChild &c) {
        if (set == 1) {
            std::memcpy(&c.userWord, bytes, sizeof c.userWord);
            const char *text = reinterpret_cast<const char *>(bytes + sizeof c.userWord);
            std::size_t n = 0;
            while (n + 1 < sizeof c.userText && text[n]) {
                ++n;
            }
            std::memcpy(c.userText, text, n);
            c.userText[n] = 0;
        } else {
            std::memcpy(bytes, &c.userWord, sizeof c.userWord);
            std::memcpy(bytes + sizeof c.userWord, c.userText, std::strlen(c.userText) + 1);
        }
    });
    return 1;
}

LRESULT TextQuery(const LbxChild &child, HWND window, bool combo, UINT message, WPARAM row, LPARAM buffer) {
    const std::uintptr_t word = LbxBaseRow(child, window, combo, static_cast<int32_t>(row));
    if (IsNoData(word)) {
        return CallBase(child, window, message, row, buffer);
    }
    if (!buffer) {
        return combo ? CB_ERR : LB_ERR;
    }
    LbxItem *item = LbxItemOf(word);
    if (!item) {
        // A row added before adoption holds a string pointer.
        const auto *text = reinterpret_cast<const wchar_t *>(word);
        lstrcpyW(reinterpret_cast<wchar_t *>(buffer), text);
        return lstrlenW(text);
    }
    if (item->textByRef) {
        item->textByRef = 0;
        *reinterpret_cast<const void **>(buffer) = &item->text;
    } else {
        lstrcpyW(reinterpret_cast<wchar_t *>(buffer), LbxW(item->text.c_str()));
    }
    return static_cast<LRESULT>(item->text.size());
}

LRESULT LbxTextLength(const LbxChild &child, HWND window, bool combo, UINT message, WPARAM row, LPARAM lParam) {
    const std::uintptr_t word = LbxBaseRow(child, window, combo, static_cast<int32_t>(row));
    if (IsNoData(word)) {
        return CallBase(child, window, message, row, lParam);
    }
    if (LbxItem *item = LbxItemOf(word)) {
        return static_cast<LRESULT>(item->text.size());
    }
    return lstrlenW(reinterpret_cast<const wchar_t *>(word));
}

LRESULT ItemData(const LbxChild &child, HWND window, bool combo, UINT message, WPARAM row, LPARAM lParam) {
    const std::uintptr_t word = LbxBaseRow(child, window, combo, static_cast<int32_t>(row));
    LbxItem *item = LbxItemOf(word);
    const bool setting = message == LB_SETITEMDATA || message == CB_SETITEMDATA;
    if (setting) {
        if (!item) {
            return CallBase(child, window, message, row, lParam);
        }
        item->value = static_cast<int32_t>(lParam);
        return 1;
    }
    if (item) {
        return item->value;
    }
    if (IsNoData(word)) {
        return CallBase(child, window, message, row, lParam);
    }
    return static_cast<LRESULT>(word);
}

LRESULT LbxCurSel(const LbxChild &child, HWND window, bool combo, UINT message) {
    const LRESULT selection = CallBase(child, window, message, 0, 0);
    if (selection == LB_ERR) {
        return LB_ERR;
    }
    LbxItem *item = LbxItemOf(LbxBaseRow(child, window, combo, static_cast<int32_t>(selection)));
    if (!item) {
        return CallBase(child, window, message, 0, 0);
    }
    return (item->flags & LBX_ItemDisabled) ? LB_ERR : selection;
}

} // namespace zk::lbx
