// The walk behind a save passes every node of any depth without recursion
// (its order is pinned by the saved bytes of win_outline_file).
#include <gtest/gtest.h>

#include "outline/core/lbx_tree.h"
#include "outline/core/ofile_collect.h"

using namespace zk::lbx;

TEST(OutlineCollect, ADeepChainCostsNoStack) {
    LbxNode *root = LbxNewRoot(nullptr);
    LbxNode *tip = root;
    for (int i = 0; i < 200000; ++i) {
        auto *node = new LbxNode();
        node->item = new LbxItem();
        node->item->node = node;
        node->level = tip->level + 1;
        node->parent = tip;
        tip->firstChild = tip->lastChild = node;
        tip = node;
    }
    size_t count = 0;
    int32_t deepest = -2;
    zk::lbx::ofile::OutlineWalk(root, [&](LbxNode *node) {
        ++count;
        deepest = node->level;
    });
    EXPECT_EQ(count, 200001u);
    EXPECT_EQ(deepest, 199999);
    LbxFreeTree(root);
}
