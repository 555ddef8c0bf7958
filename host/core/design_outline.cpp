#include "core/design_outline.h"

namespace zkh {

DesignOutlines::~DesignOutlines() {
    for (auto &entry : items_)
        ReleaseItem(entry.second);
}

DesignOutlines::Handle DesignOutlines::NextHandle() {
    if (next_ == 0xFFFFFFFFu)
        return 0;
    return next_++;
}

void DesignOutlines::Release(uint32_t &hostString) {
    if (hostString && release_)
        release_(hostString);
    hostString = 0;
}

void DesignOutlines::ReleaseItem(Item &item) {
    for (auto &entry : item.attributes)
        Release(entry.second.hostString);
    for (auto &entry : item.properties)
        Release(entry.second.hostString);
}

DesignOutlines::Handle DesignOutlines::NewOutline() {
    const Handle handle = NextHandle();
    if (handle)
        outlines_.emplace(handle, Outline{});
    return handle;
}

bool DesignOutlines::FreeOutline(Handle outline) {
    const auto found = outlines_.find(outline);
    if (found == outlines_.end())
        return false;
    // Depth first over the tree, each item once.
    std::vector<Handle> pending;
    for (Handle root = found->second.firstRoot; root;) {
        pending.push_back(root);
        root = items_.at(root).nextSibling;
    }
    while (!pending.empty()) {
        const Handle handle = pending.back();
        pending.pop_back();
        Item &item = items_.at(handle);
        for (Handle child = item.firstChild; child; child = items_.at(child).nextSibling)
            pending.push_back(child);
        if (item.window)
            windows_.erase(item.window);
        ReleaseItem(item);
        items_.erase(handle);
    }
    outlines_.erase(found);
    return true;
}

DesignOutlines::Handle DesignOutlines::AddItem(Handle outline, Handle parent, int32_t type) {
    const auto owner = outlines_.find(outline);
    if (owner == outlines_.end() || (parent && !Find(outline, parent)))
        return 0;
    const Handle handle = NextHandle();
    if (!handle)
        return 0;
    Item item;
    item.outline = outline;
    item.parent = parent;
    item.type = type;
    items_.emplace(handle, std::move(item));
    Handle &first = parent ? items_.at(parent).firstChild : owner->second.firstRoot;
    Handle &last = parent ? items_.at(parent).lastChild : owner->second.lastRoot;
    if (last)
        items_.at(last).nextSibling = handle;
    else
        first = handle;
    last = handle;
    return handle;
}

bool DesignOutlines::BindWindow(Handle outline, Handle item, WindowId window) {
    Item *target = Find(outline, item);
    if (!target)
        return false;
    if (target->window) {
        windows_.erase(target->window);
        target->window = 0;
    }
    if (!window)
        return true;
    const auto before = windows_.find(window);
    if (before != windows_.end()) {
        items_.at(before->second).window = 0;
        windows_.erase(before);
    }
    windows_.emplace(window, item);
    target->window = window;
    return true;
}

DesignOutlines::Item *DesignOutlines::Find(Handle outline, Handle item) {
    if (!outline || !item)
        return nullptr;
    const auto found = items_.find(item);
    return found != items_.end() && found->second.outline == outline ? &found->second : nullptr;
}

std::pair<DesignOutlines::Handle, DesignOutlines::Handle> DesignOutlines::WindowItem(WindowId window) const {
    const auto found = window ? windows_.find(window) : windows_.end();
    if (found == windows_.end())
        return {0, 0};
    return {items_.at(found->second).outline, found->second};
}

DesignOutlines::Handle DesignOutlines::FirstChild(Handle outline, Handle item) {
    if (!item) {
        const auto found = outlines_.find(outline);
        return found == outlines_.end() ? 0 : found->second.firstRoot;
    }
    const Item *parent = Find(outline, item);
    return parent ? parent->firstChild : 0;
}

DesignOutlines::Attribute *DesignOutlines::FindAttribute(Handle outline, Handle item, int32_t attribute,
                                                         int32_t index) {
    Item *owner = Find(outline, item);
    if (!owner)
        return nullptr;
    const auto found = owner->attributes.find({attribute, index});
    return found == owner->attributes.end() ? nullptr : &found->second;
}

const DesignOutlines::Attribute *DesignOutlines::GetAttribute(Handle outline, Handle item, int32_t attribute,
                                                              int32_t index) {
    return FindAttribute(outline, item, attribute, index);
}

bool DesignOutlines::SetAttribute(Handle outline, Handle item, int32_t attribute, int32_t index, std::u16string text) {
    Item *owner = Find(outline, item);
    if (!owner)
        return false;
    Attribute &value = owner->attributes[{attribute, index}];
    Release(value.hostString);
    value.text = std::move(text);
    return true;
}

bool DesignOutlines::DeleteAttribute(Handle outline, Handle item, int32_t attribute) {
    Item *owner = Find(outline, item);
    if (!owner)
        return false;
    auto it = owner->attributes.lower_bound({attribute, INT32_MIN});
    while (it != owner->attributes.end() && it->first.first == attribute) {
        Release(it->second.hostString);
        it = owner->attributes.erase(it);
    }
    return true;
}

DesignOutlines::Property *DesignOutlines::FindProperty(Handle outline, Handle item, const std::u16string &name) {
    Item *owner = Find(outline, item);
    if (!owner)
        return nullptr;
    const auto found = owner->properties.find(name);
    return found == owner->properties.end() ? nullptr : &found->second;
}

bool DesignOutlines::SetProperty(Handle outline, Handle item, const std::u16string &name, std::vector<uint8_t> bytes) {
    Item *owner = Find(outline, item);
    if (!owner)
        return false;
    Property &value = owner->properties[name];
    Release(value.hostString);
    value.bytes = std::move(bytes);
    return true;
}

} // namespace zkh
