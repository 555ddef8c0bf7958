// Start-up: the window classes, resources and second loads of the library.
#include <gtest/gtest.h>

#include <windows.h>

#include <string>

#include "zkharness.h"

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

} // namespace
