// An outline list on a form, loaded through the exports, with the
// consistency check at hand.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "files_support.h"
#include "list_support.h"
#include "outline/core/lbx.h"
#include "tree_consistency.h"
#include "zkharness.h"
#include "zklib.h"

using namespace zk::lbx;

namespace treetest {

using filestest::Take;
using outlinetest::kListStyle;
using outlinetest::Send;

using H = ZelItemHandle;
constexpr uint32_t kConn = LBX_ItemConnectors;
constexpr uint32_t kBox = LBX_ItemExpanded | LBX_ItemMinus | LBX_ItemPlus;

inline const LbxNode *N(H h) { return reinterpret_cast<const LbxNode *>(h); }

inline std::wstring TextOf(H h) { return reinterpret_cast<const wchar_t *>(N(h)->item->text.c_str()); }

// The last WM_SETREDRAW a window was sent: 1 on, 0 off, -1 none.
inline int LastRedraw(const zkt::MessageRecorder &rec, HWND window) {
    int last = -1;
    for (const auto &m : rec.messages())
        if (m.hwnd == window && m.message == WM_SETREDRAW)
            last = m.wParam ? 1 : 0;
    return last;
}

struct OutlineFixture : ::testing::Test {
    zkt::TestWindow form{500, 400};
    HWND list = nullptr;
    H root = 0;
    Tolerance tolerance;

    void SetUp() override {
        list = form.AddListBox(201, {10, 10, 220, 300}, kListStyle);
        ASSERT_EQ(ZelListSetStyle(list, LBX_StyleOutline, nullptr), 1);
        root = ZelListGetRoot(list);
        ASSERT_NE(root, 0);
    }
    void TearDown() override { ZelListSetOutlineRedraw(list, 1); }

    H Load(H parent, const wchar_t *text, uint32_t flags = 0, int32_t value = 0) {
        const H h = ZelListLoadChild(list, parent, 0, 0, text, value, flags);
        EXPECT_NE(h, 0) << "loading " << std::string(text, text + wcslen(text));
        return h;
    }
    // The texts of the rows, joined by blanks; a row's level shown by dots.
    std::wstring Rows() {
        std::wstring out;
        const int count = static_cast<int>(SendMessageW(list, LB_GETCOUNT, 0, 0));
        for (int row = 0; row < count; ++row) {
            const H h = ZelListGetItemHandle(list, row);
            if (!out.empty())
                out += L' ';
            if (!h) {
                out += L'?';
                continue;
            }
            out += std::wstring(static_cast<size_t>(ZelListGetLevel(h)), L'.') + TextOf(h);
        }
        return out;
    }
    int RowOf(H h) { return ZelListGetItemIndex(h); }
    uint32_t Flags(H h) { return ZelListGetItemFlags(h); }
    // An adopted combo box with the top-level entries given, shown whole.
    HWND Combo(std::initializer_list<const wchar_t *> texts) {
        HWND combo = form.AddComboBox(203, {240, 10, 100, 200}, CBS_DROPDOWNLIST | WS_VSCROLL | CBS_OWNERDRAWVARIABLE);
        EXPECT_EQ(ZelListSetStyle(combo, LBX_StyleOutline, nullptr), 1);
        for (const wchar_t *t : texts)
            ZelListLoadChild(combo, ZelListGetRoot(combo), 0, 0, t, 0, 0);
        EXPECT_EQ(ZelListShowOutline(combo, LBX_ShowEverything), 1);
        return combo;
    }
    void Check() { EXPECT_CONSISTENT(list, tolerance); }
};

// A family under the root: A (A1, A2 (A2a, A2b), A3), B, C (C1), shown whole.
struct FamilyFixture : OutlineFixture {
    H a = 0, a1 = 0, a2 = 0, a2a = 0, a2b = 0, a3 = 0, b = 0, c = 0, c1 = 0;
    void SetUp() override {
        OutlineFixture::SetUp();
        a = Load(root, L"A");
        a1 = Load(a, L"A1");
        a2 = Load(a, L"A2");
        a2a = Load(a2, L"A2a");
        a2b = Load(a2, L"A2b");
        a3 = Load(a, L"A3");
        b = Load(root, L"B");
        c = Load(root, L"C");
        c1 = Load(c, L"C1");
        ASSERT_EQ(ZelListShowOutline(list, LBX_ShowEverything), 1);
        ASSERT_EQ(Rows(), L"A .A1 .A2 ..A2a ..A2b .A3 B C .C1");
        Check();
    }
};

} // namespace treetest
