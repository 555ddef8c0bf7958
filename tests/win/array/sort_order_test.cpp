// ZelArraySort against the insertion sort it must match, element for
// element, on random data with many ties, both directions, every type
// that sorts; bounds that do not start at 0.
#include <random>

#include "array_support.h"

using namespace arraytest;

namespace {

// The insertion sort written out with host calls: an element moves up
// while it compares greater than the key (less, descending), and every
// string write first takes a reference on the handle it overwrites.
class LiteralSort {
public:
    LiteralSort(HostArray array, int32_t type, bool descending)
        : array_(array), type_(type), descending_(descending) {}

    void Run() {
        const Bounds b = BoundsOf(array_);
        for (int32_t i = b.low + 1; i <= b.high; ++i) {
            const Element key = Read(i);
            int32_t j = i - 1;
            bool moved = false;
            for (; j >= b.low; --j) {
                const Element element = Read(j);
                if (!Moves(element, key))
                    break;
                Write(j + 1, element);
                moved = true;
            }
            if (moved)
                Write(j + 1, key);
        }
    }

private:
    struct Element {
        HostNumber record{};
        HostStr handle = 0;
    };

    bool Strings() const { return type_ == HOST_TYPE_STRING || type_ == HOST_TYPE_LONGSTRING; }

    Element Read(int32_t index) const {
        Element e;
        if (Strings())
            HostArrayGetString(array_, &e.handle, index);
        else if (type_ == HOST_TYPE_DATETIME)
            HostArrayGetDateTime(array_, &e.record, index);
        else
            HostArrayGetNumber(array_, &e.record, index);
        return e;
    }

    void Write(int32_t index, const Element &e) {
        if (Strings()) {
            HostStr standing = 0;
            HostArrayGetString(array_, &standing, index);
            HostStrAddRef(standing);
            HostArraySetString(array_, e.handle, index);
        } else if (type_ == HOST_TYPE_DATETIME) {
            HostArraySetDateTime(array_, &e.record, index);
        } else {
            HostArraySetNumber(array_, &e.record, index);
        }
    }

    bool Moves(const Element &element, const Element &key) const {
        if (Strings()) {
            const int result = CompareStringW(GetThreadLocale(), NORM_IGNORECASE | NORM_IGNOREKANATYPE | NORM_IGNOREWIDTH,
                                              Text(element.handle).c_str(), -1, Text(key.handle).c_str(), -1);
            return result == (descending_ ? CSTR_LESS_THAN : CSTR_GREATER_THAN);
        }
        double e = 0, k = 0;
        HostNumberToDouble(&element.record, &e);
        HostNumberToDouble(&key.record, &k);
        return descending_ ? k > e : e > k;
    }

    HostArray array_;
    int32_t type_;
    bool descending_;
};

// Words whose comparisons tie in many ways: case, width, kana type.
const wchar_t *const kWords[] = {L"apple", L"Apple", L"APPLE", L"banana", L"Banana", L"cherry",
                                 L"\xFF43\xFF48\xFF45\xFF52\xFF52\xFF59", L"", L"a-b", L"ab", L"co-op",
                                 L"coop", L"Zebra", L"zebra", L"\x00E4pple", L"\x3042", L"\x30A2", L"10",
                                 L"9", L"z"};

// Number texts: distinct records that are one double, and repeats.
const wchar_t *const kNumbers[] = {L"1", L"1.0000000000000000000001", L"1.00000000000000000000001", L"-1",
                                   L"0", L"2.5", L"2.50000000000000000001", L"1000000", L"-0.001", L"3"};

class SortOrder : public ArrayTest {
protected:
    // Two arrays with the same elements; strings shared, one reference each.
    void Build(int32_t type, int32_t count, int32_t low, std::mt19937 &random) {
        for (HostArray &twin : twin_) {
            twin = HostArrayCreate(type);
            HostArraySetBounds(twin, low, low - 1);
        }
        const bool strings = type == HOST_TYPE_STRING || type == HOST_TYPE_LONGSTRING;
        for (int32_t k = 0; k < count; ++k) {
            const int32_t index = low + k;
            if (strings) {
                const auto pick = std::uniform_int_distribution<size_t>(0, std::size(kWords) - 1)(random);
                const HostStr s = ZkHostStrMake(kWords[pick]);
                HostStrAddRef(s);
                HostArraySetString(twin_[0], s, index);
                HostArraySetString(twin_[1], s, index);
            } else {
                const auto pick = std::uniform_int_distribution<size_t>(0, std::size(kNumbers) - 1)(random);
                HostNumber n = Number(kNumbers[pick]);
                // Dates are day counts with fractions: the same records serve.
                if (type == HOST_TYPE_DATETIME) {
                    HostArraySetDateTime(twin_[0], &n, index);
                    HostArraySetDateTime(twin_[1], &n, index);
                } else {
                    HostArraySetNumber(twin_[0], &n, index);
                    HostArraySetNumber(twin_[1], &n, index);
                }
            }
        }
    }

