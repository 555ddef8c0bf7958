// The pattern listings on real folders: which entries each takes, what it
// writes beside the names, the bounds it leaves, and what a failure leaves.
#include "os_support.h"

using namespace ostest;

namespace {

class Listing : public OsTest {
protected:
    // plain.txt, hid.txt (hidden), sys.txt (system), both.txt (hidden and
    // system), a folder; false when this file system drops the marks.
    bool MakeMarkedFiles() {
        bool kept = MakeFile(At(L"plain.txt"));
        kept &= MakeFile(At(L"hid.txt"), FILE_ATTRIBUTE_HIDDEN);
        kept &= MakeFile(At(L"sys.txt"), FILE_ATTRIBUTE_SYSTEM);
        kept &= MakeFile(At(L"both.txt"), FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
        Folder(L"folder.txt");
        return kept;
    }
    std::wstring Pattern(const wchar_t *mask = L"*") const { return At(mask); }
    // Index for index, the attributes listed are the entries'.
    void ExpectMarksOf(HostArray names, HostArray attributes) {
        const Texts listed = TextsOf(names);
        const std::vector<HostNumber> marks = RecordsOf(attributes, HOST_TYPE_NUMBER);
        ASSERT_EQ(listed.size(), marks.size());
        for (size_t i = 0; i < listed.size(); ++i)
            EXPECT_EQ(static_cast<int32_t>(GetFileAttributesW(At(listed[i]).c_str())), LongOf(marks[i])) << i;
    }
};

TEST_F(Listing, FoldersOnlyWithoutTheirLinksFromIndexZero) {
    Folder(L"alpha");
    Folder(L"beta");
    Make(L"file.txt", "");
    const HostArray names = Keep(Strings({L"x", L"y", L"z"}, 5));
    EXPECT_EQ(0, ZelDosEnumDirs(Pattern(L"*.txt").c_str(), names)) << "nothing to take empties the array";
    EXPECT_EQ(0, BoundsOf(names).count);
    HostArraySetBounds(names, 3, 5);
    EXPECT_EQ(2, ZelDosEnumDirs(Pattern().c_str(), names));
    EXPECT_EQ((Texts{L"alpha", L"beta"}), Sorted(TextsOf(names)));
    EXPECT_EQ((Bounds{2, 0, 1}), BoundsOf(names));

    const HostArray infoNames = Array(HOST_TYPE_STRING), dates = Array(HOST_TYPE_DATETIME),
                    attributes = Array(HOST_TYPE_NUMBER);
    EXPECT_EQ(1, ZelDosEnumDirInfo(Pattern(L"b*").c_str(), infoNames, dates, attributes));
    EXPECT_EQ((Texts{L"beta"}), TextsOf(infoNames));
    EXPECT_EQ((Bounds{1, 0, 0}), BoundsOf(dates));
    ExpectMarksOf(infoNames, attributes);
    EXPECT_NE(0, RecordsOf(dates, HOST_TYPE_DATETIME)[0].length);
}

TEST_F(Listing, FailuresLeaveEveryArrayAsItWas) {
    const HostArray names = Keep(Strings({L"keep", L"these"}, 2));
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
    ExpectMarksOf(names, attributes);
    // A mask no file has takes nothing, and empties the arrays.
    EXPECT_EQ(0, ZelDosEnumFileInfo(Pattern().c_str(), FILE_ATTRIBUTE_READONLY, names, sizes, dates, attributes));
    EXPECT_EQ(0, BoundsOf(sizes).count);
}

// The creation time (and the write time, which stands in for it where the
// file system keeps none) set to a local moment.
bool SetCreated(const std::wstring &path, WORD year, WORD month, WORD day, WORD hour, WORD minute, WORD second) {
    SYSTEMTIME local{year, month, 0, day, hour, minute, second, 0};
    FILETIME localTime, utc;
    if (!SystemTimeToFileTime(&local, &localTime) || !LocalFileTimeToFileTime(&localTime, &utc))
        return false;
    const HANDLE file = CreateFileW(path.c_str(), FILE_WRITE_ATTRIBUTES, 0, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    const bool ok = file != INVALID_HANDLE_VALUE && SetFileTime(file, &utc, nullptr, &utc);
    CloseHandle(file);
    return ok;
}

TEST_F(Listing, SizesLow32BitsAndCreationDatesToTwoSeconds) {
    ASSERT_TRUE(filestest::MakeSparse(At(L"small.bin"), 12345));
    ASSERT_TRUE(filestest::MakeSparse(At(L"huge.bin"), (1ull << 32) + 7));
    Make(L"old.bin", "");
    Folder(L"sub");
    ASSERT_TRUE(SetCreated(At(L"small.bin"), 2021, 7, 4, 10, 20, 31));
    ASSERT_TRUE(SetCreated(At(L"huge.bin"), 2107, 12, 31, 23, 59, 58));
    ASSERT_TRUE(SetCreated(At(L"old.bin"), 1975, 3, 1, 8, 0, 0));
    ASSERT_TRUE(SetCreated(At(L"sub"), 1999, 12, 31, 23, 59, 59));
    const struct {
        int32_t size;
        HostDateTime date; // the odd second goes; before 1980 there is no DOS form
    } expected[] = {{7, Date(2107, 12, 31, 23, 59, 58)}, {0, HostDateTime{}}, {12345, Date(2021, 7, 4, 10, 20, 30)}};

    const HostArray names = Array(HOST_TYPE_STRING), sizes = Array(HOST_TYPE_NUMBER), dates = Array(HOST_TYPE_DATETIME),
                    attributes = Array(HOST_TYPE_NUMBER);
    ASSERT_EQ(3, ZelDosEnumFileInfo(Pattern(L"*.bin").c_str(), 0, names, sizes, dates, attributes));
    const Texts listed = TextsOf(names);
    const std::vector<HostNumber> sizeRecords = RecordsOf(sizes, HOST_TYPE_NUMBER),
                                  dateRecords = RecordsOf(dates, HOST_TYPE_DATETIME);
    for (size_t i = 0; i < listed.size(); ++i) {
        SCOPED_TRACE(std::string(listed[i].begin(), listed[i].end()));
        const auto &e = expected[listed[i] == L"huge.bin" ? 0 : listed[i] == L"old.bin" ? 1 : 2];
        EXPECT_EQ(e.size, LongOf(sizeRecords[i]));
        if (e.date.length == 0)
            EXPECT_EQ(0, dateRecords[i].length);
        else
            EXPECT_TRUE(SameRecord(e.date, dateRecords[i]));
    }
    ASSERT_EQ(1, ZelDosEnumDirInfo(Pattern().c_str(), names, dates, attributes));
    EXPECT_TRUE(SameRecord(Date(1999, 12, 31, 23, 59, 58), RecordsOf(dates, HOST_TYPE_DATETIME)[0]));
}

TEST_F(Listing, DrivesOfThisMachine) {
    const HostArray names = Keep(Strings({L"stale"}, 4));
    Texts expected;
    for (int i = 0; i < 26; ++i)
        if (GetLogicalDrives() & (1u << i))
            expected.push_back(std::wstring(1, static_cast<wchar_t>(L'A' + i)) + L":\\");
    EXPECT_EQ(static_cast<int32_t>(expected.size()), ZelDosEnumDrives(names));
    EXPECT_EQ(expected, TextsOf(names));
    EXPECT_EQ(0, BoundsOf(names).low);
}

TEST_F(Listing, SearchPathFoldersThatExist) {
    Folder(L"one");
    Folder(L"two");
    Make(L"file", "");
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
    // No PATH at all leaves the array alone.
    const HostArray kept = Keep(Strings({L"kept"}));
    for (const wchar_t *value : {L"", static_cast<const wchar_t *>(nullptr)}) {
        const Variable variable(L"PATH", value);
        EXPECT_EQ(0, ZelDosEnumPath(kept));
    }
    EXPECT_EQ((Texts{L"kept"}), TextsOf(kept));
}

} // namespace
