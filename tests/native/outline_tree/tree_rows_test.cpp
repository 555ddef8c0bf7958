// Rows made, moved and rebuilt for subtrees, in a store: the numbering of
// subtree rows, the rebuild by level, and the bits each step leaves.
#include <gtest/gtest.h>

#include "tree_store.h"

namespace {

using namespace outlinetest;

constexpr uint32_t kConn = LBX_ItemConnectors;

struct Redraw : ::testing::Test {
    void TearDown() override { LbxOutlineRedraw = true; }
};

using TreeRowsCore = Redraw;

TEST_F(TreeRowsCore, ShowRowsNumbersChildrenWithoutSteppingOverGrandchildRows) {
    Tree t;
    LbxNode *a = t.Add(t.root, u"a");
    LbxNode *b = t.Add(a, u"b");
    t.Add(b, u"b1");
    t.Add(b, u"b2");
    t.Add(a, u"h", LBX_ItemHidden);
    t.Add(a, u"c");
    t.Add(a, u"d");
    const uint32_t bBits = b->item->flags;
    TreeRows rows;
    // a at 0; b's subtree from 1 (b, b1, b2); the hidden leaf uses up 2; c at
    // 3 and d at 4, into the middle of b's rows.
    EXPECT_EQ(LbxShowRows(rows, 0, a), 6);
    EXPECT_EQ(rows.Texts(), u"a b b1 c d b2");
    EXPECT_EQ(b->item->flags, bBits); // expansion bits stay as they were
    EXPECT_EQ(b->window, &rows);
    rows.base.refuseInsertAt = 1;
    rows.Reset();
    EXPECT_EQ(LbxShowRows(rows, 0, a), 0);
}

TEST_F(TreeRowsCore, ShowRowsFailsOnAHiddenChildWithChildrenAndOnARowPastTheEnd) {
    Tree t;
    LbxNode *a = t.Add(t.root, u"a");
    LbxNode *h = t.Add(a, u"h", LBX_ItemHidden);
    t.Add(h, u"h1");
    TreeRows rows;
    EXPECT_EQ(LbxShowRows(rows, 0, a), 0);
    EXPECT_EQ(rows.Texts(), u"a"); // what was made stays
    // A hidden leaf before the last child pushes it past the end of the list.
    Tree u;
    LbxNode *x = u.Add(u.root, u"x");
    u.Add(x, u"hidden", LBX_ItemHidden);
    LbxNode *y = u.Add(x, u"y");
    TreeRows other;
    EXPECT_EQ(LbxShowRows(other, 0, x), 0);
    EXPECT_EQ(other.Texts(), u"x");
    EXPECT_EQ(y->window, nullptr);
    EXPECT_EQ(LbxShowRows(other, 0, u.root->firstChild->firstChild), 0); // hidden itself
}

TEST_F(TreeRowsCore, MoveDownGivesTheInterleavedRowsAndTheConnectorRuleOfThePair) {
    Tree t;
    LbxNode *a = t.Add(t.root, u"a");
    LbxNode *b = t.Add(a, u"b");
    LbxNode *b1 = t.Add(b, u"b1");
    LbxNode *c = t.Add(a, u"c");
    LbxNode *z = t.Add(t.root, u"z");
    LbxNode *end = t.Add(t.root, u"end");
    TreeRows rows;
    rows.Fill({a, b, b1, c, z, end});
    ASSERT_EQ(LbxMove(rows, 0, true), 1);
    EXPECT_EQ(rows.Texts(), u"z a b c b1 end");
    EXPECT_EQ(t.root->firstChild, z);
    EXPECT_EQ(z->next, a);
    EXPECT_EQ(a->next, end);
    // The first of the pair loses 0x00060000 and gains HasNext; the second
    // the other way round, whatever follows it.
    EXPECT_EQ(z->item->flags & kConn, LBX_ItemHasNext);
    EXPECT_EQ(a->item->flags & kConn, LBX_ConnPrev);
    ASSERT_EQ(LbxMove(rows, 1, false), 1); // a back up over z
    EXPECT_EQ(rows.Texts(), u"a b c b1 z end");
    EXPECT_EQ(a->item->flags & kConn, LBX_ItemHasNext);
    EXPECT_EQ(z->item->flags & kConn, LBX_ConnPrev);
    EXPECT_EQ(LbxMove(rows, 5, true), 0); // no next sibling
}

TEST_F(TreeRowsCore, PromoteLeavesLaterSiblingsWithoutTheirChildRowsAndMendsNoConnectors) {
    Tree t;
    LbxNode *p = t.Add(t.root, u"p");
    LbxNode *x = t.Add(p, u"x");
    LbxNode *y = t.Add(p, u"y");
    LbxNode *y1 = t.Add(y, u"y1");
    y->item->flags |= LBX_ItemExpanded | LBX_ItemMinus | LBX_ItemHasChildren;
    LbxNode *q = t.Add(t.root, u"q");
    TreeRows rows;
    rows.multi = true;
    rows.Fill({p, x, y, y1, q});
    ASSERT_EQ(LbxPromote(rows, 1, nullptr, nullptr), 1);
    EXPECT_EQ(rows.Texts(), u"p y x q");
    EXPECT_EQ(rows.base.caret, 2);
    EXPECT_EQ(y->item->flags & (LBX_ItemExpanded | LBX_ItemMinus | LBX_ItemHidden),
              LBX_ItemExpanded | LBX_ItemMinus); // y1 lost its row, y is left as it was
    EXPECT_FALSE(y1->item->flags & LBX_ItemHidden);
    EXPECT_EQ(p->firstChild, y);
    EXPECT_EQ(y->prev, nullptr);
    EXPECT_EQ(y->item->flags & kConn, 0x00070000u); // first now, its bits not mended
    EXPECT_EQ(x->parent, t.root);
    EXPECT_EQ(x->level, 0);
    EXPECT_EQ(x->item->flags & kConn, 0x000E0000u); // all four less the top level's left line
    EXPECT_EQ(p->next, x);
    EXPECT_EQ(x->next, q);
    EXPECT_EQ(q->prev, x);
}

TEST_F(TreeRowsCore, DemoteUnderALastPreviousSiblingLeavesItsHasNextBit) {
    Tree t;
    LbxNode *p = t.Add(t.root, u"p");
    LbxNode *x = t.Add(p, u"x");
    LbxNode *y = t.Add(p, u"y");
    TreeRows rows;
    rows.Fill({p, x, y});
    ASSERT_EQ(LbxDemote(rows, 2, nullptr, nullptr), 1);
    EXPECT_EQ(p->lastChild, x);
    EXPECT_EQ(x->next, nullptr);
    EXPECT_TRUE(x->item->flags & LBX_ItemHasNext);
    EXPECT_EQ(y->item->flags & kConn, 0x00010000u);
    EXPECT_EQ(rows.Texts(), u"p x y");
    // Under a previous sibling with children that is closed: 0, painting off.
    LbxNode *z = t.Add(p, u"z");
    rows.Fill({p, x, z});
    x->item->flags &= ~LBX_ItemExpanded;
    rows.base.log.clear();
    EXPECT_EQ(LbxDemote(rows, 2, nullptr, nullptr), 0);
    EXPECT_EQ(rows.base.log, std::vector<std::string>{"off"});
    EXPECT_EQ(z->parent, p);
}

TEST_F(TreeRowsCore, ShowOutlineWalksBelowHiddenNodesAndSetsOnlyTheExpandedBit) {
    Tree t;
    LbxNode *a = t.Add(t.root, u"a");
    LbxNode *a1 = t.Add(a, u"a1");
    LbxNode *h = t.Add(t.root, u"h", LBX_ItemHidden);
    LbxNode *h1 = t.Add(h, u"h1");
    a->item->flags |= LBX_ItemPlus;
    TreeRows rows;
    EXPECT_EQ(LbxShowOutline(rows, t.root, LBX_LevelAllButHidden), 1);
    EXPECT_EQ(rows.Texts(), u"a a1 h1"); // h stays hidden; its child is shown all the same
    EXPECT_EQ(a->item->flags & (LBX_ItemExpanded | LBX_ItemPlus | LBX_ItemMinus), LBX_ItemExpanded | LBX_ItemPlus);
    EXPECT_TRUE(h->item->flags & LBX_ItemExpanded);
    EXPECT_EQ(LbxShowOutline(rows, t.root, 0), 1);
    EXPECT_EQ(rows.Texts(), u"a h");
    EXPECT_TRUE(a1->item->flags & LBX_ItemHidden);
    EXPECT_TRUE(h1->item->flags & LBX_ItemHidden);
    EXPECT_FALSE(a->item->flags & LBX_ItemExpanded);
    EXPECT_EQ(LbxShowOutline(rows, t.root, 32767), 1);
    EXPECT_EQ(rows.Texts(), u"a a1 h h1");
    EXPECT_EQ(rows.base.caret, 0);
    rows.base.parentKnown = false;
    EXPECT_EQ(LbxShowOutline(rows, t.root, 32767), 0);
    EXPECT_EQ(rows.Texts(), u"a a1 h h1"); // nothing reset
}

TEST_F(TreeRowsCore, ExpandDescendentsInsertsOnlyHiddenNodesAndClearsExpandedWhereNothingWasGained) {
    Tree t;
    LbxNode *a = t.Add(t.root, u"a");
    LbxNode *b = t.Add(a, u"b");
    t.Add(b, u"b1", LBX_ItemHidden);
    LbxNode *c = t.Add(a, u"c");
    LbxNode *c1 = t.Add(c, u"c1");
    c->item->flags |= LBX_ItemExpanded;
    TreeRows rows;
    rows.Fill({a, b, c, c1});
    ASSERT_EQ(LbxExpandDescendents(rows, 0), 1);
    EXPECT_EQ(rows.Texts(), u"a b b1 c c1");
    EXPECT_TRUE(b->item->flags & LBX_ItemExpanded);
    EXPECT_FALSE(c->item->flags & LBX_ItemExpanded); // its child had its row already
    EXPECT_EQ(a->item->flags & (LBX_ItemExpanded | LBX_ItemMinus | LBX_ItemPlus), LBX_ItemExpanded | LBX_ItemMinus);
    EXPECT_FALSE(c1->item->flags & LBX_ItemHidden);
    // A node not marked hidden counts as having its row, wherever it is: the
    // hidden one after it is numbered past the end and refused.
    t.Add(a, u"late");
    t.Add(a, u"last", LBX_ItemHidden);
    EXPECT_EQ(LbxExpandDescendents(rows, 0), 0);
    EXPECT_EQ(rows.Texts(), u"a b b1 c c1");
}

TEST_F(TreeRowsCore, CollapseHidesRowsAndClearsOnlyTheirExpandedBit) {
    Tree t;
    LbxNode *a = t.Add(t.root, u"a");
    LbxNode *b = t.Add(a, u"b");
    LbxNode *b1 = t.Add(b, u"b1");
    b->item->flags |= LBX_ItemExpanded | LBX_ItemMinus;
    TreeRows rows;
    rows.Fill({a, b, b1});
    ASSERT_EQ(LbxCollapse(rows, 0), 1);
    EXPECT_EQ(rows.Texts(), u"a");
    EXPECT_EQ(b->item->flags & (LBX_ItemExpanded | LBX_ItemMinus | LBX_ItemHidden), LBX_ItemMinus | LBX_ItemHidden);
    EXPECT_TRUE(b1->item->flags & LBX_ItemHidden);
    EXPECT_EQ(a->item->flags & (LBX_ItemExpanded | LBX_ItemMinus | LBX_ItemPlus), LBX_ItemPlus);
}

} // namespace
