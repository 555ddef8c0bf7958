// Rows and columns on a real list view: the view asks for its texts and
// gets the store's, and each export's failure value on bad rows and columns.
#include <functional>

#include "hdr_support.h"

namespace {

using hdrtest::FormList;

std::wstring Take(HostStr s) {
    int32_t size = 0;
    const wchar_t *chars = HostStrLock(s, &size);
    return chars ? chars : L"<null>";
}

TEST(HeaderListCreation, TheFormsClassMakesAListViewOverTheWrapper) {
    WNDCLASSEXW wc{};
    wc.cbSize = sizeof wc;
    ASSERT_TRUE(GetClassInfoExW(GetModuleHandleW(L"ZKLIB.dll"), L"ZK:cListView:10", &wc));
    EXPECT_EQ(wc.style, 0x4088u);
    FormList l;
    ASSERT_NE(l.list(), 0);
    wchar_t name[32] = {};
    GetClassNameW(l.view(), name, 32);
    EXPECT_STREQ(name, L"SysListView32");
    EXPECT_EQ(GetDlgCtrlID(l.view()), 0);
    RECT client{}, view{};
    GetClientRect(l.wrapper(), &client);
    GetWindowRect(l.view(), &view);
    EXPECT_EQ(view.right - view.left, client.right);
    HostStr text = 0;
    int32_t format = -1, width = -1;
    EXPECT_EQ(ZelLVGetColumn(l.list(), 0, &text, &format, &width), 1);
    EXPECT_EQ(Take(text), L"Item") << "the default block's column";
    EXPECT_EQ(width, 100);
    EXPECT_EQ(ZelLVImageCountGet(l.list()), 1) << "the default icon";
    SetWindowPos(l.wrapper(), nullptr, 0, 0, 200, 150, SWP_NOMOVE | SWP_NOZORDER);
    GetWindowRect(l.view(), &view);
    EXPECT_EQ(view.right - view.left, 200) << "the list follows the wrapper's size";
}

TEST(HeaderListRows, TheViewAsksForTextsAndGetsTheStores) {
    FormList l({L"Name", L"Town", L"Age"});
    l.Add({L"Ann", L"Oslo", L"31"});
    l.Add({L"Bob", L"Rome"});
    EXPECT_EQ(l.Column(0), L"Ann Bob");
    EXPECT_EQ(l.Column(1), L"Oslo Rome");
    EXPECT_EQ(l.Cell(1, 2), L"") << "a cell past the row's texts";
    EXPECT_EQ(ZelLVSetItem(l.list(), 1, 2, LVIF_TEXT, L"40", 0, 0), 1);
    EXPECT_EQ(l.Cell(1, 2), L"40");
    EXPECT_EQ(ZelLVDeleteItem(l.list(), 0), 1) << "the count afterwards";
    EXPECT_EQ(ZelLVInsertItem(l.list(), 0, nullptr, 5, 0), 0);
    EXPECT_EQ(l.Column(0), L" Bob");
    HostStr text = 0;
    uint32_t data = 0;
    int32_t image = -1;
    EXPECT_NE(ZelLVGetItem(l.list(), 1, 1, &text, &data, &image), 0);
    EXPECT_EQ(Take(text), L"Rome");
    EXPECT_EQ(data, 1u);
    EXPECT_EQ(image, 0);
    EXPECT_EQ(ZelLVGetItem(l.list(), 0, 0, &text, &data, &image), 1);
    EXPECT_EQ(data, 5u) << "the row's own value, though it is the store's third";
}

TEST(HeaderListRows, FailureValuesOnBadRowsAndColumns) {
    FormList l({L"A", L"B"});
    l.Add({L"x", L"y"});
    HostStr text = 0;
    uint32_t data = 0;
    int32_t image = 0, format = 0, width = 0;
    RECT r{};
    struct Case {
        const char *what;
        int32_t got, want;
        const wchar_t *trace; // the words, when the failure is traced
    } cases[] = {
        {"get item 9", ZelLVGetItem(l.list(), 9, 0, &text, &data, &image), 0, nullptr},
        {"get item, no image out", ZelLVGetItem(l.list(), 0, 0, &text, &data, nullptr), 0, nullptr},
        {"set item 9", ZelLVSetItem(l.list(), 9, 0, LVIF_TEXT, L"z", 0, 0), 0, nullptr},
        {"set item column -1", ZelLVSetItem(l.list(), 0, -1, LVIF_TEXT, L"z", 0, 0), 0, nullptr},
        {"insert at -1", ZelLVInsertItem(l.list(), -1, L"z", 0, 0), -1, nullptr},
        {"insert image -1", ZelLVInsertItem(l.list(), 0, L"z", 0, -1), -1, nullptr},
        {"delete -1", ZelLVDeleteItem(l.list(), -1), 1, nullptr},
        {"get column 7", ZelLVGetColumn(l.list(), 7, &text, &format, &width), 0, nullptr},
        {"item rect 9", ZelLVGetItemRect(l.list(), 9, &r, LVIR_BOUNDS), 0, nullptr},
        {"sort column -1", ZelLVSetSortColumn(l.list(), -1), 0, nullptr},
        {"sort order -1", ZelLVSetSortOrder(l.list(), -1), 0, nullptr},
        {"sort order 2", ZelLVSetSortOrder(l.list(), 2), 0, nullptr},
        {"image remove -1", ZelLVImageRemove(l.list(), -1), 0, nullptr},
        {"next item of 9", ZelLVGetNextItem(l.list(), 9, LVNI_ALL), -1, nullptr},
    };
    for (const Case &c : cases)
        EXPECT_EQ(c.got, c.want) << c.what;
    EXPECT_EQ(l.Column(0), L"x") << "nothing was added or lost";

    struct Traced {
        const char *what;
        std::function<int32_t()> call;
        int32_t want;
        const wchar_t *line;
    } traced[] = {
        {"get item, no text out", [&] { return ZelLVGetItem(l.list(), 0, 0, nullptr, &data, &image); }, 0,
         L"ZelLVGetItem() - Unable to retrieve item.\n"},
        {"delete 9", [&] { return ZelLVDeleteItem(l.list(), 9); }, 0, L"ZelLVDeleteItem() - Unable to delete item.\n"},
        {"hit test, no flags", [&] { return ZelLVHitTest(l.list(), 1, 1, nullptr); }, -1,
         L"ZelLVHitTest() - Unable to hit test.\n"},
        {"image add of no picture", [&] { return ZelLVImageAdd(l.list(), 0, 0); }, -1,
         L"ZelLVImageAdd() - Unable to add image to control.\n"},
    };
    for (const Traced &t : traced) {
        zkt::DebugOutputCapture capture;
        EXPECT_EQ(t.call(), t.want) << t.what;
        EXPECT_EQ(capture.text(), t.line) << t.what;
    }
}

TEST(HeaderListColumns, AssignTakesTheShortestArrayAndKeepsExcessViewColumns) {
    FormList l;
    const hdrtest::ColumnArrays three({L"One", L"Two", L"Three"}, LVCFMT_RIGHT, 70);
    EXPECT_EQ(ZelLVColumnsAssign(l.list(), three.texts, three.formats, three.widths, 10), 1);
    EXPECT_EQ(Header_GetItemCount(l.header()), 3);
    HostStr text = 0;
    int32_t format = 0, width = 0;
    EXPECT_EQ(ZelLVGetColumn(l.list(), 2, &text, &format, &width), 1);
    EXPECT_EQ(Take(text), L"Three");
    EXPECT_EQ(format, LVCFMT_RIGHT);
    EXPECT_EQ(width, 70);
    const hdrtest::ColumnArrays one({L"Solo"});
    ZelLVColumnsAssign(l.list(), one.texts, one.formats, one.widths, 1);
    ASSERT_EQ(Header_GetItemCount(l.header()), 3) << "the new count decides what goes";
    ZelLVGetColumn(l.list(), 1, &text, &format, &width);
    EXPECT_EQ(Take(text), L"Two");
    EXPECT_EQ(ZelLVSetColumn(l.list(), 1, LVCF_TEXT | LVCF_WIDTH, nullptr, 0, 33), 1);
    ZelLVGetColumn(l.list(), 1, &text, &format, &width);
    EXPECT_EQ(Take(text), L"Two") << "no text leaves the heading";
    EXPECT_EQ(width, 33);
}

TEST(HeaderListRows, ViewColoursAndStylesAreTheViewsOwn) {
    FormList l;
    EXPECT_EQ(ZelLVSetBkColor(l.list(), RGB(1, 2, 3)), 1);
    EXPECT_EQ(ZelLVGetBkColor(l.list()), RGB(1, 2, 3));
    EXPECT_EQ(ZelLVSetTextColor(l.list(), RGB(4, 5, 6)), 1);
    EXPECT_EQ(ZelLVGetTextColor(l.list()), RGB(4, 5, 6));
    const int32_t style = ZelLVGetStyle(l.list());
    EXPECT_EQ(style & LVS_TYPEMASK, LVS_REPORT);
    EXPECT_EQ(ZelLVSetStyle(l.list(), LVS_SHOWSELALWAYS, 1), style) << "the old style";
    EXPECT_EQ(ZelLVSetStyle(l.list(), LVS_SHOWSELALWAYS, 0) & LVS_SHOWSELALWAYS, LVS_SHOWSELALWAYS);
}

TEST(HeaderListRows, TheWrappersTextIsTheFirstSelectedRow) {
    FormList l({L"A", L"B"});
    l.Add({L"first", L"1"});
    l.Add({L"second", L"2"});
    wchar_t buffer[8] = {};
    EXPECT_EQ(GetWindowTextLengthW(l.wrapper()), 0);
    ZelLVSetItemState(l.list(), 1, LVIS_SELECTED, LVIS_SELECTED);
    EXPECT_EQ(GetWindowTextLengthW(l.wrapper()), 6);
    EXPECT_EQ(GetWindowTextW(l.wrapper(), buffer, 4), 3);
    EXPECT_STREQ(buffer, L"sec");
    const auto posted = zkt::DrainQueue();
    EXPECT_TRUE(hdrtest::Commands(posted, l.wrapper()).empty()) << "ZelLVSetItemState notifies nobody";
}

} // namespace
