// Growth of the two text functions that must stay linear: ZelStrExpand over
// arrays of 1 M and 10 M elements, ZelStrSubstitute over texts of 1 M and
// 10 M characters. Each figure is the time of the large case over the small
// one, measured in the same process; a linear function gives about 10, and
// the program fails when a ratio passes 12.
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "zkhost.h"
#include "zkhostctl.h"
#include "bench_clock.h"
#include "zklib.h"

namespace {

constexpr double kBound = 12.0;

// One timing of a call that makes a host string; the string's length is
// checked against the expected one.
double Time(const std::function<HostStr()> &call, size_t expectedLength, bool &ok) {
    const double start = Seconds();
    const HostStr result = call();
    const double elapsed = Seconds() - start;
    int32_t size = 0;
    const wchar_t *text = HostStrLock(result, &size);
    const size_t length = text ? wcslen(text) : 0;
    if (length != expectedLength) {
        std::printf("  wrong result length %zu, expected %zu\n", length, expectedLength);
        ok = false;
    }
    ZkHostStrRelease(result);
    return elapsed;
}

struct Case {
    std::function<HostStr()> call;
    size_t expectedLength;
};

struct Ratio {
    std::string name;
    double small = 1e30, large = 1e30;
};

// The small and the large case in turn, `rounds` times each, so that a
// slow spell of a busy machine falls on both alike; the best times count.
Ratio Measure(const std::string &name, int rounds, const Case &small, const Case &large, bool &ok) {
    Ratio r{name};
    for (int i = 0; i < rounds; ++i) {
        r.small = std::min(r.small, Time(small.call, small.expectedLength, ok));
        r.large = std::min(r.large, Time(large.call, large.expectedLength, ok));
    }
    std::printf("  %-34s small %8.3f s  large %8.3f s\n", name.c_str(), r.small, r.large);
    return r;
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
size_t JoinedNumbersLength(int32_t count) {
    return count > 0 ? static_cast<size_t>(count) * 9 - 1 : 0;
}

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

bool Report(const Ratio &r) {
    const double ratio = r.large / r.small;
    const bool ok = ratio <= kBound;
    std::printf("ratio %-34s %6.2f (bound %.0f)%s\n", r.name.c_str(), ratio, kBound, ok ? "" : "  TOO SLOW");
    return ok;
}

} // namespace

int main() {
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    bool ok = true;
    const double start = Seconds();
    constexpr int32_t kSmall = 1'000'000, kLarge = 10'000'000;
    std::vector<Ratio> ratios;

    std::printf("ZelStrExpand over host arrays of %d and %d elements\n", kSmall, kLarge);
    {
        const HostArray small = Numbers(kSmall), large = Numbers(kLarge);
        std::printf("  arrays of numbers built in %.1f s\n", Seconds() - start);
        ratios.push_back(Measure("ZelStrExpand {%,n} numbers", 3,
                                 {[&] { return ZelStrExpand(L"{%,n}", small); }, JoinedNumbersLength(kSmall)},
                                 {[&] { return ZelStrExpand(L"{%,n}", large); }, JoinedNumbersLength(kLarge)},
                                 ok));
        HostArrayDestroy(small);
        HostArrayDestroy(large);
    }
    {
        const HostArray small = Strings(kSmall), large = Strings(kLarge);
        ratios.push_back(Measure("ZelStrExpand {[%s]}%s strings", 3,
                                 {[&] { return ZelStrExpand(L"{[%s]}%s", small); }, BracketedWordsLength(kSmall)},
                                 {[&] { return ZelStrExpand(L"{[%s]}%s", large); }, BracketedWordsLength(kLarge)},
                                 ok));
        HostArrayDestroy(small);
        HostArrayDestroy(large);
    }

    std::printf("ZelStrSubstitute over texts of %d and %d characters\n", 1 << 20, 10 << 20);
    {
        const std::wstring unit = L"lorem ipsum dolor sit amet, ";
        const std::wstring small = Repeated(unit, 1 << 20), large = Repeated(unit, 10 << 20);
        const size_t grow = 2; // "dolor" becomes "DOLOR-X"
        ratios.push_back(Measure(
            "ZelStrSubstitute words", 5,
            {[&] { return ZelStrSubstitute(small.c_str(), L"dolor", L"DOLOR-X"); },
             small.size() + small.size() / unit.size() * grow},
            {[&] { return ZelStrSubstitute(large.c_str(), L"dolor", L"DOLOR-X"); },
             large.size() + large.size() / unit.size() * grow},
            ok));
    }
    {
        // A search that a naive scan would follow for nearly its whole length
        // at every position: 1000 times the work of a linear one.
        const std::wstring unit(1000, L'a');
        const std::wstring search = std::wstring(999, L'a') + L"b";
        const std::wstring small = Repeated(unit, 1 << 20), large = Repeated(unit, 10 << 20);
        ratios.push_back(Measure("ZelStrSubstitute periodic search", 5,
                                 {[&] { return ZelStrSubstitute(small.c_str(), search.c_str(), L"x"); }, small.size()},
                                 {[&] { return ZelStrSubstitute(large.c_str(), search.c_str(), L"x"); }, large.size()},
                                 ok));
    }

    for (const Ratio &r : ratios)
        ok = Report(r) && ok;
    std::printf("total %.1f s\n", Seconds() - start);
    return ok ? 0 : 1;
}
