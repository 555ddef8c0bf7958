// The window-free tree steps: levels, ancestry, unlinking, loading, and
// rows made for subtrees in a store.
#include <gtest/gtest.h>

#include "../outline/fakes.h"
#include "outline/core/tree_rows.h"

namespace {

using namespace outlinetest;

constexpr uint32_t kConn = LBX_ItemConnectors;

TEST(TreeCore, AddLevelAndDescendantCoverTheWholeSubtree) {
    Tree t;
    LbxNode *a = t.Add(t.root, u"a");
    LbxNode *b = t.Add(a, u"b");
    LbxNode *c = t.Add(b, u"c");
    LbxNode *d = t.Add(a, u"d");
    LbxAddLevel(a, 2);
    EXPECT_EQ(a->level, 2);
    EXPECT_EQ(c->level, 4);
    EXPECT_EQ(d->level, 3);
    EXPECT_TRUE(LbxIsDescendant(a, c));
    EXPECT_TRUE(LbxIsDescendant(t.root, d));
    EXPECT_FALSE(LbxIsDescendant(b, d));
    EXPECT_FALSE(LbxIsDescendant(a, a));
    EXPECT_FALSE(LbxIsDescendant(c, a));
}

TEST(TreeCore, UnlinkMendsNeighboursConnectorsAndTheParentsBits) {
    Tree t;
    LbxNode *p = t.Add(t.root, u"p");
    LbxNode *x = t.Add(p, u"x");
    LbxNode *y = t.Add(p, u"y");
    LbxNode *z = t.Add(p, u"z");
    y->item->flags |= LBX_ItemPrevA | LBX_ItemPrevB; // a middle child: all four
    ASSERT_TRUE(LbxUnlink(x));
    EXPECT_EQ(p->firstChild, y);
    EXPECT_EQ(y->item->flags & kConn, 0x00090000u);
    ASSERT_TRUE(LbxUnlink(z));
    EXPECT_EQ(p->lastChild, y);
    EXPECT_EQ(y->item->flags & kConn, 0x00010000u);
    ASSERT_TRUE(LbxUnlink(y));
    EXPECT_EQ(p->item->flags & (LBX_ItemHasChildren | LBX_ItemExpanded), 0u);
    EXPECT_FALSE(LbxUnlink(t.root)); // no parent
    for (LbxNode *n : {x, y, z}) LbxFreeTree(n);
}

TEST(TreeCore, LoadChildKeepsFirstBitsOnAnOnlyChildAndLoadSiblingStartsHidden) {
    Tree t;
    AsciiRules rules;
    LbxNode *top = LbxLoadChild(t.root, nullptr, u"top", {}, LBX_StyleUpperCase, rules);
    ASSERT_NE(top, nullptr);
    EXPECT_EQ(std::u16string(top->item->text.view()), u"TOP");
    EXPECT_EQ(top->item->flags & kConn, 0x00080000u);
    LbxNode *kid = LbxLoadChild(top, nullptr, u"kid", {nullptr, nullptr, 4, 0x12}, 0, rules);
    EXPECT_EQ(kid->item->flags, 0x00090012u);
    EXPECT_EQ(top->item->flags & (LBX_ItemHasChildren | LBX_ItemPlus), LBX_ItemHasChildren | LBX_ItemPlus);
    LbxNode *sib = LbxLoadSibling(kid, nullptr, u"sib", {}, 0, rules);
    EXPECT_EQ(sib->item->flags, LBX_ItemHidden | 0x00070000u);
    EXPECT_EQ(top->lastChild, sib);
    EXPECT_EQ(LbxLoadSibling(t.root, nullptr, u"x", {}, 0, rules), nullptr);
    EXPECT_EQ(LbxFindValue(t.root, 4), kid);
    EXPECT_EQ(LbxFindValue(t.root, 5), nullptr);
}

TEST(TreeCore, UnlinkAtTheTopLevelLeavesTheLeftLineToTheConnectorPattern) {
    Tree t;
    LbxNode *x = t.Add(t.root, u"x");
    LbxNode *y = t.Add(t.root, u"y");
    ASSERT_TRUE(LbxUnlink(x));
    // The new first sibling takes 0x00090000 as it stands, left line included.
    EXPECT_EQ(y->item->flags & kConn, 0x00010000u);
    LbxFreeTree(x);
}

TEST(TreeCore, LoadSiblingAtTheTopLevelKeepsTheLeftLineOfItsFlags) {
    Tree t;
    AsciiRules rules;
    LbxNode *top = t.Add(t.root, u"top");
    LbxNode *sib = LbxLoadSibling(top, nullptr, u"sib", {}, 0, rules);
    ASSERT_NE(sib, nullptr);
    EXPECT_EQ(sib->item->flags, LBX_ItemHidden | 0x00070000u);
    EXPECT_TRUE(top->item->flags & LBX_ItemHasNext);
    EXPECT_EQ(t.root->lastChild, sib);
    LbxNode *mid = LbxLoadSibling(top, nullptr, u"mid", {}, 0, rules);
    EXPECT_EQ(mid->item->flags, LBX_ItemHidden | 0x000F0000u); // not last: HasNext stays
    EXPECT_EQ(sib->prev, mid);
    EXPECT_EQ(t.root->lastChild, sib);
}

} // namespace
