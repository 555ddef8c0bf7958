// ZelFileCopy, ZelFileRename, ZelFileDelete and ZelFileAppend on the real
// file system: names, masks, contents and times, the targets' marks, the
// space check, and the failures the four pattern transfers share (bad
// arguments, nothing matching, a destination folder or drive that is not
// there, the file onto itself), none of which loses anything.
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

class FileRename : public FolderTest {};
class FileDelete : public FolderTest {};

TEST_F(FileRename, MaskInTheSameFolderRenamesEachFileOnce) {
    for (const wchar_t *name : {L"a", L"b", L"c", L"d", L"e"})
        Make(name + std::wstring(L".txt"), std::string(1, static_cast<char>(name[0])));
    Folder(L"dir.txt");
    // A name that sorts after its source may come up again in the same search.
    EXPECT_EQ(5, ZelFileRename(At(L"*.txt").c_str(), At(L"z*.txt").c_str()));
    for (const wchar_t *name : {L"a", L"b", L"c", L"d", L"e"}) {
        EXPECT_EQ(std::string(1, static_cast<char>(name[0])), Read(At(L"z" + std::wstring(name) + L".txt")));
        EXPECT_FALSE(Exists(At(L"zz" + std::wstring(name) + L".txt"))) << "renamed twice";
    }
    EXPECT_TRUE(IsFolder(At(L"dir.txt")));
    Folder(L"out");
    EXPECT_EQ(5, ZelFileRename(At(L"*.txt").c_str(), At(L"out").c_str()));
    EXPECT_EQ(5, ZelFileRename(At(L"out\\*.txt").c_str(), At(L"out\\*.bak").c_str()));
    EXPECT_EQ("b", Read(At(L"out\\zb.bak")));
    EXPECT_FALSE(Exists(At(L"out\\zb.txt")));
}

TEST_F(FileRename, BareDestinationMovesIntoTheCurrentDirectory) {
    Folder(L"src");
    Make(L"src\\f.txt", "f");
    EnterFolder();
    // A bare name splits into no folder and no mask: the file keeps its name.
    EXPECT_EQ(1, ZelFileRename(At(L"src\\f.txt").c_str(), L"g.txt"));
    EXPECT_EQ("f", Read(At(L"f.txt")));
    EXPECT_FALSE(Exists(At(L"g.txt")));
    EXPECT_EQ(1, ZelFileRename(L"f.txt", L".\\g.txt")); // with a folder part the name is the mask
    EXPECT_EQ("f", Read(At(L"g.txt")));
}

TEST_F(FileRename, StopsAtATargetInTheWay) {
    Make(L"1.txt", "one");
    Make(L"2.txt", "two");
    Make(L"2.bak", "old");
    EXPECT_EQ(Err(ERROR_ALREADY_EXISTS), ZelFileRename(At(L"*.txt").c_str(), At(L"*.bak").c_str()));
    EXPECT_EQ("one", Read(At(L"1.bak")));
    EXPECT_EQ("two", Read(At(L"2.txt")));
    EXPECT_EQ("old", Read(At(L"2.bak")));
}

TEST_F(FileDelete, DeletesFilesPassesFoldersOverAndStopsAtAReadOnlyFile) {
    Make(L"a.tmp", "a");
    Make(L"c.keep", "c");
    Folder(L"d.tmp");
    EXPECT_EQ(1, ZelFileDelete(At(L"*.tmp").c_str()));
    EXPECT_FALSE(Exists(At(L"a.tmp")));
    EXPECT_TRUE(Exists(At(L"c.keep")));
    EXPECT_TRUE(IsFolder(At(L"d.tmp")));
    EXPECT_EQ(0, ZelFileDelete(At(L"d.*").c_str()));

    Make(L"1.tmp", "1");
    ASSERT_TRUE(SetFileAttributesW(Make(L"2.tmp", "2").c_str(), FILE_ATTRIBUTE_READONLY));
    Make(L"3.tmp", "3");
    EXPECT_EQ(Err(ERROR_ACCESS_DENIED), ZelFileDelete(At(L"*.tmp").c_str()));
    EXPECT_FALSE(Exists(At(L"1.tmp")));
    EXPECT_EQ("2", Read(At(L"2.tmp")));
    EXPECT_EQ("3", Read(At(L"3.tmp")));

    EXPECT_EQ(ZEL_INVALID_PARAMETER, ZelFileDelete(nullptr));
    EXPECT_EQ(Err(ERROR_FILE_NOT_FOUND), ZelFileDelete(At(L"*.none").c_str()));
    EXPECT_EQ(Err(ERROR_PATH_NOT_FOUND), ZelFileDelete(At(L"nodir\\*").c_str()));
}

class FileAppend : public FolderTest {};

