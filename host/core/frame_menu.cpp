#include "core/frame_menu.h"

#include <algorithm>

namespace zkh {
namespace {

// Popups nest only so deep in any real menu; a tree that loops on itself
// stops here instead of recursing for ever.
constexpr int kMaxDepth = 32;

FrameItem ItemFrom(uint64_t owner, const PlatformItem &p) {
    FrameItem item;
    item.owner = owner;
    item.id = p.id;
    item.submenu = p.submenu;
    item.text = p.text;
    item.checked = (p.state & kMenuChecked) != 0;
    item.enabled = (p.state & (kMenuGrayed | kMenuDisabled)) == 0;
    item.separator = (p.state & kMenuSeparator) != 0;
    return item;
}

// Where the platform holds a command id under `menu`: its menu and position.
bool Locate(const MenuSource &source, uint64_t menu, int32_t id, uint64_t &where, int &position, int depth) {
    if (depth > kMaxDepth)
        return false;
    const int count = source.Count(menu);
    PlatformItem item;
    for (int i = 0; i < count; ++i) {
        if (!source.Read(menu, i, item, false))
            continue;
        if (item.submenu == 0 && item.id == id) {
            where = menu;
            position = i;
            return true;
        }
        if (item.submenu && Locate(source, item.submenu, id, where, position, depth + 1))
            return true;
    }
    return false;
}

template <class Match>
FrameItem *Search(std::vector<FrameItem> &list, const Match &match) {
    for (FrameItem &item : list) {
        if (match(item))
            return &item;
        if (FrameItem *found = Search(item.children, match))
            return found;
    }
    return nullptr;
}

} // namespace

void FrameMenu::ReadInto(const MenuSource &source, uint64_t menu, std::vector<FrameItem> &list, int depth) {
    list.clear();
    if (depth > kMaxDepth)
        return;
    const int count = source.Count(menu);
    PlatformItem p;
    for (int i = 0; i < count; ++i) {
        if (!source.Read(menu, i, p))
            continue;
        list.push_back(ItemFrom(menu, p));
        if (p.submenu)
            ReadInto(source, p.submenu, list.back().children, depth + 1);
    }
}

void FrameMenu::Attach(const MenuSource &source, uint64_t root) {
    root_ = root;
    ReadInto(source, root, top_, 0);
}

std::vector<FrameItem> *FrameMenu::ListOf(uint64_t menu) {
    if (menu == root_)
        return &top_;
    FrameItem *popup = Search(top_, [menu](const FrameItem &i) { return i.submenu == menu; });
    return popup ? &popup->children : nullptr;
}

bool FrameMenu::Insert(const MenuSource &source, int32_t id, uint32_t flags) {
    uint64_t where = 0;
    int position = 0;
    if (!root_ || !Locate(source, root_, id, where, position, 0))
        return false;
    std::vector<FrameItem> *list = ListOf(where);
    PlatformItem p;
    if (!list || !source.Read(where, position, p))
        return false;
    p.state |= flags & (kMenuChecked | kMenuGrayed | kMenuDisabled);
    FrameItem item = ItemFrom(where, p);
    auto same = std::find_if(list->begin(), list->end(), [id](const FrameItem &i) { return !i.submenu && i.id == id; });
    if (same != list->end()) {
        item.picture = same->picture;
        *same = std::move(item);
        return true;
    }
    const size_t at = std::min(static_cast<size_t>(position), list->size());
    list->insert(list->begin() + static_cast<std::ptrdiff_t>(at), std::move(item));
    return true;
}

FrameItem *FrameMenu::FindId(int32_t id) {
    return Search(top_, [id](const FrameItem &i) { return !i.submenu && !i.separator && i.id == id; });
}

FrameItem *FrameMenu::FindKey(int64_t key) {
    FrameItem *popup =
        Search(top_, [key](const FrameItem &i) { return i.submenu && i.submenu == static_cast<uint64_t>(key); });
    return popup ? popup : FindId(static_cast<int32_t>(key));
}

FrameItem *FrameMenu::FindAt(uint64_t menu, int32_t position) {
    std::vector<FrameItem> *list = ListOf(menu);
    if (!list || position < 0 || static_cast<size_t>(position) >= list->size())
        return nullptr;
    return &(*list)[static_cast<size_t>(position)];
}

} // namespace zkh
