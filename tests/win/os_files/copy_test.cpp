// ZelFileCopy on the real file system: names, masks, contents and times,
// attributes of the targets, the space check and the failures.
#include "files_support.h"

using namespace filestest;

namespace {

class FileCopy : public FolderTest {};

TEST_F(FileCopy, IntoAnExistingFolderKeepsNamesContentsAndTimes) {
    const Bytes a = SampleBytes(1000, 1), b = SampleBytes(70000, 2);
    Make(L"a.txt", a);
    Make(L"b.txt", b);
    Make(L"c.dat", "other");
    Folder(L"d.txt"); // a folder that matches is passed over
    Folder(L"out");
    const FILETIME old{0x12345600u, 0x01D00000u};
    const HANDLE f = CreateFileW(At(L"b.txt").c_str(), FILE_WRITE_ATTRIBUTES, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(INVALID_HANDLE_VALUE, f);
    SetFileTime(f, nullptr, nullptr, &old);
    CloseHandle(f);

    EXPECT_EQ(2, ZelFileCopy(At(L"*.txt").c_str(), At(L"out").c_str()));
    EXPECT_EQ(a, Read(At(L"out\\a.txt")));
    EXPECT_EQ(b, Read(At(L"out\\b.txt")));
    EXPECT_FALSE(Exists(At(L"out\\c.dat")));
    EXPECT_FALSE(Exists(At(L"out\\d.txt")));
    const FILETIME copied = WriteTime(At(L"out\\b.txt"));
    EXPECT_EQ(0, CompareFileTime(&old, &copied)) << "the source's times go with the copy";
}

TEST_F(FileCopy, MaskNamesTheTargets) {
    Make(L"abc.txt", "one");
    Make(L"xyz.txt", "two");
    Folder(L"out");
    EXPECT_EQ(2, ZelFileCopy(At(L"*.txt").c_str(), At(L"out\\*.bak").c_str()));
    EXPECT_EQ("one", Read(At(L"out\\abc.bak")));
    EXPECT_EQ("two", Read(At(L"out\\xyz.bak")));
    EXPECT_EQ(1, ZelFileCopy(At(L"xyz.txt").c_str(), At(L"out\\a?c.*").c_str()));
    EXPECT_EQ("two", Read(At(L"out\\axc.txt")));
    EXPECT_EQ(1, ZelFileCopy(At(L"abc.txt").c_str(), At(L"out\\x*.*").c_str()));
    EXPECT_EQ("one", Read(At(L"out\\xabc.txt")));
}

TEST_F(FileCopy, MasksThatWouldNotEndCopyUnderTheWholeName) {
    Make(L"a.b.c", "dots");
    Make(L"abc.txt", "plain");
    Folder(L"out");
    EXPECT_EQ(1, ZelFileCopy(At(L"a.b.c").c_str(), At(L"out\\").c_str()));
    EXPECT_EQ("dots", Read(At(L"out\\a.b.c")));
    EXPECT_EQ(1, ZelFileCopy(At(L"abc.txt").c_str(), At(L"out\\*").c_str()));
    EXPECT_EQ("plain", Read(At(L"out\\abc.txt")));
}

TEST_F(FileCopy, OverwritesAndMovesFilesAroundTheBufferSize) {
    Folder(L"out");
    for (size_t size : {size_t{0}, size_t{1}, size_t{65532}, size_t{65533}, size_t{65534}, size_t{200001}}) {
        const Bytes data = SampleBytes(size, static_cast<uint32_t>(size));
        Make(L"f.bin", data);
        Write(At(L"out\\f.bin"), SampleBytes(300000, 9)); // longer target: must be cut
        EXPECT_EQ(1, ZelFileCopy(At(L"f.bin").c_str(), At(L"out").c_str())) << size;
        EXPECT_EQ(data, Read(At(L"out\\f.bin"))) << "size " << size;
    }
}

TEST_F(FileCopy, BareDestinationLandsInTheCurrentDirectory) {
    Folder(L"src");
    Make(L"src\\n.txt", "here");
    EnterFolder();
    EXPECT_EQ(1, ZelFileCopy(At(L"src\\n.txt").c_str(), L"m.txt"));
    EXPECT_EQ("here", Read(At(L"m.txt")));
    EXPECT_EQ(1, ZelFileCopy(L"src\\n.txt", L"src\\o.txt")); // relative source and target
    EXPECT_EQ("here", Read(At(L"src\\o.txt")));
}

TEST_F(FileCopy, TargetAttributesFollowTheSource) {
    Folder(L"out");
    const std::wstring ro = Make(L"ro.txt", "r"), hidden = Make(L"hid.txt", "h"), system = Make(L"sys.txt", "s");
    ASSERT_TRUE(SetFileAttributesW(ro.c_str(), FILE_ATTRIBUTE_READONLY));
    ASSERT_TRUE(SetFileAttributesW(hidden.c_str(), FILE_ATTRIBUTE_HIDDEN));
    ASSERT_TRUE(SetFileAttributesW(system.c_str(), FILE_ATTRIBUTE_SYSTEM));
    if (!(Attributes(hidden) & FILE_ATTRIBUTE_HIDDEN))
        GTEST_SKIP() << "this file system keeps no hidden mark";
    EXPECT_EQ(3, ZelFileCopy(At(L"*.txt").c_str(), At(L"out").c_str()));
    const DWORD kept = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
    EXPECT_EQ(DWORD{FILE_ATTRIBUTE_READONLY}, Attributes(At(L"out\\ro.txt")) & kept);
    EXPECT_EQ(DWORD{FILE_ATTRIBUTE_HIDDEN}, Attributes(At(L"out\\hid.txt")) & kept);
    // A system file's copy is read-only and hidden, not system.
    EXPECT_EQ(DWORD{FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN}, Attributes(At(L"out\\sys.txt")) & kept);
    EXPECT_EQ("r", Read(At(L"out\\ro.txt")));
}

TEST_F(FileCopy, TargetInUseStopsTheCopy) {
    Folder(L"out");
    const std::wstring a = Make(L"a.txt", "new");
    const std::wstring target = Make(L"out\\a.txt", "in use");
    const Held held(target);
    ASSERT_TRUE(held.Holds());
    EXPECT_EQ(-static_cast<int32_t>(ERROR_SHARING_VIOLATION), ZelFileCopy(a.c_str(), At(L"out").c_str()));
    EXPECT_EQ("new", Read(a));
}

TEST_F(FileCopy, OnlyFoldersMatchGivesNone) {
    Folder(L"d1");
    Folder(L"d2");
    Folder(L"out");
    EXPECT_EQ(0, ZelFileCopy(At(L"d*").c_str(), At(L"out").c_str()));
}

TEST_F(FileCopy, BadArgumentsAndMissingThings) {
    const std::wstring a = Make(L"a.txt", "a");
    EXPECT_EQ(ZEL_INVALID_PARAMETER, ZelFileCopy(nullptr, a.c_str()));
    EXPECT_EQ(ZEL_INVALID_PARAMETER, ZelFileCopy(a.c_str(), nullptr));
    EXPECT_EQ(-static_cast<int32_t>(ERROR_FILE_NOT_FOUND), ZelFileCopy(At(L"*.none").c_str(), dir_.c_str()));
    EXPECT_EQ(-static_cast<int32_t>(ERROR_PATH_NOT_FOUND), ZelFileCopy(At(L"nodir\\*.txt").c_str(), dir_.c_str()));
    EXPECT_EQ(ZEL_PATH_NOT_FOUND, ZelFileCopy(a.c_str(), At(L"missing\\b.txt").c_str()));
    const std::wstring drive = MissingDrive();
    ASSERT_FALSE(drive.empty());
    EXPECT_EQ(ZEL_INVALID_DRIVE, ZelFileCopy(a.c_str(), (drive + L"\\b.txt").c_str()));
    EXPECT_EQ(ZEL_INVALID_DRIVE, ZelFileCopy(a.c_str(), (drive + L"b.txt").c_str()));
    EXPECT_EQ("a", Read(a));
}

TEST_F(FileCopy, OntoItselfFailsAndLosesNothing) {
    const Bytes data = SampleBytes(5000, 3);
    const std::wstring a = Make(L"a.txt", data);
    EXPECT_EQ(-static_cast<int32_t>(ERROR_SHARING_VIOLATION), ZelFileCopy(a.c_str(), a.c_str()));
    EXPECT_EQ(-static_cast<int32_t>(ERROR_SHARING_VIOLATION), ZelFileCopy(a.c_str(), dir_.c_str()));
    EXPECT_EQ(data, Read(a));
}

TEST_F(FileCopy, StopsAtTheFirstFailureAndKeepsWhatWasCopied) {
    Folder(L"out");
    Make(L"1.txt", "first");
    Make(L"2.txt", "second");
    Make(L"3.txt", "third");
    // The search lists names in order here; the second target is in the way.
    Folder(L"out\\2.txt");
    const int32_t result = ZelFileCopy(At(L"*.txt").c_str(), At(L"out").c_str());
    EXPECT_LT(result, 0);
    EXPECT_EQ("first", Read(At(L"out\\1.txt")));
    EXPECT_FALSE(Exists(At(L"out\\3.txt")));
}

TEST_F(FileCopy, FileBeyondTheFreeSpaceGivesDiskFull) {
    DWORD sectors = 0, bytes = 0, freeClusters = 0, clusters = 0;
    ASSERT_TRUE(GetDiskFreeSpaceW(dir_.substr(0, 3).c_str(), &sectors, &bytes, &freeClusters, &clusters));
    const uint32_t free32 = sectors * bytes * freeClusters;
    if (free32 == 0xFFFFFFFFu)
        GTEST_SKIP() << "free space counts 4 GB - 1 in 32 bits: no file exceeds it";
    Folder(L"out");
    Make(L"a_small.txt", "small");
    // Takes no room: only its size is counted, against the space the copy finds.
    ASSERT_TRUE(MakeSparse(At(L"b_huge.bin"), 0xFFFFFFFFull));
    EXPECT_EQ(ZEL_DISK_FULL, ZelFileCopy(At(L"*").c_str(), At(L"out").c_str()));
    EXPECT_EQ("small", Read(At(L"out\\a_small.txt")));
    EXPECT_FALSE(Exists(At(L"out\\b_huge.bin")));
}

} // namespace
