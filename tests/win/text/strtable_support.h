// String table files for the tests, written as raw bytes into the file
// tests' fresh folder.
#pragma once

#include "files_support.h"

namespace strtabletest {

using filestest::Take;

// The bytes in the system code page as the loader must read them.
inline std::wstring Ansi(const std::string &bytes) {
    std::wstring out(bytes.size(), L'\0');
    const int n = bytes.empty() ? 0
                                : MultiByteToWideChar(CP_ACP, 0, bytes.data(), static_cast<int>(bytes.size()),
                                                      out.data(), static_cast<int>(out.size()));
    out.resize(n > 0 ? n : 0);
    return out;
}

class TableFiles : public filestest::FolderTest {
protected:
    // Loads the bytes as a table: the handle, or the failure code.
    intptr_t Load(const std::string &bytes) { return ZelStrLoadTable(Make(L"table.txt", bytes).c_str()); }
    // The value of key in a table of the bytes.
    std::wstring ValueIn(const std::string &bytes, const wchar_t *key) {
        const intptr_t table = Load(bytes);
        EXPECT_GT(table, 0);
        const std::wstring value = Take(ZelStrFind(table, key));
        EXPECT_EQ(1, ZelStrFreeTable(table));
        return value;
    }
};

} // namespace strtabletest
