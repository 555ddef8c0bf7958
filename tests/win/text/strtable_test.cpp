// ZelStrLoadTable, ZelStrFind and ZelStrFreeTable on files of every shape,
// written as raw bytes into the file tests' fresh folder.
#include "files_support.h"

using filestest::Take;

namespace {

// The bytes in the system code page as the loader must read them.
std::wstring Ansi(const std::string &bytes) {
    std::wstring out(bytes.size(), L'\0');
    const int n = bytes.empty() ? 0
                                : MultiByteToWideChar(CP_ACP, 0, bytes.data(), static_cast<int>(bytes.size()),
                                                      out.data(), static_cast<int>(out.size()));
    out.resize(n > 0 ? n : 0);
    return out;
}

class StrTable : public filestest::FolderTest {
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

TEST_F(StrTable, KeysFindTheRestOfTheirLine) {
    const intptr_t table = Load("{title}Zelkova Kit\r\n{greeting}Hello, world\r\n{title}second\r\n");
    ASSERT_GT(table, 0);
    EXPECT_EQ(L"Zelkova Kit", Take(ZelStrFind(table, L"title")));
    EXPECT_EQ(L"Hello, world", Take(ZelStrFind(table, L"greeting")));
    EXPECT_EQ(L"", Take(ZelStrFind(table, L"missing")));
    EXPECT_EQ(L"", Take(ZelStrFind(table, L"Title"))) << "keys keep their case";
    EXPECT_EQ(1, ZelStrFreeTable(table));
}

TEST_F(StrTable, TheBlockIsEntriesAndTheEndMark) {
    const std::string bytes = "{a}1\r\n{b}x\ry\nz";
    const intptr_t table = Load(bytes);
    ASSERT_GT(table, 0);
    const HGLOBAL handle = reinterpret_cast<HGLOBAL>(table);
    EXPECT_GE(GlobalSize(handle), bytes.size() * 2 + 4);
    const auto *chars = static_cast<const wchar_t *>(GlobalLock(handle));
    ASSERT_NE(nullptr, chars);
    const std::wstring expected(L"{a}1\0{b}x\ry\nz\0\x1A", 16);
    EXPECT_EQ(expected, std::wstring(chars, expected.size()));
    GlobalUnlock(handle);
    EXPECT_EQ(1, ZelStrFreeTable(table));
}

TEST_F(StrTable, LineEnds) {
    const std::string bytes = "{b}x\ry\r\n{c}p\nq\r\n{d}\r\r\n{z}last";
    EXPECT_EQ(L"x\ry", ValueIn(bytes, L"b")) << "a lone CR or LF stays in the value";
    EXPECT_EQ(L"p\nq", ValueIn(bytes, L"c"));
    EXPECT_EQ(L"\r", ValueIn(bytes, L"d"));
    EXPECT_EQ(L"last", ValueIn(bytes, L"z")) << "the last line needs no line end";
    EXPECT_EQ(L"", ValueIn("", L""));
}

TEST_F(StrTable, TextInTheSystemCodePage) {
    // Bytes above 127 mean what the code page says: "\x80" is the euro sign
    // in 1252, and "\x82\xA0" hiragana a in 932.
    const std::string value = GetACP() == 932 ? "\x82\xA0-\x83\x41" : "caf\xE9 \x80 \xFC";
    const std::wstring expected = GetACP() == 932    ? L"\x3042-\x30A2"
                                  : GetACP() == 1252 ? L"caf\x00E9 \x20AC \x00FC"
                                                     : Ansi(value);
    EXPECT_EQ(expected, ValueIn("{v}" + value + "\r\n", L"v"));
}

TEST_F(StrTable, BytesThatAreNoTextStillLoad) {
    // A lone lead byte before the line end (double-byte code page), bytes no
    // code page maps: converted as the code page does, never refused.
    const std::string odd = GetACP() == 932 ? "\xFD\xFE\x81" : "\x81\x8D\x8F\x90\x9D";
    const std::string bytes = "{first}ok\r\n{odd}" + odd + "\r\n{after}fine";
    const intptr_t table = Load(bytes);
    ASSERT_GT(table, 0);
    EXPECT_EQ(L"ok", Take(ZelStrFind(table, L"first")));
    const std::wstring whole = Ansi(bytes);
    const std::wstring converted = whole.substr(whole.find(L"{odd}") + 5);
    const std::wstring odd16 = Take(ZelStrFind(table, L"odd"));
    EXPECT_EQ(converted.substr(0, converted.find(L"\r\n")), odd16);
    EXPECT_EQ(1, ZelStrFreeTable(table));
}

TEST_F(StrTable, SizeLimit) {
    std::string largest = "{k}v\r\n";
    largest.resize(65533, 'x');
    const intptr_t table = Load(largest);
    ASSERT_GT(table, 0);
    EXPECT_EQ(L"v", Take(ZelStrFind(table, L"k")));
    EXPECT_EQ(1, ZelStrFreeTable(table));
    EXPECT_EQ(-30, Load(std::string(65534, 'x')));
    EXPECT_EQ(-30, Load(std::string(100000, 'x')));
}

TEST_F(StrTable, FoundOnTheSearchPath) {
    Make(L"onpath.tbl", "{where}current directory\r\n");
    EnterFolder();
    const intptr_t table = ZelStrLoadTable(L"onpath.tbl");
    ASSERT_GT(table, 0);
    EXPECT_EQ(L"current directory", Take(ZelStrFind(table, L"where")));
    EXPECT_EQ(1, ZelStrFreeTable(table));
}

TEST_F(StrTable, FailureCodes) {
    EXPECT_EQ(-2, ZelStrLoadTable(At(L"absent.txt").c_str()));
    EXPECT_EQ(-2, ZelStrLoadTable(L"zk-no-such-table.txt"));
    EXPECT_EQ(-2, ZelStrLoadTable(L""));
    EXPECT_EQ(-87, ZelStrLoadTable(nullptr));
    // The folder itself is found but cannot be read as a file.
    EXPECT_EQ(-8, ZelStrLoadTable(dir_.substr(0, dir_.size() - 1).c_str()));
}

TEST_F(StrTable, BadHandlesAndKeys) {
    const intptr_t table = Load("{k}v\r\n");
    ASSERT_GT(table, 0);
    EXPECT_EQ(L"", Take(ZelStrFind(table, nullptr)));
    EXPECT_EQ(L"", Take(ZelStrFind(0, L"k")));
    EXPECT_EQ(1, ZelStrFreeTable(table));
    EXPECT_EQ(L"", Take(ZelStrFind(table, L"k"))) << "a freed table";
    EXPECT_EQ(0, ZelStrFreeTable(table)) << "freed twice";
    EXPECT_EQ(0, ZelStrFreeTable(0));
    EXPECT_EQ(L"", Take(ZelStrFind(12345, L"k")));
}

TEST_F(StrTable, ABlockWithoutEndMarkIsReadInsideItsSize) {
    // A caller's global block that is no table: the scan ends with the block.
    const HGLOBAL block = GlobalAlloc(GHND, 8);
    auto *chars = static_cast<wchar_t *>(GlobalLock(block));
    wmemcpy(chars, L"{k}v", 4);
    GlobalUnlock(block);
    EXPECT_EQ(L"", Take(ZelStrFind(reinterpret_cast<intptr_t>(block), L"k")));
    EXPECT_EQ(1, ZelStrFreeTable(reinterpret_cast<intptr_t>(block)));
}

} // namespace
