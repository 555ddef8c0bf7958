// ZelFileCopy on the real file system: names, masks, contents and times,
// the targets' marks, the space check and the failures.
#include "files_support.h"
#include "os/core/filesums.h"

using namespace filestest;

namespace {

class FileCopy : public FolderTest {};

TEST_F(FileCopy, IntoAFolderKeepsNamesContentsAndTimes) {
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
    EXPECT_EQ(0, ZelFileCopy(At(L"d*").c_str(), At(L"out").c_str())) << "only folders match";
}

TEST_F(FileCopy, MaskNamesTheTargets) {
    Make(L"abc.txt", "abc");
    Make(L"xyz.txt", "xyz");
    Make(L"a.b.c", "dots");
    Folder(L"out");
    const struct {
        const wchar_t *source, *target, *made;
    } cases[] = {
        {L"abc.txt", L"out\\*.bak", L"out\\abc.bak"},
        {L"abc.txt", L"out\\x*.*", L"out\\xabc.txt"},
        {L"xyz.txt", L"out\\a?c.*", L"out\\axc.txt"},
        // Masks that would not end copy under the whole name.
        {L"a.b.c", L"out\\", L"out\\a.b.c"},
        {L"abc.txt", L"out\\*", L"out\\abc.txt"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(std::wstring(c.target));
        DeleteFileW(At(c.made).c_str());
        EXPECT_EQ(1, ZelFileCopy(At(c.source).c_str(), At(c.target).c_str()));
        EXPECT_EQ(Read(At(c.source)), Read(At(c.made)));
    }
}

TEST_F(FileCopy, OverwritesAndMovesFilesAroundTheBufferSize) {
    Folder(L"out");
    const size_t cap = zk::os::kTransferLimit;
    for (size_t size : {size_t{0}, size_t{1}, size_t{65533}, cap - 1, cap, cap + 1, 2 * cap + 5}) {
        const Bytes data = SampleBytes(size, static_cast<uint32_t>(size));
        Make(L"f.bin", data);
        Write(At(L"out\\f.bin"), SampleBytes(300000, 9)); // a longer target must be cut
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
    EXPECT_EQ(1, ZelFileCopy(L"src\\n.txt", L"src\\o.txt"));
    EXPECT_EQ("here", Read(At(L"src\\o.txt")));
}

TEST_F(FileCopy, TargetMarksFollowTheSource) {
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
}

TEST_F(FileCopy, StopsAtTheFirstFailureAndKeepsWhatWasCopied) {
    Folder(L"out");
    Make(L"1.txt", "first");
    Make(L"2.txt", "second");
    Make(L"3.txt", "third");
    Folder(L"out\\2.txt"); // the second target is in the way
    EXPECT_LT(ZelFileCopy(At(L"*.txt").c_str(), At(L"out").c_str()), 0);
    EXPECT_EQ("first", Read(At(L"out\\1.txt")));
    EXPECT_FALSE(Exists(At(L"out\\3.txt")));
}

TEST_F(FileCopy, FileBeyondTheFreeSpaceGivesDiskFull) {
    DWORD sectors = 0, bytes = 0, freeClusters = 0, clusters = 0;
    ASSERT_TRUE(GetDiskFreeSpaceW(dir_.substr(0, 3).c_str(), &sectors, &bytes, &freeClusters, &clusters));
    if (sectors * bytes * freeClusters == 0xFFFFFFFFu)
        GTEST_SKIP() << "free space counts 4 GB - 1 in 32 bits: no file exceeds it";
    Folder(L"out");
    Make(L"a_small.txt", "small");
    ASSERT_TRUE(MakeSparse(At(L"b_huge.bin"), 0xFFFFFFFFull)); // only its size counts
    EXPECT_EQ(ZEL_DISK_FULL, ZelFileCopy(At(L"*").c_str(), At(L"out").c_str()));
    EXPECT_EQ("small", Read(At(L"out\\a_small.txt")));
    EXPECT_FALSE(Exists(At(L"out\\b_huge.bin")));
}

} // namespace
