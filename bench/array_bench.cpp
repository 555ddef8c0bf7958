// Growth of ZelArraySort: 40,000 string elements against 2,000, random
// words with many ties, in the same process. An O(n log n) sort gives at
// most about 29 (20 times the elements, 1.4 times the merge depth), less
// where ties spare comparisons; an insertion sort about 400. Bound 40. The
// time per sort is the median of five batches, each of twenty small sorts
// or one large one, so that each timing spans tens of milliseconds. The
// program fails only when a result is not in order.
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <random>
#include <string>
#include <vector>

#include "bench.h"
#include "zkhost.h"
#include "zkhostctl.h"
#include "zklib.h"

namespace {

using namespace bench;

constexpr double kBound = 40.0;
constexpr int kGrowth = 20;
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
double Batch(Run &run, int32_t count, int arrays, const Words &words, std::mt19937 &random) {
    std::vector<HostArray> batch;
    for (int i = 0; i < arrays; ++i)
        batch.push_back(RandomWords(count, words, random));
    const double start = Seconds();
    std::vector<int32_t> results;
    for (HostArray array : batch)
        results.push_back(ZelArraySort(array, ZEL_SORT_ASCENDING, HOST_TYPE_STRING));
    const double perSort = (Seconds() - start) / arrays;
    for (size_t i = 0; i < batch.size(); ++i) {
        if (results[i] != count)
            run.Wrong("sort of %d words gave %d", count, results[i]);
        else if (!InOrder(batch[i]))
            run.Wrong("sort of %d words is not in order", count);
        HostArrayDestroy(batch[i]);
    }
    return perSort;
}

// The median time per sort of each size, small and large batches in turn,
// so that a slow spell falls on both alike; the ratio of large to small.
double Ratio(Run &run, const Words &words, std::mt19937 &random) {
    const int32_t small = run.Size(100, 2'000), large = small * kGrowth;
    const int rounds = run.Size(1, 5);
    std::vector<double> smallTimes, largeTimes;
    for (int round = 0; round < rounds; ++round) {
        smallTimes.push_back(Batch(run, small, kGrowth, words, random));
        largeTimes.push_back(Batch(run, large, 1, words, random));
    }
    std::printf("  %s: %d elements %.4f s, %d elements %.4f s per sort (medians of %d)\n", words.name, small,
                Median(smallTimes), large, Median(largeTimes), rounds);
    return Median(largeTimes) / Median(smallTimes);
}

} // namespace

int main(int argc, char **argv) {
    Run run("bench_array", argc, argv);
    std::mt19937 random(11);
    run.Figure("ZelArraySort strings with ties, 20x the elements", Ratio(run, kShortWords, random), Want::AtMost,
               kBound);
    // Long words are nearly all distinct: every element takes part in the
    // comparisons, and neighbours in a longer sorted run share longer
    // prefixes, so each comparison costs a little more. Shown, not bounded.
    run.Note("ZelArraySort distinct strings, 20x the elements", Ratio(run, kLongWords, random));
    return run.Finish();
}
