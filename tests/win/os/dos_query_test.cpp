// Existence, parents, the current directory, variables, drives, the
// system version, a file beside a module, the flags.
#include <string>

#include "dos_support.h"

using namespace dostest;

namespace {

class Query : public DosTest {};

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

} // namespace
