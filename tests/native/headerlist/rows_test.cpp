// The row store behind the view: stable indices, null slots, data and texts
// by view row, the guards of each operation, columns and text on demand.
#include <gtest/gtest.h>

#include "fake_view.h"
#include "frame/core/errors.h"

namespace {

using zk::hdr::HeaderListModel;
using zk::hdr::kItemImage;
using zk::hdr::kItemParam;
using zk::hdr::kItemText;

struct Rows : testing::Test {
    hdrtest::FakeView view;
    HeaderListModel list{view};

    void Fill(std::initializer_list<const char16_t *> texts) {
        for (const char16_t *text : texts)
            list.InsertItem(view.RowCount(), text, 0, 0);
    }
    std::u16string Text(int32_t row, int32_t column = 0) {
        const auto *item = list.RowAt(row);
        return item ? std::u16string(item->Text(column)) : u"<none>";
    }
};

TEST_F(Rows, DeletedRowsKeepTheirSlotsAndNewRowsAppend) {
    Fill({u"a", u"b", u"c"});
    EXPECT_EQ(list.DeleteItem(0), 1);
    EXPECT_EQ(list.InsertItem(0, u"d", 7, 2), 0);
    ASSERT_EQ(list.rows.size(), 4u);
    EXPECT_EQ(list.rows.Row(0), nullptr);
    EXPECT_EQ(view.rows[0].param, 3) << "the new row is store index 3 at view place 0";
    EXPECT_EQ(view.rows[0].image, 2);
    EXPECT_EQ(list.GetItemData(0), 7u);
    EXPECT_EQ(Text(1), u"b");
}

TEST_F(Rows, InsertRefusesBeforeTouchingTheStore) {
    EXPECT_EQ(list.InsertItem(-1, u"x", 0, 0), -1);
    EXPECT_EQ(list.InsertItem(0, nullptr, 0, 0), -1);
    EXPECT_EQ(list.InsertItem(0, u"x", 0, -1), -1);
    EXPECT_EQ(list.rows.size(), 0u);
}

TEST_F(Rows, DeleteOfANegativeIndexReachesOnlyTheView) {
    Fill({u"a"});
    EXPECT_EQ(list.DeleteItem(-1), 0);
    EXPECT_NE(list.rows.Row(0), nullptr);
    EXPECT_THROW(list.DeleteItem(5), zk::InvalidArgException) << "no such view row";
}

TEST_F(Rows, DeleteAllOnAnEmptyViewKeepsTheStore) {
    Fill({u"a", u"b"});
    view.rows.clear(); // the view emptied behind the list's back
    EXPECT_EQ(list.DeleteAllItems(), 1);
    EXPECT_EQ(list.rows.size(), 2u);
    Fill({u"c"});
    EXPECT_EQ(list.DeleteAllItems(), 1);
    EXPECT_EQ(list.rows.size(), 0u);
    EXPECT_TRUE(view.rows.empty());
}

TEST_F(Rows, ItemDataGuards) {
    Fill({u"a", u"b"});
    list.DeleteItem(0); // view row 0 is now store row 1
    EXPECT_EQ(list.SetItemData(0, 42), 1);
    EXPECT_EQ(list.rows.Row(1)->itemData, 42u);
    view.rows.push_back({0, 0});  // a view row whose store slot is empty
    view.rows.push_back({99, 0}); // and one outside the store
    for (int32_t row : {-1, 1, 2, 3}) {
        EXPECT_EQ(list.SetItemData(row, 1), 0) << row;
        EXPECT_EQ(list.GetItemData(row), 0u) << row;
    }
}

TEST_F(Rows, SetItemTextGrowsTheRowAndGuardsTheViewIndex) {
    Fill({u"a", u"b"});
    EXPECT_EQ(list.SetItemText(1, 3, u"d"), 1);
    ASSERT_EQ(list.rows.Row(1)->texts.size(), 4u);
    EXPECT_EQ(Text(1, 2), u"");
    EXPECT_EQ(Text(1, 3), u"d");
    EXPECT_EQ(list.SetItemText(-1, 0, u"x"), 0);
    EXPECT_EQ(list.SetItemText(0, -1, u"x"), 0);
    EXPECT_EQ(list.SetItemText(0, 0, nullptr), 0);
    EXPECT_EQ(list.SetItemText(2, 0, u"x"), 0) << "a view index past the store's last";
    list.DeleteItem(0);
    list.InsertItem(1, u"c", 0, 0); // view: store 1, store 2; store row 0 is gone
    view.rows[0].param = 0;         // the view's row 0 points at the empty slot
    EXPECT_EQ(list.SetItemText(0, 0, u"x"), 0);
    view.rows[0].param = 7;
    EXPECT_THROW(list.SetItemText(0, 0, u"x"), zk::InvalidArgException);
}

TEST_F(Rows, SetItemStopsAtTheFirstRefusal) {
    Fill({u"a"});
    EXPECT_EQ(list.SetItem(0, 1, kItemText | kItemParam | kItemImage, u"b", 9, 4), 1);
    EXPECT_EQ(Text(0, 1), u"b");
    EXPECT_EQ(list.GetItemData(0), 9u);
    EXPECT_EQ(view.rows[0].image, 4);
    EXPECT_EQ(list.SetItem(0, 0, kItemImage, u"", 0, -1), 0) << "a negative image is refused whatever the mask";
    EXPECT_EQ(list.SetItem(3, 0, kItemText | kItemImage, u"z", 0, 1), 0);
    EXPECT_EQ(view.rows[0].image, 4);
}

TEST_F(Rows, AssignColumnsDeletesByTheNewCount) {
    zk::hdr::CHdrLBColumnArray three, one;
    for (const char16_t *t : {u"A", u"B", u"C"})
        three.Add(std::make_unique<zk::hdr::SHdrLBColumn>(t, 0, 50));
    one.Add(std::make_unique<zk::hdr::SHdrLBColumn>(u"X", 1, 80));
    view.columns.clear();
    list.AssignColumns(three);
    EXPECT_EQ(view.columns, (std::vector<std::u16string>{u"A", u"B", u"C"}));
    list.AssignColumns(one);
    EXPECT_EQ(view.columns, (std::vector<std::u16string>{u"X", u"B", u"C"})) << "excess old columns stay";
    ASSERT_EQ(list.model.columns.size(), 1u);
    EXPECT_EQ(list.model.columns.at(0)->format, 1);
}

TEST_F(Rows, TextOnDemandIsCutToTheBuffer) {
    Fill({u"abcdef"});
    list.SetItemText(0, 2, u"zz");
    std::u16string_view text;
    struct Case {
        intptr_t param;
        int32_t column, capacity;
        bool written;
        std::u16string_view text;
    } cases[] = {
        {0, 0, 260, true, u"abcdef"}, {0, 0, 4, true, u"abc"}, {0, 1, 10, true, u""}, {0, 2, 10, true, u"zz"},
        {0, 3, 10, false, u""},       {1, 0, 10, false, u""},  {0, 0, 0, false, u""}, {-1, 0, 10, false, u""},
    };
    for (const Case &c : cases) {
        text = u"untouched";
        EXPECT_EQ(list.DisplayText(c.param, c.column, c.capacity, text), c.written) << c.column << " " << c.capacity;
        if (c.written) {
            EXPECT_EQ(text, c.text);
        }
    }
}

TEST_F(Rows, LabelEditsLandInTheirRow) {
    Fill({u"a", u"b"});
    list.EndLabelEdit(1, 2, u"edited");
    list.EndLabelEdit(-1, 0, u"lost");
    list.EndLabelEdit(0, 0, nullptr);
    EXPECT_EQ(Text(1, 2), u"edited");
    EXPECT_EQ(Text(0), u"a");
}

TEST_F(Rows, TakingABlockEmptiesTheViewAndShowsItsColumns) {
    Fill({u"a"});
    zk::hdr::SPropHeaderListBox block;
    block.columns.Add(std::make_unique<zk::hdr::SHdrLBColumn>(u"Second", 0, 10));
    list.InsertColumns(); // the default column "Item"
    list.TakeBlock(block);
    list.InsertColumns();
    EXPECT_TRUE(view.rows.empty());
    EXPECT_EQ(list.rows.size(), 0u);
    EXPECT_EQ(view.columns, (std::vector<std::u16string>{u"Item", u"Second"}));
}

} // namespace
