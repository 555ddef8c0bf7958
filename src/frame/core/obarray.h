// An array of objects that owns its elements, serialised as a count and one
// tagged object per element (null elements included).
#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "frame/core/archive.h"

namespace zk {

template <class T>
class ObArray {
public:
    std::vector<std::unique_ptr<T>> items;

    size_t size() const { return items.size(); }
    T *at(size_t index) const { return index < items.size() ? items[index].get() : nullptr; }
    void Add(std::unique_ptr<T> item) { items.push_back(std::move(item)); }
    // Stores item at index, or appends it when index is the size; gives
    // back the element it replaced (null when appended).
    std::unique_ptr<T> StoreAt(size_t index, std::unique_ptr<T> item) {
        if (index < items.size())
            return std::exchange(items[index], std::move(item));
        items.push_back(std::move(item));
        return nullptr;
    }
    void RemoveAll() { items.clear(); }

    // On reading, the array is replaced only by a whole array: a read that
    // fails part way leaves the elements it had.
    void Serialize(CArchive &ar) {
        if (ar.IsStoring()) {
            ar.WriteCount(items.size());
            for (const auto &item : items)
                ar.WriteObject(item.get());
            return;
        }
        const size_t count = ar.ReadCount();
        std::vector<std::unique_ptr<T>> loaded;
        // Every element takes at least its two-byte tag: a count beyond what
        // the file holds is not believed in advance.
        loaded.reserve(count < ar.Remaining() / 2 ? count : ar.Remaining() / 2);
        for (size_t i = 0; i < count; ++i)
            loaded.push_back(ar.ReadObjectAs<T>());
        items = std::move(loaded);
    }
};

} // namespace zk
