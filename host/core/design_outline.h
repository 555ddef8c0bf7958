// The reference host's designer outline: outlines of items in a tree, each
// item with a type, a flag, attributes (texts by attribute number and
// index), named properties (bytes) and at most one window bound to it.
// Portable: windows are plain numbers here, host strings too.
//
// A value handed out to the library as a host string keeps that string's
// handle beside it; when the value changes or goes, the handle is given to
// the release hook, so the outline holds one string per value at most.
#pragma once

#include <climits>
#include <cstdint>
#include <map>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace zkh {

class DesignOutlines {
public:
    using Handle = uint32_t; // outlines and items share one count, never reused
    using WindowId = uintptr_t;

    struct Attribute {
        std::u16string text;
        uint32_t hostString = 0;
    };
    struct Property {
        std::vector<uint8_t> bytes;
        uint32_t hostString = 0;
    };
    struct Item {
        Handle outline = 0;
        Handle parent = 0;
        Handle firstChild = 0, lastChild = 0, nextSibling = 0;
        int32_t type = 0;
        int32_t flag = 0;
        int32_t updates = 0;
        int32_t notifications = 0;
        int32_t lastNotifyFlag = 0;
        WindowId window = 0;
        std::map<std::pair<int32_t, int32_t>, Attribute> attributes; // (attribute, index)
        std::map<std::u16string, Property> properties;
    };

    explicit DesignOutlines(void (*releaseHostString)(uint32_t) = nullptr) : release_(releaseHostString) {}
    ~DesignOutlines();
    DesignOutlines(const DesignOutlines &) = delete;
    DesignOutlines &operator=(const DesignOutlines &) = delete;

    // ---- building (the host's own designer; tests) ----
    Handle NewOutline(); // 0 when handles are used up
    bool FreeOutline(Handle outline);
    // A new last child of parent (0: a top-level item); 0 on failure.
    Handle AddItem(Handle outline, Handle parent, int32_t type);
    // Binds window to the item, taking it from any other item; 0 unbinds
    // the item's window.
    bool BindWindow(Handle outline, Handle item, WindowId window);

    // ---- the operations the library calls ----
    // The item, when it is one of outline's.
    Item *Find(Handle outline, Handle item);
    // Outline and item of a window, or zeros.
    std::pair<Handle, Handle> WindowItem(WindowId window) const;
    // First child of item, or of the outline's top level for item 0.
    Handle FirstChild(Handle outline, Handle item);
    const Attribute *GetAttribute(Handle outline, Handle item, int32_t attribute, int32_t index);
    Attribute *FindAttribute(Handle outline, Handle item, int32_t attribute, int32_t index);
    bool SetAttribute(Handle outline, Handle item, int32_t attribute, int32_t index, std::u16string text);
    // Every index of the attribute; true when the item exists.
    bool DeleteAttribute(Handle outline, Handle item, int32_t attribute);
    Property *FindProperty(Handle outline, Handle item, const std::u16string &name);
    bool SetProperty(Handle outline, Handle item, const std::u16string &name, std::vector<uint8_t> bytes);

    size_t LiveItems() const { return items_.size(); }

private:
    struct Outline {
        Handle firstRoot = 0, lastRoot = 0;
    };
    Handle NextHandle();
    void Release(uint32_t &hostString);
    void ReleaseItem(Item &item);

    void (*release_)(uint32_t);
    Handle next_ = 1;
    std::unordered_map<Handle, Outline> outlines_;
    std::unordered_map<Handle, Item> items_;
    std::unordered_map<WindowId, Handle> windows_; // window to item
};

} // namespace zkh
