// Storage of host arrays: bounds, growth, and the string references that
// the elements of string arrays hold.
#include "arraystore.h"

#include <memory>
#include <new>

#include "handles.h"
#include "strstore.h"

namespace hostwin {
namespace {

HandleTable<std::unique_ptr<HostArrayData>> &Table() {
    static HandleTable<std::unique_ptr<HostArrayData>> table;
    return table;
}

} // namespace

void HostArrayData::DropFront(size_t n) {
    if (HoldsRecords()) {
        records_.erase(records_.begin(), records_.begin() + n);
        return;
    }
    if (HoldsStrings())
        for (size_t i = 0; i < n; ++i)
            StrRelease(words_[i]);
    words_.erase(words_.begin(), words_.begin() + n);
}

void HostArrayData::DropBack(size_t n) {
    if (HoldsRecords()) {
        records_.erase(records_.end() - n, records_.end());
        return;
    }
    if (HoldsStrings())
        for (size_t i = words_.size() - n; i < words_.size(); ++i)
            StrRelease(words_[i]);
    words_.erase(words_.end() - n, words_.end());
}

void HostArrayData::clear() {
    DropBack(size_t(count()));
    low_ = 0;
}

bool HostArrayData::resize(int64_t low, int64_t high) {
    // Any high bound below the low one empties the array: the library's
    // array functions empty with (low, -1) whatever the low bound is.
    if (high < low)
        high = low - 1;
    int64_t wanted = high - low + 1;
    if (low < INT32_MIN || high > INT32_MAX || wanted > kMaxArrayElements)
        return false;
    const HostNumber nullRecord{};
    int64_t oldLow = low_, oldHigh = int64_t(low_) + count() - 1;
    bool overlap = count() > 0 && wanted > 0 && low <= oldHigh && high >= oldLow;
    if (!overlap) {
        // Make room first, so that a failure leaves the old elements in place.
        if (HoldsRecords()) {
            std::deque<HostNumber> fresh(size_t(wanted), nullRecord);
            records_.swap(fresh);
        } else {
            std::deque<uint32_t> fresh(size_t(wanted), 0u);
            words_.swap(fresh);
            if (HoldsStrings())
                for (uint32_t handle : fresh)
                    StrRelease(handle);
        }
        low_ = int32_t(low);
        return true;
    }
    // Grow before shrinking: a failed growth throws with nothing dropped yet.
    if (low < oldLow) {
        size_t n = size_t(oldLow - low);
        if (HoldsRecords())
            records_.insert(records_.begin(), n, nullRecord);
        else
            words_.insert(words_.begin(), n, 0u);
    }
    if (high > oldHigh) {
        size_t n = size_t(high - oldHigh);
        if (HoldsRecords())
            records_.insert(records_.end(), n, nullRecord);
        else
            words_.insert(words_.end(), n, 0u);
    }
    if (low > oldLow)
        DropFront(size_t(low - oldLow));
    if (high < oldHigh)
        DropBack(size_t(oldHigh - high));
    low_ = int32_t(low);
    return true;
}

bool HostArrayData::reach(int32_t index) {
    if (contains(index))
        return true;
    int64_t low = low_, high = int64_t(low_) + count() - 1;
    return resize(index < low ? index : low, index > high ? index : high);
}

HostArray ArrayCreate(int32_t type) {
    if (!HostIsArrayType(type))
        return 0;
    try {
        return Table().add(std::make_unique<HostArrayData>(type));
    } catch (const std::bad_alloc &) {
        return 0;
    }
}

HostArrayData *ArrayFind(HostArray array) {
    std::unique_ptr<HostArrayData> *p = Table().find(array);
    return p ? p->get() : nullptr;
}

bool ArrayDestroy(HostArray array) {
    std::unique_ptr<HostArrayData> gone;
    if (!Table().remove(array, gone))
        return false;
    gone->clear();
    return true;
}

size_t ArrayLiveCount() { return Table().live(); }

} // namespace hostwin
