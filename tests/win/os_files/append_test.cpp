// ZelFileAppend: one destination file grows by every match.
#include "files_support.h"

using namespace filestest;

namespace {

class FileAppend : public FolderTest {};

TEST_F(FileAppend, AddsEveryMatchToTheEnd) {
    const Bytes a = SampleBytes(70000, 4), b = SampleBytes(10, 5);
    Make(L"p1.txt", a);
    Make(L"p2.txt", b);
    Folder(L"p3.txt");
    const std::wstring all = Make(L"all.dat", "head:");
    EXPECT_EQ(2, ZelFileAppend(At(L"p*.txt").c_str(), all.c_str()));
    EXPECT_EQ("head:" + a + b, Read(all));
    EXPECT_EQ(1, ZelFileAppend(At(L"p2.txt").c_str(), all.c_str()));
    EXPECT_EQ("head:" + a + b + b, Read(all));
    EXPECT_EQ(a, Read(At(L"p1.txt"))); // sources untouched
}

TEST_F(FileAppend, NewDestinationTakesTheFirstSourcesAttributes) {
    const std::wstring first = Make(L"s1.txt", "one");
    Make(L"s2.txt", "two");
    ASSERT_TRUE(SetFileAttributesW(first.c_str(), FILE_ATTRIBUTE_HIDDEN));
    if (!(Attributes(first) & FILE_ATTRIBUTE_HIDDEN))
        GTEST_SKIP() << "this file system keeps no hidden mark";
    const std::wstring all = At(L"new.dat");
    EXPECT_EQ(2, ZelFileAppend(At(L"s*.txt").c_str(), all.c_str()));
    EXPECT_EQ("onetwo", Read(all));
    EXPECT_TRUE(Attributes(all) & FILE_ATTRIBUTE_HIDDEN);
}

TEST_F(FileAppend, AppendingAFileToItselfIsRefused) {
    const std::wstring a = Make(L"a.txt", "abc");
    EXPECT_EQ(-static_cast<int32_t>(ERROR_SHARING_VIOLATION), ZelFileAppend(a.c_str(), a.c_str()));
    EXPECT_EQ("abc", Read(a));
}

TEST_F(FileAppend, Failures) {
    const std::wstring a = Make(L"a.txt", "a");
    EXPECT_EQ(ZEL_INVALID_PARAMETER, ZelFileAppend(nullptr, a.c_str()));
    EXPECT_EQ(ZEL_INVALID_PARAMETER, ZelFileAppend(a.c_str(), nullptr));
    EXPECT_EQ(-static_cast<int32_t>(ERROR_FILE_NOT_FOUND), ZelFileAppend(At(L"*.none").c_str(), At(L"x").c_str()));
    EXPECT_EQ(ZEL_PATH_NOT_FOUND, ZelFileAppend(a.c_str(), At(L"missing\\x.dat").c_str()));
    const std::wstring busy = Make(L"busy.dat", "fixed");
    {
        const Held held(busy);
        ASSERT_TRUE(held.Holds());
        EXPECT_EQ(-static_cast<int32_t>(ERROR_SHARING_VIOLATION), ZelFileAppend(a.c_str(), busy.c_str()));
    }
    EXPECT_EQ("fixed", Read(busy));
    // A destination on a drive that does not exist: its free space is not
    // known, so nothing is appended and no error is made.
    const std::wstring drive = MissingDrive();
    ASSERT_FALSE(drive.empty());
    EXPECT_EQ(0, ZelFileAppend(a.c_str(), (drive + L"\\x.dat").c_str()));
}

TEST_F(FileAppend, FileBeyondTheFreeSpaceGivesDiskFull) {
    DWORD sectors = 0, bytes = 0, freeClusters = 0, clusters = 0;
    ASSERT_TRUE(GetDiskFreeSpaceW(dir_.substr(0, 3).c_str(), &sectors, &bytes, &freeClusters, &clusters));
    if (sectors * bytes * freeClusters == 0xFFFFFFFFu)
        GTEST_SKIP() << "free space counts 4 GB - 1 in 32 bits: no file exceeds it";
    ASSERT_TRUE(MakeSparse(At(L"huge.bin"), 0xFFFFFFFFull));
    const std::wstring all = Make(L"all.dat", "kept");
    EXPECT_EQ(ZEL_DISK_FULL, ZelFileAppend(At(L"huge.bin").c_str(), all.c_str()));
    EXPECT_EQ("kept", Read(all));
}

} // namespace
