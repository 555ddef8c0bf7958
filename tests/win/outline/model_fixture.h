// A form with adopted list and combo boxes, the way the host's forms hold them.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "list_support.h"
#include "outline/core/lbx.h"
#include "zkharness.h"
#include "zklib.h"

namespace outlinetest {

constexpr int kListId = 101;
constexpr int kComboId = 102;

constexpr DWORD kComboStyle = CBS_DROPDOWN | WS_VSCROLL | CBS_OWNERDRAWVARIABLE;

// The item of a row, read through the record layout: the item test itself
// lives inside the library, with its table of live items. A row whose flags
// the library will not give is no item.
inline LbxItem *ItemAt(HWND list, int row, bool combo = false) {
    if (ZelListGetFlags(list, row) == -1 && ZelListGetColor(list, row) == -1) {
        return nullptr;
    }
    auto *item = reinterpret_cast<LbxItem *>(RawData(list, row, combo));
    return item && item->self == item && std::wstring(reinterpret_cast<const wchar_t *>(item->magic)) == L"LBX"
               ? item
               : nullptr;
}

inline std::wstring RowText(HWND list, int row) {
    wchar_t buffer[512] = {};
    Send(list, LB_GETTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(buffer));
    return buffer;
}

inline LONG WindowStyle(HWND w) { return GetWindowLongW(w, GWL_STYLE); }

// What Wine paints when it likes, besides the common noise.
inline std::vector<UINT> PaintNoise() {
    std::vector<UINT> ignore = zkt::CommonNoise();
    ignore.insert(ignore.end(),
                  {WM_PAINT, WM_ERASEBKGND, WM_NCPAINT, WM_CTLCOLORLISTBOX, WM_CTLCOLOREDIT, WM_CTLCOLORSTATIC,
                   WM_DRAWITEM, WM_GETTEXT, WM_GETTEXTLENGTH, WM_SYNCPAINT, WM_GETFONT});
    return ignore;
}

struct ListFixture : ::testing::Test {
    zkt::TestWindow form{400, 300};
    HWND list = nullptr;

    void SetUp() override {
        list = form.AddListBox(kListId, {10, 10, 200, 200}, kListStyle);
        ASSERT_EQ(ZelListSetStyle(list, LBX_StyleOwnerDraw, nullptr), 1);
    }
    void Add(std::initializer_list<const wchar_t *> texts) {
        for (const wchar_t *t : texts) {
            ASSERT_GE(ZelListAddColor(list, t, 0), 0);
        }
    }
};

} // namespace outlinetest
