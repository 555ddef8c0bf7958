// Attributes, sizes, types and dates of files; ZelFileCreateTemp and
// ZelFileFind, names as host strings.
#include <cstdio>

#include "os_support.h"

using namespace filestest;
using ostest::Date;

namespace {

class FileInfo : public FolderTest {};

TEST_F(FileInfo, AttributesReadAndChangedByPattern) {
    const std::wstring a = Make(L"a.txt", "a"), b = Make(L"b.txt", "b"), d = Folder(L"d.txt");
    EXPECT_EQ(0, ZelFileGetAttribute(a.c_str()) & FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(FILE_ATTRIBUTE_DIRECTORY, ZelFileGetAttribute(d.c_str()) & FILE_ATTRIBUTE_DIRECTORY);
    // Folders that match count and change too.
    EXPECT_EQ(3, ZelFileSetAttribute(At(L"*.txt").c_str(), FILE_ATTRIBUTE_READONLY, 1));
    EXPECT_TRUE(ZelFileGetAttribute(a.c_str()) & FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(1, ZelFileSetAttribute(b.c_str(), FILE_ATTRIBUTE_READONLY, 0));
    EXPECT_FALSE(ZelFileGetAttribute(b.c_str()) & FILE_ATTRIBUTE_READONLY);
    EXPECT_TRUE(ZelFileGetAttribute(a.c_str()) & FILE_ATTRIBUTE_READONLY);
    // The pattern's folder itself is not a match: "." and ".." are left alone.
    EXPECT_EQ(3, ZelFileSetAttribute(At(L"*").c_str(), FILE_ATTRIBUTE_READONLY, 0));
    EXPECT_FALSE(Attributes(dir_) & FILE_ATTRIBUTE_READONLY);

    EXPECT_EQ(ZEL_INVALID_PARAMETER, ZelFileGetAttribute(nullptr));
    EXPECT_EQ(Err(ERROR_FILE_NOT_FOUND), ZelFileGetAttribute(At(L"none").c_str()));
    EXPECT_EQ(ZEL_INVALID_PARAMETER, ZelFileSetAttribute(nullptr, FILE_ATTRIBUTE_READONLY, 1));
    EXPECT_EQ(Err(ERROR_FILE_NOT_FOUND), ZelFileSetAttribute(At(L"*.none").c_str(), FILE_ATTRIBUTE_READONLY, 1));
}

TEST_F(FileInfo, SizeIsTheLow32Bits) {
    EXPECT_EQ(12345, ZelFileGetSize(Make(L"s.bin", SampleBytes(12345, 1)).c_str()));
    EXPECT_EQ(0, ZelFileGetSize(Make(L"empty", "").c_str()));
    ASSERT_TRUE(MakeSparse(At(L"big.bin"), (1ull << 32) + 5));
    EXPECT_EQ(5, ZelFileGetSize(At(L"big.bin").c_str()));
    ASSERT_TRUE(MakeSparse(At(L"half.bin"), 0x80000010ull));
    EXPECT_EQ(static_cast<int32_t>(0x80000010u), ZelFileGetSize(At(L"half.bin").c_str()));
    EXPECT_EQ(ZEL_INVALID_PARAMETER, ZelFileGetSize(At(L"*.bin").c_str()));
    EXPECT_EQ(ZEL_INVALID_PARAMETER, ZelFileGetSize(nullptr));
    EXPECT_EQ(Err(ERROR_FILE_NOT_FOUND), ZelFileGetSize(At(L"none").c_str()));
}

// The "Programs" entry of the system profile, set for one test and put back.
class ProgramsEntry {
public:
    explicit ProgramsEntry(const wchar_t *value) {
        GetProfileStringW(L"Windows", L"Programs", L"\x1", saved_, 255);
        WriteProfileStringW(L"Windows", L"Programs", value);
    }
    ~ProgramsEntry() { WriteProfileStringW(L"Windows", L"Programs", saved_[0] == 1 ? nullptr : saved_); }

private:
    wchar_t saved_[256] = {};
};

// An extension opened by the system's text editor, for one test.
class Association {
public:
    explicit Association(const wchar_t *extension) : extension_(extension) {
        static const wchar_t open[] = L"notepad.exe \"%1\"";
        RegSetKeyValueW(HKEY_CLASSES_ROOT, extension, nullptr, REG_SZ, kClass, sizeof kClass);
        RegSetKeyValueW(HKEY_CLASSES_ROOT, L"ZkTest.Associated\\shell\\open\\command", nullptr, REG_SZ, open,
                        sizeof open);
    }
    ~Association() {
        RegDeleteTreeW(HKEY_CLASSES_ROOT, extension_);
        RegDeleteTreeW(HKEY_CLASSES_ROOT, kClass);
    }

private:
    static constexpr wchar_t kClass[] = L"ZkTest.Associated";
    const wchar_t *extension_;
};

TEST_F(FileInfo, TypeOfFiles) {
    const ProgramsEntry programs(L"com exe bat pif zkp");
    EXPECT_EQ(ZEL_FILETYPE_PROGRAM, ZelFileGetType(Make(L"tool.zkp", "p").c_str()));
    EXPECT_EQ(ZEL_FILETYPE_PROGRAM, ZelFileGetType(Make(L"tool.ZK", "p").c_str())); // "ZK" occurs in "ZKP"
    EXPECT_EQ(ZEL_FILETYPE_OTHER, ZelFileGetType(Make(L"data.zzq", "d").c_str()));
    // The first dot counts: the extension of this one is "b.zkp", no
    // program. (The platform, which reads the last dot, runs it as one.)
    EXPECT_EQ(ZEL_FILETYPE_ASSOCIATED, ZelFileGetType(Make(L"a.b.zkp", "d").c_str()));
    {
        const Association association(L".zkassoc");
        EXPECT_EQ(ZEL_FILETYPE_ASSOCIATED, ZelFileGetType(Make(L"notes.zkassoc", "n").c_str()));
    }
    EXPECT_EQ(ZEL_FILETYPE_OTHER, ZelFileGetType(At(L"notes.zkassoc").c_str()));
    const std::wstring hidden = Make(L"tool2.zkp", "h");
    ASSERT_TRUE(SetFileAttributesW(hidden.c_str(), FILE_ATTRIBUTE_SYSTEM));
    if (Attributes(hidden) & FILE_ATTRIBUTE_SYSTEM) {
        EXPECT_EQ(ZEL_FILETYPE_HIDDEN, ZelFileGetType(hidden.c_str()));
    }
    EXPECT_EQ(Err(ERROR_FILE_NOT_FOUND), ZelFileGetType(At(L"none.txt").c_str()));
    EXPECT_EQ(ZEL_INVALID_PARAMETER, ZelFileGetType(nullptr));
}

// The file's last write time as local "Y-M-D h:m:s".
std::string Local(const std::wstring &path) {
    const FILETIME utc = WriteTime(path);
    FILETIME local{};
    SYSTEMTIME t{};
    FileTimeToLocalFileTime(&utc, &local);
    FileTimeToSystemTime(&local, &t);
    char text[40];
    std::snprintf(text, sizeof text, "%d-%d-%d %d:%d:%d", t.wYear, t.wMonth, t.wDay, t.wHour, t.wMinute, t.wSecond);
    return text;
}

TEST_F(FileInfo, DateTimeToTwoSecondsOnEveryFile) {
    const std::wstring a = Make(L"a.log", "a"), b = Make(L"b.log", "b");
    Folder(L"c.log");
    EXPECT_EQ(2, ZelFileSetDateTime(At(L"*.log").c_str(), Date(2021, 7, 4, 10, 20, 31)));
    EXPECT_EQ("2021-7-4 10:20:30", Local(a));
    EXPECT_EQ("2021-7-4 10:20:30", Local(b));
    WIN32_FILE_ATTRIBUTE_DATA data{};
    ASSERT_TRUE(GetFileAttributesExW(a.c_str(), GetFileExInfoStandard, &data));
    EXPECT_EQ(0, CompareFileTime(&data.ftLastWriteTime, &data.ftLastAccessTime));
    const struct {
        HostDateTime date;
        const char *written;
    } cases[] = {
        {Date(1980, 1, 1, 0, 0, 0), "1980-1-1 0:0:0"},
        {Date(2107, 12, 31, 23, 59, 59), "2107-12-31 23:59:58"},
        // Years before 1980 have no DOS form and come out 128 years late.
        {Date(1970, 6, 15, 12, 0, 0), "2098-6-15 12:0:0"},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(1, ZelFileSetDateTime(a.c_str(), c.date));
        EXPECT_EQ(c.written, Local(a));
    }
}

TEST_F(FileInfo, DateTimeFailures) {
    const HostDateTime date = Date(2020, 1, 2, 3, 4, 6);
    EXPECT_EQ(ZEL_INVALID_PARAMETER, ZelFileSetDateTime(nullptr, date));
    EXPECT_EQ(Err(ERROR_FILE_NOT_FOUND), ZelFileSetDateTime(At(L"*.none").c_str(), date));
    const std::wstring busy = Make(L"busy.log", "r");
    {
        const Held held(busy);
        ASSERT_TRUE(held.Holds());
        EXPECT_EQ(Err(ERROR_SHARING_VIOLATION), ZelFileSetDateTime(busy.c_str(), date));
    }
    // A null date has month and day 0, which the platform refuses.
    const std::string before = Local(busy);
    EXPECT_LT(ZelFileSetDateTime(busy.c_str(), HostDateTime{}), 0);
    EXPECT_EQ(before, Local(busy));
}

class FileNames : public FolderTest {};

TEST_F(FileNames, TemporaryFileIsMadeWithATildeName) {
    wchar_t temp[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, temp);
    const std::wstring first = Take(ZelFileCreateTemp(L"zkt"));
    const std::wstring second = Take(ZelFileCreateTemp(L"zkt"));
    for (const std::wstring &name : {first, second}) {
        EXPECT_EQ(0u, name.find(temp)) << "in the temporary folder";
        EXPECT_EQ(std::wstring(temp).size(), name.find(L"~zkt"));
        EXPECT_TRUE(Exists(name)) << "the file is made";
        EXPECT_EQ(0, ZelFileGetSize(name.c_str()));
        EXPECT_FALSE(Exists(name.substr(0, name.find(L'~')) + name.substr(name.find(L'~') + 1)))
            << "only the renamed file remains";
    }
    EXPECT_NE(first, second);
    DeleteFileW(first.c_str());
    DeleteFileW(second.c_str());
    EXPECT_EQ(L"", Take(ZelFileCreateTemp(nullptr)));
}

TEST_F(FileNames, FindSearchesTheSearchPath) {
    Make(L"here.txt", "x");
    EnterFolder();
    EXPECT_EQ(At(L"here.txt"), Take(ZelFileFind(L"here.txt")));
    wchar_t system[MAX_PATH] = {};
    GetSystemDirectoryW(system, MAX_PATH);
    const std::wstring kernel = Take(ZelFileFind(L"kernel32.dll"));
    EXPECT_EQ(0, lstrcmpiW((std::wstring(system) + L"\\kernel32.dll").c_str(), kernel.c_str())) << kernel;
    EXPECT_EQ(L"", Take(ZelFileFind(L"no-such-file.zzq")));
    EXPECT_EQ(L"", Take(ZelFileFind(L"")));
    EXPECT_EQ(L"", Take(ZelFileFind(nullptr)));
}

} // namespace
