// Finding and selecting by text, the selection counts without disabled rows,
// and tab stops.
#include <new>
#include <vector>

#include "outline/core/lbx_tree.h"
#include "outline/win/lbx_procs.h"
#include "outline/win/win_rows.h"

namespace zk::lbx {

LRESULT SelectString(const LbxChild &child, HWND window, bool combo, WPARAM start, LPARAM lParam) {
    const auto *text = reinterpret_cast<const wchar_t *>(lParam);
    const UINT setCurSel = combo ? CB_SETCURSEL : LB_SETCURSEL;
    const int32_t from = static_cast<int32_t>(start);
    LbxNode *node = nullptr;
    if (from == -1) {
        node = LbxGetRoot(window);
    } else {
        LbxItem *item = LbxItemOf(LbxBaseRow(child, window, combo, from));
        if (!item) {
            return CallBase(child, window, combo ? CB_SELECTSTRING : LB_SELECTSTRING, start, lParam);
        }
        node = item->node;
    }
    LRESULT answer = -1;
    if (node) {
        const std::u16string_view wanted = text ? std::u16string_view(LbxU16(text)) : std::u16string_view();
        if (LbxNode *found = LbxFindText(node, wanted, LBX_FindPrefix, LbxPlatformCase())) {
            const int32_t row = LbxItemIndex(window, combo, found);
            if (row != -1) {
                if (LbxIsMultiSelect(window, combo)) {
                    SendMessageW(window, LB_SETSEL, TRUE, row);
                } else {
                    SendMessageW(window, setCurSel, static_cast<WPARAM>(row), 0);
                }
                answer = row;
            }
        }
    } else if (combo && (!text || !*text)) {
        answer = SendMessageW(window, CB_GETCURSEL, 0, 0);
    } else {
        const int32_t row = LbxFindString(child, window, combo, from, text);
        if (row != -1) {
            SendMessageW(window, setCurSel, static_cast<WPARAM>(row), 0);
            answer = row;
        }
    }
    if (combo && !(child.style & LBX_StyleNoEditCopy) && child.editWindow) {
        LbxSyncComboEdit(window, static_cast<int32_t>(answer), static_cast<HWND>(child.editWindow), LbxBaseProc(child));
    }
    return answer;
}

LRESULT LbxSelection(const LbxChild &child, HWND window, UINT message, WPARAM capacity, LPARAM out) {
    const LRESULT selected = CallBase(child, window, LB_GETSELCOUNT, 0, 0);
    if (selected <= 0) {
        return CallBase(child, window, message, capacity, out);
    }
    std::vector<int> rows;
    try {
        rows.resize(static_cast<std::size_t>(selected));
    } catch (const std::bad_alloc &) {
        return LB_ERR;
    }
    const LRESULT got =
        CallBase(child, window, LB_GETSELITEMS, static_cast<WPARAM>(selected), reinterpret_cast<LPARAM>(rows.data()));
    if (got < 0) {
        return LB_ERR;
    }
    auto *indices = reinterpret_cast<int *>(out);
    LRESULT count = 0;
    for (LRESULT i = 0; i < got; ++i) {
        LbxItem *item = LbxItemOf(LbxBaseRow(child, window, false, rows[static_cast<std::size_t>(i)]));
        if (!item) {
            return LB_ERR;
        }
        if (item->flags & LBX_ItemDisabled) {
            continue;
        }
        if (message == LB_GETSELITEMS) {
            if (!indices || count >= static_cast<LRESULT>(capacity)) {
                continue;
            }
            indices[count] = rows[static_cast<std::size_t>(i)];
        }
        ++count;
    }
    return count;
}

LRESULT SetTabStops(HWND window, const LbxChild &child, WPARAM count, LPARAM lParam) {
    const auto *units = reinterpret_cast<const int *>(lParam);
    const int n = static_cast<int>(count);
    if (n <= 0 || !units) {
        // Both 0 (or nothing usable): stops cleared, default spacing.
        ChildEdit(window, [&](LbxChild &c) {
            if (c.tabStops) {
                LocalFree(static_cast<HLOCAL>(c.tabStops));
            }
            c.tabStops = nullptr;
            c.tabCount = -1;
        });
        return CallBase(child, window, LB_SETTABSTOPS, count, lParam);
    }
    HLOCAL stops = nullptr;
    if (child.tabCount > 0 && child.tabStops) {
        stops = LocalReAlloc(static_cast<HLOCAL>(child.tabStops), static_cast<SIZE_T>(n) * 4,
                             LMEM_MOVEABLE | LMEM_ZEROINIT);
    } else {
        stops = zk::LocalBlockNew(static_cast<std::size_t>(n) * 4);
    }
    if (!stops) {
        return CallBase(child, window, LB_SETTABSTOPS, count, lParam);
    }
    const LONG unit = LOWORD(GetDialogBaseUnits());
    zk::LocalWith<int32_t>(stops, [&](int32_t &first) {
        int32_t *pixels = &first;
        for (int i = 0; i < n; ++i) {
            pixels[i] = static_cast<int32_t>((static_cast<LONG>(units[i]) * unit) / 4);
        }
    });
    ChildEdit(window, [&](LbxChild &c) {
        if (c.tabStops && c.tabStops != stops && !(child.tabCount > 0)) {
            LocalFree(static_cast<HLOCAL>(c.tabStops));
        }
        c.tabStops = stops;
        c.tabCount = n;
    });
    return CallBase(child, window, LB_SETTABSTOPS, count, lParam);
}

} // namespace zk::lbx
