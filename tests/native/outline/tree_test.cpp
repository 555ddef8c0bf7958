// The tree beside the rows: root, freeing with connector bits, search.
#include <gtest/gtest.h>

#include "fakes.h"
#include "frame/core/livehandles.h"

namespace {

using outlinetest::AsciiRules;
using outlinetest::Tree;

TEST(LbxNewRoot, LevelMinusOneWithAnEmptyItem) {
    int window = 0;
    LbxNode *root = LbxNewRoot(&window);
    ASSERT_NE(root, nullptr);
    EXPECT_EQ(root->level, -1);
    EXPECT_EQ(root->window, &window);
    EXPECT_EQ(root->parent, nullptr);
    ASSERT_NE(root->item, nullptr);
    EXPECT_EQ(root->item->node, root);
    EXPECT_TRUE(root->item->text.empty());
    EXPECT_TRUE(LbxIsNode(root));
    LbxFreeTree(root);
    EXPECT_FALSE(LbxIsNode(root));
}

TEST(LbxFreeChild, MiddleFirstAndLastMendTheirNeighbours) {
    Tree t;
    LbxNode *top = t.Add(t.root, u"top");
    LbxNode *a = t.Add(top, u"a");
    LbxNode *b = t.Add(top, u"b");
    LbxNode *c = t.Add(top, u"c");
    b->item->flags = (b->item->flags & ~LBX_ItemConnectors) | 0x000F0000u; // a middle child
    ASSERT_TRUE(LbxFreeChild(b));
    EXPECT_EQ(a->next, c);
    EXPECT_EQ(c->prev, a);
    ASSERT_TRUE(LbxFreeChild(a));
    EXPECT_EQ(top->firstChild, c);
    EXPECT_EQ(top->lastChild, c);
    // The survivor is now first and last: an only child holds the left line alone.
    EXPECT_EQ(c->item->flags & LBX_ItemConnectors, LBX_ItemLeftLine);
    EXPECT_TRUE(top->item->flags & LBX_ItemHasChildren);
    ASSERT_TRUE(LbxFreeChild(c));
    EXPECT_EQ(top->firstChild, nullptr);
    EXPECT_FALSE(top->item->flags & LBX_ItemHasChildren);
}

TEST(LbxFreeChild, ANewLastChildTakesTheLastPattern) {
    Tree t;
    LbxNode *top = t.Add(t.root, u"top");
    LbxNode *a = t.Add(top, u"a");
    t.Add(top, u"b");
    LbxNode *c = t.Add(top, u"c");
    LbxNode *b = a->next;
    b->item->flags |= 0x000F0000u;
    ASSERT_TRUE(LbxFreeChild(c));
    EXPECT_EQ(top->lastChild, b);
    EXPECT_EQ(b->item->flags & LBX_ItemConnectors, 0x00070000u);
}

TEST(LbxFreeChild, FailsWithoutParentOrItemsAndChangesNothing) {
    Tree t;
    EXPECT_FALSE(LbxFreeChild(t.root)); // no parent
    LbxNode *a = t.Add(t.root, u"a");
    LbxNode *b = t.Add(t.root, u"b");
    LbxItem *saved = b->item;
    b->item = nullptr;
    EXPECT_FALSE(LbxFreeChild(a)); // a neighbour without an item
    EXPECT_EQ(t.root->firstChild, a);
    b->item = saved;
    EXPECT_FALSE(LbxFreeChild(nullptr));
}

TEST(LbxFreeDescendents, FreesTheSubtreeAndKeepsTheNode) {
    Tree t;
    const std::size_t before = zk::LiveCount(zk::LiveKind::OutlineNode);
    LbxNode *top = t.Add(t.root, u"top");
    LbxNode *a = t.Add(top, u"a");
    t.Add(a, u"a1");
    t.Add(a, u"a2");
    t.Add(top, u"b");
    ASSERT_TRUE(LbxFreeDescendents(top));
    EXPECT_EQ(top->firstChild, nullptr);
    EXPECT_EQ(top->lastChild, nullptr);
    EXPECT_EQ(zk::LiveCount(zk::LiveKind::OutlineNode), before + 1);
}

TEST(LbxFreeDescendents, ADeepChainNeedsNoDeepStack) {
    Tree t;
    LbxNode *node = t.root;
    for (int i = 0; i < 100000; ++i) {
        node = t.Add(node, u"x");
    }
    EXPECT_TRUE(LbxFreeDescendents(t.root));
    EXPECT_EQ(t.root->firstChild, nullptr);
}

TEST(LbxFreeTree, FreesEveryNodeAndItem) {
    const std::size_t nodes = zk::LiveCount(zk::LiveKind::OutlineNode);
    const std::size_t items = zk::LiveCount(zk::LiveKind::OutlineItem);
    {
        Tree t;
        for (int i = 0; i < 10; ++i) {
            LbxNode *n = t.Add(t.root, u"n");
            t.Add(t.Add(n, u"m"), u"o");
        }
    }
    EXPECT_EQ(zk::LiveCount(zk::LiveKind::OutlineNode), nodes);
    EXPECT_EQ(zk::LiveCount(zk::LiveKind::OutlineItem), items);
}

// Pre-order from the node itself, without case; the whole mode compares the
// whole text, and an empty search matches the start node.
TEST(LbxFindText, PrefixOrWholeInPreOrderFromTheNodeItself) {
    Tree t;
    AsciiRules rules;
    LbxNode *fruit = t.Add(t.root, u"Fruit");
    LbxNode *apple = t.Add(fruit, u"Apple");
    LbxNode *apricot = t.Add(apple, u"Apricot");
    LbxNode *avocado = t.Add(t.root, u"Avocado");
    LbxNode *ap = t.Add(t.root, u"Ap");
    const struct {
        LbxNode *from;
        const char16_t *text;
        int mode;
        LbxNode *found;
    } cases[] = {
        {t.root, u"a", LBX_FindPrefix, apple},     {t.root, u"APR", LBX_FindPrefix, apricot},
        {fruit, u"fr", LBX_FindPrefix, fruit},     {fruit, u"avo", LBX_FindPrefix, nullptr}, // outside the subtree
        {t.root, u"avo", LBX_FindPrefix, avocado}, {t.root, u"Apricots", LBX_FindPrefix, nullptr},
        {t.root, u"aP", LBX_FindWhole, ap},        {t.root, u"App", LBX_FindWhole, nullptr},
        {t.root, u"", LBX_FindPrefix, t.root},
    };
    for (const auto &c : cases)
        EXPECT_EQ(LbxFindText(c.from, c.text, c.mode, rules), c.found)
            << std::string(c.text, c.text + std::char_traits<char16_t>::length(c.text)) << " mode " << c.mode;
}

} // namespace
