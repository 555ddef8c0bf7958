// A table of 32-bit handles to host values. A handle carries the slot index
// (plus one, so that no handle is 0) in its low bits and the slot's
// generation above them. A freed slot goes to the back of a queue, and its
// generation moves on, so a stale handle is recognised as dead for a long
// time after its value went away, even when the slot is taken again.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace hostwin {

template <class T>
class HandleTable {
public:
    static constexpr unsigned kIndexBits = 22;
    static constexpr uint32_t kIndexMask = (1u << kIndexBits) - 1;
    static constexpr uint32_t kGenerationMask = (1u << (32 - kIndexBits)) - 1;

    // A new handle for value, or 0 when the table is full. Can throw only
    // std::bad_alloc, with the table unchanged.
    uint32_t add(T value) {
        uint32_t index;
        if (freeHead_ != kNone) {
            index = freeHead_;
            Slot &slot = slots_[index];
            freeHead_ = slot.nextFree;
            if (freeHead_ == kNone)
                freeTail_ = kNone;
            slot.value = std::move(value);
            slot.used = true;
        } else {
            if (slots_.size() >= kIndexMask)
                return 0;
            slots_.push_back(Slot{std::move(value), 1, kNone, true});
            index = static_cast<uint32_t>(slots_.size() - 1);
        }
        ++live_;
        return HandleOf(index);
    }

    // The live value behind handle, or null for 0, a stale or a forged handle.
    T *find(uint32_t handle) {
        uint32_t index = (handle & kIndexMask) - 1;
        if ((handle & kIndexMask) == 0 || index >= slots_.size())
            return nullptr;
        Slot &slot = slots_[index];
        if (!slot.used || slot.generation != (handle >> kIndexBits))
            return nullptr;
        return &slot.value;
    }

    // Takes the value out and retires the handle; false when it was not live.
    bool remove(uint32_t handle, T &out) {
        T *value = find(handle);
        if (!value)
            return false;
        uint32_t index = (handle & kIndexMask) - 1;
        Slot &slot = slots_[index];
        out = std::move(slot.value);
        slot.value = T();
        slot.used = false;
        slot.generation = (slot.generation % kGenerationMask) + 1; // 1..mask, never 0
        slot.nextFree = kNone;
        if (freeTail_ == kNone)
            freeHead_ = index;
        else
            slots_[freeTail_].nextFree = index;
        freeTail_ = index;
        --live_;
        return true;
    }

    size_t live() const { return live_; }

private:
    static constexpr uint32_t kNone = 0xFFFFFFFFu;
    struct Slot {
        T value;
        uint32_t generation;
        uint32_t nextFree;
        bool used;
    };

    uint32_t HandleOf(uint32_t index) const { return (slots_[index].generation << kIndexBits) | (index + 1); }

    std::vector<Slot> slots_;
    uint32_t freeHead_ = kNone;
    uint32_t freeTail_ = kNone;
    size_t live_ = 0;
};

} // namespace hostwin
