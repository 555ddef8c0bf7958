// Walks over a tree of menus: the highest command id in it, and whether a
// menu lies in it. The platform reads the menus; native tests give a tree
// of their own.
#pragma once

#include <cstdint>

namespace zk::menu {

class MenuTree {
public:
    virtual ~MenuTree() = default;
    // Items in a menu; -1 when it is no menu.
    virtual int32_t Count(const void *menu) const = 0;
    // The command id at a position, -1 for a popup (or no item).
    virtual int32_t ItemId(const void *menu, int32_t position) const = 0;
    // The submenu at a position, or null.
    virtual const void *SubMenu(const void *menu, int32_t position) const = 0;
};

// The greatest of `floor` and every id other than -1 under `root`, every
// submenu opened, compared as signed numbers.
int32_t HighestId(const MenuTree &tree, const void *root, int32_t floor);

// Whether `menu` is `root` or lies below it; only positions whose id is
// negative are opened.
bool TreeHolds(const MenuTree &tree, const void *root, const void *menu);

} // namespace zk::menu
