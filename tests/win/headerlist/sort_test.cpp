// Sorting on a real list view: header clicks (ascending, descending,
// another column resets), ZelLVSortItems, rows keeping their selection and
// images, and the order of what the list posts.
#include "hdr_support.h"

namespace {

using hdrtest::FormList;

struct Sorted : testing::Test {
    FormList l{{L"Name", L"Town"}};
    void SetUp() override {
        l.Add({L"carl", L"Oslo"}, 0);
        l.Add({L"Ann", L"rome"}, 1);
        l.Add({L"bea", L"Oslo"}, 2);
        l.Add({L"dan", L"Bern"}, 3);
        zkt::DrainQueue();
    }
    int32_t ImageOf(int32_t row) {
        LVITEMW item{};
        item.mask = LVIF_IMAGE;
        item.iItem = row;
        SendMessageW(l.view(), LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
        return item.iImage;
    }
};

TEST_F(Sorted, HeaderClicksSortUpDownAndResetOnAnotherColumn) {
    struct Click {
        int32_t column;
        const wchar_t *names;
    } clicks[] = {
        {1, L"dan carl bea Ann"}, // Bern, Oslo, Oslo (equal keys in place), rome
        {1, L"Ann carl bea dan"}, // the same header again: descending
        {0, L"Ann bea carl dan"}, // another header: ascending again
        {0, L"dan carl bea Ann"},
    };
    for (const Click &c : clicks) {
        l.ClickHeader(c.column);
        EXPECT_EQ(l.Column(0), c.names) << c.column;
    }
    EXPECT_EQ(ZelLVGetSortOrder(l.list()), 0) << "clicks leave the block's sort alone";
    EXPECT_EQ(ZelLVGetSortColumn(l.list()), 0);
    EXPECT_EQ(ImageOf(0), 3) << "each row keeps its image";
    EXPECT_EQ(ImageOf(3), 1);
    // ZelLVSortItems keeps its own memory: column 1 descending.
    EXPECT_EQ(ZelLVSetSortColumn(l.list(), 1), 1);
    EXPECT_EQ(ZelLVSetSortOrder(l.list(), 1), 1);
    EXPECT_EQ(ZelLVSortItems(l.list()), 1);
    EXPECT_EQ(l.Column(0), L"Ann carl bea dan");
}

TEST_F(Sorted, AClickPostsTheForwardedCommandThenColumnSorted) {
    l.ClickHeader(1);
    l.ClickHeader(1);
    const auto posted = zkt::DrainQueue();
    std::vector<std::pair<UINT, LPARAM>> seen;
    for (const auto &p : posted)
        if ((p.message == WM_COMMAND && p.hwnd == l.form.hwnd()) || p.message == ZKM_ColumnSorted)
            seen.push_back({p.message, p.message == ZKM_ColumnSorted ? static_cast<LPARAM>(p.wParam) : p.lParam});
    const std::vector<std::pair<UINT, LPARAM>> want = {{WM_COMMAND, reinterpret_cast<LPARAM>(l.wrapper())},
                                                       {ZKM_ColumnSorted, 0},
                                                       {WM_COMMAND, reinterpret_cast<LPARAM>(l.wrapper())},
                                                       {ZKM_ColumnSorted, 1}};
    EXPECT_EQ(seen, want);
    EXPECT_EQ(hdrtest::Commands(posted, l.form.hwnd()), (std::vector<int>{-108, -108}));
}

TEST_F(Sorted, SelectionAndFocusFollowTheirRows) {
    ZelLVSetItemState(l.list(), 1, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED); // Ann
    ZelLVSetItemState(l.list(), 3, LVIS_SELECTED, LVIS_SELECTED);                               // dan
    l.ClickHeader(1);                                                                           // dan carl bea Ann
    EXPECT_EQ(ZelLVGetSelectedCount(l.list()), 2);
    EXPECT_EQ(ZelLVGetNextItem(l.list(), -1, LVNI_SELECTED), 0);
    EXPECT_EQ(ZelLVGetNextItem(l.list(), 0, LVNI_SELECTED), 3);
    EXPECT_EQ(ZelLVGetNextItem(l.list(), -1, LVNI_FOCUSED), 3);
    const auto posted = zkt::DrainQueue();
    EXPECT_TRUE(hdrtest::Commands(posted, l.wrapper()).empty()) << "the rearrangement selects nothing anew";
}

TEST_F(Sorted, KeyboardSelectionsPostHostMsgSelectAndMouseOnesDoNot) {
    SetFocus(l.view());
    zkt::DrainQueue();
    SendMessageW(l.view(), WM_KEYDOWN, VK_DOWN, 0);
    SendMessageW(l.view(), WM_KEYUP, VK_DOWN, 0);
    auto posted = zkt::DrainQueue(); // the list's command to the wrapper, then the wrapper's own post
    int selects = 0;
    for (const auto &p : posted)
        selects += p.message == 0x2006 && p.hwnd == l.wrapper();
    EXPECT_EQ(selects, 1) << "one for the keyboard's move";
    EXPECT_FALSE(hdrtest::Commands(posted, l.form.hwnd()).empty()) << "the change is forwarded too";

    RECT r{};
    ListView_GetItemRect(l.view(), 2, &r, LVIR_LABEL);
    const LPARAM at = MAKELPARAM(r.left + 2, (r.top + r.bottom) / 2);
    PostMessageW(l.view(), WM_LBUTTONUP, 0, at); // ends the view's own wait for a drag
    SendMessageW(l.view(), WM_LBUTTONDOWN, MK_LBUTTON, at);
    posted = zkt::DrainQueue();
    selects = 0;
    for (const auto &p : posted)
        selects += p.message == 0x2006;
    EXPECT_EQ(ZelLVGetNextItem(l.list(), -1, LVNI_SELECTED), 2);
    EXPECT_EQ(selects, 0) << "a mouse selection reaches the host through the forwarded notifications";
}

} // namespace
