// Start-up: the window classes, resources and second loads of the library;
// version and system queries through the exports.
#include <gtest/gtest.h>

#include <windows.h>

#include <string>
#include <vector>

#include "files_support.h"
#include "zkharness.h"
#include "zklib.h"

namespace {

HINSTANCE Library() { return GetModuleHandleW(L"ZKLIB.dll"); }

struct ExpectedClass {
    const wchar_t *name;
    UINT style;
    int extraBytes;
    bool arrowCursor;
};

const ExpectedClass kStartUpClasses[] = {
    {L"ZK:cCalendar:10", 0x6880, 0, true},
    {L"ZK:cComboCal:10", 0x6888, 0, true},
    {L"ZK:cPalette:10", 0x6080, 0, true},
    {L"ZK:cComboPal:10", 0x6888, 0, true},
    {L"ZK:cSplitter:10", 0x400B, 0, false},
    {L"ZK:cListView:10", 0x4088, 0, true},
    {L"ZK:cListViewDropDown:10", 0x4088, 0, true},
    {L"ZK:cSpinField:10", 0x4008, 4, true},
    {L"ZK:cMeter:10", 0x4000, 4, true},
};

void ExpectStartUpClasses(HINSTANCE owner) {
    for (const ExpectedClass &expected : kStartUpClasses) {
        SCOPED_TRACE(testing::Message() << std::string(expected.name, expected.name + lstrlenW(expected.name)));
        WNDCLASSEXW wc{};
        wc.cbSize = sizeof wc;
        ASSERT_TRUE(GetClassInfoExW(owner, expected.name, &wc));
        EXPECT_EQ(wc.style, expected.style);
        EXPECT_EQ(wc.cbWndExtra, expected.extraBytes);
        EXPECT_EQ(wc.cbClsExtra, 0);
        EXPECT_EQ(wc.hIcon, nullptr);
        EXPECT_EQ(wc.hbrBackground, nullptr);
        EXPECT_EQ(wc.lpszMenuName, nullptr);
        if (expected.arrowCursor)
            EXPECT_EQ(wc.hCursor, LoadCursorW(nullptr, IDC_ARROW));
        else
            EXPECT_EQ(wc.hCursor, nullptr);
    }
}

TEST(Registry, StartUpClassesCarryTheirStylesExtraBytesAndCursors) { ExpectStartUpClasses(Library()); }

TEST(Registry, InnerClassesWaitForTheirFirstWindow) {
    for (const wchar_t *name : {L"ZK:Calendar:10", L"ZK:CmbBtn:10", L"ZK:EditColor:10", L"ZK:ColorPalette:10",
                                L"ZK:Splitter:10", L"Zel:MouseCapture"}) {
        WNDCLASSW wc{};
        EXPECT_FALSE(GetClassInfoW(Library(), name, &wc));
    }
}

TEST(Registry, ASecondCopyOfTheLibraryFindsTheClassesAndLoads) {
    wchar_t original[MAX_PATH], temp[MAX_PATH], copy[MAX_PATH];
    GetModuleFileNameW(Library(), original, MAX_PATH);
    GetTempPathW(MAX_PATH, temp);
    wsprintfW(copy, L"%sZKLIB-second-%lu.dll", temp, GetCurrentProcessId());
    ASSERT_TRUE(CopyFileW(original, copy, FALSE));
    HMODULE second = LoadLibraryW(copy);
    ASSERT_NE(second, nullptr) << GetLastError();
    EXPECT_NE(second, Library());
    // The global classes belong to the first copy and answer for the second.
    ExpectStartUpClasses(second);
    FreeLibrary(second);
    DeleteFileW(copy);
    // Unloading the second copy leaves the first one's classes in place.
    ExpectStartUpClasses(Library());
}

TEST(Registry, PaletteBitmapsAndTheIconAreResources) {
    for (const wchar_t *name : {L"ZK_LOGO", L"ZK_CAL", L"ZK_CALDROPDOWN", L"ZK_CLRPAL", L"ZK_CLRPALDROPDOWN",
                                L"ZK_LISTVW", L"ZK_LISTVWDROPDOWN", L"ZK_METER", L"ZK_SPINFLD"}) {
        HBITMAP bitmap = LoadBitmapW(Library(), name);
        ASSERT_NE(bitmap, nullptr);
        BITMAP info{};
        GetObjectW(bitmap, sizeof info, &info);
        EXPECT_EQ(info.bmWidth, 24);
        EXPECT_EQ(info.bmHeight, 24);
        DeleteObject(bitmap);
    }
    HICON icon = LoadIconW(Library(), L"ZK");
    EXPECT_NE(icon, nullptr);
}

TEST(Registry, StringTableHoldsTheVersionPaths) {
    const wchar_t *expected[] = {L"\\StringFileInfo\\040904E4\\FileVersion",
                                 L"\\StringFileInfo\\040904E4\\LegalCopyright", L" Properties...",
                                 L"\\StringFileInfo\\040904E4\\ProductVersion"};
    for (UINT id = 1; id <= 4; ++id) {
        wchar_t text[100] = {};
        LoadStringW(Library(), id, text, 100);
        EXPECT_STREQ(text, expected[id - 1]);
    }
}

using filestest::Take;

std::wstring VersionValue(const wchar_t *name) {
    wchar_t file[MAX_PATH];
    GetModuleFileNameW(GetModuleHandleW(L"ZKLIB.dll"), file, MAX_PATH);
    DWORD unused = 0;
    std::vector<char> block(GetFileVersionInfoSizeW(file, &unused));
    if (block.empty() || !GetFileVersionInfoW(file, 0, static_cast<DWORD>(block.size()), block.data()))
        return L"";
    void *value = nullptr;
    UINT length = 0;
    std::wstring path = std::wstring(L"\\StringFileInfo\\040904E4\\") + name;
    if (!VerQueryValueW(block.data(), path.c_str(), &value, &length))
        return L"";
    return static_cast<const wchar_t *>(value);
}

TEST(Version, ProductVersionAndCopyrightComeFromTheVersionBlock) {
    const int live = ZkHostLiveStrings();
    const std::wstring version = Take(ZelGetVersion());
    const std::wstring copyright = Take(ZelGetCopyright());
    EXPECT_FALSE(version.empty());
    EXPECT_EQ(version, VersionValue(L"ProductVersion"));
    EXPECT_EQ(copyright, VersionValue(L"LegalCopyright"));
    EXPECT_NE(copyright.find(L"Zelkova Kit"), std::wstring::npos);
    EXPECT_EQ(ZkHostLiveStrings(), live);
}

TEST(Version, WindowsVersionKeepsTheIntegerDivisionOfTheMinorVersion) {
    const DWORD raw = GetVersion();
    const int major = LOBYTE(LOWORD(raw)), minor = HIBYTE(LOWORD(raw));
    HostNumber number = ZelGetWinVersion();
    double value = -1;
    ASSERT_TRUE(HostNumberToDouble(&number, &value));
    EXPECT_EQ(value, static_cast<double>(major + minor / 10));
    if (minor < 10) {
        EXPECT_EQ(value, static_cast<double>(major)) << "minor versions below 10 add nothing";
    }
}

TEST(SystemQueries, KeyStateIsSignExtendedFromSixteenBits) {
    BYTE saved[256], keys[256];
    GetKeyboardState(saved);
    std::copy(saved, saved + 256, keys);
    keys[VK_SHIFT] = 0x80;
    keys[VK_CAPITAL] = 0x01;
    keys['Q'] = 0;
    SetKeyboardState(keys);
    EXPECT_LT(ZelGetKeyState(VK_SHIFT), 0) << "a pressed key sets the sign of the 16-bit state";
    EXPECT_EQ(ZelGetKeyState(VK_SHIFT), static_cast<int16_t>(GetKeyState(VK_SHIFT)));
    EXPECT_EQ(ZelGetKeyState(VK_CAPITAL), 1);
    EXPECT_EQ(ZelGetKeyState('Q'), 0);
    SetKeyboardState(saved);
}

TEST(SystemQueries, SendMsgStringPassesTheTextAsLParam) {
    zkt::TestWindow form;
    HWND edit = form.AddEdit(10, {5, 5, 200, 24});
    EXPECT_EQ(ZelSendMsgString(edit, WM_SETTEXT, 0, L"from the host"), TRUE);
    wchar_t text[64] = {};
    GetWindowTextW(edit, text, 64);
    EXPECT_STREQ(text, L"from the host");
    EXPECT_EQ(ZelSendMsgString(nullptr, WM_SETTEXT, 0, L"x"), 0);
}

} // namespace