    void ExpectSame(int32_t type, const std::string &what) {
        ASSERT_EQ(BoundsOf(twin_[0]), BoundsOf(twin_[1])) << what;
        const Bounds b = BoundsOf(twin_[0]);
        for (int32_t i = b.low; i <= b.high; ++i) {
            if (type == HOST_TYPE_STRING || type == HOST_TYPE_LONGSTRING) {
                HostStr x = 0, y = 0;
                HostArrayGetString(twin_[0], &x, i);
                HostArrayGetString(twin_[1], &y, i);
                ASSERT_EQ(x, y) << what << " at " << i;
            } else {
                HostNumber x{}, y{};
                if (type == HOST_TYPE_DATETIME) {
                    HostArrayGetDateTime(twin_[0], &x, i);
                    HostArrayGetDateTime(twin_[1], &y, i);
                } else {
                    HostArrayGetNumber(twin_[0], &x, i);
                    HostArrayGetNumber(twin_[1], &y, i);
                }
                ASSERT_TRUE(SameRecord(x, y)) << what << " at " << i;
            }
        }
    }

    void Destroy() {
        HostArrayDestroy(twin_[0]);
        HostArrayDestroy(twin_[1]);
    }

    HostArray twin_[2] = {0, 0};
};

TEST_F(SortOrder, MatchesTheInsertionSort) {
    std::mt19937 random(20240601);
    for (int32_t type : {HOST_TYPE_DATETIME, HOST_TYPE_NUMBER, HOST_TYPE_STRING, HOST_TYPE_LONGSTRING}) {
        for (int32_t count : {2, 3, 17, 64, 301}) {
            for (int32_t direction : {0, 1}) {
                const int32_t low = std::uniform_int_distribution<int32_t>(-50, 50)(random);
                Build(type, count, low, random);
                const std::vector<HostStr> handles = HandlesOf(twin_[0]);
                const std::vector<int32_t> refs = RefsOf(handles);
                LiteralSort(twin_[0], type, direction == 1).Run();
                ASSERT_EQ(count, ZelArraySort(twin_[1], direction, type));
                const std::string what = "type " + std::to_string(type) + ", " + std::to_string(count) +
                                         " elements, direction " + std::to_string(direction);
                ExpectSame(type, what);
                EXPECT_EQ(refs, RefsOf(handles)) << what;
                EXPECT_EQ((Bounds{count, low, low + count - 1}), BoundsOf(twin_[1])) << what;
                Destroy();
            }
        }
    }
}

TEST_F(SortOrder, SortedAgainChangesNothing) {
    std::mt19937 random(5);
    Build(HOST_TYPE_STRING, 200, 7, random);
    ASSERT_EQ(200, ZelArraySort(twin_[1], 1, HOST_TYPE_STRING));
    const std::vector<HostStr> once = HandlesOf(twin_[1]);
    ASSERT_EQ(200, ZelArraySort(twin_[1], 1, HOST_TYPE_STRING));
    EXPECT_EQ(once, HandlesOf(twin_[1]));
    Destroy();
}

} // namespace
