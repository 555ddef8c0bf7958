// Showing children and deleting rows with their subtree, over a row store.
#include <gtest/gtest.h>

#include "fakes.h"
#include "frame/core/livehandles.h"

namespace {

using outlinetest::FakeRows;
using outlinetest::Texts;
using outlinetest::Tree;

struct ExpandTest : ::testing::Test {
    Tree t;
    FakeRows rows;
    void Show(LbxNode *node) { rows.rows.push_back(Tree::Word(node)); }
    void TearDown() override { LbxOutlineRedraw = true; }
};

TEST_F(ExpandTest, ALeafAnswersZeroYetSetsItsBitsAndTheCaret) {
    LbxNode *leaf = t.Add(t.root, u"leaf");
    Show(leaf);
    EXPECT_EQ(LbxExpand(rows, 0, t.root), 0);
    EXPECT_TRUE(leaf->item->flags & LBX_ItemExpanded);
    EXPECT_TRUE(leaf->item->flags & LBX_ItemMinus);
    EXPECT_FALSE(leaf->item->flags & LBX_ItemPlus);
    EXPECT_EQ(rows.caret, 0);
    EXPECT_EQ(rows.log, (std::vector<std::string>{"off", "on-noerase"}));
}

TEST_F(ExpandTest, HiddenChildrenGetRowsBelowTheirParent) {
    LbxNode *a = t.Add(t.root, u"A");
    LbxNode *b = t.Add(t.root, u"B");
    LbxNode *a1 = t.Add(a, u"a1", LBX_ItemHidden);
    t.Add(a1, u"a1x");
    t.Add(a, u"a2", LBX_ItemHidden | LBX_ItemMinus);
    Show(a);
    Show(b);
    EXPECT_EQ(LbxExpand(rows, 0, t.root), 2);
    EXPECT_EQ(Texts(rows), u"A a1 a2 B");
    // A child with children shows closed; hidden bits go.
    EXPECT_EQ(a1->item->flags & (LBX_ItemPlus | LBX_ItemExpanded | LBX_ItemHidden), LBX_ItemPlus);
    EXPECT_FALSE(a->firstChild->next->item->flags & (LBX_ItemHidden | LBX_ItemMinus));
}

TEST_F(ExpandTest, ShownChildrenAndTheirRowsAreSteppedOver) {
    LbxNode *a = t.Add(t.root, u"A");
    LbxNode *a1 = t.Add(a, u"a1");
    LbxNode *a1x = t.Add(a1, u"a1x");
    LbxNode *a1y = t.Add(a1, u"a1y");
    t.Add(a, u"a2", LBX_ItemHidden);
    LbxNode *a3 = t.Add(a, u"a3");
    LbxNode *b = t.Add(t.root, u"B");
    for (LbxNode *n : {a, a1, a1x, a1y, a3, b}) {
        Show(n);
    }
    // a1 is shown with its two children, a2 has no row, a3 has one.
    EXPECT_EQ(LbxExpand(rows, 0, t.root), 5);
    EXPECT_EQ(Texts(rows), u"A a1 a1x a1y a2 a3 B");
}

TEST_F(ExpandTest, TheRootExpandsFromRowMinusOne) {
    t.Add(t.root, u"A", LBX_ItemHidden);
    t.Add(t.root, u"B", LBX_ItemHidden);
    EXPECT_EQ(LbxExpand(rows, -1, t.root), 2);
    EXPECT_EQ(Texts(rows), u"A B");
    EXPECT_EQ(rows.caret, -1);
}

TEST_F(ExpandTest, SelectionIsRestoredOnlyInMultiSelectLists) {
    LbxNode *a = t.Add(t.root, u"A");
    LbxNode *a1 = t.Add(a, u"a1", LBX_ItemSelected);
    Show(a);
    LbxExpand(rows, 0, t.root);
    EXPECT_FALSE(a1->item->flags & LBX_ItemSelected);
    EXPECT_TRUE(rows.selected.empty());

    FakeRows multi;
    multi.multi = true;
    LbxNode *b = t.Add(t.root, u"B");
    LbxNode *b1 = t.Add(b, u"b1", LBX_ItemSelected);
    multi.rows.push_back(Tree::Word(b));
    LbxExpand(multi, 0, t.root);
    EXPECT_TRUE(b1->item->flags & LBX_ItemSelected);
    EXPECT_EQ(multi.selected, std::vector<int32_t>{1});
}

TEST_F(ExpandTest, NewRowsAreScrolledIntoViewButTheParentStays) {
    LbxNode *a = t.Add(t.root, u"A");
    for (int i = 0; i < 6; ++i) {
        t.Add(a, u"c");
    }
    for (int i = 0; i < 8; ++i) {
        Show(t.Add(t.root, u"filler"));
    }
    Show(a); // row 8
    rows.visibleFirst = 0;
    rows.visibleLast = 9;
    EXPECT_EQ(LbxExpand(rows, 8, t.root), 6);
    EXPECT_EQ(rows.top, 5); // min(0 - 9 + 6 + 8, 8)

    FakeRows outline;
    outline.style |= LBX_StyleOutline;
    LbxNode *b = t.Add(t.root, u"B");
    t.Add(b, u"b1");
    outline.rows.push_back(Tree::Word(b));
    outline.visibleLast = -1;
    LbxExpand(outline, 0, t.root);
    EXPECT_EQ(outline.top, -2); // the outline style leaves the view alone
}

TEST_F(ExpandTest, ARefusedInsertAnswersZeroWithPaintingOff) {
    LbxNode *a = t.Add(t.root, u"A");
    t.Add(a, u"a1");
    Show(a);
    rows.refuseInsertAt = 1;
    EXPECT_EQ(LbxExpand(rows, 0, t.root), 0);
    EXPECT_EQ(rows.log, std::vector<std::string>{"off"});
    EXPECT_FALSE(a->item->flags & LBX_ItemExpanded);
}

TEST_F(ExpandTest, ARowWithoutANodeIsAFailure) {
    LbxNode *a = t.Add(t.root, u"A");
    t.Add(a, u"a1");
    Show(a);
    LbxItem flat;
    rows.rows.push_back(reinterpret_cast<std::uintptr_t>(&flat));
    EXPECT_EQ(LbxExpand(rows, 0, t.root), 0);
    EXPECT_EQ(LbxExpand(rows, 1, t.root), 0); // a flat row has nothing to expand
}

TEST_F(ExpandTest, WithRedrawSwitchedOffPaintingStaysOff) {
    LbxNode *a = t.Add(t.root, u"A");
    Show(a);
    LbxOutlineRedraw = false;
    LbxExpand(rows, 0, t.root);
    EXPECT_EQ(rows.log, std::vector<std::string>{"off"});
}

struct DeleteTest : ExpandTest {
    LbxNode *a = nullptr, *a1 = nullptr, *a1x = nullptr, *b = nullptr;
    void SetUp() override {
        a = t.Add(t.root, u"A");
        a1 = t.Add(a, u"a1");
        a1x = t.Add(a1, u"a1x");
        t.Add(a, u"a2", LBX_ItemHidden); // no row
        b = t.Add(t.root, u"B");
        for (LbxNode *n : {a, a1, a1x, b}) {
            Show(n);
        }
    }
};

TEST_F(DeleteTest, DescendentsLoseRowsAndNodesTheParentStays) {
    const std::size_t nodes = zk::LiveCount(zk::LiveKind::OutlineNode);
    a->item->flags |= LBX_ItemExpanded | LBX_ItemMinus;
    EXPECT_EQ(LbxDeleteDescendents(rows, 0), 1);
    EXPECT_EQ(Texts(rows), u"A B");
    EXPECT_EQ(a->firstChild, nullptr);
    EXPECT_EQ(a->item->flags & (LBX_ItemExpanded | LBX_ItemHasChildren | LBX_ItemMinus), 0u);
    EXPECT_EQ(zk::LiveCount(zk::LiveKind::OutlineNode), nodes - 3); // a1, a1x and the rowless a2
}

TEST_F(DeleteTest, DescendentsWithoutAParentRecordFail) {
    rows.parentKnown = false;
    EXPECT_EQ(LbxDeleteDescendents(rows, 0), -1);
    EXPECT_EQ(rows.rows.size(), 4u);
    EXPECT_NE(a->firstChild, nullptr);
}

TEST_F(DeleteTest, ALeafWithNothingBelowAnswersZero) {
    EXPECT_EQ(LbxDeleteDescendents(rows, 3), 0);
    EXPECT_EQ(rows.rows.size(), 4u);
}

TEST_F(DeleteTest, ChildGoesWithItsSubtreeAndTheRedrawSwitchComesBack) {
    const std::size_t nodes = zk::LiveCount(zk::LiveKind::OutlineNode);
    EXPECT_EQ(LbxDeleteChild(rows, 0), 1);
    EXPECT_EQ(Texts(rows), u"B");
    EXPECT_EQ(t.root->firstChild, b);
    EXPECT_EQ(zk::LiveCount(zk::LiveKind::OutlineNode), nodes - 4);
    EXPECT_TRUE(LbxOutlineRedraw);
    EXPECT_EQ(rows.log.back(), "on");
}

TEST_F(DeleteTest, ChildOfAFlatRowOrPastTheEndFails) {
    EXPECT_EQ(LbxDeleteChild(rows, 9), -1);
    LbxItem *flat = new LbxItem();
    rows.rows.push_back(reinterpret_cast<std::uintptr_t>(flat));
    EXPECT_EQ(LbxDeleteChild(rows, 4), -1);
    delete flat;
}

} // namespace
