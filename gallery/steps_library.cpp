// Version and system queries.
#include <cwctype>

#include "ownedstr.h"
#include "report.h"
#include "steps.h"
#include "zklib.h"

namespace gallery {
namespace {

// "1.2.3": digits in dot-separated groups.
bool LooksLikeVersion(const std::wstring &text) {
    if (text.empty() || !iswdigit(text.front()) || !iswdigit(text.back()))
        return false;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] == L'.' ? (i > 0 && text[i - 1] == L'.') : !iswdigit(text[i]))
            return false;
    }
    return true;
}

} // namespace

void RunLibrarySteps(Report &report) {
    report.Section(L"Library");

    const OwnedStr version(ZelGetVersion());
    report.Check(L"ZelGetVersion()", Quote(version.Text()), LooksLikeVersion(version.Text()),
                 L"a version such as \"1.0.0\"");

    const OwnedStr copyright(ZelGetCopyright());
    report.Check(L"ZelGetCopyright()", Quote(copyright.Text()), !copyright.Text().empty(),
                 L"the legal copyright of ZKLIB.dll");

    // The library reports major + minor / 10 with an integer division.
    HostNumber number = ZelGetWinVersion();
    double value = -1;
    HostNumberToDouble(&number, &value);
    const DWORD platform = GetVersion();
    const int expected = LOBYTE(LOWORD(platform)) + HIBYTE(LOWORD(platform)) / 10;
    wchar_t shown[32];
    swprintf(shown, 32, L"%g", value);
    report.Check(L"ZelGetWinVersion()", shown, value == expected, std::to_wstring(expected));

    report.Number(L"ZelGetWinFlags()", ZelGetWinFlags(), 0);
}

} // namespace gallery
