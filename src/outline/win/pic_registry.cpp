// The picture registry of a list, in its property "ZK:PicList".
#include <algorithm>
#include <new>

#include "frame/win/guard.h"
#include "frame/win/propcache.h"
#include "outline/win/pic.h"

namespace zk::lbx {

namespace {

constexpr const wchar_t *kPicListProp = L"ZK:PicList";

// Deletes what is still alive: a picture freed by the application behind
// the registry's back, or standing in two slots, is not deleted twice.
void DeleteLive(PIC *pic) noexcept {
    if (PicIsLive(pic))
        delete pic;
}

CPicArray *Store(HWND list, CPicArray *registry) noexcept {
    if (!zk::PropSet(list, kPicListProp, registry)) {
        delete registry;
        return nullptr;
    }
    return registry;
}

} // namespace

CPicArray::~CPicArray() {
    for (PIC *pic : items_)
        DeleteLive(pic);
}

PIC *CPicArray::At(int index) const {
    if (index < 0 || index >= Count())
        throw InvalidArgException();
    return items_[static_cast<size_t>(index)];
}

void CPicArray::SetAt(int index, PIC *pic) {
    if (index < 0 || index >= Count())
        throw InvalidArgException();
    items_[static_cast<size_t>(index)] = pic;
}

bool CPicArray::Contains(const PIC *pic) const noexcept {
    return std::find(items_.begin(), items_.end(), pic) != items_.end();
}

CPicArray *LbxPicGet(HWND list) noexcept {
    return list && IsWindow(list) ? static_cast<CPicArray *>(zk::PropGet(list, kPicListProp)) : nullptr;
}

CPicArray *LbxPicAdd(HWND list, PIC *pic) noexcept {
    if (!list || !IsWindow(list))
        return nullptr;
    CPicArray *registry = LbxPicGet(list);
    if (!registry) {
        registry = Store(list, new (std::nothrow) CPicArray());
        if (!registry)
            return nullptr;
    }
    if (pic && !registry->Contains(pic)) {
        try {
            registry->Append(pic);
        } catch (...) {
            return nullptr;
        }
    }
    return registry;
}

CPicArray *LbxPicNew(HWND list, int size) noexcept {
    if (!list || !IsWindow(list) || size < 0)
        return nullptr;
    LbxPicFreeAll(list);
    try {
        return Store(list, new CPicArray(static_cast<size_t>(size)));
    } catch (...) {
        return nullptr;
    }
}

void LbxPicFreeAll(HWND list) noexcept {
    CPicArray *registry = LbxPicGet(list);
    if (!registry)
        return;
    for (PIC *pic : registry->Items()) {
        if (PicIsLive(pic) && (pic->flags & PIC_ListOwned))
            delete pic;
    }
    registry->Clear();
    delete registry;
    zk::PropRemove(list, kPicListProp);
}

} // namespace zk::lbx
