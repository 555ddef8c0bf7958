// The orders of the array sorts: the same as a stable insertion sort, in
// O(n log n) comparisons; for strings, distinct texts compared once each,
// ties (equal texts, and texts that compare equal) in their input order.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <numeric>
#include <random>
#include <string>
#include <vector>

#include "text/core/array_order.h"
#include "text/core/array_text_order.h"

namespace {

using zk::text::OrderByRank;
using zk::text::Precedes;
using zk::text::StableOrder;
using zk::text::StableTextOrder;

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

char16_t Fold(char16_t c) { return c >= u'A' && c <= u'Z' ? char16_t(c + 32) : c; }

// Without regard to ASCII case, like the locale compare's NORM_IGNORECASE.
int CompareNoCase(std::u16string_view a, std::u16string_view b) {
    for (std::size_t i = 0; i < a.size() && i < b.size(); ++i)
        if (Fold(a[i]) != Fold(b[i]))
            return Fold(a[i]) < Fold(b[i]) ? -1 : 1;
    return a.size() == b.size() ? 0 : a.size() < b.size() ? -1 : 1;
}

// The insertion sort the order must equal: a text moves up past a later
// key that compares below it (above it, descending).
std::vector<uint32_t> InsertionOrder(const std::vector<std::u16string_view> &texts, bool descending) {
    return InsertionOrder(static_cast<uint32_t>(texts.size()), [&](uint32_t later, uint32_t earlier) {
        const int c = CompareNoCase(texts[earlier], texts[later]);
        return descending ? c < 0 : c > 0;
    });
}

std::vector<std::u16string_view> Views(const std::vector<std::u16string> &texts) {
    return {texts.begin(), texts.end()};
}

TEST(StableTextOrder, EqualsInsertionSortOnRandomTiesBothWays) {
    std::mt19937 random(17);
    for (std::size_t n : {0u, 1u, 2u, 7u, 64u, 333u, 2000u}) {
        std::vector<std::u16string> texts(n);
        for (std::u16string &t : texts) {
            t.resize(std::uniform_int_distribution<std::size_t>(0, 3)(random));
            for (char16_t &c : t)
                c = u"abAB-"[std::uniform_int_distribution<int>(0, 4)(random)];
        }
        const auto views = Views(texts);
        for (bool descending : {false, true}) {
            uint64_t calls = 0;
            const auto order = StableTextOrder(views, descending, [&](std::u16string_view a, std::u16string_view b) {
                ++calls;
                return CompareNoCase(a, b);
            });
            EXPECT_EQ(InsertionOrder(views, descending), order) << n << " texts, descending " << descending;
            // At most 156 distinct texts of up to 3 characters from 5.
            EXPECT_LE(calls, 156u * 8 + 156u) << n;
        }
    }
}

TEST(StableTextOrder, CaseTiesKeepTheirInputOrder) {
    const std::vector<std::u16string> texts = {u"b", u"A", u"a", u"B", u"A", u"c"};
    EXPECT_EQ((std::vector<uint32_t>{1, 2, 4, 0, 3, 5}), StableTextOrder(Views(texts), false, CompareNoCase));
    EXPECT_EQ((std::vector<uint32_t>{5, 0, 3, 1, 2, 4}), StableTextOrder(Views(texts), true, CompareNoCase));
}

TEST(StableTextOrder, OnlyDistinctTextsAreCompared) {
    std::vector<std::u16string> texts;
    for (int i = 0; i < 10000; ++i)
        texts.push_back(i % 2 ? u"odd" : u"even");
    uint64_t calls = 0;
    const auto order = StableTextOrder(Views(texts), false, [&](std::u16string_view a, std::u16string_view b) {
        ++calls;
        return CompareNoCase(a, b);
    });
    EXPECT_LE(calls, 3u);
    ASSERT_EQ(10000u, order.size());
    const std::vector<uint32_t> picked = {order[0], order[1], order[5000], order[9999]};
    EXPECT_EQ((std::vector<uint32_t>{0, 2, 1, 9999}), picked);
}

TEST(OrderByRank, RanksThenPositions) {
    EXPECT_EQ((std::vector<uint32_t>{1, 4, 3, 0, 2}), OrderByRank({2, 0, 2, 1, 0}, 3));
    EXPECT_TRUE(OrderByRank({}, 0).empty());
    EXPECT_EQ((std::vector<uint32_t>{0, 1, 2}), OrderByRank({0, 0, 0}, 1));
}

} // namespace
