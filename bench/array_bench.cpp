// Growth of ZelArraySort: 20,000 string elements against 1,000, random
// words with many ties, in the same process. An O(n log n) sort gives at
// most about 29 (20 times the elements, 1.43 times the merge depth), less
// where ties spare comparisons; an insertion sort about 400. The program
// fails when the ratio passes 40, or when a result is not in order.
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <random>
#include <string>
#include <vector>

#include "zkhost.h"
#include "zkhostctl.h"
#include "bench_clock.h"
#include "zklib.h"

namespace {

constexpr double kBound = 40.0;
constexpr int32_t kSmall = 1'000, kLarge = 20'000;
constexpr DWORD kFlags = NORM_IGNORECASE | NORM_IGNOREKANATYPE | NORM_IGNOREWIDTH;

// Words in mixed case from a small alphabet: the short ones repeat often
// and tie in case; the long ones hardly repeat.
struct Words {
    const char *name;
    int shortest, longest;
};
constexpr Words kShortWords{"words of 2 to 5 letters", 2, 5};
constexpr Words kLongWords{"words of 12 letters", 12, 12};

HostArray RandomWords(int32_t count, const Words &words, std::mt19937 &random) {
    HostArray array = HostArrayCreate(HOST_TYPE_STRING);
    HostArraySetBounds(array, 1, count);
    std::uniform_int_distribution<int> length(words.shortest, words.longest), letter(0, 5), upper(0, 3);
    for (int32_t i = 1; i <= count; ++i) {
        std::wstring word(static_cast<size_t>(length(random)), L'a');
        for (wchar_t &c : word)
            c = static_cast<wchar_t>((upper(random) == 0 ? L'A' : L'a') + letter(random));
        HostArraySetString(array, ZkHostStrMake(word.c_str()), i);
    }
    return array;
}

bool InOrder(HostArray array) {
    int32_t low = 0, high = -1;
    HostArrayGetBounds(array, &low, &high);
    const wchar_t *previous = nullptr;
    for (int32_t i = low; i <= high; ++i) {
        HostStr s = 0;
        HostArrayGetString(array, &s, i);
        int32_t size = 0;
        const wchar_t *text = HostStrLock(s, &size);
        if (previous && CompareStringW(GetThreadLocale(), kFlags, previous, -1, text, -1) == CSTR_GREATER_THAN)
            return false;
        previous = text;
    }
    return true;
}

// One batch: `arrays` fresh arrays of `count` words sorted one after the
// other, time per sort. Both cases sort the same number of elements per
// batch, so that a busy machine slows both alike.
double Batch(int32_t count, int arrays, const Words &words, std::mt19937 &random, bool &ok) {
    std::vector<HostArray> batch;
    for (int i = 0; i < arrays; ++i)
        batch.push_back(RandomWords(count, words, random));
    const double start = Seconds();
    std::vector<int32_t> results;
    for (HostArray array : batch)
        results.push_back(ZelArraySort(array, ZEL_SORT_ASCENDING, HOST_TYPE_STRING));
    const double perSort = (Seconds() - start) / arrays;
    for (size_t i = 0; i < batch.size(); ++i) {
        if (results[i] != count || !InOrder(batch[i])) {
            std::printf("  sort of %d words: result %d, %s\n", count, results[i],
                        results[i] == count ? "not in order" : "wrong count");
            ok = false;
        }
        HostArrayDestroy(batch[i]);
    }
    return perSort;
}

// The best time per sort of each size, small and large batches in turn, so
// that a slow spell falls on both alike; the ratio of large to small.
double Ratio(const Words &words, std::mt19937 &random, bool &ok) {
    constexpr int kRounds = 5, kBatch = kLarge / kSmall;
    double small = 1e30, large = 1e30;
    for (int round = 0; round < kRounds; ++round) {
        small = std::min(small, Batch(kSmall, kBatch, words, random, ok));
        large = std::min(large, Batch(kLarge, 1, words, random, ok));
    }
    std::printf("  %s: %d elements %.4f s, %d elements %.4f s per sort\n", words.name, kSmall, small, kLarge,
                large);
    return large / small;
}

} // namespace

int main() {
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    std::mt19937 random(11);
    bool ok = true;
    std::printf("ZelArraySort of %d and %d strings, best of 5 rounds\n", kSmall, kLarge);
    const double ties = Ratio(kShortWords, random, ok);
    // Long words are nearly all distinct: every element takes part in the
    // comparisons, and neighbours in a longer sorted run share longer
    // prefixes, so each comparison costs a little more. Shown, not bounded.
    const double distinct = Ratio(kLongWords, random, ok);
    const bool fast = ties <= kBound;
    std::printf("ratio ZelArraySort strings with ties %d / %d %6.2f (bound %.0f)%s\n", kLarge, kSmall, ties, kBound,
                fast ? "" : "  TOO SLOW");
    std::printf("ratio ZelArraySort distinct strings %d / %d %6.2f\n", kLarge, kSmall, distinct);
    return ok && fast ? 0 : 1;
}
