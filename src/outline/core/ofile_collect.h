// The walk behind a save: every node of an outline, the root first, then
// depth-first with a parent before its children. Iterative, so a deep tree
// costs no stack, and each node is passed once.
#pragma once

#include <vector>

#include "outline/core/lbx.h"
#include "outline/core/ofile_stream.h"

namespace zk::lbx::ofile {

// Calls visit(node) for the root and each node below it, in stream order.
template <class Visit>
void OutlineWalk(LbxNode *root, Visit &&visit) {
    LbxNode *node = root;
    while (node) {
        visit(node);
        if (node->firstChild) {
            node = node->firstChild;
            continue;
        }
        while (node != root && !node->next)
            node = node->parent;
        node = node == root ? nullptr : node->next;
    }
}

// One record per node in walk order; pictureIndex(PIC *) and fontIndex(void *)
// turn the item's objects into indices, -1 for none. A node without an item
// is saved with an empty one.
template <class PictureIndex, class FontIndex>
void OutlineCollect(LbxNode *root, std::vector<OBITEM> &items, PictureIndex &&pictureIndex, FontIndex &&fontIndex) {
    OutlineWalk(root, [&](LbxNode *node) {
        OBITEM record;
        record.level = node->level;
        if (const LbxItem *item = node->item) {
            record.picNormal = pictureIndex(item->picNormal);
            record.picSelected = pictureIndex(item->picSelected);
            record.font = fontIndex(item->font);
            record.color = item->color;
            record.flags = item->flags;
            record.value = item->value;
            record.text.assign(item->text.view());
        }
        items.push_back(std::move(record));
    });
}

} // namespace zk::lbx::ofile
