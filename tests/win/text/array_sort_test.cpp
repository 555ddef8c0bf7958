// ZelArraySort: what it leaves alone, the locale, shared and null strings;
// and the order against a stable sort of the same elements (the insertion
// sort it must match: ties keep their order), on random data with many
// ties, both directions, every type that sorts, bounds not at 0.
#include <algorithm>
#include <random>

#include "array_support.h"

using namespace arraytest;

namespace {

class Sort : public ArrayTest {};

TEST_F(Sort, StringsFollowTheThreadsLocale) {
    // In Swedish a-umlaut is a letter after z; in English it sorts with a.
    const LCID previous = GetThreadLocale();
    HostArray array = Own(Strings({L"z", L"\x00E4", L"a"}, 1));
    ASSERT_TRUE(SetThreadLocale(MAKELCID(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), SORT_DEFAULT)));
    EXPECT_EQ(3, ZelArraySort(array, 0, HOST_TYPE_STRING));
    EXPECT_EQ((std::vector<std::wstring>{L"a", L"\x00E4", L"z"}), TextsOf(array));
    ASSERT_TRUE(SetThreadLocale(MAKELCID(MAKELANGID(LANG_SWEDISH, SUBLANG_SWEDISH), SORT_DEFAULT)));
    EXPECT_EQ(3, ZelArraySort(array, 0, HOST_TYPE_STRING));
    SetThreadLocale(previous);
    EXPECT_EQ((std::vector<std::wstring>{L"a", L"z", L"\x00E4"}), TextsOf(array));
}

TEST_F(Sort, LongStringsAndNullElements) {
    HostArray array = Own(Strings({L"b", nullptr, L"a", L""}, 0, HOST_TYPE_LONGSTRING));
    EXPECT_EQ(4, ZelArraySort(array, 0, HOST_TYPE_LONGSTRING));
    // No string reads as the empty text and ties with it.
    EXPECT_EQ((std::vector<std::wstring>{L"<null>", L"", L"a", L"b"}), TextsOf(array));
}

TEST_F(Sort, SharedHandlesKeepTheirCounts) {
    // One string in three slots of one array, as after appending to itself.
    HostArray array = Own(Strings({L"z", L"a"}));
    ASSERT_EQ(4, ZelArrayAppend(array, array, HOST_TYPE_STRING));
    HostArray more = Strings({L"m", L"z"});
    ASSERT_EQ(6, ZelArrayAppend(more, array, HOST_TYPE_STRING));
    HostArrayDestroy(more);
    const std::vector<HostStr> before = HandlesOf(array);
    const std::vector<int32_t> refs = RefsOf(before);
    EXPECT_EQ(6, ZelArraySort(array, 0, HOST_TYPE_STRING));
    EXPECT_EQ((std::vector<std::wstring>{L"a", L"a", L"m", L"z", L"z", L"z"}), TextsOf(array));
    EXPECT_EQ(refs, RefsOf(before));
}

TEST_F(Sort, OneElementEmptyMultiDimensionalOrUnknown) {
    HostArray one = Own(Longs({4}, 9)), empty = Own(HostArrayCreate(HOST_TYPE_NUMBER)),
              wide = Own(TwoDimensional(HOST_TYPE_NUMBER));
    EXPECT_EQ(1, ZelArraySort(one, 0, HOST_TYPE_NUMBER));
    EXPECT_EQ(1, ZelArraySort(one, 7, 999));
    EXPECT_EQ((std::vector<int32_t>{4}), LongsOf(one));
    EXPECT_EQ(-1, ZelArraySort(empty, 0, HOST_TYPE_NUMBER));
    EXPECT_EQ(-1, ZelArraySort(wide, 0, HOST_TYPE_NUMBER));
    EXPECT_EQ(-1, ZelArraySort(DeadArray(), 0, HOST_TYPE_NUMBER));
    EXPECT_EQ(-1, ZelArraySort(0, 0, HOST_TYPE_STRING));
}

TEST_F(Sort, OtherDirectionsChangeNothing) {
    HostArray array = Own(Strings({L"c", L"a", L"b"}, 4));
    const std::vector<HostStr> handles = HandlesOf(array);
    for (int32_t direction : {2, -1, INT32_MAX}) {
        EXPECT_EQ(3, ZelArraySort(array, direction, HOST_TYPE_STRING)) << direction;
        EXPECT_EQ(handles, HandlesOf(array));
    }
}

TEST_F(Sort, FlagsHandlesAndUnknownTypesAreNotSorted) {
    for (int32_t type : {HOST_TYPE_BOOLEAN, HOST_TYPE_HANDLE}) {
        HostArray words = Own(Words(type, {3, 1, 2}));
        EXPECT_EQ(3, ZelArraySort(words, 0, type));
        EXPECT_EQ((std::vector<uint32_t>{3, 1, 2}), WordsOf(words, type));
    }
    HostArray numbers = Own(Longs({3, 1, 2}));
    EXPECT_EQ(3, ZelArraySort(numbers, 0, 4));
    // Numbers read as strings are all missing, so all equal: nothing moves.
    EXPECT_EQ(3, ZelArraySort(numbers, 0, HOST_TYPE_STRING));
    EXPECT_EQ((std::vector<int32_t>{3, 1, 2}), LongsOf(numbers));
}

