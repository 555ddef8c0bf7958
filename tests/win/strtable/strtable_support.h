// String table files for the tests: written as raw bytes into a folder of
// their own under the temporary folder, which goes at the end of the test.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "zkhost.h"
#include "zkhostctl.h"
#include "zklib.h"

namespace strtabletest {

// The text of a result the test owns, released after reading.
inline std::wstring Take(HostStr handle) {
    EXPECT_NE(0u, handle) << "string results are never 0";
    int32_t size = 0;
    const wchar_t *text = handle ? HostStrLock(handle, &size) : nullptr;
    std::wstring out = text ? std::wstring(text) : std::wstring();
    ZkHostStrRelease(handle);
    return out;
}

// The bytes in the system code page as the loader must read them.
inline std::wstring Ansi(const std::string &bytes) {
    if (bytes.empty())
        return {};
    std::wstring out(bytes.size(), L'\0');
    const int n = MultiByteToWideChar(CP_ACP, 0, bytes.data(), static_cast<int>(bytes.size()), out.data(),
                                      static_cast<int>(out.size()));
    out.resize(n > 0 ? n : 0);
    return out;
}

class TableFiles : public ::testing::Test {
protected:
    void SetUp() override {
        strings_ = ZkHostLiveStrings();
        wchar_t temp[MAX_PATH];
        ASSERT_NE(0u, GetTempPathW(MAX_PATH, temp));
        static int serial = 0;
        folder_ = std::wstring(temp) + L"zkstrtable" + std::to_wstring(GetCurrentProcessId()) + L"_" +
                  std::to_wstring(++serial);
        ASSERT_TRUE(CreateDirectoryW(folder_.c_str(), nullptr));
    }

    void TearDown() override {
        for (const std::wstring &file : files_)
            DeleteFileW(file.c_str());
        RemoveDirectoryW(folder_.c_str());
        EXPECT_EQ(strings_, ZkHostLiveStrings()) << "host strings left behind";
    }

    // Writes the bytes as a file of the folder; gives its full path.
    std::wstring Write(const std::wstring &name, const std::string &bytes) {
        const std::wstring path = folder_ + L"\\" + name;
        const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                        FILE_ATTRIBUTE_NORMAL, nullptr);
        EXPECT_NE(INVALID_HANDLE_VALUE, file);
        DWORD written = 0;
        if (!bytes.empty())
            WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
        CloseHandle(file);
        files_.push_back(path);
        return path;
    }

    // Loads the bytes as a table: the handle, or the failure code.
    intptr_t Load(const std::string &bytes) { return ZelStrLoadTable(Write(L"table.txt", bytes).c_str()); }

    // The value of key in a table of the bytes.
    std::wstring ValueIn(const std::string &bytes, const wchar_t *key) {
        const intptr_t table = Load(bytes);
        EXPECT_GT(table, 0);
        const std::wstring value = Take(ZelStrFind(table, key));
        EXPECT_EQ(1, ZelStrFreeTable(table));
        return value;
    }

    std::wstring folder_;

private:
    std::vector<std::wstring> files_;
    int32_t strings_ = 0;
};

} // namespace strtabletest
