#include "outline/core/pic_items.h"

namespace zk::lbx {

using picstream::ObjectTag;
using picstream::Reader;
using picstream::Writer;

std::vector<uint8_t> PicItemsWrite(const std::vector<PICITEM> &items) {
    Writer out;
    out.Count(static_cast<uint32_t>(items.size()));
    // The archive's map numbers the class 1 and each object after it, so
    // every object after the first names its class by index 1.
    bool first = true;
    for (const PICITEM &item : items) {
        if (first)
            out.NewClass(kPicItemSchema, kPicItemClass);
        else
            out.ClassRef(1);
        first = false;
        out.U32(static_cast<uint32_t>(item.value));
        out.U16(item.flags);
        out.String(item.title);
        out.String(item.fileName);
        out.String(item.resourceName);
    }
    return out.Take();
}

namespace {

// The archive's map holds classes and objects by index, 0 being the null
// tag; only the PICITEM class may be named, and no object twice.
bool ReadAll(Reader &in, std::vector<PICITEM> &items) {
    const uint32_t count = in.Count();
    // Each object needs at least its tag and the shortest fields: 2 + 4 + 2
    // and three one-byte lengths.
    constexpr size_t kShortestObject = 11;
    if (!in.Ok() || count > in.Remaining() / kShortestObject)
        return false;
    std::vector<bool> isClass{false};
    uint32_t picItemClass = 0;
    items.reserve(count);
    for (uint32_t i = 0; i < count; ++i) {
        const ObjectTag tag = ReadObjectTag(in);
        if (tag.kind == ObjectTag::NewClass) {
            if (tag.schema != kPicItemSchema || tag.className != kPicItemClass)
                return false;
            picItemClass = static_cast<uint32_t>(isClass.size());
            isClass.push_back(true);
        } else if (tag.kind == ObjectTag::ClassRef) {
            if (tag.index == 0 || tag.index != picItemClass)
                return false;
        } else {
            return false;
        }
        isClass.push_back(false); // the object itself takes the next index
        PICITEM item;
        item.value = static_cast<int32_t>(in.U32());
        item.flags = in.U16();
        item.title = in.String();
        item.fileName = in.String();
        item.resourceName = in.String();
        if (!in.Ok())
            return false;
        items.push_back(std::move(item));
    }
    return true;
}

} // namespace

bool PicItemsRead(const uint8_t *data, size_t size, std::vector<PICITEM> &items, picstream::Widen widen) {
    items.clear();
    Reader in(data, size, widen);
    if (ReadAll(in, items))
        return true;
    items.clear();
    return false;
}

} // namespace zk::lbx