TEST_F(FileAppend, AddsEveryMatchAndANewTargetTakesTheFirstSourcesMarks) {
    const Bytes a = SampleBytes(70000, 4), b = SampleBytes(10, 5);
    ASSERT_TRUE(SetFileAttributesW(Make(L"p1.txt", a).c_str(), FILE_ATTRIBUTE_HIDDEN));
    Make(L"p2.txt", b);
    Folder(L"p3.txt");
    const std::wstring all = Make(L"all.dat", "head:");
    EXPECT_EQ(2, ZelFileAppend(At(L"p*.txt").c_str(), all.c_str()));
    EXPECT_EQ("head:" + a + b, Read(all));
    EXPECT_EQ(1, ZelFileAppend(At(L"p2.txt").c_str(), all.c_str()));
    EXPECT_EQ("head:" + a + b + b, Read(all));
    EXPECT_EQ(a, Read(At(L"p1.txt")));
    EXPECT_EQ(2, ZelFileAppend(At(L"p*.txt").c_str(), At(L"new.dat").c_str()));
    EXPECT_EQ(a + b, Read(At(L"new.dat")));
    if (Attributes(At(L"p1.txt")) & FILE_ATTRIBUTE_HIDDEN) {
        EXPECT_TRUE(Attributes(At(L"new.dat")) & FILE_ATTRIBUTE_HIDDEN);
    }
}

class FileTransferFailures : public FolderTest {};

TEST_F(FileTransferFailures, SharedByCopyRenameExpandAndAppend) {
    const struct {
        const char *name;
        int32_t(ZKAPI *call)(const wchar_t *, const wchar_t *);
        int32_t missingDrive; // append cannot learn the free space there: nothing, no error
        int32_t ontoItself;   // a rename onto itself is a rename that changes nothing
    } transfers[] = {
        {"copy", ZelFileCopy, ZEL_INVALID_DRIVE, Err(ERROR_SHARING_VIOLATION)},
        {"rename", ZelFileRename, ZEL_INVALID_DRIVE, 0},
        {"expand", ZelFileExpand, ZEL_INVALID_DRIVE, Err(ERROR_SHARING_VIOLATION)},
        {"append", ZelFileAppend, 0, Err(ERROR_SHARING_VIOLATION)},
    };
    const Bytes data = SampleBytes(5000, 3);
    const std::wstring a = Make(L"a.txt", data), drive = MissingDrive();
    ASSERT_FALSE(drive.empty());
    for (const auto &t : transfers) {
        SCOPED_TRACE(t.name);
        EXPECT_EQ(ZEL_INVALID_PARAMETER, t.call(nullptr, a.c_str()));
        EXPECT_EQ(ZEL_INVALID_PARAMETER, t.call(a.c_str(), nullptr));
        EXPECT_EQ(Err(ERROR_FILE_NOT_FOUND), t.call(At(L"*.none").c_str(), At(L"x").c_str()));
        EXPECT_EQ(ZEL_PATH_NOT_FOUND, t.call(a.c_str(), At(L"missing\\b.txt").c_str()));
        EXPECT_EQ(t.missingDrive, t.call(a.c_str(), (drive + L"\\b.txt").c_str()));
        if (t.ontoItself != 0) {
            EXPECT_EQ(t.ontoItself, t.call(a.c_str(), a.c_str()));
        }
        EXPECT_EQ(data, Read(a));
    }
    EXPECT_EQ(ZEL_INVALID_DRIVE, ZelFileCopy(a.c_str(), (drive + L"b.txt").c_str())) << "drive-relative";
    EXPECT_EQ(Err(ERROR_PATH_NOT_FOUND), ZelFileCopy(At(L"nodir\\*.txt").c_str(), dir_.c_str()));
    EXPECT_EQ(Err(ERROR_SHARING_VIOLATION), ZelFileCopy(a.c_str(), dir_.c_str())) << "into its own folder";
    EXPECT_EQ(Err(ERROR_SHARING_VIOLATION), ZelFileExpand(a.c_str(), dir_.c_str()));
}

TEST_F(FileTransferFailures, TargetInUseStopsTheTransfer) {
    const std::wstring a = Make(L"a.txt", "new");
    Folder(L"out");
    const Held held(Make(L"out\\a.txt", "in use"));
    ASSERT_TRUE(held.Holds());
    EXPECT_EQ(Err(ERROR_SHARING_VIOLATION), ZelFileCopy(a.c_str(), At(L"out").c_str()));
    EXPECT_EQ(Err(ERROR_SHARING_VIOLATION), ZelFileAppend(a.c_str(), At(L"out\\a.txt").c_str()));
    EXPECT_EQ("new", Read(a));
}

TEST_F(FileTransferFailures, FileBeyondTheFreeSpaceGivesDiskFull) {
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
    const std::wstring all = Make(L"all.dat", "kept");
    EXPECT_EQ(ZEL_DISK_FULL, ZelFileAppend(At(L"b_huge.bin").c_str(), all.c_str()));
    EXPECT_EQ("kept", Read(all));
}

} // namespace
