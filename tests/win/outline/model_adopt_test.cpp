// Adoption by ZelListSetStyle: records, subclasses, style bits and window styles.
#include "model_fixture.h"

#include <vector>

namespace {

using namespace outlinetest;

// A window class of the host that stands on a system list or combo class.
void RegisterHostClass(const wchar_t *name, const wchar_t *base) {
    WNDCLASSW wc{};
    if (GetClassInfoW(GetModuleHandleW(nullptr), name, &wc)) {
        return;
    }
    ASSERT_TRUE(GetClassInfoW(nullptr, base, &wc));
    wc.hInstance = GetModuleHandleW(nullptr);
    wc.lpszClassName = name;
    ASSERT_TRUE(RegisterClassW(&wc));
}

TEST(ZelListSetStyle, FailsOnNoWindowATopLevelWindowAndOtherControls) {
    zkt::TestWindow form;
    EXPECT_EQ(ZelListSetStyle(nullptr, LBX_StyleOwnerDraw, nullptr), 0);
    EXPECT_EQ(ZelListSetStyle(form, LBX_StyleOwnerDraw, nullptr), 0);
    HWND button = form.AddButton(1, {0, 0, 50, 20}, L"b");
    EXPECT_EQ(ZelListSetStyle(button, LBX_StyleOwnerDraw, nullptr), 0);
    EXPECT_EQ(GetPropW(button, L"ZK:ChildLbx"), nullptr);
    EXPECT_EQ(GetPropW(form, L"ZK:ParentLbx"), nullptr);
}

TEST(ZelListSetStyle, ExtendedSelectAloneChangesTheWindowStyleButDoesNotAdopt) {
    zkt::TestWindow form;
    HWND list = form.AddListBox(kListId, {0, 0, 100, 100});
    const LONG_PTR proc = GetWindowLongPtrW(list, GWLP_WNDPROC);
    EXPECT_EQ(ZelListSetStyle(list, LBX_StyleExtendedSelect, nullptr), 1);
    EXPECT_TRUE(WindowStyle(list) & LBS_EXTENDEDSEL);
    EXPECT_EQ(ZelListGetStyle(list), 0u);
    EXPECT_EQ(GetPropW(list, L"ZK:ChildLbx"), nullptr);
    EXPECT_EQ(GetWindowLongPtrW(list, GWLP_WNDPROC), proc);
    EXPECT_EQ(Send(list, ZKM_LbxProbe), 0);
}

TEST(ZelListSetStyle, AdoptionSubclassesListAndParentOnce) {
    zkt::TestWindow form;
    HWND list = form.AddListBox(kListId, {0, 0, 100, 100}, LBS_NOTIFY | LBS_HASSTRINGS);
    const LONG_PTR formProc = GetWindowLongPtrW(form, GWLP_WNDPROC);
    ASSERT_EQ(ZelListSetStyle(list, LBX_StyleKeepTextColor, nullptr), 1);
    EXPECT_EQ(ZelListGetStyle(list), LBX_StyleOwnerDraw | LBX_StyleKeepTextColor);
    EXPECT_EQ(Send(list, ZKM_LbxProbe), 1);
    ASSERT_NE(GetPropW(list, L"ZK:ChildLbx"), nullptr);
    ASSERT_NE(GetPropW(form, L"ZK:ParentLbx"), nullptr);
    EXPECT_NE(GetWindowLongPtrW(form, GWLP_WNDPROC), formProc);
    EXPECT_EQ(ParentRecord(form).parentProc, static_cast<std::uintptr_t>(formProc));
    EXPECT_EQ(ChildRecord(list).indent, 5);
    const LONG style = WindowStyle(list);
    EXPECT_FALSE(style & LBS_HASSTRINGS);
    EXPECT_TRUE(style & LBS_OWNERDRAWVARIABLE);

    const LONG_PTR listProc = GetWindowLongPtrW(list, GWLP_WNDPROC);
    const LONG_PTR adoptedFormProc = GetWindowLongPtrW(form, GWLP_WNDPROC);
    HWND second = form.AddListBox(kListId + 1, {0, 100, 100, 100}, kListStyle);
    ASSERT_EQ(ZelListSetStyle(second, LBX_StyleOwnerDraw, nullptr), 1);
    ASSERT_EQ(ZelListSetStyle(list, LBX_StyleNoLines, nullptr), 1);
    EXPECT_EQ(GetWindowLongPtrW(list, GWLP_WNDPROC), listProc);
    EXPECT_EQ(GetWindowLongPtrW(form, GWLP_WNDPROC), adoptedFormProc);
    EXPECT_EQ(ZelListGetStyle(list), LBX_StyleOwnerDraw | LBX_StyleKeepTextColor | LBX_StyleNoLines);
}

TEST(ZelListSetStyle, OutlineForcesTextSelectAndIndentEightEveryTime) {
    zkt::TestWindow form;
    HWND list = form.AddListBox(kListId, {0, 0, 100, 100}, kListStyle);
    ASSERT_EQ(ZelListSetStyle(list, LBX_StyleOutline, nullptr), 1);
    EXPECT_EQ(ZelListGetStyle(list), LBX_StyleOwnerDraw | LBX_StyleOutline | LBX_StyleTextSelect);
    EXPECT_EQ(ChildRecord(list).indent, 8);
    EditChildRecord(list, [](LbxChild &c) { c.indent = 3; });
    ZelListSetStyle(list, LBX_StyleUpperCase, nullptr);
    EXPECT_EQ(ChildRecord(list).indent, 3);
    ZelListSetStyle(list, LBX_StyleOutline, nullptr);
    EXPECT_EQ(ChildRecord(list).indent, 8);
}

TEST(ZelListSetStyle, StyleBitsMapToListWindowStyles) {
    zkt::TestWindow form;
    HWND list = form.AddListBox(kListId, {0, 0, 100, 100}, kListStyle);
    ZelListSetStyle(list,
                    LBX_StyleMultiSelect | LBX_StyleExtendedSelect | LBX_StyleExactHeight | LBX_StyleKeepScrollBar |
                        LBX_StyleWideExtent,
                    nullptr);
    const LONG style = WindowStyle(list);
    EXPECT_TRUE(style & LBS_MULTIPLESEL);
    EXPECT_FALSE(style & LBS_EXTENDEDSEL); // multiple selection wins
    EXPECT_TRUE(style & LBS_NOINTEGRALHEIGHT);
    EXPECT_TRUE(style & LBS_DISABLENOSCROLL);
    EXPECT_TRUE(style & WS_HSCROLL);
}

TEST(ZelListSetStyle, AHorizontalBarMeansAutomaticExtent) {
    zkt::TestWindow form;
    HWND list = form.AddListBox(kListId, {0, 0, 100, 100}, kListStyle);
    SetWindowLongW(list, GWL_STYLE, WindowStyle(list) | WS_HSCROLL); // a list hides an idle bar
    ZelListSetStyle(list, LBX_StyleOwnerDraw, nullptr);
    EXPECT_TRUE(ZelListGetStyle(list) & LBX_StyleAutoExtent);
}

TEST(ZelListSetStyle, HostClassNamesDecideWhenTheHostTypeDoesNot) {
    RegisterHostClass(L"QXListBox30", L"ListBox");
    RegisterHostClass(L"CBCtrlComboBox", L"ComboBox");
    zkt::TestWindow form;
    HWND list = form.AddChild(L"QXListBox30", kListId, {0, 0, 100, 100}, kListStyle);
    HWND combo = form.AddChild(L"CBCtrlComboBox", kComboId, {0, 120, 100, 100}, kComboStyle);
    ASSERT_EQ(ZelListSetStyle(list, LBX_StyleOwnerDraw, nullptr), 1);
    ASSERT_EQ(ZelListSetStyle(combo, LBX_StyleOwnerDraw, nullptr), 1);
    EXPECT_GE(ZelListAddColor(list, L"row", 0), 0);
    EXPECT_GE(ZelListAddColor(combo, L"row", 0), 0);
    EXPECT_EQ(RowText(list, 0), L"row");
    wchar_t text[16] = {};
    Send(combo, CB_GETLBTEXT, 0, reinterpret_cast<LPARAM>(text));
    EXPECT_STREQ(text, L"row");
}

TEST(ZelListSetStyle, AComboPostsExtendedUiAndKeepsItsStyleWithoutACreateStructure) {
    zkt::TestWindow form;
    HWND combo = form.AddComboBox(kComboId, {0, 0, 100, 100}, CBS_DROPDOWNLIST | CBS_HASSTRINGS);
    zkt::MessageRecorder recorder;
    recorder.watch(combo);
    const LONG before = WindowStyle(combo);
    ASSERT_EQ(ZelListSetStyle(combo, LBX_StyleNoEditCopy, nullptr), 1);
    EXPECT_EQ(WindowStyle(combo), before);
    EXPECT_EQ(Send(combo, CB_GETEXTENDEDUI), 0); // posted, not yet arrived
    zkt::PumpMessages();
    EXPECT_TRUE(zkt::MatchSequence(recorder.messages(),
                                   {{CB_GETEXTENDEDUI, zkt::sent}, {CB_SETEXTENDEDUI, zkt::posted | zkt::wparam, 1}},
                                   PaintNoise()));
    EXPECT_EQ(Send(combo, CB_GETEXTENDEDUI), 1);
}

TEST(ZelListSetStyle, AComboCreateStructureTakesTheOwnerDrawStyle) {
    zkt::TestWindow form;
    HWND combo = form.AddComboBox(kComboId, {0, 0, 100, 100}, CBS_DROPDOWNLIST | CBS_HASSTRINGS);
    CREATESTRUCTW create{};
    create.style = WindowStyle(combo);
    ASSERT_EQ(ZelListSetStyle(combo, LBX_StyleOwnerDraw | LBX_StyleExactHeight | LBX_StyleKeepScrollBar, &create), 1);
    EXPECT_FALSE(create.style & CBS_HASSTRINGS);
    EXPECT_TRUE(create.style & CBS_OWNERDRAWVARIABLE);
    EXPECT_TRUE(create.style & CBS_NOINTEGRALHEIGHT);
    EXPECT_TRUE(create.style & CBS_DISABLENOSCROLL);
    EXPECT_EQ(WindowStyle(combo), create.style);
}

TEST(ZelListSetStyle, TheListFreesItsItemsAtItsEndAndTheParentStaysAdopted) {
    zkt::TestWindow form;
    std::vector<ULONG_PTR> deleted;
    RecordDeletes(form, deleted);
    HWND list = form.AddListBox(kListId, {0, 0, 100, 100}, kListStyle);
    ZelListSetStyle(list, LBX_StyleOwnerDraw, nullptr);
    ZelListAddColor(list, L"a", 0);
    ZelListAddColor(list, L"b", 0);
    ASSERT_NE(ZelListGetRoot(list), 0);
    DestroyWindow(list);
    // The late delete notifications reach the form's own procedure with no item in them.
    EXPECT_EQ(deleted, (std::vector<ULONG_PTR>{0, 0}));
    EXPECT_NE(GetPropW(form, L"ZK:ParentLbx"), nullptr);
}

} // namespace
