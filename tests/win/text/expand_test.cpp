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

TEST_F(Expand, PlainCodes) {
    EXPECT_EQ(L"a7b-3c", Run(L"a%nb%nc", NumberArray({7, -3})));
    EXPECT_EQ(L"[x|yy]", Run(L"[%s|%s]", StringArray({L"x", L"yy"})));
    EXPECT_EQ(L"0 1", Run(L"%u %u", NumberArray({5, 6})));
    EXPECT_EQ(L"50%", Run(L"50%%", NumberArray({1})));
    EXPECT_EQ(L"-2147483648", Run(L"%n", NumberArray({INT32_MIN})));
}

TEST_F(Expand, CodesAfterTheElementsAreText) {
    EXPECT_EQ(L"only%s", Run(L"%s%s", StringArray({L"only"})));
    EXPECT_EQ(L"1 %n %u %x", Run(L"%n %n %u %x", NumberArray({1})));
}

TEST_F(Expand, GroupsRepeatForEveryElement) {
    EXPECT_EQ(L"x1y,x2y", Run(L"{x%,ny}", NumberArray({1, 2})));
    EXPECT_EQ(L"x1yx2y", Run(L"{x%ny}", NumberArray({1, 2})));
    EXPECT_EQ(L"('a'),('b')", Run(L"{('%,s')}", StringArray({L"a", L"b"})));
    EXPECT_EQ(L"<%1%2>", Run(L"<{%%n}>", NumberArray({1, 2})));
    EXPECT_EQ(L"a,ba", Run(L"{%,s}%s", StringArray({L"a", L"b"})));
}

TEST_F(Expand, GroupWithoutCodeIsCopied) {
    EXPECT_EQ(L"{plain}{%d}", Run(L"{plain}{%d}", NumberArray({1})));
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

TEST_F(Expand, UnterminatedBraceIsPlainText) {
    EXPECT_EQ(L"{5", Run(L"{%n", NumberArray({5})));
    EXPECT_EQ(L"{%,n%", Run(L"{%,n%", NumberArray({5})));
    EXPECT_EQ(L"x{", Run(L"x{", NumberArray({5})));
    EXPECT_EQ(L"56{5", Run(L"{%n}{%n", NumberArray({5, 6})));
}

} // namespace
