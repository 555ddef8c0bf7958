// Growth of the two text functions that must stay linear: ZelStrExpand over
// arrays of 1 M and 10 M elements, ZelStrSubstitute over texts of 1 M and
// 10 M characters. Each figure is the time of the large case over the small
// one, measured in the same process: the medians of five samples each, a
// sample of the small case the mean of enough calls to span tens of
// milliseconds. A linear function gives about 10; bound 12. The program
// fails only when a result has the wrong length.
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "bench.h"
#include "zkhost.h"
#include "zkhostctl.h"
#include "zklib.h"

namespace {

using namespace bench;

constexpr double kBound = 12.0;

// One timing of a call that makes a host string; the string's length is
// checked against the expected one.
double Time(Run &run, const std::function<HostStr()> &call, size_t expectedLength) {
    const double start = Seconds();
    const HostStr result = call();
    const double elapsed = Seconds() - start;
    int32_t size = 0;
    const wchar_t *text = HostStrLock(result, &size);
    const size_t length = text ? wcslen(text) : 0;
    if (length != expectedLength)
        run.Wrong("result length %zu, expected %zu", length, expectedLength);
    ZkHostStrRelease(result);
    return elapsed;
}

struct Case {
    std::function<HostStr()> call;
    size_t expectedLength;
};

void Measure(Run &run, const char *name, int repeat, const Case &small, const Case &large) {
    const Growth g = MeasureGrowth(
        run.Size(1, 5), repeat, [&] { return Time(run, small.call, small.expectedLength); },
        [&] { return Time(run, large.call, large.expectedLength); });
    std::printf("  %-34s small %8.4f s  large %8.4f s\n", name, g.small, g.large);
    run.Figure(name, g.Ratio(), Want::AtMost, kBound);
}

// Every element prints with the same count of digits, so that ten times the
// elements is ten times the text and the ratio measures the function alone.
constexpr int32_t kNumberBase = 10'000'000;

HostArray Numbers(int32_t count) {
    HostArray array = HostArrayCreate(HOST_TYPE_NUMBER);
    HostArraySetBounds(array, 0, count - 1);
    for (int32_t i = 0; i < count; ++i) {
        HostNumber n{};
        HostNumberFromLong(kNumberBase + i % kNumberBase, &n);
        HostArraySetNumber(array, &n, i);
    }
    return array;
}

// Two host strings shared by all elements, one reference each place: the
// reference host keeps a few million live strings at most, far fewer than
// the elements here.
HostArray Strings(int32_t count) {
    const HostStr even = ZkHostStrMake(L"even"), odd = ZkHostStrMake(L"odd");
    HostArray array = HostArrayCreate(HOST_TYPE_STRING);
    HostArraySetBounds(array, 0, count - 1);
    for (int32_t i = 0; i < count; ++i) {
        const HostStr element = i % 2 ? odd : even;
        HostStrAddRef(element);
        HostArraySetString(array, element, i);
    }
    ZkHostStrRelease(even);
    ZkHostStrRelease(odd);
    return array;
}

// Characters of the elements joined by commas: eight digits each.
size_t JoinedNumbersLength(int32_t count) { return count > 0 ? static_cast<size_t>(count) * 9 - 1 : 0; }

// Characters of "[even][odd]..." and one more "even" for the plain code.
size_t BracketedWordsLength(int32_t count) {
    return static_cast<size_t>(count) * 2 + static_cast<size_t>(count / 2) * 3 +
           static_cast<size_t>((count + 1) / 2) * 4 + 4;
}

std::wstring Repeated(const std::wstring &unit, size_t size) {
    std::wstring text;
    text.reserve(size);
    while (text.size() + unit.size() <= size)
        text += unit;
    return text;
}

} // namespace

int main(int argc, char **argv) {
    Run run("bench_text", argc, argv);
    const int32_t small = run.Size(100'000, 1'000'000), large = small * 10;

    std::printf("  ZelStrExpand over host arrays of %d and %d elements\n", small, large);
    {
        const HostArray a = Numbers(small), b = Numbers(large);
        Measure(run, "ZelStrExpand {%,n} numbers, 10x the elements", 1,
                {[&] { return ZelStrExpand(L"{%,n}", a); }, JoinedNumbersLength(small)},
                {[&] { return ZelStrExpand(L"{%,n}", b); }, JoinedNumbersLength(large)});
        HostArrayDestroy(a);
        HostArrayDestroy(b);
    }
    {
        const HostArray a = Strings(small), b = Strings(large);
        Measure(run, "ZelStrExpand {[%s]}%s strings, 10x the elements", 1,
                {[&] { return ZelStrExpand(L"{[%s]}%s", a); }, BracketedWordsLength(small)},
                {[&] { return ZelStrExpand(L"{[%s]}%s", b); }, BracketedWordsLength(large)});
        HostArrayDestroy(a);
        HostArrayDestroy(b);
    }

    const size_t smallText = run.Size<size_t>(1 << 16, 1 << 22), largeText = smallText * 10;
    std::printf("  ZelStrSubstitute over texts of %zu and %zu characters\n", smallText, largeText);
    {
        const std::wstring unit = L"lorem ipsum dolor sit amet, ";
        const std::wstring a = Repeated(unit, smallText), b = Repeated(unit, largeText);
        const size_t grow = 2; // "dolor" becomes "DOLOR-X"
        Measure(run, "ZelStrSubstitute words, 10x the text", 4,
                {[&] { return ZelStrSubstitute(a.c_str(), L"dolor", L"DOLOR-X"); },
                 a.size() + a.size() / unit.size() * grow},
                {[&] { return ZelStrSubstitute(b.c_str(), L"dolor", L"DOLOR-X"); },
                 b.size() + b.size() / unit.size() * grow});
    }
    {
        // A search that a naive scan would follow for nearly its whole length
        // at every position: 1000 times the work of a linear one.
        const std::wstring unit(1000, L'a');
        const std::wstring search = std::wstring(999, L'a') + L"b";
        const std::wstring a = Repeated(unit, smallText), b = Repeated(unit, largeText);
        Measure(run, "ZelStrSubstitute periodic search, 10x the text", 4,
                {[&] { return ZelStrSubstitute(a.c_str(), search.c_str(), L"x"); }, a.size()},
                {[&] { return ZelStrSubstitute(b.c_str(), search.c_str(), L"x"); }, b.size()});
    }
    return run.Finish();
}
