#include "outline/core/lbx_tree.h"

#include <new>
#include <string>

namespace zk::lbx {

bool LbxOutlineRedraw = true;

LbxNode *LbxNewRoot(void *window) noexcept {
    LbxNode *root = nullptr;
    LbxItem *item = nullptr;
    try {
        root = new LbxNode();
        item = new LbxItem();
    } catch (...) {
        delete root;
        return nullptr;
    }
    root->item = item;
    item->node = root;
    root->level = -1;
    root->window = window;
    return root;
}

namespace {

constexpr uint32_t kFirstBits = 0x00090000u; // LeftLine | HasNext
constexpr uint32_t kPrevBits = 0x00060000u;  // PrevA | PrevB
constexpr uint32_t kLastBits = 0x00070000u;  // LeftLine | PrevA | PrevB

// Step 1 of freeing a child: what must exist before anything changes.
bool CanUnlink(const LbxNode *node) {
    const LbxNode *parent = node->parent;
    return node->item && parent && parent->item && (!node->next || node->next->item) &&
           (!node->prev || node->prev->item);
}

// Unlinks and frees a node that has no children left.
void UnlinkAndDelete(LbxNode *node) {
    LbxNode *parent = node->parent;
    LbxNode *next = node->next;
    LbxNode *prev = node->prev;
    if (parent->firstChild == node) {
        parent->firstChild = next;
    }
    if (next && !prev) {
        next->item->flags = (next->item->flags | kFirstBits) & ~kPrevBits;
        if (next == parent->lastChild) {
            next->item->flags &= ~0x000C0000u;
        }
    }
    if (prev) {
        prev->next = next;
    }
    if (next) {
        next->prev = prev;
    }
    if (parent->lastChild == node) {
        parent->lastChild = prev;
    }
    if (prev && !next) {
        prev->item->flags = (prev->item->flags | kLastBits) & ~LBX_ItemHasNext;
        if (prev == parent->firstChild) {
            prev->item->flags &= ~0x000E0000u;
        }
    }
    if (!parent->firstChild) {
        parent->item->flags &= ~(LBX_ItemHasChildren | LBX_ItemExpanded);
    }
    LbxItem *item = node->item;
    if (item && item->node == node) {
        item->node = nullptr;
    }
    delete node;
    delete item;
}

} // namespace

bool LbxFreeDescendents(LbxNode *node) noexcept {
    if (!node) {
        return false;
    }
    // Post-order without recursion: go down to a leaf, free it, go on from
    // its parent. Each node is passed a bounded number of times.
    LbxNode *cur = node;
    for (;;) {
        if (cur->firstChild) {
            cur = cur->firstChild;
            continue;
        }
        if (cur == node) {
            return true;
        }
        LbxNode *parent = cur->parent;
        if (!CanUnlink(cur)) {
            return false;
        }
        UnlinkAndDelete(cur);
        cur = parent;
    }
}

bool LbxFreeChild(LbxNode *node) noexcept {
    if (!node || !CanUnlink(node)) {
        return false;
    }
    if (!LbxFreeDescendents(node)) {
        return false;
    }
    UnlinkAndDelete(node);
    return true;
}

void LbxFreeTree(LbxNode *root) noexcept {
    if (!root) {
        return;
    }
    // Children whose records cannot be unlinked are cut loose rather than kept:
    // the whole tree goes.
    LbxNode *cur = root;
    while (cur) {
        if (cur->firstChild) {
            LbxNode *child = cur->firstChild;
            cur->firstChild = nullptr; // this node's children are being taken down now
            cur = child;
            continue;
        }
        LbxNode *up = cur == root ? nullptr : cur->parent;
        LbxNode *next = cur == root ? nullptr : cur->next;
        LbxItem *item = cur->item;
        delete cur;
        delete item;
        cur = next ? next : up;
    }
}

namespace {

bool Matches(const LbxText &candidate, std::u16string_view text, const std::u16string &upperText, int mode,
             LbxCaseRules &rules) {
    if (mode == LBX_FindWhole) {
        const std::u16string wanted(text);
        return rules.CompareNoCase(candidate.c_str(), wanted.c_str()) == 0;
    }
    if (candidate.size() < text.size()) {
        return false;
    }
    std::u16string head(candidate.view().substr(0, text.size()));
    rules.Upper(head.data(), head.size());
    return head == upperText;
}

} // namespace

LbxNode *LbxFindText(LbxNode *node, std::u16string_view text, int mode, LbxCaseRules &rules) noexcept {
    if (!node) {
        return nullptr;
    }
    try {
        std::u16string upperText(text);
        rules.Upper(upperText.data(), upperText.size());
        // Pre-order over the subtree by links: down to the first child, else
        // to the next sibling of the nearest node that has one.
        LbxNode *cur = node;
        while (cur) {
            if (cur->item && Matches(cur->item->text, text, upperText, mode, rules)) {
                return cur;
            }
            if (cur->firstChild) {
                cur = cur->firstChild;
                continue;
            }
            while (cur != node && !cur->next) {
                cur = cur->parent;
            }
            cur = cur == node ? nullptr : cur->next;
        }
    } catch (...) {
    }
    return nullptr;
}

} // namespace zk::lbx
