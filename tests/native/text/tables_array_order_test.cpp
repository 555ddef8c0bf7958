// The order of the array sort: the same as a stable insertion sort, in
// O(n log n) comparisons.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <numeric>
#include <random>
#include <vector>

#include "text/core/array_order.h"

namespace {

using zk::text::Precedes;
using zk::text::StableOrder;

// The insertion sort the order must equal: an element moves up past a
// later key while the key must stand before it.
std::vector<uint32_t> InsertionOrder(uint32_t count, const Precedes &precedes) {
    std::vector<uint32_t> order(count);
    std::iota(order.begin(), order.end(), 0u);
    for (uint32_t i = 1; i < count; ++i) {
        const uint32_t key = order[i];
        int64_t j = int64_t(i) - 1;
        while (j >= 0 && precedes(key, order[j])) {
            order[j + 1] = order[j];
            --j;
        }
        order[j + 1] = key;
    }
    return order;
}

// Values compared as the sort compares numbers: ascending moves an element
// past a later key when element > key, descending when key > element.
struct ByValue {
    const std::vector<int> &values;
    bool descending;
    mutable uint64_t calls = 0;
    bool operator()(uint32_t later, uint32_t earlier) const {
        ++calls;
        return descending ? values[later] > values[earlier] : values[earlier] > values[later];
    }
};

uint64_t CallBound(uint32_t n) { return n < 2 ? 0 : uint64_t(n) * uint64_t(std::ceil(std::log2(double(n)))); }

TEST(StableOrder, EqualsInsertionSortOnRandomTiesBothWays) {
    std::mt19937 random(7);
    for (uint32_t n : {2u, 3u, 5u, 17u, 64u, 257u, 4099u}) {
        for (int distinct : {1, 2, 5, 40, 100000}) {
            std::vector<int> values(n);
            for (int &v : values)
                v = std::uniform_int_distribution<int>(0, distinct - 1)(random);
            for (bool descending : {false, true}) {
                ByValue precedes{values, descending};
                const std::vector<uint32_t> order = StableOrder(n, std::ref(precedes));
                EXPECT_EQ(InsertionOrder(n, ByValue{values, descending}), order)
                    << "n " << n << ", " << distinct << " values, descending " << descending;
                EXPECT_LE(precedes.calls, CallBound(n)) << "n " << n;
            }
        }
    }
}

TEST(StableOrder, TiesKeepTheirOrderBothWays) {
    const std::vector<int> values = {3, 1, 3, 2, 1, 3};
    // Ascending: 1 (1), 1 (4), 2 (3), 3 (0), 3 (2), 3 (5).
    EXPECT_EQ((std::vector<uint32_t>{1, 4, 3, 0, 2, 5}), StableOrder(6, ByValue{values, false}));
    // Descending keeps the input order among the threes and the ones too.
    EXPECT_EQ((std::vector<uint32_t>{0, 2, 5, 3, 1, 4}), StableOrder(6, ByValue{values, true}));
}

TEST(StableOrder, OrderedInputCostsOneCallPerMerge) {
    std::vector<int> values(20000);
    std::iota(values.begin(), values.end(), 0);
    ByValue ascending{values, false};
    const std::vector<uint32_t> order = StableOrder(20000, std::ref(ascending));
    EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
    EXPECT_EQ(19999u, ascending.calls);

    // Reversed input is reversed, still within the bound.
    ByValue descending{values, true};
    const std::vector<uint32_t> reversed = StableOrder(20000, std::ref(descending));
    EXPECT_EQ(19999u, reversed.front());
    EXPECT_EQ(0u, reversed.back());
    EXPECT_LE(descending.calls, CallBound(20000));
}

} // namespace
