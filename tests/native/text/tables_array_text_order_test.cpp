// The order of the string sort: distinct texts compared once each, ties
// (equal texts, and texts that compare equal) in their input order.
#include <gtest/gtest.h>

#include <cstdint>
#include <numeric>
#include <random>
#include <string>
#include <vector>

#include "text/core/array_text_order.h"

namespace {

using zk::text::OrderByRank;
using zk::text::StableTextOrder;

char16_t Fold(char16_t c) { return c >= u'A' && c <= u'Z' ? char16_t(c + 32) : c; }

// Without regard to ASCII case, like the locale compare's NORM_IGNORECASE.
int CompareNoCase(std::u16string_view a, std::u16string_view b) {
    for (std::size_t i = 0; i < a.size() && i < b.size(); ++i)
        if (Fold(a[i]) != Fold(b[i]))
            return Fold(a[i]) < Fold(b[i]) ? -1 : 1;
    return a.size() == b.size() ? 0 : a.size() < b.size() ? -1 : 1;
}

// The insertion sort the order must equal.
std::vector<uint32_t> InsertionOrder(const std::vector<std::u16string_view> &texts, bool descending) {
    std::vector<uint32_t> order(texts.size());
    std::iota(order.begin(), order.end(), 0u);
    for (std::size_t i = 1; i < order.size(); ++i) {
        const uint32_t key = order[i];
        int64_t j = int64_t(i) - 1;
        for (; j >= 0; --j) {
            const int c = CompareNoCase(texts[order[j]], texts[key]);
            if (!(descending ? c < 0 : c > 0))
                break;
            order[j + 1] = order[j];
        }
        order[j + 1] = key;
    }
    return order;
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
