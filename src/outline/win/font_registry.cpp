// The font registry of a list, in its property "ZK:FontList".
#include <new>

#include "frame/win/guard.h"
#include "frame/win/propcache.h"
#include "outline/win/pic.h"

namespace zk::lbx {

namespace {

constexpr const wchar_t *kFontListProp = L"ZK:FontList";

CFontArray *Store(HWND list, CFontArray *registry) noexcept {
    if (!zk::PropSet(list, kFontListProp, registry)) {
        delete registry;
        return nullptr;
    }
    return registry;
}

} // namespace

FONT::~FONT() {
    if (font)
        DeleteObject(font);
}

CFontArray::~CFontArray() {
    for (FONT *f : items_)
        delete f;
}

HFONT CFontArray::At(int index) const {
    if (index < 0 || index >= Count())
        throw InvalidArgException();
    const FONT *f = items_[static_cast<size_t>(index)];
    return f ? f->font : nullptr;
}

void CFontArray::SetAt(int index, HFONT font) {
    if (index < 0 || index >= Count())
        throw InvalidArgException();
    FONT *&slot = items_[static_cast<size_t>(index)];
    if (slot && slot->font == font)
        return;
    FONT *made = font ? new FONT(font) : nullptr;
    delete slot;
    slot = made;
}

int CFontArray::Find(HFONT font) const noexcept {
    for (size_t i = 0; i < items_.size(); ++i) {
        if (items_[i] && items_[i]->font == font)
            return static_cast<int>(i);
    }
    return -1;
}

void CFontArray::Append(HFONT font) {
    items_.reserve(items_.size() + 1);
    items_.push_back(new FONT(font));
}

void CFontArray::FreeAllExcept(HFONT keep) noexcept {
    for (FONT *f : items_) {
        if (f && f->font == keep)
            f->font = nullptr; // the control's own font is not the registry's to delete
        delete f;
    }
    items_.clear();
}

CFontArray *LbxFontGet(HWND list) noexcept {
    return list && IsWindow(list) ? static_cast<CFontArray *>(zk::PropGet(list, kFontListProp)) : nullptr;
}

CFontArray *LbxFontAdd(HWND list, HFONT font) noexcept {
    if (!list || !IsWindow(list))
        return nullptr;
    CFontArray *registry = LbxFontGet(list);
    if (!registry) {
        registry = Store(list, new (std::nothrow) CFontArray());
        if (!registry)
            return nullptr;
    }
    if (font && registry->Find(font) < 0) {
        try {
            registry->Append(font);
        } catch (...) {
            return nullptr;
        }
    }
    return registry;
}

CFontArray *LbxFontNew(HWND list, int size) noexcept {
    if (!list || !IsWindow(list) || size < 0)
        return nullptr;
    LbxFontFreeAll(list);
    try {
        return Store(list, new CFontArray(static_cast<size_t>(size)));
    } catch (...) {
        return nullptr;
    }
}

void LbxFontFreeAll(HWND list) noexcept {
    CFontArray *registry = LbxFontGet(list);
    if (!registry)
        return;
    registry->FreeAllExcept(reinterpret_cast<HFONT>(SendMessageW(list, WM_GETFONT, 0, 0)));
    delete registry;
    zk::PropRemove(list, kFontListProp);
}

} // namespace zk::lbx
