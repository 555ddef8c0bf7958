// Rows made and rebuilt for subtrees where the exports cannot reach: the
// failures of a subtree's rows, the rebuild by level and the expanded bits.
// The numbering of moved subtrees is pinned by win_outline_tree.
#include <gtest/gtest.h>

#include "tree_store.h"

namespace {

using namespace outlinetest;

constexpr uint32_t kOpen = LBX_ItemExpanded | LBX_ItemMinus | LBX_ItemPlus;

struct TreeRowsCore : ::testing::Test {
    Tree t;
    TreeRows rows;
    void TearDown() override { LbxOutlineRedraw = true; }
};

TEST_F(TreeRowsCore, ShowRowsFailsOnHiddenNodesAndOnARowPastTheEnd) {
    LbxNode *a = t.Add(t.root, u"a");
    t.Add(t.Add(a, u"h", LBX_ItemHidden), u"h1");
    EXPECT_EQ(LbxShowRows(rows, 0, a), 0);
    EXPECT_EQ(rows.Texts(), u"a"); // what was made stays
    // A hidden leaf before the last child pushes it past the end of the list.
    LbxNode *x = t.Add(t.root, u"x");
    LbxNode *leaf = t.Add(x, u"hidden", LBX_ItemHidden);
    LbxNode *y = t.Add(x, u"y");
    rows.Reset();
    EXPECT_EQ(LbxShowRows(rows, 0, x), 0);
    EXPECT_EQ(rows.Texts(), u"x");
    EXPECT_EQ(y->window, nullptr);
    EXPECT_EQ(LbxShowRows(rows, 0, leaf), 0);
}

TEST_F(TreeRowsCore, ShowOutlineWalksBelowHiddenNodesAndSetsOnlyTheExpandedBit) {
    LbxNode *a = t.Add(t.root, u"a");
    LbxNode *a1 = t.Add(a, u"a1");
    LbxNode *h = t.Add(t.root, u"h", LBX_ItemHidden);
    t.Add(h, u"h1");
    a->item->flags |= LBX_ItemPlus;
    EXPECT_EQ(LbxShowOutline(rows, t.root, LBX_LevelAllButHidden), 1);
    EXPECT_EQ(rows.Texts(), u"a a1 h1"); // h stays hidden, its child is shown
    EXPECT_EQ(a->item->flags & kOpen, LBX_ItemExpanded | LBX_ItemPlus);
    EXPECT_EQ(LbxShowOutline(rows, t.root, 0), 1);
    EXPECT_EQ(rows.Texts(), u"a h");
    EXPECT_TRUE(a1->item->flags & LBX_ItemHidden);
    EXPECT_FALSE(a->item->flags & LBX_ItemExpanded);
    EXPECT_EQ(LbxShowOutline(rows, t.root, 32767), 1);
    EXPECT_EQ(rows.Texts(), u"a a1 h h1");
    rows.base.parentKnown = false;
    EXPECT_EQ(LbxShowOutline(rows, t.root, 32767), 0);
    EXPECT_EQ(rows.Texts(), u"a a1 h h1"); // nothing reset
}

TEST_F(TreeRowsCore, ExpandDescendentsClearsExpandedWhereNothingWasGained) {
    LbxNode *a = t.Add(t.root, u"a");
    LbxNode *b = t.Add(a, u"b");
    t.Add(b, u"b1", LBX_ItemHidden);
    LbxNode *c = t.Add(a, u"c");
    LbxNode *c1 = t.Add(c, u"c1");
    c->item->flags |= LBX_ItemExpanded;
    rows.Fill({a, b, c, c1});
    ASSERT_EQ(LbxExpandDescendents(rows, 0), 1);
    EXPECT_EQ(rows.Texts(), u"a b b1 c c1");
    EXPECT_TRUE(b->item->flags & LBX_ItemExpanded);
    EXPECT_FALSE(c->item->flags & LBX_ItemExpanded);
    EXPECT_EQ(a->item->flags & kOpen, LBX_ItemExpanded | LBX_ItemMinus);
    // A node not marked hidden counts as having its row: the hidden one after
    // it is numbered past the end and refused.
    t.Add(a, u"late");
    t.Add(a, u"last", LBX_ItemHidden);
    EXPECT_EQ(LbxExpandDescendents(rows, 0), 0);
    EXPECT_EQ(rows.Texts(), u"a b b1 c c1");
}

TEST_F(TreeRowsCore, CollapseHidesRowsAndClearsOnlyTheirExpandedBit) {
    LbxNode *a = t.Add(t.root, u"a");
    LbxNode *b = t.Add(a, u"b");
    LbxNode *b1 = t.Add(b, u"b1");
    b->item->flags |= LBX_ItemExpanded | LBX_ItemMinus;
    rows.Fill({a, b, b1});
    ASSERT_EQ(LbxCollapse(rows, 0), 1);
    EXPECT_EQ(rows.Texts(), u"a");
    EXPECT_EQ(b->item->flags & (LBX_ItemExpanded | LBX_ItemMinus | LBX_ItemHidden), LBX_ItemMinus | LBX_ItemHidden);
    EXPECT_TRUE(b1->item->flags & LBX_ItemHidden);
    EXPECT_EQ(a->item->flags & kOpen, LBX_ItemPlus);
}

} // namespace
