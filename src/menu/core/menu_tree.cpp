#include "menu/core/menu_tree.h"

namespace zk::menu {
namespace {

// Menus nest only so deep; a tree that contains itself stops here.
constexpr int kMaxDepth = 32;

int32_t Highest(const MenuTree &tree, const void *menu, int32_t best, int depth) {
    const int32_t count = tree.Count(menu);
    for (int32_t i = 0; i < count; ++i) {
        const int32_t id = tree.ItemId(menu, i);
        if (id != -1 && id > best)
            best = id;
        if (depth < kMaxDepth)
            if (const void *sub = tree.SubMenu(menu, i))
                best = Highest(tree, sub, best, depth + 1);
    }
    return best;
}

bool Holds(const MenuTree &tree, const void *menu, const void *wanted, int depth) {
    if (menu == wanted)
        return true;
    if (depth >= kMaxDepth)
        return false;
    const int32_t count = tree.Count(menu);
    for (int32_t i = 0; i < count; ++i) {
        if (tree.ItemId(menu, i) >= 0)
            continue;
        const void *sub = tree.SubMenu(menu, i);
        if (sub && Holds(tree, sub, wanted, depth + 1))
            return true;
    }
    return false;
}

} // namespace

int32_t HighestId(const MenuTree &tree, const void *root, int32_t floor) {
    return root ? Highest(tree, root, floor, 0) : floor;
}

bool TreeHolds(const MenuTree &tree, const void *root, const void *menu) {
    return root && menu && Holds(tree, root, menu, 0);
}

} // namespace zk::menu
