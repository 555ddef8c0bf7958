// The host's one-dimensional dynamic arrays of the six element types, as the
// exports and the other parts of the runtime use them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>

#include "zkrecord.h"

namespace hostwin {

// Far above any array a form holds, and low enough that bounds sums never
// leave 32 bits.
inline constexpr int64_t kMaxArrayElements = int64_t(1) << 26;

class HostArrayData {
public:
    explicit HostArrayData(int32_t type) : type_(type) {}
    HostArrayData(const HostArrayData &) = delete;
    HostArrayData &operator=(const HostArrayData &) = delete;

    int32_t type() const { return type_; }
    bool HoldsStrings() const { return type_ == HOST_TYPE_STRING || type_ == HOST_TYPE_LONGSTRING; }
    bool HoldsRecords() const { return type_ == HOST_TYPE_DATETIME || type_ == HOST_TYPE_NUMBER; }

    int32_t dimensions = 1;
    int32_t count() const { return static_cast<int32_t>(HoldsRecords() ? records_.size() : words_.size()); }
    int32_t low() const { return low_; }
    int32_t high() const { return low_ + count() - 1; }
    bool contains(int32_t index) const { return index >= low_ && int64_t(index) - low_ < count(); }

    // New bounds, keeping elements by index; strings that fall out lose the
    // array's reference. high = low - 1 empties. False (nothing changed) for
    // bounds out of order, too many elements, or no memory.
    bool resize(int64_t low, int64_t high);
    // Extends the bounds so that they hold index.
    bool reach(int32_t index);

    // Element access for an index inside the bounds.
    uint32_t &word(int32_t index) { return words_[size_t(int64_t(index) - low_)]; }
    HostNumber &record(int32_t index) { return records_[size_t(int64_t(index) - low_)]; }

    // Drops every string reference; the array is empty afterwards.
    void clear();

private:
    void DropFront(size_t n);
    void DropBack(size_t n);

    int32_t type_;
    int32_t low_ = 0;
    std::deque<uint32_t> words_;     // flags, handles, string handles
    std::deque<HostNumber> records_; // numbers and date-times
};

HostArray ArrayCreate(int32_t type); // 0 for an unknown type or no memory
HostArrayData *ArrayFind(HostArray array);
bool ArrayDestroy(HostArray array);
size_t ArrayLiveCount();

} // namespace hostwin
