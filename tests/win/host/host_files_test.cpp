// File streams on real files, the wait cursor, named resources and the
// double-byte copy.
#include <cstdio>
#include <string>

#include "../../../host/win/mbcscopy.h"
#include "files_support.h"
#include "host_test_util.h"

using namespace hosttest;

namespace {

// A file in the test's fresh folder.
class HostFiles : public filestest::FolderTest {
protected:
    void SetUp() override {
        FolderTest::SetUp();
        path_ = At(L"host.txt");
    }

    HostFile Open(int32_t flags) {
        HostFile f = nullptr;
        EXPECT_EQ(HostFileOpen(&f, path_.c_str(), flags), 1) << "flags " << flags;
        return f;
    }

    std::string Bytes() {
        HostFile f = Open(OF_READ);
        std::string bytes(256, '\0');
        bytes.resize(size_t(HostFileRead(f, bytes.data(), int32_t(bytes.size()))));
        HostFileClose(f);
        return bytes;
    }

    std::wstring path_;
};

std::string InSystemCodePage(const wchar_t *text) {
    char bytes[64] = {};
    WideCharToMultiByte(CP_ACP, 0, text, -1, bytes, sizeof bytes, nullptr, nullptr);
    return bytes;
}

TEST_F(HostFiles, LinesGoOutInTheSystemCodePageWithCrLfAndComeBack) {
    HostFile f = Open(OF_CREATE | OF_WRITE);
    ASSERT_NE(f, nullptr);
    for (const wchar_t *line : {L"abcdef", L"caf\u00e9", L"", static_cast<const wchar_t *>(nullptr)})
        EXPECT_EQ(HostFileWriteString(f, line), 1);
    EXPECT_EQ(HostFileWrite(f, "unix\nlast", 9), 9);
    EXPECT_EQ(HostFileClose(f), 1);
    EXPECT_EQ(Bytes(), "abcdef\r\n" + InSystemCodePage(L"caf\u00e9") + "\r\n\r\n\r\nunix\nlast");

    f = Open(OF_READ);
    HostStr slot = 0;
    ASSERT_EQ(HostFileReadString(f, &slot, 3), 1);
    EXPECT_EQ(Text(slot), L"abc") << "a limit keeps the start and reads the line whole";
    for (const wchar_t *line : {L"caf\u00e9", L"", L"", L"unix", L"last"}) {
        HostStr before = slot;
        ASSERT_EQ(HostFileReadString(f, &slot, -1), 1) << line;
        EXPECT_EQ(Text(slot), line);
        EXPECT_EQ(ZkHostStrRefs(before), 0) << "the slot let go of the previous line";
    }
    HostStr last = slot;
    EXPECT_EQ(HostFileReadString(f, &slot, -1), 0);
    EXPECT_EQ(slot, last) << "at the end the slot stays as it was";
    HostFileClose(f);
    ZkHostStrRelease(slot);
}

TEST_F(HostFiles, OpenFlagsGiveTheirAccess) {
    HostFile f = reinterpret_cast<HostFile>(1);
    EXPECT_EQ(HostFileOpen(&f, path_.c_str(), OF_EXIST), 0);
    EXPECT_EQ(f, nullptr);
    f = Open(OF_CREATE | OF_WRITE);
    HostFileWrite(f, "0123456789", 10);
    HostFileClose(f);
    f = reinterpret_cast<HostFile>(1);
    EXPECT_EQ(HostFileOpen(&f, path_.c_str(), OF_EXIST), 1);
    EXPECT_EQ(f, nullptr) << "exist asks without a stream";

    f = Open(OF_WRITE);
    EXPECT_EQ(HostFileWrite(f, "ab", 2), 2);
    HostFileClose(f);
    EXPECT_EQ(Bytes(), "ab23456789") << "OF_WRITE keeps the file";

    f = Open(OF_READ);
    EXPECT_EQ(HostFileWrite(f, "zz", 2), 0) << "read access only";
    HostFileClose(f);

    f = Open(OF_READWRITE);
    char two[2] = {};
    EXPECT_EQ(HostFileRead(f, two, 2), 2);
    fseek(f, 0, SEEK_CUR); // a C stream switches from reading to writing through a seek
    EXPECT_EQ(HostFileWrite(f, "XY", 2), 2);
    HostFileClose(f);
    EXPECT_EQ(Bytes(), "abXY456789");

    f = Open(OF_CREATE | OF_READWRITE);
    EXPECT_EQ(HostFileRead(f, two, 2), 0) << "made anew";
    HostFileClose(f);
}

TEST_F(HostFiles, FailuresReportTheSystemError) {
    HostFile f = nullptr;
    SetLastError(0);
    EXPECT_EQ(HostFileOpen(&f, path_.c_str(), OF_READ), 0);
    EXPECT_EQ(GetLastError(), DWORD(ERROR_FILE_NOT_FOUND));
    EXPECT_EQ(f, nullptr);
    std::wstring nowhere = path_ + L".missing\\file.txt";
    EXPECT_EQ(HostFileOpen(&f, nowhere.c_str(), OF_CREATE | OF_WRITE), 0);
    EXPECT_EQ(GetLastError(), DWORD(ERROR_PATH_NOT_FOUND));
    EXPECT_EQ(HostFileOpen(&f, nullptr, OF_READ), 0);
    EXPECT_EQ(GetLastError(), DWORD(ERROR_INVALID_PARAMETER));
    EXPECT_EQ(HostFileOpen(nullptr, path_.c_str(), OF_READ), 0);
    EXPECT_EQ(HostFileClose(nullptr), 0);
    EXPECT_EQ(GetLastError(), DWORD(ERROR_INVALID_HANDLE));
    EXPECT_EQ(HostFileRead(nullptr, &f, 1), 0);
    EXPECT_EQ(HostFileWriteString(nullptr, L"x"), 0);
    HostStr slot = 0;
    EXPECT_EQ(HostFileReadString(nullptr, &slot, -1), 0);
}

class HostMisc : public HostTest {};

TEST_F(HostMisc, WaitCursorNestsAndPutsTheOldCursorBack) {
    HCURSOR arrow = LoadCursorW(nullptr, IDC_ARROW), wait = LoadCursorW(nullptr, IDC_WAIT);
    SetCursor(arrow);
    HostWaitCursor(1);
    HostWaitCursor(1);
    HostWaitCursor(0);
    EXPECT_EQ(GetCursor(), wait) << "still on: one level left";
    HostWaitCursor(0);
    EXPECT_EQ(GetCursor(), arrow);
    HostWaitCursor(0);
    EXPECT_EQ(ZkHostWaitCursorDepth(), 0) << "never below zero";
}

TEST_F(HostMisc, RegisteredResourcesLoadAsStringsOfTheirBytes) {
    const unsigned char blob[] = {1, 2, 3, 4, 5};
    ASSERT_EQ(ZkHostResourceAdd(L"Blob", blob, sizeof blob), 1);
    HostResource r = HostResourceFind(L"BLOB");
    ASSERT_NE(r, 0u) << "names compare without case";
    HostStr bytes = 0;
    ASSERT_EQ(HostResourceLoad(r, &bytes), 1);
    int32_t size = 0;
    auto *p = reinterpret_cast<const char *>(HostStrLock(bytes, &size));
    EXPECT_EQ(size, 8) << "5 bytes to whole characters, and a terminator";
    EXPECT_EQ(std::string(p, 8), std::string("\1\2\3\4\5\0\0\0", 8));
    EXPECT_EQ(HostStrFreeResource(bytes), 1);
    EXPECT_EQ(ZkHostStrRefs(bytes), 0);
    EXPECT_EQ(HostStrFreeResource(bytes), 0);

    ASSERT_EQ(ZkHostResourceAdd(L"blob", L"hi", 4), 1);
    EXPECT_EQ(HostResourceFind(L"Blob"), r) << "replaced under the same handle";
    bytes = 0;
    ASSERT_EQ(HostResourceLoad(r, &bytes), 1);
    EXPECT_EQ(Text(bytes), L"hi");
    HostStrFreeResource(bytes);

    EXPECT_EQ(HostResourceFind(L"NoSuchResource"), 0u);
    EXPECT_EQ(HostResourceFind(nullptr), 0u);
    EXPECT_EQ(HostResourceLoad(r + 1000, &bytes), 0);
    EXPECT_EQ(HostResourceLoad(r, nullptr), 0);
    EXPECT_EQ(ZkHostResourceAdd(L"bad", nullptr, 3), 0);
}

TEST_F(HostMisc, MbcsCopyCutsAtTheLimitAndEnds) {
    char out[16];
    memset(out, '#', sizeof out);
    EXPECT_EQ(HostMbcsCopy(out, "abcdef", 3), 0);
    EXPECT_STREQ(out, "abc");
    EXPECT_EQ(HostMbcsCopy(out, nullptr, 5), 0);
    EXPECT_STREQ(out, "");
}

// The rule checked on Shift-JIS, whatever the system code page of the test.
bool IsShiftJisLead(unsigned char c) { return IsDBCSLeadByteEx(932, c) != FALSE; }

TEST_F(HostMisc, ADoubleByteCharacterIsNeverCutInTwo) {
    const char text[] = "a\x82\xa0"
                        "b\x82\xa2";
    char out[16];
    EXPECT_TRUE(hostwin::CopyWholeCharacters(out, text, 2, IsShiftJisLead));
    EXPECT_STREQ(out, "a");
    EXPECT_FALSE(hostwin::CopyWholeCharacters(out, text, 3, IsShiftJisLead));
    EXPECT_STREQ(out, "a\x82\xa0");
    EXPECT_FALSE(hostwin::CopyWholeCharacters(out, "a\x82", 9, IsShiftJisLead)) << "a lone lead at the end";
    EXPECT_STREQ(out, "a\x82");
}

} // namespace
