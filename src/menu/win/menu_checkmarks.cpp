#include "menu/win/menu_checkmarks.h"

#include <algorithm>
#include <vector>

namespace zk::menu {
namespace {

struct Kept {
    HWND window;
    HMENU menu;
    int32_t id;
    HBITMAP bitmap;
};

std::vector<Kept> &Table() {
    static std::vector<Kept> table;
    return table;
}

} // namespace

bool KeepCheckBitmap(HWND window, HMENU menu, int32_t id, HBITMAP bitmap) {
    auto &table = Table();
    for (Kept &k : table) {
        if (k.window == window && k.menu == menu && k.id == id) {
            if (k.bitmap != bitmap)
                DeleteObject(k.bitmap);
            k.bitmap = bitmap;
            return true;
        }
    }
    try {
        table.push_back({window, menu, id, bitmap});
        return true;
    } catch (...) {
        DeleteObject(bitmap);
        return false;
    }
}

void DropCheckBitmap(HWND window, HMENU menu, int32_t id) {
    auto &table = Table();
    auto it = std::find_if(table.begin(), table.end(),
                           [&](const Kept &k) { return k.window == window && k.menu == menu && k.id == id; });
    if (it == table.end())
        return;
    DeleteObject(it->bitmap);
    table.erase(it);
}

void ForgetCheckBitmaps(HWND window) {
    auto &table = Table();
    for (const Kept &k : table)
        if (k.window == window)
            DeleteObject(k.bitmap);
    table.erase(std::remove_if(table.begin(), table.end(), [&](const Kept &k) { return k.window == window; }),
                table.end());
}

int KeptCheckBitmaps() { return static_cast<int>(Table().size()); }

} // namespace zk::menu
