// The menu structure a host frame keeps of its own over the platform's
// menu: a tree of items (id, text, check, enable, picture) that the frame
// shows on its bar. It is read from the platform menu when the frame
// attaches a menu and changed afterwards only through the frame's own
// operations, so a change made to the platform menu alone does not reach it.
// Portable: menus and pictures are plain numbers here.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace zkh {

// Menu flags the structure reads (the platform's values).
inline constexpr uint32_t kMenuGrayed = 0x0001;
inline constexpr uint32_t kMenuDisabled = 0x0002;
inline constexpr uint32_t kMenuChecked = 0x0008;
inline constexpr uint32_t kMenuSeparator = 0x0800;

// One item of a platform menu as the frame reads it.
struct PlatformItem {
    int32_t id = 0;       // -1 for a popup
    uint64_t submenu = 0; // the popup's menu, 0 for a command
    uint32_t state = 0;   // flags above
    std::u16string text;
};

// What the structure needs of the platform's menus.
class MenuSource {
public:
    virtual ~MenuSource() = default;
    // Items in a menu; -1 when it is no menu.
    virtual int Count(uint64_t menu) const = 0;
    // The item at a position; its text only when `withText`.
    virtual bool Read(uint64_t menu, int position, PlatformItem &item, bool withText = true) const = 0;
};

enum class PictureKind : uint8_t { None = 0, Bitmap = 1, Icon = 2 };

struct FramePicture {
    PictureKind kind = PictureKind::None;
    uint64_t image = 0; // bitmap or icon
    uint64_t mask = 0;
    int32_t width = 0;
    int32_t height = 0;
};

struct FrameItem {
    uint64_t owner = 0; // the platform menu this item was read from
    int32_t id = 0;
    uint64_t submenu = 0;
    std::u16string text;
    bool checked = false;
    bool enabled = true;
    bool separator = false;
    FramePicture picture;
    std::vector<FrameItem> children;
};

class FrameMenu {
public:
    uint64_t Root() const { return root_; }
    const std::vector<FrameItem> &Top() const { return top_; }

    // Reads the whole tree under `root` again (0 empties the structure).
    void Attach(const MenuSource &source, uint64_t root);
    // Mirrors the platform's item `id`, wherever it lies under the root, at
    // its place; an item the structure has already is read again. False
    // when the platform tree has no such item.
    bool Insert(const MenuSource &source, int32_t id, uint32_t flags);

    // The command item of an id (popups have none), or null.
    FrameItem *FindId(int32_t id);
    // A popup by its submenu, else a command by its id.
    FrameItem *FindKey(int64_t key);
    // The item at a position of the list that mirrors a platform menu.
    FrameItem *FindAt(uint64_t menu, int32_t position);

private:
    void ReadInto(const MenuSource &source, uint64_t menu, std::vector<FrameItem> &list, int depth);
    std::vector<FrameItem> *ListOf(uint64_t menu);

    uint64_t root_ = 0;
    std::vector<FrameItem> top_;
};

} // namespace zkh
