// The four kinds of list the general list functions serve: plain and
// adopted list boxes and combo boxes, on one form.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "files_support.h"
#include "zkharness.h"
#include "zkhost.h"
#include "zkhostctl.h"
#include "zklib.h"

namespace listfntest {

enum class Kind { PlainList, PlainCombo, AdoptedList, AdoptedCombo };

inline const char *KindName(Kind k) {
    static const char *const names[] = {"PlainList", "PlainCombo", "AdoptedList", "AdoptedCombo"};
    return names[static_cast<int>(k)];
}

inline bool IsCombo(Kind k) { return k == Kind::PlainCombo || k == Kind::AdoptedCombo; }
inline bool IsAdopted(Kind k) { return k == Kind::AdoptedList || k == Kind::AdoptedCombo; }

// A list of `kind` on a form; `listStyle` adds selection styles to a list box.
inline HWND MakeList(zkt::TestWindow &form, Kind kind, DWORD listStyle = 0) {
    HWND w = nullptr;
    switch (kind) {
    case Kind::PlainList:
        w = form.AddListBox(101, {10, 10, 200, 200}, LBS_NOTIFY | WS_VSCROLL | WS_BORDER | listStyle);
        break;
    case Kind::PlainCombo:
        w = form.AddComboBox(102, {220, 10, 150, 200}, CBS_DROPDOWNLIST | WS_VSCROLL);
        break;
    case Kind::AdoptedList:
        w = form.AddListBox(103, {10, 10, 200, 200},
                            LBS_NOTIFY | WS_VSCROLL | WS_BORDER | LBS_OWNERDRAWVARIABLE | listStyle);
        EXPECT_EQ(ZelListSetStyle(w, LBX_StyleOwnerDraw, nullptr), 1);
        break;
    case Kind::AdoptedCombo:
        w = form.AddComboBox(104, {220, 10, 150, 200}, CBS_DROPDOWN | WS_VSCROLL | CBS_OWNERDRAWVARIABLE);
        EXPECT_EQ(ZelListSetStyle(w, LBX_StyleOwnerDraw, nullptr), 1);
        break;
    }
    return w;
}

using filestest::Take;

inline void Fill(HWND list, int rows) {
    for (int i = 0; i < rows; ++i)
        ZelListAddValue(list, std::to_wstring(i).c_str(), i);
}

struct AnyList : ::testing::TestWithParam<Kind> {
    zkt::TestWindow form{400, 300};
    HWND list = nullptr;
    Kind kind = GetParam();
    bool combo = IsCombo(GetParam());

    void SetUp() override { list = MakeList(form, kind); }
    void Add(std::initializer_list<std::pair<const wchar_t *, int32_t>> rows) {
        for (const auto &[text, value] : rows)
            ASSERT_GE(ZelListAddValue(list, text, value), 0);
    }
    int Count() { return static_cast<int>(SendMessageW(list, combo ? CB_GETCOUNT : LB_GETCOUNT, 0, 0)); }
    std::vector<std::wstring> RowTexts() {
        std::vector<std::wstring> out;
        for (int i = 0; i < Count(); ++i)
            out.push_back(Take(ZelListGetText(list, i)));
        return out;
    }
    std::vector<int32_t> RowValues() {
        std::vector<int32_t> out;
        for (int i = 0; i < Count(); ++i)
            out.push_back(ZelListGetValue(list, i));
        return out;
    }
    int CurSel() { return static_cast<int>(SendMessageW(list, combo ? CB_GETCURSEL : LB_GETCURSEL, 0, 0)); }
};

#define LISTFN_ALL_KINDS(suite)                                                                                        \
    INSTANTIATE_TEST_SUITE_P(                                                                                          \
        Kinds, suite, ::testing::Values(Kind::PlainList, Kind::PlainCombo, Kind::AdoptedList, Kind::AdoptedCombo),     \
        [](const ::testing::TestParamInfo<Kind> &i) { return KindName(i.param); })

} // namespace listfntest