// Words whose comparisons tie in many ways: case, width, kana type.
const wchar_t *const kWords[] = {
    L"apple",      L"Apple",  L"APPLE",  L"banana", L"Banana", L"cherry", L"\xFF43\xFF48\xFF45\xFF52\xFF52\xFF59",
    L"",           L"a-b",    L"ab",     L"co-op",  L"coop",   L"Zebra",  L"zebra",
    L"\x00E4pple", L"\x3042", L"\x30A2", L"10",     L"9",      L"z"};
// Distinct records that are one double, and repeats.
const wchar_t *const kNumbers[] = {L"1",
                                   L"1.0000000000000000000001",
                                   L"1.00000000000000000000001",
                                   L"-1",
                                   L"0",
                                   L"2.5",
                                   L"2.50000000000000000001",
                                   L"1000000",
                                   L"-0.001",
                                   L"3"};

struct Element {
    HostNumber record{};
    HostStr handle = 0;
};

bool IsString(int32_t type) { return type == HOST_TYPE_STRING || type == HOST_TYPE_LONGSTRING; }

std::vector<Element> ElementsOf(HostArray array, int32_t type) {
    std::vector<Element> out;
    const Bounds b = BoundsOf(array);
    for (int32_t i = b.low; i <= b.high; ++i) {
        Element e;
        if (IsString(type))
            HostArrayGetString(array, &e.handle, i);
        else if (type == HOST_TYPE_DATETIME)
            HostArrayGetDateTime(array, &e.record, i);
        else
            HostArrayGetNumber(array, &e.record, i);
        out.push_back(e);
    }
    return out;
}

// a before b: strings by the thread's locale without case, width or kana
// type; numbers and dates as doubles.
bool Before(const Element &a, const Element &b, int32_t type, bool descending) {
    if (IsString(type)) {
        const int result = CompareStringW(GetThreadLocale(), NORM_IGNORECASE | NORM_IGNOREKANATYPE | NORM_IGNOREWIDTH,
                                          Text(a.handle).c_str(), -1, Text(b.handle).c_str(), -1);
        return result == (descending ? CSTR_GREATER_THAN : CSTR_LESS_THAN);
    }
    double x = 0, y = 0;
    HostNumberToDouble(&a.record, &x);
    HostNumberToDouble(&b.record, &y);
    return descending ? x > y : x < y;
}

class SortOrder : public ArrayTest {};

TEST_F(SortOrder, MatchesAStableSort) {
    std::mt19937 random(20240601);
    for (int32_t type : {HOST_TYPE_DATETIME, HOST_TYPE_NUMBER, HOST_TYPE_STRING, HOST_TYPE_LONGSTRING}) {
        for (int32_t count : {2, 3, 17, 64, 301}) {
            for (bool descending : {false, true}) {
                const std::string what = "type " + std::to_string(type) + ", " + std::to_string(count) +
                                         " elements, descending " + std::to_string(descending);
                const int32_t low = std::uniform_int_distribution<int32_t>(-50, 50)(random);
                const HostArray array = HostArrayCreate(type);
                HostArraySetBounds(array, low, low + count - 1);
                for (int32_t index = low; index < low + count; ++index) {
                    if (IsString(type)) {
                        HostArraySetString(array, ZkHostStrMake(kWords[random() % std::size(kWords)]), index);
                        continue;
                    }
                    // Dates are day counts with fractions: the same records serve.
                    const HostNumber n = Number(kNumbers[random() % std::size(kNumbers)]);
                    if (type == HOST_TYPE_DATETIME)
                        HostArraySetDateTime(array, &n, index);
                    else
                        HostArraySetNumber(array, &n, index);
                }
                std::vector<Element> expected = ElementsOf(array, type);
                std::stable_sort(expected.begin(), expected.end(),
                                 [&](const Element &a, const Element &b) { return Before(a, b, type, descending); });
                ASSERT_EQ(count, ZelArraySort(array, descending ? 1 : 0, type));
                EXPECT_EQ((Bounds{count, low, low + count - 1}), BoundsOf(array)) << what;
                const std::vector<Element> sorted = ElementsOf(array, type);
                for (size_t i = 0; i < sorted.size(); ++i) {
                    ASSERT_EQ(expected[i].handle, sorted[i].handle) << what << " at " << i;
                    ASSERT_TRUE(SameRecord(expected[i].record, sorted[i].record)) << what << " at " << i;
                }
                if (IsString(type)) {
                    EXPECT_EQ(std::vector<int32_t>(count, 1), RefsOf(HandlesOf(array))) << what;
                }
                HostArrayDestroy(array);
            }
        }
    }
}

} // namespace
