// The window-free tree steps: levels, ancestry and unlinking. The bits of
// loading are pinned through the exports by win_outline_tree.
#include <gtest/gtest.h>

#include "tree_store.h"

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
    EXPECT_EQ(c->level, 4);
    EXPECT_EQ(d->level, 3);
    EXPECT_TRUE(LbxIsDescendant(t.root, c));
    EXPECT_FALSE(LbxIsDescendant(b, d));
    EXPECT_FALSE(LbxIsDescendant(a, a));
    EXPECT_FALSE(LbxIsDescendant(c, a));
}

TEST(TreeCore, UnlinkMendsNeighboursButLeavesTheTopLevelsLeftLine) {
    Tree t;
    LbxNode *p = t.Add(t.root, u"p");
    LbxNode *x = t.Add(p, u"x");
    LbxNode *y = t.Add(p, u"y");
    LbxNode *z = t.Add(p, u"z");
    ASSERT_TRUE(LbxUnlink(x));
    EXPECT_EQ(p->firstChild, y);
    EXPECT_EQ(y->item->flags & kConn, 0x00090000u);
    ASSERT_TRUE(LbxUnlink(z));
    EXPECT_EQ(y->item->flags & kConn, 0x00010000u);
    ASSERT_TRUE(LbxUnlink(y));
    EXPECT_EQ(p->item->flags & (LBX_ItemHasChildren | LBX_ItemExpanded), 0u);
    EXPECT_FALSE(LbxUnlink(t.root)); // no parent
    // At the top level the new first sibling takes 0x00090000 as it stands.
    LbxNode *q = t.Add(t.root, u"q");
    ASSERT_TRUE(LbxUnlink(p));
    EXPECT_EQ(q->item->flags & kConn, 0x00010000u);
    for (LbxNode *n : {p, x, y, z})
        LbxFreeTree(n);
}

} // namespace
