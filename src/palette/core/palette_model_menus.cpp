// Menu entries: the application's in the block, the internal one (the
// other-colour entry) after them. Every change lays the zones out again,
// since the lines below move with it.
#include "palette/core/palette_model.h"

#include <algorithm>

namespace zk::pal {

int32_t PaletteModel::AddMenu(std::unique_ptr<SPaletteMenu> entry) {
    if (!entry)
        return -1;
    block_.menus.Add(std::move(entry));
    LayoutChanged(1);
    return MenuCount() - 1;
}

void PaletteModel::InsertMenu(int32_t index, std::unique_ptr<SPaletteMenu> entry) {
    if (index < 0)
        return;
    auto &items = block_.menus.items;
    items.insert(items.begin() + std::min(index, MenuCount()), std::move(entry));
    LayoutChanged(1);
}

std::unique_ptr<SPaletteMenu> PaletteModel::SetMenu(int32_t index, std::unique_ptr<SPaletteMenu> entry) {
    if (index < 0)
        return nullptr;
    std::unique_ptr<SPaletteMenu> old =
        block_.menus.StoreAt(static_cast<size_t>(std::min(index, MenuCount())), std::move(entry));
    LayoutChanged(1);
    return old;
}

int PaletteModel::RemoveMenu(int32_t index) {
    int removed = 0;
    if (index >= 0 && index < MenuCount()) {
        block_.menus.items.erase(block_.menus.items.begin() + index);
        removed = 1;
    }
    LayoutChanged(1);
    return removed;
}

void PaletteModel::ClearMenus() {
    auto &items = block_.menus.items;
    while (!items.empty())
        items.pop_back();
    LayoutChanged(1);
}

const SPaletteMenu *PaletteModel::GetMenu(int32_t index) const {
    return index < 0 ? nullptr : block_.menus.at(static_cast<size_t>(index));
}

const SPaletteMenu *PaletteModel::GetMenuEntry(int32_t index) const {
    if (index < 0)
        return nullptr;
    if (index < MenuCount())
        return block_.menus.at(static_cast<size_t>(index));
    return internal_.at(static_cast<size_t>(index - MenuCount()));
}

} // namespace zk::pal
