// The pattern listings on real folders: which entries each takes, what it
// writes beside the names, the bounds it leaves, and what a failure leaves.
#include "dos_support.h"

using namespace dostest;

namespace {

class Listing : public DosTest {
protected:
    // plain.txt, hid.txt (hidden), sys.txt (system), both.txt (hidden and
    // system), a folder; false when this file system drops the marks.
    bool MakeMarkedFiles() {
        bool kept = MakeFile(At(L"plain.txt"));
        kept &= MakeFile(At(L"hid.txt"), 0, FILE_ATTRIBUTE_HIDDEN);
        kept &= MakeFile(At(L"sys.txt"), 0, FILE_ATTRIBUTE_SYSTEM);
        kept &= MakeFile(At(L"both.txt"), 0, FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
        Folder(L"folder.txt");
        return kept;
    }
    std::wstring Pattern(const wchar_t *mask = L"*") const { return At(mask); }
};

TEST_F(Listing, FoldersOnlyWithoutTheirLinks) {
    Folder(L"alpha");
    Folder(L"beta");
    ASSERT_TRUE(MakeFile(At(L"file.txt")));
    const HostArray names = Array(HOST_TYPE_STRING);
    EXPECT_EQ(2, ZelDosEnumDirs(Pattern().c_str(), names));
    EXPECT_EQ((Texts{L"alpha", L"beta"}), Sorted(TextsOf(names)));
    EXPECT_EQ((Bounds{2, 0, 1}), BoundsOf(names));

    const HostArray infoNames = Array(HOST_TYPE_STRING), dates = Array(HOST_TYPE_DATETIME),
                    attributes = Array(HOST_TYPE_NUMBER);
    EXPECT_EQ(1, ZelDosEnumDirInfo(Pattern(L"b*").c_str(), infoNames, dates, attributes));
    EXPECT_EQ((Texts{L"beta"}), TextsOf(infoNames));
    EXPECT_EQ((Bounds{1, 0, 0}), BoundsOf(dates));
    EXPECT_EQ((Bounds{1, 0, 0}), BoundsOf(attributes));
    EXPECT_EQ(static_cast<int32_t>(GetFileAttributesW(At(L"beta").c_str())),
              LongOf(RecordsOf(attributes, HOST_TYPE_NUMBER)[0]));
    EXPECT_NE(0, RecordsOf(dates, HOST_TYPE_DATETIME)[0].length);
}

TEST_F(Listing, NothingToTakeEmptiesWhateverBoundsTheArraysHad) {
    ASSERT_TRUE(MakeFile(At(L"only.txt")));
    const HostArray names = Keep(StringArray({L"x", L"y", L"z"}, 5));
    EXPECT_EQ(0, ZelDosEnumDirs(Pattern().c_str(), names));
    EXPECT_EQ(0, BoundsOf(names).count);

    // A listing from index 0 whatever the low bound was.
    Folder(L"sub");
    const HostArray again = Keep(StringArray({L"x", L"y", L"z"}, 3));
    EXPECT_EQ(1, ZelDosEnumDirs(Pattern().c_str(), again));
    EXPECT_EQ((Bounds{1, 0, 0}), BoundsOf(again));
    EXPECT_EQ((Texts{L"sub"}), TextsOf(again));
}

TEST_F(Listing, FailuresLeaveEveryArrayAsItWas) {
    const HostArray names = Keep(StringArray({L"keep", L"these"}, 2));
    const HostArray sizes = Array(HOST_TYPE_NUMBER), dates = Array(HOST_TYPE_DATETIME),
                    attributes = Array(HOST_TYPE_NUMBER);
    HostArraySetBounds(sizes, 0, 3);
    const std::wstring longPattern = dir_ + std::wstring(270, L'a') + L"\\*";
    const struct {
        const char *what;
        int32_t result;
        int32_t expected;
    } cases[] = {
        {"no match", ZelDosEnumDirs(Pattern(L"none*").c_str(), names), -2},
        {"missing folder", ZelDosEnumFiles(At(L"missing\\*").c_str(), 0, names), -3},
        {"info, no match", ZelDosEnumFileInfo(Pattern(L"*.none").c_str(), 0, names, sizes, dates, attributes), -2},
        {"dir info, missing folder", ZelDosEnumDirInfo(At(L"missing\\*").c_str(), names, dates, attributes), -3},
        {"null pattern", ZelDosEnumDirs(nullptr, names), ZEL_INVALID_PARAMETER},
        {"null info pattern", ZelDosEnumFileInfo(nullptr, 0, names, sizes, dates, attributes), ZEL_INVALID_PARAMETER},
        {"pattern too long", ZelDosEnumFiles(longPattern.c_str(), 0, names), -206},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(c.expected, c.result);
    }
    // An empty pattern and a root alone match nothing; the code is the platform's.
    EXPECT_LT(ZelDosEnumDirs(L"", names), 0);
    EXPECT_LT(ZelDosEnumFileInfo(L"C:\\", 0, names, sizes, dates, attributes), 0);
    EXPECT_EQ((Texts{L"keep", L"these"}), TextsOf(names));
    EXPECT_EQ((Bounds{2, 2, 3}), BoundsOf(names));
    EXPECT_EQ((Bounds{4, 0, 3}), BoundsOf(sizes));
    EXPECT_EQ(0, BoundsOf(dates).count);
}

TEST_F(Listing, PlainFilesWantAllMaskBitsDetailedFilesAny) {
    if (!MakeMarkedFiles())
        GTEST_SKIP() << "the file system does not keep hidden and system marks";
    const HostArray names = Array(HOST_TYPE_STRING);
    EXPECT_EQ(1, ZelDosEnumFiles(Pattern().c_str(), 0, names));
    EXPECT_EQ((Texts{L"plain.txt"}), TextsOf(names));
    EXPECT_EQ(1, ZelDosEnumFiles(Pattern().c_str(), FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM, names));
    EXPECT_EQ((Texts{L"both.txt"}), TextsOf(names));
    EXPECT_EQ(2, ZelDosEnumFiles(Pattern().c_str(), FILE_ATTRIBUTE_HIDDEN, names));
    EXPECT_EQ((Texts{L"both.txt", L"hid.txt"}), Sorted(TextsOf(names)));

    const HostArray sizes = Array(HOST_TYPE_NUMBER), dates = Array(HOST_TYPE_DATETIME),
                    attributes = Array(HOST_TYPE_NUMBER);
    EXPECT_EQ(4, ZelDosEnumFileInfo(Pattern().c_str(), 0, names, sizes, dates, attributes));
    EXPECT_EQ((Texts{L"both.txt", L"hid.txt", L"plain.txt", L"sys.txt"}), Sorted(TextsOf(names)));
    EXPECT_EQ(3, ZelDosEnumFileInfo(Pattern().c_str(), FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM, names, sizes,
                                    dates, attributes));
    EXPECT_EQ((Texts{L"both.txt", L"hid.txt", L"sys.txt"}), Sorted(TextsOf(names)));
    // The four arrays stay in step, index for index.
    const Texts listed = TextsOf(names);
    const std::vector<HostNumber> marks = RecordsOf(attributes, HOST_TYPE_NUMBER);
    ASSERT_EQ(listed.size(), marks.size());
    for (size_t i = 0; i < listed.size(); ++i)
        EXPECT_EQ(static_cast<int32_t>(GetFileAttributesW(At(listed[i]).c_str())), LongOf(marks[i])) << i;
    // A mask no file has takes nothing, and empties the arrays.
    EXPECT_EQ(0, ZelDosEnumFileInfo(Pattern().c_str(), FILE_ATTRIBUTE_READONLY, names, sizes, dates, attributes));
    EXPECT_EQ(0, BoundsOf(sizes).count);
}

// The creation time set to a local moment. The write time goes with it:
// where the file system keeps no creation time (Wine on most Unix file
// systems), the last write stands in for it.
bool SetCreated(const std::wstring &path, WORD year, WORD month, WORD day, WORD hour, WORD minute, WORD second) {
    SYSTEMTIME local{};
    local.wYear = year, local.wMonth = month, local.wDay = day;
    local.wHour = hour, local.wMinute = minute, local.wSecond = second;
    FILETIME localTime, utc;
    if (!SystemTimeToFileTime(&local, &localTime) || !LocalFileTimeToFileTime(&localTime, &utc))
        return false;
    const HANDLE file = CreateFileW(path.c_str(), FILE_WRITE_ATTRIBUTES, 0, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    const bool ok = file != INVALID_HANDLE_VALUE && SetFileTime(file, &utc, nullptr, &utc);
    if (file != INVALID_HANDLE_VALUE)
        CloseHandle(file);
    return ok;
}

TEST_F(Listing, SizesLow32BitsAndCreationDatesToTwoSeconds) {
    ASSERT_TRUE(MakeFile(At(L"small.bin"), 12345));
    ASSERT_TRUE(MakeFile(At(L"huge.bin"), 0)); // set large below: MakeFile takes 32 bits
    {
        const HANDLE file = CreateFileW(At(L"huge.bin").c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
        LARGE_INTEGER end;
        end.QuadPart = (1ll << 32) + 7;
        ASSERT_TRUE(SetFilePointerEx(file, end, nullptr, FILE_BEGIN) && SetEndOfFile(file));
        CloseHandle(file);
    }
    ASSERT_TRUE(MakeFile(At(L"old.bin")));
    ASSERT_TRUE(SetCreated(At(L"small.bin"), 2021, 7, 4, 10, 20, 31));
    ASSERT_TRUE(SetCreated(At(L"huge.bin"), 2107, 12, 31, 23, 59, 58));
    ASSERT_TRUE(SetCreated(At(L"old.bin"), 1975, 3, 1, 8, 0, 0));
    Folder(L"sub");
    ASSERT_TRUE(SetCreated(At(L"sub"), 1999, 12, 31, 23, 59, 59));

    const HostArray names = Array(HOST_TYPE_STRING), sizes = Array(HOST_TYPE_NUMBER),
                    dates = Array(HOST_TYPE_DATETIME), attributes = Array(HOST_TYPE_NUMBER);
    ASSERT_EQ(3, ZelDosEnumFileInfo(Pattern(L"*.bin").c_str(), 0, names, sizes, dates, attributes));
    const Texts listed = TextsOf(names);
    const std::vector<HostNumber> sizeRecords = RecordsOf(sizes, HOST_TYPE_NUMBER),
                                  dateRecords = RecordsOf(dates, HOST_TYPE_DATETIME);
    for (size_t i = 0; i < listed.size(); ++i) {
        SCOPED_TRACE(std::string(listed[i].begin(), listed[i].end()));
        const HostDateTime &d = dateRecords[i];
        if (listed[i] == L"small.bin") {
            EXPECT_EQ(12345, LongOf(sizeRecords[i]));
            HostDateTime expected{};
            HostDateConstruct(&expected, 2021, 7, 4, 10, 20, 30); // the odd second goes
            EXPECT_TRUE(SameRecord(expected, d));
            EXPECT_EQ(30, HostDateSecond(d));
        } else if (listed[i] == L"huge.bin") {
            EXPECT_EQ(7, LongOf(sizeRecords[i]));
            EXPECT_EQ(2107, HostDateYear(d));
            EXPECT_EQ(58, HostDateSecond(d));
        } else {
            EXPECT_EQ(0, LongOf(sizeRecords[i]));
            EXPECT_EQ(0, d.length) << "a year before 1980 has no DOS form";
        }
    }
    const HostArray dirNames = Array(HOST_TYPE_STRING), dirDates = Array(HOST_TYPE_DATETIME),
                    dirAttributes = Array(HOST_TYPE_NUMBER);
    ASSERT_EQ(1, ZelDosEnumDirInfo(Pattern().c_str(), dirNames, dirDates, dirAttributes));
    const HostDateTime folderDate = RecordsOf(dirDates, HOST_TYPE_DATETIME)[0];
    HostDateTime expected{};
    HostDateConstruct(&expected, 1999, 12, 31, 23, 59, 58);
    EXPECT_TRUE(SameRecord(expected, folderDate));
}

TEST_F(Listing, DrivesOfThisMachine) {
    const HostArray names = Keep(StringArray({L"stale"}, 4));
    const DWORD drives = GetLogicalDrives();
    Texts expected;
    for (int i = 0; i < 26; ++i) {
        if (drives & (1u << i))
            expected.push_back(std::wstring(1, static_cast<wchar_t>(L'A' + i)) + L":\\");
    }
    EXPECT_EQ(static_cast<int32_t>(expected.size()), ZelDosEnumDrives(names));
    EXPECT_EQ(expected, TextsOf(names));
    EXPECT_EQ(0, BoundsOf(names).low);
}

TEST_F(Listing, SearchPathFoldersThatExist) {
    Folder(L"one");
    Folder(L"two");
    ASSERT_TRUE(MakeFile(At(L"file")));
    const std::wstring path = At(L"one") + L";" + At(L"two\\") + L";;" + At(L"file") + L";" + At(L"missing") + L";";
    const HostArray names = Array(HOST_TYPE_STRING);
    {
        const Variable variable(L"PATH", path.c_str());
        EXPECT_EQ(2, ZelDosEnumPath(names));
    }
    EXPECT_EQ((Texts{At(L"one\\"), At(L"two\\")}), TextsOf(names));

    // A PATH longer than the first buffer is read whole.
    std::wstring longPath;
    while (longPath.size() < 600)
        longPath += At(L"missing") + L";";
    longPath += At(L"one");
    {
        const Variable variable(L"PATH", longPath.c_str());
        EXPECT_EQ(1, ZelDosEnumPath(names));
    }
    EXPECT_EQ((Texts{At(L"one\\")}), TextsOf(names));
    {
        const Variable variable(L"PATH", At(L"missing").c_str());
        EXPECT_EQ(0, ZelDosEnumPath(names));
    }
    EXPECT_EQ(0, BoundsOf(names).count);

    const HostArray kept = Keep(StringArray({L"kept"}));
    for (const wchar_t *value : {L"", static_cast<const wchar_t *>(nullptr)}) {
        const Variable variable(L"PATH", value);
        EXPECT_EQ(0, ZelDosEnumPath(kept));
    }
    EXPECT_EQ((Texts{L"kept"}), TextsOf(kept));
}

} // namespace
