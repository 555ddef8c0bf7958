// Version and system queries through the exports.
#include <gtest/gtest.h>

#include <windows.h>

#include <string>
#include <vector>

#include "zkharness.h"
#include "zkhost.h"
#include "zkhostctl.h"
#include "zklib.h"

namespace {

// The text of a host string the test owns, which it then releases.
std::wstring Take(HostStr handle) {
    int32_t size = 0;
    const wchar_t *text = HostStrLock(handle, &size);
    std::wstring result = text ? text : L"";
    ZkHostStrRelease(handle);
    return result;
}

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
