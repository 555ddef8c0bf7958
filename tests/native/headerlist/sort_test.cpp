// Sorting by text: the comparison, a stable order for equal keys, the two
// memories of the header click and of ZelLVSortItems, and the notifications.
#include <gtest/gtest.h>

#include <string>

#include "fake_view.h"
#include "frame/core/errors.h"

namespace {

using zk::hdr::HeaderListModel;
using zk::hdr::SHeaderListSort;

struct Sorting : testing::Test {
    hdrtest::FakeView view;
    HeaderListModel list{view};

    // Rows whose column 1 holds the key and column 0 a tag naming the row.
    void Fill(std::initializer_list<const char16_t *> keys) {
        int tag = 0;
        for (const char16_t *key : keys) {
            const int32_t row =
                list.InsertItem(view.RowCount(), std::u16string(1, char16_t(u'a' + tag++)).c_str(), 0, 0);
            list.SetItemText(row, 1, key);
        }
    }
    // The tags in the view's order.
    std::u16string Order() {
        std::u16string tags;
        for (int32_t i = 0; i < view.RowCount(); ++i)
            tags += list.RowAt(i)->Text(0);
        return tags;
    }
};

TEST(CompareItems, CaseInsensitiveTextOrder) {
    hdrtest::FakeView view;
    HeaderListModel list{view};
    for (const char16_t *t : {u"apple", u"APPLE", u"Banana", u"_x", u"", u"b"})
        list.InsertItem(view.RowCount(), t, 0, 0);
    list.InsertItem(view.RowCount(), u"short", 0, 0);
    SHeaderListSort record;
    record.rows = &list.rows;
    struct Case {
        intptr_t a, b;
        int column, descending, want;
    } cases[] = {
        {0, 1, 0, 0, 0},  {0, 2, 0, 0, -1}, {2, 0, 0, 0, 1}, {3, 0, 0, 0, -1}, // '_' folds below letters
        {4, 0, 0, 0, -1}, {5, 2, 0, 0, -1}, {0, 2, 0, 1, 1}, {6, 0, 3, 0, 0},  // past the last text: empty
    };
    for (const Case &c : cases) {
        record.column = c.column;
        record.descending = c.descending;
        EXPECT_EQ(HeaderListModel::CompareItems(c.a, c.b, &record), c.want) << c.a << " " << c.b;
    }
    EXPECT_EQ(HeaderListModel::CompareItems(0, 2, nullptr), 0);
    EXPECT_THROW(HeaderListModel::CompareItems(0, 7, &record), zk::InvalidArgException);
}

TEST_F(Sorting, EqualKeysKeepTheirOrderBothWays) {
    Fill({u"b", u"A", u"b", u"a", u"B", u"c"});
    list.model.sortColumn = 1;
    EXPECT_EQ(list.SortItems(), 1);
    EXPECT_EQ(Order(), u"bdacef");
    list.model.sortOrder = 1;
    list.SortItems();
    EXPECT_EQ(Order(), u"face"
                       u"bd")
        << "descending: the equal keys still in their order of the last pass";
}

TEST_F(Sorting, ShortRowsAndDeletedSlotsSortAsEmpty) {
    Fill({u"m", u"a"});
    list.InsertItem(view.RowCount(), u"c", 0, 0); // no column 1
    list.model.sortColumn = 1;
    list.SortItems();
    EXPECT_EQ(Order(), u"cba");
}

TEST_F(Sorting, AReversedInputIsRearrangedInOnePass) {
    constexpr int kRows = 20000;
    for (int i = 0; i < kRows; ++i) {
        const std::string digits = std::to_string(100000 + kRows - i);
        list.InsertItem(i, std::u16string(digits.begin(), digits.end()).c_str(), 0, 0);
    }
    list.SortItems();
    ASSERT_EQ(view.log, std::vector<std::string>{"reorder"});
    for (int i = 1; i < kRows; ++i)
        ASSERT_LT(list.RowAt(i - 1)->Text(0), list.RowAt(i)->Text(0)) << i;
    list.SortItems();
    EXPECT_EQ(view.log.size(), 1u) << "a sorted view is not touched again";
}

TEST_F(Sorting, HeaderClicksToggleAndResetWithoutTheModel) {
    Fill({u"b", u"c", u"a"});
    struct Click {
        int32_t column;
        std::u16string order;
        std::string posted;
    } clicks[] = {
        {1, u"cab", "sorted 0 1"}, {1, u"bac", "sorted 1 1"}, {1, u"cab", "sorted 0 1"},
        {0, u"abc", "sorted 0 0"}, {1, u"cab", "sorted 0 1"},
    };
    for (const Click &c : clicks) {
        view.log.clear();
        intptr_t result = -1;
        ASSERT_TRUE(list.OnNotify(zk::hdr::kLvnColumnClick, c.column, 0, result));
        EXPECT_EQ(result, 0);
        EXPECT_EQ(Order(), c.order) << c.column;
        ASSERT_GE(view.log.size(), 2u);
        EXPECT_EQ(view.log[view.log.size() - 2], "forward -108");
        EXPECT_EQ(view.log.back(), c.posted);
    }
    EXPECT_EQ(list.model.sortColumn, 0);
    EXPECT_EQ(list.model.sortOrder, 0);
}

TEST_F(Sorting, TheFirstClickOnColumnZeroToggles) {
    // The record starts at column 0, ascending: the same column as the click.
    Fill({u"x", u"y"});
    intptr_t result = 0;
    list.OnNotify(zk::hdr::kLvnColumnClick, 0, 0, result);
    EXPECT_EQ(Order(), u"ba");
    EXPECT_EQ(view.log.back(), "sorted 1 0");
}

TEST(Notifications, TableOfCodes) {
    using namespace zk::hdr;
    struct Case {
        uint32_t code;
        int32_t dropDown, enabled;
        uint32_t newState;
        bool handled;
        std::vector<std::string> log;
    } cases[] = {
        {kLvnInsertItem, 0, 1, 0, true, {"forward -102"}},
        {kLvnDeleteItem, 0, 1, 0, true, {"forward -103"}},
        {kLvnDeleteAllItems, 0, 1, 0, true, {"forward -104"}},
        {kLvnBeginDrag, 0, 1, 0, true, {"forward -109"}},
        {kLvnBeginRDrag, 0, 1, 0, true, {"forward -111"}},
        {kNmDblClk, 0, 0, 0, true, {"forward -3"}},
        {kNmRClick, 0, 1, 0, true, {"forward -5"}},
        {kNmRDblClk, 0, 1, 0, true, {"forward -6"}},
        {kLvnItemChanged, 0, 1, kStateSelected, true, {"owner 1", "forward -101"}},
        {kLvnItemChanged, 0, 1, kStateFocused, true, {"owner 1", "forward -101"}},
        {kLvnItemChanged, 0, 1, 0x100, true, {}},
        {kLvnItemChanged, 0, 0, kStateSelected, true, {}},
        {kNmClick, 0, 1, 0, true, {"forward -2"}},
        {kNmClick, 1, 1, 0, true, {"owner 8", "forward -2"}},
        {kNmClick, 1, 0, 0, true, {}},
        {0xFFFFFF9C /* LVN_ITEMCHANGING */, 0, 1, 0, false, {}},
    };
    for (const Case &c : cases) {
        hdrtest::FakeView view;
        HeaderListModel list{view};
        list.model.dropDown = c.dropDown;
        list.notificationsEnabled = c.enabled;
        intptr_t result = -1;
        EXPECT_EQ(list.OnNotify(c.code, 0, c.newState, result), c.handled) << static_cast<int32_t>(c.code);
        EXPECT_EQ(view.log, c.log) << static_cast<int32_t>(c.code);
    }
}

} // namespace
