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

using namespace zk::lbx;

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

// The item data of every WM_DELETEITEM the form hears from now on.
inline void RecordDeletes(zkt::TestWindow &form, std::vector<ULONG_PTR> &deleted) {
    form.OnMessage([&deleted](HWND, UINT message, WPARAM, LPARAM lParam, LRESULT &) {
        if (message == WM_DELETEITEM)
            deleted.push_back(reinterpret_cast<const DELETEITEMSTRUCT *>(lParam)->itemData);
        return false;
    });
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

// An adopted combo box of three rows in one colour, its edit, and the
// notification codes of the commands the form's own procedure receives.
struct ComboFixture : ::testing::Test {
    zkt::TestWindow form{400, 300};
    HWND combo = nullptr;
    HWND edit = nullptr;
    std::vector<UINT> formCommands;

    void SetUp() override {
        form.OnMessage([this](HWND, UINT m, WPARAM w, LPARAM, LRESULT &) {
            if (m == WM_COMMAND)
                formCommands.push_back(HIWORD(w));
            return false;
        });
        combo = form.AddComboBox(kComboId, {10, 10, 150, 200}, kComboStyle);
        ASSERT_EQ(ZelListSetStyle(combo, LBX_StyleOwnerDraw, nullptr), 1);
        for (const wchar_t *t : {L"one", L"two", L"three"})
            ASSERT_GE(ZelListAddColor(combo, t, 0x0000FF), 0);
        edit = GetDlgItem(combo, 1001);
        ASSERT_NE(edit, nullptr);
        zkt::PumpMessages();
        formCommands.clear();
    }
    std::wstring EditText() {
        wchar_t text[64] = {};
        GetWindowTextW(edit, text, 64);
        return text;
    }
};

} // namespace outlinetest
