#include "text/core/array_text_order.h"

#include <string>
#include <unordered_map>

#include "text/core/array_order.h"

namespace zk::text {

std::vector<uint32_t> OrderByRank(const std::vector<uint32_t> &rankOf, uint32_t ranks) {
    std::vector<uint32_t> next(static_cast<std::size_t>(ranks) + 1, 0);
    for (uint32_t rank : rankOf)
        ++next[rank + 1];
    for (uint32_t r = 0; r < ranks; ++r)
        next[r + 1] += next[r];
    std::vector<uint32_t> order(rankOf.size());
    for (uint32_t p = 0; p < rankOf.size(); ++p)
        order[next[rankOf[p]]++] = p;
    return order;
}

std::vector<uint32_t> StableTextOrder(const std::vector<std::u16string_view> &texts, bool descending,
                                      const TextCompare &compare) {
    // Distinct texts in the order they first appear, side by side in one
    // block so that the comparisons touch few pages.
    std::unordered_map<std::u16string_view, uint32_t> idOfText;
    idOfText.reserve(texts.size());
    std::vector<uint32_t> idOf(texts.size());
    std::vector<std::u16string_view> firsts;
    std::size_t poolSize = 0;
    for (std::size_t p = 0; p < texts.size(); ++p) {
        const auto [it, added] = idOfText.try_emplace(texts[p], static_cast<uint32_t>(firsts.size()));
        if (added) {
            firsts.push_back(texts[p]);
            poolSize += texts[p].size();
        }
        idOf[p] = it->second;
    }
    std::u16string pool;
    pool.reserve(poolSize);
    for (std::u16string_view text : firsts)
        pool += text;

    struct Item {
        std::u16string_view text; // into the pool
        uint32_t id;
    };
    std::vector<Item> items(firsts.size());
    std::size_t at = 0;
    for (uint32_t id = 0; id < firsts.size(); ++id) {
        items[id] = {std::u16string_view(pool).substr(at, firsts[id].size()), id};
        at += firsts[id].size();
    }
    // The earlier text stands first in the call, as the insertion sort
    // compares the element standing with the later key.
    StableMergeSort(items, [&](const Item &later, const Item &earlier) {
        const int c = compare(earlier.text, later.text);
        return descending ? c < 0 : c > 0;
    });

    // Neighbours that compare equal are one rank: their elements are ties,
    // which keep their input order.
    std::vector<uint32_t> rankOfId(items.size());
    uint32_t rank = 0;
    for (std::size_t k = 0; k < items.size(); ++k) {
        if (k > 0 && compare(items[k - 1].text, items[k].text) != 0)
            ++rank;
        rankOfId[items[k].id] = rank;
    }
    std::vector<uint32_t> rankOf(texts.size());
    for (std::size_t p = 0; p < texts.size(); ++p)
        rankOf[p] = rankOfId[idOf[p]];
    return OrderByRank(rankOf, items.empty() ? 0 : rank + 1);
}

} // namespace zk::text
