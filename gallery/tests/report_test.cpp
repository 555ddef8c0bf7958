// Verdicts: counted, and written to the log in the documented form.
#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "log.h"
#include "report.h"

namespace {

std::string Slurp(const std::wstring &path) {
    std::string text;
    HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                              OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return text;
    char buffer[4096];
    DWORD got = 0;
    while (ReadFile(file, buffer, sizeof(buffer), &got, nullptr) && got)
        text.append(buffer, got);
    CloseHandle(file);
    return text;
}

TEST(GalleryReport, CountsVerdictsAndLogsExpectationsOfFailuresOnly) {
    wchar_t folder[MAX_PATH];
    GetTempPathW(MAX_PATH, folder);
    const std::wstring path = std::wstring(folder) + L"zkgallery-report.log";
    {
        gallery::Log log;
        ASSERT_TRUE(log.Open(path));
        gallery::Report report(log, nullptr);
        report.Section(L"Sample");
        EXPECT_TRUE(report.Text(L"same", L"abc", L"abc"));
        EXPECT_FALSE(report.Text(L"differs", L"ab", L"abc  "));
        EXPECT_FALSE(report.Number(L"number", -1, 4));
        EXPECT_TRUE(report.Hex(L"hex", 0x10203, 0x10203));
        EXPECT_FALSE(report.LogCheck(L"quiet", L"x", false));
        EXPECT_EQ(2, report.Passes());
        EXPECT_EQ(3, report.Failures());
    }
    const std::string text = Slurp(path);
    DeleteFileW(path.c_str());
    EXPECT_NE(std::string::npos, text.find("== Sample\n"));
    EXPECT_NE(std::string::npos, text.find("ok    same = \"abc\"\n"));
    EXPECT_NE(std::string::npos, text.find("FAIL  differs = \"ab\"  (expected \"abc  \")\n"));
    EXPECT_NE(std::string::npos, text.find("FAIL  number = -1  (expected 4)\n"));
    EXPECT_NE(std::string::npos, text.find("ok    hex = 0x10203\n"));
    EXPECT_NE(std::string::npos, text.find("FAIL  quiet = x\n"));
}

TEST(GalleryReport, LogWritesUtf8) {
    wchar_t folder[MAX_PATH];
    GetTempPathW(MAX_PATH, folder);
    const std::wstring path = std::wstring(folder) + L"zkgallery-utf8.log";
    {
        gallery::Log log;
        ASSERT_TRUE(log.Open(path));
        log.Line(L"\u00A9 2026");
    }
    EXPECT_EQ("\xC2\xA9 2026\n", Slurp(path));
    DeleteFileW(path.c_str());
}

} // namespace
