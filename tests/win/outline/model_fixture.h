// A form with adopted list and combo boxes, the way the host's forms hold them.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "outline/core/lbx.h"
#include "zkharness.h"
#include "zklib.h"

using namespace zk::lbx;

namespace outlinetest {

constexpr int kListId = 101;
constexpr int kComboId = 102;

// Owner-draw rows without strings, as adoption makes them.
constexpr DWORD kListStyle = LBS_NOTIFY | WS_VSCROLL | WS_BORDER | LBS_OWNERDRAWVARIABLE;
constexpr DWORD kComboStyle = CBS_DROPDOWN | WS_VSCROLL | CBS_OWNERDRAWVARIABLE;

inline LRESULT Send(HWND w, UINT m, WPARAM wp = 0, LPARAM lp = 0) { return SendMessageW(w, m, wp, lp); }

// The data word a row holds in the list itself, past the subclass.
inline std::uintptr_t RawData(HWND list, int row, bool combo = false) {
    const WNDPROC base = reinterpret_cast<WNDPROC>(GetClassLongPtrW(list, GCLP_WNDPROC));
    return static_cast<std::uintptr_t>(
        CallWindowProcW(base, list, combo ? CB_GETITEMDATA : LB_GETITEMDATA, static_cast<WPARAM>(row), 0));
}

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

// The records as the library keeps them in the window properties.
inline LbxChild ChildRecord(HWND window) {
    LbxChild copy{};
    HLOCAL handle = static_cast<HLOCAL>(GetPropW(window, L"ZK:ChildLbx"));
    if (void *p = handle ? LocalLock(handle) : nullptr) {
        copy = *static_cast<LbxChild *>(p);
        LocalUnlock(handle);
    }
    return copy;
}

inline LbxParent ParentRecord(HWND window) {
    LbxParent copy{};
    HLOCAL handle = static_cast<HLOCAL>(GetPropW(window, L"ZK:ParentLbx"));
    if (void *p = handle ? LocalLock(handle) : nullptr) {
        copy = *static_cast<LbxParent *>(p);
        LocalUnlock(handle);
    }
    return copy;
}

template <class F>
void EditChildRecord(HWND window, F &&f) {
    HLOCAL handle = static_cast<HLOCAL>(GetPropW(window, L"ZK:ChildLbx"));
    if (void *p = handle ? LocalLock(handle) : nullptr) {
        f(*static_cast<LbxChild *>(p));
        LocalUnlock(handle);
    }
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
