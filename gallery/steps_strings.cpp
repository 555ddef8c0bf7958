// String functions, each on a sample whose answer is known.
#include "ownedstr.h"
#include "report.h"
#include "steps.h"
#include "zklib.h"

#include <initializer_list>

namespace gallery {
namespace {

void Expect(Report &report, const std::wstring &label, HostStr result, const std::wstring &expected) {
    const OwnedStr owned(result);
    if (!owned.Valid()) {
        report.Check(label, L"(no string)", false, Quote(expected));
        return;
    }
    report.Text(label, owned.Text(), expected);
}

// A temporary host array of strings; each written handle gives the array
// the one reference ZkHostStrMake made.
HostArray StringArray(std::initializer_list<const wchar_t *> texts) {
    const HostArray array = HostArrayCreate(HOST_TYPE_STRING);
    int32_t index = 0;
    for (const wchar_t *text : texts)
        HostArraySetString(array, ZkHostStrMake(text), index++);
    return array;
}

HostArray NumberArray(std::initializer_list<int32_t> values) {
    const HostArray array = HostArrayCreate(HOST_TYPE_NUMBER);
    int32_t index = 0;
    for (int32_t value : values) {
        HostNumber number{};
        HostNumberFromLong(value, &number);
        HostArraySetNumber(array, &number, index++);
    }
    return array;
}

void Trimming(Report &report) {
    Expect(report, L"ZelStrTrim(\"   Zelkova Kit   \")", ZelStrTrim(L"   Zelkova Kit   "), L"Zelkova Kit");
    Expect(report, L"ZelStrLeftTrim(\"  left  \")", ZelStrLeftTrim(L"  left  "), L"left  ");
    Expect(report, L"ZelStrRightTrim(\"  right  \")", ZelStrRightTrim(L"  right  "), L"  right");
    Expect(report, L"ZelStrTrim(\"\\t \\r\\n\")", ZelStrTrim(L"\t \r\n"), L"");
}

void Padding(Report &report) {
    Expect(report, L"ZelStrPad(\"abc\", 5)", ZelStrPad(L"abc", 5), L"abc  ");
    Expect(report, L"ZelStrPad(\"abcdef\", 3)", ZelStrPad(L"abcdef", 3), L"abc");
    Expect(report, L"ZelStrPadB(\"abc\", 6)", ZelStrPadB(L"abc", 6), L"abc   ");
    Expect(report, L"ZelStrPadB(\"Zelkova\", 4)", ZelStrPadB(L"Zelkova", 4), L"Zelk");
}

void Words(Report &report) {
    Expect(report, L"ZelStrProper(\"o'brien macdonald\")", ZelStrProper(L"o'brien macdonald"), L"O'Brien MacDonald");
    Expect(report, L"ZelStrSubstitute(\"a cat sat\", \"at\", \"og\")", ZelStrSubstitute(L"a cat sat", L"at", L"og"),
           L"a cog sog");
    Expect(report, L"ZelStrSubstitute(\"aaa\", \"aa\", \"b\")", ZelStrSubstitute(L"aaa", L"aa", L"b"), L"ba");
}

void ReverseScan(Report &report) {
    report.Number(L"ZelStrScanReverse(\"abcabc\", -1, \"BC\")", ZelStrScanReverse(L"abcabc", -1, L"BC"), 4);
    report.Number(L"ZelStrScanReverse(\"abcabc\", 3, \"bc\")", ZelStrScanReverse(L"abcabc", 3, L"bc"), 1);
    report.Number(L"ZelStrScanReverse(\"abcabc\", 6, \"bc\")", ZelStrScanReverse(L"abcabc", 6, L"bc"), -1);
}

void Choosing(Report &report) {
    const OwnedStr first(ZkHostStrMake(L"first"));
    const OwnedStr second(ZkHostStrMake(L"second"));
    const OwnedStr chosen(ZelStrChoose(1, first.Get(), second.Get()));
    // The chosen handle comes back with a reference of its own.
    const bool same = chosen.Get() == first.Get();
    const int32_t refs = ZkHostStrRefs(first.Get());
    report.Check(L"ZelStrChoose(1, \"first\", \"second\")", Quote(chosen.Text()) + L", refs " + std::to_wstring(refs),
                 same && refs == 2 && ZkHostStrRefs(second.Get()) == 1, L"\"first\", refs 2");
}

void Expanding(Report &report) {
    const HostArray colours = StringArray({L"red", L"green", L"blue"});
    Expect(report, L"ZelStrExpand(\"{[%,s]}\", colours)", ZelStrExpand(L"{[%,s]}", colours), L"[red],[green],[blue]");
    Expect(report, L"ZelStrExpand(\"%s and %s, 100%%\", colours)", ZelStrExpand(L"%s and %s, 100%%", colours),
           L"red and green, 100%");
    HostArrayDestroy(colours);

    const HostArray numbers = NumberArray({1, 2});
    Expect(report, L"ZelStrExpand(\"{x%,ny}\", {1, 2})", ZelStrExpand(L"{x%,ny}", numbers), L"x1y,x2y");
    Expect(report, L"ZelStrExpand(\"{x%ny}\", {1, 2})", ZelStrExpand(L"{x%ny}", numbers), L"x1yx2y");
    HostArrayDestroy(numbers);
}

} // namespace

void RunStringSteps(Report &report) {
    report.Section(L"String functions");
    Trimming(report);
    Padding(report);
    Words(report);
    ReverseScan(report);
    Choosing(report);
    Expanding(report);
}

} // namespace gallery
