// Existence, parents, the current directory, variables, drives, the
// system version, a file beside a module, the flags; nested folder
// creation, and paths split into the caller's slots and joined again.
#include <string>

#include "os_support.h"
#include "zkharness.h"

using namespace ostest;

namespace {

class Query : public OsTest {};

TEST_F(Query, ExistForDrivesFoldersFilesAndPatterns) {
    Folder(L"sub");
    Make(L"file.txt", "");
    for (const std::wstring &path : {std::wstring(L"c:"), At(L"sub"), At(L"sub\\"), At(L"file.txt"), At(L"fil?.*")})
        EXPECT_EQ(1, ZelDosExist(path.c_str())) << path;
    const std::wstring missing = MissingDrive();
    for (const std::wstring &path : {At(L"*.none"), At(L"missing\\file.txt"), std::wstring(),
                                     dir_ + std::wstring(300, L'x'), missing, missing + L"\\"})
        EXPECT_EQ(0, ZelDosExist(path.c_str())) << path;
    EXPECT_EQ(0, ZelDosExist(nullptr));
}

TEST_F(Query, ParentWhenASubdirectoryIsThere) {
    Folder(L"top");
    Folder(L"top\\inner");
    Folder(L"leaf");
    Make(L"leaf\\file.txt", "");
    EXPECT_EQ(1, ZelDosIsParent(At(L"top").c_str()));
    EXPECT_EQ(1, ZelDosIsParent(At(L"top\\").c_str()));
    EXPECT_EQ(0, ZelDosIsParent(At(L"leaf").c_str()));
    EXPECT_EQ(0, ZelDosIsParent(At(L"missing").c_str()));
    EXPECT_EQ(0, ZelDosIsParent(nullptr));
    EXPECT_EQ(0, ZelDosIsParent((dir_ + std::wstring(300, L'x')).c_str()));
}

TEST_F(Query, CurrentDirectoryWhateverTheDriveArgument) {
    EnterFolder();
    const std::wstring expected = dir_.substr(0, dir_.size() - 1);
    EXPECT_EQ(expected, Take(ZelDosGetCurDir(L"C:")));
    EXPECT_EQ(expected, Take(ZelDosGetCurDir(L"Q:")));
    EXPECT_EQ(expected, Take(ZelDosGetCurDir(nullptr)));
}

TEST_F(Query, EnvironmentVariablesAtAnyLength) {
    const std::wstring longValue = std::wstring(300, L'v') + L"end";
    const Variable longOne(L"ZK_DOS_LONG", longValue.c_str());
    const Variable shortOne(L"ZK_DOS_SHORT", L"value");
    const Variable unset(L"ZK_DOS_UNSET", nullptr);
    EXPECT_EQ(longValue, Take(ZelDosGetEnvString(L"ZK_DOS_LONG")));
    EXPECT_EQ(L"value", Take(ZelDosGetEnvString(L"zk_dos_short")));
    EXPECT_EQ(L"", Take(ZelDosGetEnvString(L"ZK_DOS_UNSET")));
    EXPECT_EQ(L"", Take(ZelDosGetEnvString(nullptr)));
    EXPECT_EQ(L"", Take(ZelDosGetEnvString(L"")));
}

TEST_F(Query, DriveTypesAsThePlatformGivesThem) {
    EXPECT_EQ(static_cast<int32_t>(GetDriveTypeW(L"C:\\")), ZelDosGetDriveType(L"C:\\"));
    EXPECT_EQ(ZEL_DRIVE_FIXED, ZelDosGetDriveType(L"c:"));
    EXPECT_EQ(0, ZelDosGetDriveType(nullptr));
    for (const std::wstring &root : {std::wstring(), std::wstring(L"1:\\"), MissingDrive()})
        EXPECT_EQ(0, ZelDosGetDriveType(root.c_str())) << root;
}

TEST_F(Query, DriveSizesExactBeyond32Bits) {
    const std::wstring root = dir_.substr(0, 3);
    ULARGE_INTEGER callerFree{}, total{}, freeBefore{}, freeAfter{};
    ASSERT_TRUE(GetDiskFreeSpaceExW(root.c_str(), &callerFree, &total, &freeBefore));
    HostNumber totalBytes{}, freeBytes{};
    ASSERT_EQ(0, ZelDosGetDriveSize(root.substr(0, 2).c_str(), &totalBytes, &freeBytes));
    ASSERT_TRUE(GetDiskFreeSpaceExW(root.c_str(), &callerFree, &total, &freeAfter));
    EXPECT_TRUE(SameRecord(Number(std::to_wstring(total.QuadPart).c_str()), totalBytes));
    // Free space moves with whatever else writes to the disk meanwhile.
    double free = 0;
    ASSERT_TRUE(HostNumberToDouble(&freeBytes, &free));
    EXPECT_GE(free, static_cast<double>(std::min(freeBefore.QuadPart, freeAfter.QuadPart)));
    EXPECT_LE(free, static_cast<double>(std::max(freeBefore.QuadPart, freeAfter.QuadPart)));

    // Failures: -15 for what is no drive, the numbers null but for a null root.
    HostNumber a = Number(L"1"), b = Number(L"2");
    EXPECT_EQ(ZEL_INVALID_DRIVE, ZelDosGetDriveSize(nullptr, &a, &b));
    EXPECT_EQ(1, LongOf(a));
    EXPECT_EQ(ZEL_INVALID_DRIVE, ZelDosGetDriveSize(L"", &a, &b));
    EXPECT_EQ(0, a.length);
    EXPECT_EQ(0, b.length);
    a = Number(L"1");
    EXPECT_EQ(ZEL_INVALID_DRIVE, ZelDosGetDriveSize(MissingDrive().c_str(), &a, &b));
    EXPECT_EQ(0, a.length);
    EXPECT_LT(ZelDosGetDriveSize((dir_ + L"missing").c_str(), &a, &b), 0);
}

TEST_F(Query, VolumeLabels) {
    wchar_t label[MAX_PATH + 1] = {};
    ASSERT_TRUE(GetVolumeInformationW(L"C:\\", label, MAX_PATH + 1, nullptr, nullptr, nullptr, nullptr, 0));
    EXPECT_EQ(std::wstring(label), Take(ZelDosGetVolumeLabel(L"C:\\")));
    EXPECT_EQ(L"", Take(ZelDosGetVolumeLabel(nullptr)));
    EXPECT_EQ(ZEL_INVALID_PARAMETER, ZelDosSetVolumeLabel(nullptr, L"X"));
    const std::wstring missing = MissingDrive() + L"\\";
    EXPECT_EQ(L"", Take(ZelDosGetVolumeLabel(missing.c_str())));
    EXPECT_LT(ZelDosSetVolumeLabel(missing.c_str(), L"X"), 0);
}

TEST_F(Query, VersionFileBesideAModuleAndFlags) {
    OSVERSIONINFOW info{};
    info.dwOSVersionInfoSize = sizeof info;
    ASSERT_TRUE(GetVersionExW(&info));
    const HostNumber version = ZelDosGetVersion();
    double value = 0;
    ASSERT_TRUE(HostNumberToDouble(&version, &value));
    EXPECT_EQ(static_cast<double>(info.dwMajorVersion + info.dwMinorVersion / 10), value);

    wchar_t kernel[MAX_PATH] = {};
    ASSERT_TRUE(GetModuleFileNameW(GetModuleHandleW(L"kernel32.dll"), kernel, MAX_PATH));
    std::wstring expected(kernel);
    expected.resize(expected.rfind(L'\\') + 1);
    EXPECT_EQ(expected + L"zk.ini", Take(ZelDosBuildFullName(L"kernel32.dll", L"zk.ini")));
    wchar_t program[MAX_PATH] = {};
    ASSERT_TRUE(GetModuleFileNameW(nullptr, program, MAX_PATH));
    std::wstring programDir(program);
    programDir.resize(programDir.rfind(L'\\') + 1);
    EXPECT_EQ(programDir + L"a.txt", Take(ZelDosBuildFullName(nullptr, L"a.txt")));
    EXPECT_EQ(L"", Take(ZelDosBuildFullName(L"zk_not_loaded.dll", L"a.txt")));
    EXPECT_EQ(L"", Take(ZelDosBuildFullName(L"kernel32.dll", nullptr)));

    EXPECT_EQ(0, ZelDosSetFlags(0xFFFF, 1));
    EXPECT_EQ(0, ZelDosGetFlags());
}

class Paths : public OsTest {};

TEST_F(Paths, MakeAllDirCreatesEveryMissingLevel) {
    EXPECT_EQ(0, ZelDosMakeAllDir(At(L"a\\b\\c").c_str()));
    EXPECT_TRUE(IsFolder(At(L"a\\b\\c")));
    // The last step decides: an existing folder is -183, one more level is 0.
    EXPECT_EQ(-static_cast<int32_t>(ERROR_ALREADY_EXISTS), ZelDosMakeAllDir(At(L"a\\b\\c\\").c_str()));
    EXPECT_EQ(0, ZelDosMakeAllDir(At(L"a\\b\\d\\").c_str()));
    EXPECT_TRUE(IsFolder(At(L"a\\b\\d")));
    EXPECT_LT(ZelDosMakeAllDir(Make(L"a\\file", "").c_str()), 0) << "a file in the way";

    for (const wchar_t *root : {L"C:\\", L"C:", L"\\", L""})
        EXPECT_EQ(ZEL_INVALID_PARAMETER, ZelDosMakeAllDir(root)) << root;
    EXPECT_EQ(ZEL_INVALID_PARAMETER, ZelDosMakeAllDir(nullptr));
    const std::wstring longPath = At(L"long\\") + std::wstring(260, L'n');
    EXPECT_EQ(-206, ZelDosMakeAllDir(longPath.c_str()));
    EXPECT_FALSE(IsFolder(At(L"long"))) << "nothing is made of a path too long";
    EXPECT_LT(ZelDosMakeAllDir((MissingDrive() + L"\\x").c_str()), 0);
}

struct Split {
    int32_t result = -1;
    std::wstring drive, dir, name, ext;
};

Split SplitOf(const wchar_t *path) {
    HostStr slots[4] = {ZkHostStrMake(L"old"), 0, ZkHostStrMake(L"old"), 0};
    Split s;
    s.result = ZelDosSplitPath(path, &slots[0], &slots[1], &slots[2], &slots[3]);
    s.drive = Take(slots[0]);
    s.dir = Take(slots[1]);
    s.name = Take(slots[2]);
    s.ext = Take(slots[3]);
    return s;
}

std::wstring Joined(const Split &s) {
    return Take(ZelDosMakePath(s.drive.c_str(), s.dir.c_str(), s.name.c_str(), s.ext.c_str()));
}

TEST_F(Paths, SplitAndJoinAgain) {
    for (const wchar_t *path : {L"d:rel\\x.tar.gz", L"\\\\server\\share\\f.", L".profile"}) {
        SCOPED_TRACE(std::string(path, path + wcslen(path)));
        const Split s = SplitOf(path);
        EXPECT_EQ(1, s.result);
        EXPECT_EQ(path, Joined(s));
    }
    const Split full = SplitOf(L"C:\\dir\\name.ext");
    EXPECT_EQ((Texts{L"C:", L"\\dir\\", L"name", L".ext"}), (Texts{full.drive, full.dir, full.name, full.ext}));

    const Split none = SplitOf(nullptr); // the slots are emptied
    EXPECT_EQ(0, none.result);
    EXPECT_EQ((Texts{L"", L"", L"", L""}), (Texts{none.drive, none.dir, none.name, none.ext}));

    // Over 260 characters: each part is cut to its buffer, nothing overruns.
    const std::wstring longPath = L"C:\\" + std::wstring(300, L'd') + L"\\" + std::wstring(300, L'n') + L".e";
    const Split cut = SplitOf(longPath.c_str());
    EXPECT_EQ(1, cut.result);
    EXPECT_EQ(255u, cut.dir.size());
    EXPECT_EQ(255u, cut.name.size());
    EXPECT_EQ(L".e", cut.ext);
    // Null slots are passed over.
    EXPECT_EQ(0, ZelDosSplitPath(L"C:\\a.b", nullptr, nullptr, nullptr, nullptr));
}

TEST_F(Paths, MakePathJoinsWithoutSeparators) {
    EXPECT_EQ(L"C:dirnameext", Take(ZelDosMakePath(L"C:", L"dir", L"name", L"ext")));
    EXPECT_EQ(2 * 12 + 2, ZkHostLastAllocSize());
    EXPECT_EQ(L"name", Take(ZelDosMakePath(nullptr, nullptr, L"name", nullptr)));
    EXPECT_EQ(L"", Take(ZelDosMakePath(nullptr, L"", nullptr, L"")));
}

TEST_F(Paths, BuildersAskOnceWhenTheHostHasNoMemory) {
    {
        zkt::DialogAnswerer answerer(kRetry, zkt::DialogMatch{L"Zelkova Kit"});
        ZkHostFailAllocations(1);
        const int32_t before = ZkHostAllocCalls();
        const HostStr joined = ZelDosMakePath(L"C:", L"\\d\\", L"n", L".e");
        EXPECT_EQ(1, answerer.answered());
        // Not tried again: the empty string comes back in its place.
        EXPECT_EQ(before + 2, ZkHostAllocCalls());
        EXPECT_EQ(L"", Take(joined));
    }
    {
        zkt::DialogAnswerer answerer(kRetry, zkt::DialogMatch{L"Zelkova Kit"});
        HostStr slots[4] = {};
        ZkHostFailAllocations(1);
        // The drive slot goes without; the others are filled.
        EXPECT_EQ(1, ZelDosSplitPath(L"C:\\d\\n.e", &slots[0], &slots[1], &slots[2], &slots[3]));
        EXPECT_EQ(1, answerer.answered());
        EXPECT_EQ(0u, slots[0]);
        EXPECT_EQ(L"\\d\\", Take(slots[1]));
        EXPECT_EQ(L"n", Take(slots[2]));
        EXPECT_EQ(L".e", Take(slots[3]));
    }
}

} // namespace
