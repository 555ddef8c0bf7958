#include "tree_consistency.h"

#include <iterator>
#include <sstream>
#include <unordered_map>
#include <vector>

#include "zklib.h"

namespace treetest {

namespace {

using outlinetest::RawData;

std::string Name(const LbxNode *node) {
    std::string out;
    for (const char16_t *c = node->item->text.c_str(); *c; ++c) {
        out += *c < 128 ? static_cast<char>(*c) : '?';
    }
    return "'" + out + "'";
}

uint32_t Pattern(const LbxNode *n) {
    uint32_t bits = !n->prev && !n->next ? 0x00010000u : !n->prev ? 0x00090000u : !n->next ? 0x00070000u : 0x000F0000u;
    return n->level == 0 ? bits & ~LBX_ItemLeftLine : bits;
}

std::string CheckConnectors(const LbxNode *n, const Tolerance &tol) {
    if (!tol.connectors || !n->parent || tol.connectorsFree.count(n))
        return {};
    const uint32_t want = Pattern(n);
    const uint32_t have = n->item->flags & LBX_ItemConnectors;
    uint32_t mask = LBX_ItemConnectors;
    if (tol.leftLineByOldLevel.count(n))
        mask &= ~LBX_ItemLeftLine;
    // A child loaded first keeps the bits of a first child while it is alone.
    const bool loadedOnly =
        !n->prev && !n->next && ((have | LBX_ItemHasNext) & mask) == ((want | LBX_ItemHasNext) & mask);
    if ((have & mask) != (want & mask) && !loadedOnly) {
        std::ostringstream out;
        out << Name(n) << " connectors " << std::hex << have << " want " << want;
        return out.str();
    }
    return {};
}

std::string CheckNode(const LbxNode *n, const Tolerance &tol) {
    std::ostringstream out;
    const LbxItem *item = n->item;
    if (!item || item->node != n)
        return "node without its item";
    if (n->parent && n->level != n->parent->level + 1)
        out << Name(n) << " level " << n->level;
    out << CheckConnectors(n, tol);
    if (((item->flags & LBX_ItemHasChildren) != 0) != (n->firstChild != nullptr) &&
        !(n->firstChild == nullptr && tol.childBitFree.count(n)))
        out << Name(n) << " HasChildren " << std::hex << item->flags;
    if (n->firstChild && n->firstChild->prev)
        out << Name(n) << " first child has prev";
    if (n->lastChild && n->lastChild->next)
        out << Name(n) << " last child has next";
    if (!n->firstChild != !n->lastChild)
        out << Name(n) << " half a child list";
    for (const LbxNode *c = n->firstChild; c; c = c->next) {
        if (c->parent != n)
            out << Name(c) << " wrong parent";
        if (c->next && c->next->prev != c)
            out << Name(c) << " next.prev";
        if (!c->next && c != n->lastChild)
            out << Name(c) << " is last but not lastChild";
    }
    return out.str();
}

bool UnderPending(const LbxNode *n, const Tolerance &tol) {
    for (; n; n = n->parent) {
        if (tol.pending.count(n))
            return true;
    }
    return false;
}

LbxNode *RootOf(HWND list) { return reinterpret_cast<LbxNode *>(ZelListGetRoot(list)); }

} // namespace

std::string CheckTree(HWND list, const Tolerance &tol) {
    LbxNode *root = RootOf(list);
    if (!root)
        return "no root";
    if (std::string fault = CheckNode(root, tol); !fault.empty())
        return "root: " + fault;
    for (const LbxNode *n : Walk(root)) {
        if (std::string fault = CheckNode(n, tol); !fault.empty())
            return fault;
    }
    return {};
}

std::string CheckRows(HWND list, const Tolerance &tol) {
    LbxNode *root = RootOf(list);
    if (!root)
        return "no root";
    const std::vector<LbxNode *> order = Walk(root);
    std::unordered_map<const LbxItem *, std::size_t> position;
    for (std::size_t i = 0; i < order.size(); ++i)
        position[order[i]->item] = i;
    std::unordered_map<const LbxNode *, int> rowOf;
    const int count = static_cast<int>(SendMessageW(list, LB_GETCOUNT, 0, 0));
    std::size_t lastPos = 0;
    for (int row = 0; row < count; ++row) {
        auto found = position.find(reinterpret_cast<const LbxItem *>(RawData(list, row)));
        if (found == position.end())
            return "row " + std::to_string(row) + " holds no node of the tree";
        LbxNode *node = order[found->second];
        if (row > 0 && found->second <= lastPos)
            return "row " + std::to_string(row) + " " + Name(node) + " out of order";
        lastPos = found->second;
        rowOf[node] = row;
        if (node->item->flags & LBX_ItemHidden)
            return Name(node) + " has a row but is hidden";
        if (node->window != list)
            return Name(node) + " belongs to another window";
    }
    for (const LbxNode *n : order) {
        const LbxNode *p = n->parent;
        const bool parentShows = p == root || (rowOf.count(p) && (p->item->flags & LBX_ItemExpanded));
        const bool visible = !(n->item->flags & LBX_ItemHidden) && parentShows;
        const bool shown = rowOf.count(n) != 0;
        if (shown && !parentShows)
            return Name(n) + " has a row under a closed or missing parent";
        if (visible && !shown && !UnderPending(n, tol))
            return Name(n) + " should have a row";
    }
    return {};
}

std::string CheckOutline(HWND list, const Tolerance &tol) {
    std::string fault = CheckTree(list, tol);
    return fault.empty() ? CheckRows(list, tol) : fault;
}

std::string DumpOutline(HWND list) {
    LbxNode *root = RootOf(list);
    std::ostringstream out;
    const int count = static_cast<int>(SendMessageW(list, LB_GETCOUNT, 0, 0));
    out << "rows:";
    for (int row = 0; row < count; ++row) {
        auto *item = reinterpret_cast<LbxItem *>(RawData(list, row));
        out << " " << (item && item->node ? Name(item->node) : "?");
    }
    out << "\ntree:\n";
    for (const LbxNode *n : root ? Walk(root) : std::vector<LbxNode *>{}) {
        out << std::string(static_cast<size_t>(2 * n->level), ' ') << Name(n) << " " << std::hex << n->item->flags
            << std::dec << " row " << ZelListGetItemIndex(reinterpret_cast<ZelItemHandle>(n)) << "\n";
    }
    return out.str();
}

void SettlePending(Tolerance &tol) {
    for (auto it = tol.pending.begin(); it != tol.pending.end();) {
        const LbxNode *n = *it;
        const bool live = ZelListGetLevel(reinterpret_cast<ZelItemHandle>(n)) != -1;
        const bool hasRow = live && ZelListGetItemIndex(reinterpret_cast<ZelItemHandle>(n)) >= 0;
        it = !live || hasRow ? tol.pending.erase(it) : std::next(it);
    }
}

} // namespace treetest
