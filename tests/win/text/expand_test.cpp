// ZelStrExpand over host arrays.
#include "text_support.h"

using namespace textwin;

namespace {

class Expand : public HostTest {
protected:
    // Expands and gives back the text; the array is destroyed.
    std::wstring Run(const wchar_t *templateText, HostArray array) {
        const std::wstring text = Take(ZelStrExpand(templateText, array));
        allocBytes = ZkHostLastAllocSize();
        HostArrayDestroy(array);
        return text;
    }
    int32_t allocBytes = 0;
};

// The template's rules are checked on the portable core; here the
// elements come from real host arrays.
TEST_F(Expand, CodesAndGroupsReadTheHostsElements) {
    EXPECT_EQ(L"a7b-2147483648c 50% %n", Run(L"a%nb%nc 50%% %n", NumberArray({7, INT32_MIN})));
    EXPECT_EQ(L"[x|yy] %u", Run(L"[%s|%s] %u", StringArray({L"x", L"yy"})));
    EXPECT_EQ(L"0 1", Run(L"%u %u", NumberArray({5, 6})));
    EXPECT_EQ(L"('a'),('b')a", Run(L"{('%,s')}%s", StringArray({L"a", L"b"})));
}

TEST_F(Expand, EmptyOrNull) {
    EXPECT_EQ(L"ab", Run(L"a{%,n}b", HostArrayCreate(HOST_TYPE_NUMBER)));
    EXPECT_EQ(L"", Run(L"", NumberArray({1})));
    EXPECT_EQ(L"", Take(ZelStrExpand(nullptr, 0)));
}

TEST_F(Expand, BoundsNotZero) {
    // Groups walk the host's indices 1..3; plain codes ask for 0, 1, 2,
    // and the host has nothing at 0.
    EXPECT_EQ(L"1,2,3", Run(L"{%,u}", NumberArray({10, 20, 30}, 1)));
    EXPECT_EQ(L"10,20,30", Run(L"{%,n}", NumberArray({10, 20, 30}, 1)));
    EXPECT_EQ(L"0 10 20", Run(L"%n %n %n", NumberArray({10, 20, 30}, 1)));
    EXPECT_EQ(L"|a|b", Run(L"%s|%s|%s", StringArray({L"a", L"b", L"c"}, 1)));
}

TEST_F(Expand, BufferIsTheEstimate) {
    // length 7 + 1, 12 a number for the first code, the comma, (7 + 12) a repeat.
    EXPECT_EQ(L"x1y,x2y", Run(L"{x%,ny}", NumberArray({1, 2})));
    EXPECT_EQ(2 * (7 + 1 + 24 + 2 + 19 * 2), allocBytes);
    // %s: the lengths of all element strings.
    EXPECT_EQ(L"ab-cde", Run(L"%s-%s", StringArray({L"ab", L"cde"})));
    EXPECT_EQ(2 * (5 + 1 + 5), allocBytes);
}

TEST_F(Expand, TemplateBeyondTheEstimateGrowsTheBuffer) {
    const std::wstring a(60, L'a'), b(70, L'b');
    HostArray array = StringArray({a.c_str(), b.c_str()});
    // The first code is %n: 12 characters an element, but a string follows.
    EXPECT_EQ(L"0" + b, Run(L"%n%s", array));
    EXPECT_EQ(2 * (1 + 70 + 1), allocBytes);
}

} // namespace
