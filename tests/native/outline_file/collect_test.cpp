// The walk behind a save passes every node of any depth without recursion
// (its order is pinned by the saved bytes of win_outline_file).
#include <gtest/gtest.h>

#include "outline/core/lbx_tree.h"
#include "outline/core/ofile_collect.h"

using namespace zk::ofile;

namespace {

// A last child linked by hand.
LbxNode *Add(LbxNode *parent) {
    auto *node = new LbxNode();
    auto *item = new LbxItem();
    node->item = item;
    item->node = node;
    node->level = parent->level + 1;
    node->parent = parent;
    node->prev = parent->lastChild;
    if (parent->lastChild)
        parent->lastChild->next = node;
    else
        parent->firstChild = node;
    parent->lastChild = node;
    return node;
}

TEST(OutlineCollect, ADeepChainCostsNoStack) {
    LbxNode *root = LbxNewRoot(nullptr);
    LbxNode *tip = root;
    for (int i = 0; i < 200000; ++i)
        tip = Add(tip);
    size_t count = 0;
    int32_t deepest = -2;
    OutlineWalk(root, [&](LbxNode *node) {
        ++count;
        deepest = node->level;
    });
    EXPECT_EQ(count, 200001u);
    EXPECT_EQ(deepest, 199999);
    LbxFreeTree(root);
}

} // namespace
